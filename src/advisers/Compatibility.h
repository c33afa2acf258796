// What the tables of animals say to a keeper: which animals a list offers, which of the others an animal can live with,
// and what an animal is called in a sentence. Plain functions; the windows turn the answers into lists and boxes.
#pragma once

#include <QStringList>

#include "advisers/AnimalTables.h"

/// The lines of a list to select from: animal number n is line n - 1. Each shows a size.
QStringList SelectionLines(WaterKind water);

/// The letter of an animal's row for another animal, '\0' where the row holds none. Numbers are 0 to 50.
char CompatLetter(WaterKind water, int animal, int other);

/// The name alone, without the blanks and the size of a salt animal.
QString ShortName(WaterKind water, int animal);

/// Names of animals by what the row of one animal says of them, each in the order of the table.
struct CompatLists
{
    QStringList compatible;
    QStringList maybe;
    QStringList incompatible;
};

/// Sorts the animals of the table, that animal itself included.
CompatLists SortAnimals(WaterKind water, int animal);
