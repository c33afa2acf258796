// The words of ANIMALLIST: freshwater animals and maintenance tasks that version 1.1 brought, and the marine animals of
// a new database. The upgrade writes the first, in their order; CreateDatabase writes both.
#pragma once

#include <span>

struct Word
{
    const char *name; ///< UTF-8, spelled as stored
    const char *type; ///< "1" freshwater animal, "M" maintenance task
    int bar;          ///< where the upgrade's progress bar stands after this word; 0: it does not move
};

/// The 67 words, in the order in which the upgrade adds them.
std::span<const Word> upgradeWords();

/// Marine animals (type "2"), sorted; the list is data/animals/marine.txt.
std::span<const char *const> marineAnimals();
