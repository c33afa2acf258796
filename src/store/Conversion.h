// Internal to the store: converts a value to the type of its column. Called by Field::setValue.
#pragma once

#include <QString>

#include "store/Rows.h"
#include "store/Value.h"

/// The value as a column of that kind stores it: a text becomes a date (read month first), a time or a number. Throws
/// DataTypeConversion if it is not one, Overflow if it exceeds 32 bits in a whole-number column or the range of a
/// double. Null remains Null.
Value converted(const Value &value, ColumnKind kind, const QString &column);
