// Answers questions from the animal tables: which animals a list offers, which others an animal can live with, and an
// animal's name in a sentence. The windows turn the answers into lists and boxes.
#pragma once

#include <QStringList>

#include "logic/advisers/AnimalTables.h"

/// The lines of a selection list: animal number n is line n - 1. Each line shows a size.
QStringList SelectionLines(WaterKind water);

/// The letter in one animal's row for another animal; '\0' if there is none. Numbers are 0 to 50.
char CompatLetter(WaterKind water, int animal, int other);

/// The name without the blanks and the size that follow a saltwater animal's name.
QString ShortName(WaterKind water, int animal);

/// Animals grouped by the letter in one animal's row, each group in the order of the table.
struct CompatLists
{
    QStringList compatible;
    QStringList maybe;
    QStringList incompatible;
};

/// Groups all animals of the table, including the animal itself.
CompatLists SortAnimals(WaterKind water, int animal);
