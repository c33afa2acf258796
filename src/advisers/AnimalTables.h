// What the program knows of which animals can share a tank: two constant tables, one of the sea and one of fresh water.
// An animal is known by its number in its table, which is also its place in every list that offers it, so neither table
// may ever be sorted. A row is the animal that is asked about, a letter's position in it the other animal; the tables
// are not symmetric, and are meant so. Read by the compatibility window and by the Fantasy Tank.
#pragma once

#include <array>
#include <string_view>

enum class WaterKind { Salt, Fresh };

struct AnimalRow
{
    int Number = 0;              ///< its own place in the table
    std::string_view AnimalName; ///< of a salt animal with blanks and the size that the lists show
    char KeepsOwnKind = '\0';    ///< 'N': two or more in one tank may cause trouble; no freshwater row says so
    int TypicalSize = 0;         ///< inches, offered for a planned tank; three salt rows show another one in their name
    /// A letter for each animal of the same table, from number 1: 'Y' compatible, 'M' may have problems, 'N' will
    /// probably have problems.
    std::string_view CompatLetters = {};
};

constexpr int animalRows = 51; ///< row 0 is no animal, nor is a row without a name
constexpr int saltAnimalCount = 39;
constexpr int freshAnimalCount = 50;

extern const std::array<AnimalRow, animalRows> SaltAnimals;
extern const std::array<AnimalRow, animalRows> FreshAnimals;

/// A row of that water's table; the number must be 0 to 50.
const AnimalRow &AnimalOf(WaterKind water, int number);
