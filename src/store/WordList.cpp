#include "store/WordList.h"

namespace {

// Spelled as keepers have had them in their files since version 1.1; a mended word would stand beside the old one in
// every list.
// clang-format off
constexpr Word words[] = {
    {"Algaeeater", "1", 0},
    {"Angel", "1", 0},
    {"Angel - Black", "1", 0},
    {"Angel - Golden", "1", 0},
    {"Angel - Long Veiled", "1", 0},
    {"Angel - Marbled", "1", 0},
    {"Angel - Miniature", "1", 0},
    {"Angel - Silver", "1", 60},
    {"Barb", "1", 0},
    {"Barb - Tiger", "1", 0},
    {"Barb - Tinfoil", "1", 0},
    {"Betta", "1", 0},
    {"Cardinal", "1", 0},
    {"Catfish", "1", 0},
    {"Catfish - Channel", "1", 0},
    {"Catfish - Corey", "1", 0},
    {"Catfish - Pleco", "1", 0},
    {"Chiclid", "1", 0},
    {"Convict", "1", 0},
    {"Danio", "1", 0},
    {"Discus", "1", 70},
    {"Ghost", "1", 0},
    {"Goldfish", "1", 0},
    {"Goldfish - common", "1", 0},
    {"Goldfish - celestral", "1", 0},
    {"Goldfish - bubble-eye", "1", 0},
    {"Guppy", "1", 0},
    {"Guppy - Fancy", "1", 0},
    {"Grouami - Blue", "1", 0},
    {"Gourami - Kissing", "1", 0},
    {"Jack Demsey", "1", 0},
    {"Knife fish", "1", 0},
    {"Koi", "1", 0},
    {"Kulie", "1", 0},
    {"Killifish", "1", 80},
    {"Loach - Clown", "1", 0},
    {"Loach - Kulie", "1", 0},
    {"Mollie - Black", "1", 0},
    {"Mollie - Marbled", "1", 0},
    {"Millie - Sailfin", "1", 0},
    {"Moon", "1", 0},
    {"Neon", "1", 0},
    {"Neon - Black", "1", 0},
    {"Oranda", "1", 0},
    {"Oscar", "1", 0},
    {"Pirahna - Red bellied", "1", 0},
    {"Pleco", "1", 0},
    {"Rainbowfish", "1", 0},
    {"Severum", "1", 0},
    {"Shark", "1", 0},
    {"Shark - Red Tail", "1", 0},
    {"Shark - Bala", "1", 0},
    {"Swordtail", "1", 0},
    {"Tetra", "1", 0},
    {"Zebra", "1", 90},
    {"Additives Added", "M", 0},
    {"Equipment Maintenance", "M", 0},
    {"Filter Change", "M", 0},
    {"Filter Clean", "M", 0},
    {"Medication Added", "M", 0},
    {"Pre-Filter Clean", "M", 0},
    {"Skimmer Cleaned", "M", 0},
    {"Special Feeding", "M", 0},
    {"Substrate Vacumed", "M", 0},
    {"Water Change", "M", 0},
    {"Water Top - off", "M", 0},
    {"Water Test", "M", 100},
};
// clang-format on

static_assert(std::size(words) == 67);

} // namespace

std::span<const Word> upgradeWords() { return words; }
