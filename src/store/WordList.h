// The words of ANIMALLIST: the freshwater animals and maintenance tasks that came with version 1.1, and the marine
// animals of a new database. The upgrade adds the former, in this order; CreateDatabase writes both.
#pragma once

#include <span>

struct Word
{
    const char *name; ///< UTF-8, spelled as stored
    const char *type; ///< "1" freshwater animal, "M" maintenance task
    int bar;          ///< position of the upgrade's progress bar after this word; 0 leaves it where it is
};

/// The 67 words, in the order in which the upgrade adds them.
std::span<const Word> upgradeWords();

/// Marine animals (type "2"), sorted; the list is data/animals/marine.txt.
std::span<const char *const> marineAnimals();
