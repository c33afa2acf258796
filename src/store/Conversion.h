// Inside of the store: what a value becomes in a column. Called by Field::setValue.
#pragma once

#include <QString>

#include "store/Rows.h"
#include "store/Value.h"

/// The value as a column of that kind holds it: a text becomes a date (read month first), a time, a number. Throws
/// DataTypeConversion if it is none, Overflow if it is beyond 32 bits in a whole-number column or beyond a double. Null
/// stays.
Value converted(const Value &value, ColumnKind kind, const QString &column);
