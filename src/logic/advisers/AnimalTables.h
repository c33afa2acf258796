// What the program knows about which animals can share a tank: two constant tables, one for salt water and one for
// fresh water. An animal is identified by its number in its table, which is also its place in every list, so the tables
// must never be sorted. The row is the animal in question, the position of a letter in it the other animal. The tables
// are deliberately not symmetric. Used by the compatibility window and by the Fantasy Tank.
#pragma once

#include <array>
#include <string_view>

enum class WaterKind { Salt, Fresh };

struct AnimalRow
{
    int Number = 0;              ///< its place in the table
    std::string_view AnimalName; ///< for a saltwater animal followed by blanks and the size that the lists show
    char KeepsOwnKind = '\0';    ///< 'N': two or more in one tank may cause trouble; not used for fresh water
    int TypicalSize = 0;         ///< inches, suggested for a planned tank; three names contain another size
    /// One letter for each animal of the same table, from number 1: 'Y' compatible, 'M' may have problems, 'N' will
    /// probably have problems.
    std::string_view CompatLetters = {};
};

constexpr int animalRows = 51; ///< row 0 and rows without a name are unused
constexpr int saltAnimalCount = 39;
constexpr int freshAnimalCount = 50;

extern const std::array<AnimalRow, animalRows> SaltAnimals;
extern const std::array<AnimalRow, animalRows> FreshAnimals;

/// A row of the saltwater or freshwater table; the number must be 0 to 50.
const AnimalRow &AnimalOf(WaterKind water, int number);
