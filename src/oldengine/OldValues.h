// Turns one cell of a file of the old engine into a value of ours. The engine stores numbers in eight types, dates and
// times as days and fractions of a day, and texts in a Windows code page or in UTF-16. This is plain logic on the bytes
// of a cell, which JetSource reads from the file.
#pragma once

#include <optional>

#include <QByteArrayView>
#include <QString>

#include "store/Rows.h"
#include "store/Value.h"

/// The type of a column, with the numbers that the file uses.
enum class OldType : int {
    Boolean = 1,
    Byte = 2,
    Integer = 3,
    Long = 4,
    Currency = 5,
    Single = 6,
    Double = 7,
    Date = 8,
    Text = 10,
    Memo = 12,
    Decimal = 16,
};

/// Whether a column of that type can be stored in a column of that kind. False for all types that are not listed above.
bool CanBeRead(OldType type, ColumnKind as);

/// Turns the bytes of texts into texts.
class OldTextReader
{
public:
    /// `codePage` is a Windows code page such as 1252, or 0 for UTF-16, which the engine may compress.
    explicit OldTextReader(int codePage);
    ~OldTextReader();
    OldTextReader(const OldTextReader &) = delete;
    OldTextReader &operator=(const OldTextReader &) = delete;

    /// A byte that is undefined in the code page becomes the Unicode character with the same number. Returns nothing if
    /// UTF-16 ends in the middle of a character.
    std::optional<QString> read(QByteArrayView bytes) const;

private:
    QString readCodePage(QByteArrayView bytes) const;
    void *m_converter = nullptr;
};

/// The value of a cell that is not Null. A single becomes the shortest decimal that reads back to the same single. A
/// date loses its time of day. A time loses its date and is rounded to the nearest second; only 23:59:59.7 is rounded
/// down, because the next second would belong to the next day, and the day is in another column. `scale` is the number
/// of decimals of a Decimal. Returns nothing if the bytes are not such a value. CanBeRead(type, as) must be true.
std::optional<Value> ReadOldValue(QByteArrayView bytes, OldType type, int scale, ColumnKind as,
                                  const OldTextReader &texts);
