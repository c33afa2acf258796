#include "logic/advisers/AnimalTables.h"

// One animal per line: number, name, whether it tolerates its own kind, inches, and its letters in groups of ten.
// clang-format off

constexpr std::array<AnimalRow, animalRows> SaltAnimals{{
    {},
    { 1, "Anemone-Clownfish         1 in.", 'Y', 1, "YYYNYYYYYY" "NYYNYYYYYN" "YNNYYYNMYY" "NYNYYYYYY "},
    { 2, "Angelfish (Full size)     5 in.", 'N', 5, "YMYYYYMYNY" "NYNNMYYYYY" "YYNYYYNNYY" "YYNYYMMNM "},
    { 3, "Angelfish (Pigmy)         3 in.", 'N', 1, "YYYYYYYYNY" "NYYNYYYYYY" "YYNYYYNNYY" "YYNYYYMMM "},
    { 4, "Basses/Groupers           6 in.", 'Y', 6, "NYYYYNYYNY" "NNNNNNYNNY" "NYNYYYNNYY" "YYNYYMMMM "},
    { 5, "Batfish                   5 in.", 'Y', 5, "YYYYYYYYNY" "NYYNYYYNNY" "YYNYYYNNYY" "YYNYYYYYY "},
    { 6, "Blennies                  2 in.", 'Y', 2, "YYYNYYYYYN" "NYYNYYYYYN" "YNNYYYNMYY" "NYNYNYYYY "},
    { 7, "Boxfish/Trunkfish         2 in.", 'Y', 2, "YMYYYYYYYY" "NMYNYYYYYM" "YMNYYYNMYY" "YYNYMYNMN "},
    { 8, "Butterflies               4 in.", 'Y', 4, "YYYYYYYYYY" "NYYNYYYYYY" "YYNYYYNNYY" "YYNYYYNMN "},
    { 9, "Cardinalfish              2 in.", 'Y', 1, "YNNNNYYYYY" "NNYNYYNYYY" "YNNYYYNNNN" "YNNNNYYYY "},
    {10, "Catfish (Marine)         2 in.", 'Y', 2, "YYYYYNYYYY" "NYYNNYYYNY" "NYNYYYNNYY" "NYNYYYYYY "},
    {11, "Drums/High Hats          3 in.", 'Y', 3, "NNNNNNNNNN" "YNNNNNNNNN" "NNNNNNNNNN" "NNNNNNNNN "},
    {12, "Damselfish               1 in.", 'Y', 1, "YYYNYYMYNY" "NYYNYYYYYN" "YNNYYYNNYM" "NYNYYYYYY "},
    {13, "Filefish                 2 in.", 'Y', 2, "YYYNYYYYYY" "NYYNYYYYYN" "YNNYYYNNYN" "NNNYNYNNY "},
    {14, "Fingerfish               2 in.", 'Y', 2, "NNNNNNNNNN" "NNNYNNNNNN" "NNNNNNNNNN" "NNNNNNNNN "},
    {15, "Gobies                   1 in.", 'Y', 1, "YMYNYYYYYN" "NYYNYYNYYN" "YNNYYYNMYN" "NYNYYYYYY "},
    {16, "Grammas/Dottybacks       2 in.", 'N', 2, "YYYNYYYYYY" "NYYNYYYYMN" "YMNYYYNNYY" "YYNYMYYYY "},
    {17, "Grunts                   3 in.", 'Y', 3, "YYYYYYYYNY" "NYYNNYYYNY" "NYNYYYNNYY" "YYNYYYNNN "},
    {18, "Hawkfish                 2 in.", 'Y', 2, "YYYNNYYYYY" "NYYNYYYYYY" "YNNYYYNNYN" "NYNYYYYYY "},
    {19, "Jawfish                  2 in.", 'Y', 2, "YYYNNYYYYN" "NYYNYMNYYN" "YNNYYYNMYN" "NNNYYYYMY "},
    {20, "Lionfish                 5 in.", 'Y', 5, "NYYYYNMYYY" "NNNNNNYYNY" "NYNYYYNNYY" "YYNYYYYNY "},
    {21, "Mandarinfish             2 in.", 'Y', 2, "YYYNYYYYYN" "NYYNYYNYYN" "YNNYYNNMYN" "NNNNNNYYY "},
    {22, "Moray eels               6 in.", 'Y', 4, "NYYYYNMYNY" "NNNNNMYNNY" "NYNYYYNNYY" "YYNYYYYNY "},
    {23, "Pine-cone fish           4 in.", 'N', 4, "NNNNNNNNNN" "NNNNNNNNNN" "NNYNNNNNNN" "NNNNNNNNN "},
    {24, "Porcupine fish           3 in.", 'Y', 3, "YYYYYYYYYY" "NYYNYYYYYY" "YYNYNYNNYY" "YYNYYYNNN "},
    {25, "Puffers                  3 in.", 'Y', 3, "YYYYYYYYYY" "NYYNYYYYYY" "YYNNYYNNYY" "YYNYYYNMM "},
    {26, "Rabbitfish               3 in.", 'Y', 3, "YYYYYYYYYY" "NYYNYYYYYY" "NYNYYYNNYY" "YYNYYYMMM "},
    {27, "Razorfish                2 in.", 'Y', 2, "NNNNNNNNNN" "NNNNNNNNNN" "NNNNNNYNNN" "NNNNNNNNN "},
    {28, "Seahorses/Pipefish       2 in.", 'Y', 2, "MNNNNMMNNN" "NNNNMNNNMN" "MNNNNNNYNN" "NNNNNNMMY "},
    {29, "Surgeonfish/Tangs        3 in.", 'N', 3, "YYYYYYYYNY" "NYYNYYYYYY" "YYNYYYNNYY" "YYNYYYYYY "},
    {30, "Squirrelfish             3 in.", 'Y', 3, "YYYYYYYYNY" "NNNNNYYNNY" "NYNYYYNNYY" "YYNYYYMMM "},
    {31, "Stonefish/Frogfish       3 in.", 'N', 3, "NYYYYNYYYN" "NNNNNYYNNY" "NYNYYYNNYY" "YYNYYYMMM "},
    {32, "Sweetlips                3 in.", 'Y', 3, "YYYYYYYYNY" "NYNNYYYYNY" "NYNYYYNNYY" "YYNYYYNNN "},
    {33, "Tigerfish                3 in.", 'Y', 3, "NNNNNNNNNN" "NNNNNNNNNN" "NNNNNNNNNN" "NNYNNNNNN "},
    {34, "Tobies/Moorish Idols     4 in.", 'Y', 4, "YYYYYYYYNY" "NYYNYYYYYY" "NYNYYYNNYY" "YYNYYYNNN "},
    {35, "Triggerfish              4 in.", 'N', 4, "YYYYYNMYNY" "NYNNYMYYYY" "NYNYYYNNYY" "YYNYYYMNN "},
    {36, "Wrasses                  3 in.", 'N', 3, "YMYMYYYYYY" "NYYNYYYYYY" "NYNYYYNNYY" "YYNYYYYYY "},
    {37, "Inverts - Anemones       2 in.", 'Y', 2, "YMMMYYNNYY" "NYNNYYNYYY" "YYNNNMNMYM" "MNNNMYYYY "},
    {38, "Inverts - Shrimp         1 in.", 'Y', 1, "YNMMYYMMYY" "NYNNYYNYMN" "YNNNMMNMYM" "MNNNNYYYY "},
    {39, "Inverts - Corals         2 in.", 'Y', 2, "YMMMYYNNYY" "NYYNYYNYYY" "YYNNMMNYYM" "MNNNNYYYY "},
    {40, "                              ", 'Y', 0, "          " "          " "          " "          "},
}};

namespace {

constexpr char notTold = '\0';

// For fresh water only three temperaments count. A class A animal may live with A and B but not with C, a class B
// animal with B and C but not with A. A class C animal can live with C, may live with B, and cannot live with A.
constexpr std::string_view classA = "MMMNNMMNNN" "MNNMMNMMNN" "NNNNNMMNMN" "MMMNMNNMNM" "MMNMMMNNNN";
constexpr std::string_view classB = "NMNMMMMMMM" "MMMMNMNNMM" "MMMMMNMMNM" "NNMMNMMNMM" "MMMNMMMMMM";
constexpr std::string_view classC = "NMNYYMMYYY" "MYYMNYNNYY" "YYYYYNMYNY" "NNMYNYYNYM" "MMYNMMYYYY";

} // namespace

constexpr std::array<AnimalRow, animalRows> FreshAnimals{{
    {},
    { 1, "African Lungfish",     notTold, 3, classA},
    { 2, "Angelfish",            notTold, 2, classB},
    { 3, "Archerfish",           notTold, 3, classA},
    { 4, "Banjo Catfish",        notTold, 2, classC},
    { 5, "Blind Cave Fish",      notTold, 2, classC},
    { 6, "BumbleBee Gobys",      notTold, 1, classB},
    { 7, "Butterfly Fish",       notTold, 3, classB},
    { 8, "Cardinal Tetras",      notTold, 1, classC},
    { 9, "Characins",            notTold, 2, classC},
    {10, "Cherry Barbs",         notTold, 1, classC},
    {11, "Clown Loachs",         notTold, 4, classB},
    {12, "Cory Catfish",         notTold, 2, classC},
    {13, "Discus",               notTold, 4, classC},
    {14, "Dwarf Gouramis",       notTold, 1, classB},
    {15, "Elongate Cichlids",    notTold, 2, classA},
    {16, "Emperor Tetras",       notTold, 1, classC},
    {17, "Fighting Fish",        notTold, 2, classA},
    {18, "Firemouth Chiclids",   notTold, 3, classA},
    {19, "Giant Danios",         notTold, 4, classC},
    {20, "Glass Catfish",        notTold, 2, classC},
    {21, "Glassfish",            notTold, 1, classC},
    {22, "Goldfish",             notTold, 3, classC},
    {23, "Guppies",              notTold, 1, classC},
    {24, "Harlequin Rasboras",   notTold, 1, classC},
    {25, "Hatchetfish",          notTold, 1, classC},
    {26, "Jack Dempseys",        notTold, 4, classA},
    {27, "Kribs",                notTold, 1, classB},
    {28, "Kuhlii Loaches",       notTold, 2, classC},
    {29, "Leaf Fish",            notTold, 2, classA},
    {30, "Mollies",              notTold, 2, classC},
    {31, "Oscars",               notTold, 5, classA},
    {32, "Peacock Chiclids",     notTold, 4, classA},
    {33, "Pearl Gouramis",       notTold, 3, classB},
    {34, "Pencil Fish",          notTold, 1, classC},
    {35, "Piranhas",             notTold, 4, classA},
    {36, "Platys",               notTold, 2, classC},
    {37, "Plecostomus",          notTold, 3, classC},
    {38, "Pufferfish",           notTold, 3, classA},
    {39, "Rainbowfish",          notTold, 2, classC},
    {40, "Red Tailed Sharks",    notTold, 3, classB},
    {41, "Rosy Barbs",           notTold, 2, classB},
    {42, "Scats",                notTold, 4, classB},
    {43, "Serpae Tetras",        notTold, 1, classC},
    {44, "Snakeheads",           notTold, 4, classA},
    {45, "Spiny Eels",           notTold, 3, classB},
    {46, "Suckers (Otocinclus)", notTold, 1, classB},
    {47, "Swordtails",           notTold, 2, classC},
    {48, "Tiger Barbs",          notTold, 1, classC},
    {49, "White Cloud Minnows",  notTold, 1, classC},
    {50, "Zebra Danios",         notTold, 1, classC},
}};

// clang-format on
namespace {

/// Whether the first `count` animals are numbered in order, each with one letter for each of them and then blanks.
constexpr bool isWhole(const std::array<AnimalRow, animalRows> &table, int count, int blanks, std::string_view ownKind)
{
    for (int number = 1; number <= count; ++number) {
        const AnimalRow &row = table[size_t(number)];
        if (row.Number != number || row.AnimalName.empty() || ownKind.find(row.KeepsOwnKind) == ownKind.npos ||
            row.CompatLetters.size() != size_t(count + blanks) ||
            row.CompatLetters.find_first_not_of("YMN") != (blanks > 0 ? size_t(count) : row.CompatLetters.npos))
            return false;
    }
    return true;
}

static_assert(isWhole(SaltAnimals, saltAnimalCount, 1, "YN"));
static_assert(isWhole(FreshAnimals, freshAnimalCount, 0, std::string_view(&notTold, 1)));

} // namespace

const AnimalRow &AnimalOf(WaterKind water, int number)
{
    return (water == WaterKind::Salt ? SaltAnimals : FreshAnimals).at(size_t(number));
}
