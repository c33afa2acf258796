// One cell of a file of the old engine as a value of ours. The engine keeps its numbers in eight types, its days and
// times as a fraction of a day, and its texts in a Windows code page or in UTF-16. Plain logic on the bytes of a cell:
// who reads them from the file is JetSource.
#pragma once

#include <optional>

#include <QByteArrayView>
#include <QString>

#include "store/Rows.h"
#include "store/Value.h"

/// Type of a column; the numbers are those of the file.
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

/// Can a column of that type be read where the schema has that kind? Types that are not listed above cannot.
bool CanBeRead(OldType type, ColumnKind as);

/// Turns the bytes of texts into texts.
class OldTextReader
{
public:
    /// Of a Windows code page such as 1252; 0 for UTF-16, which the engine may keep compressed.
    explicit OldTextReader(int codePage);
    ~OldTextReader();
    OldTextReader(const OldTextReader &) = delete;
    OldTextReader &operator=(const OldTextReader &) = delete;

    /// A byte that means nothing in the code page is taken as the character of that number. Nothing where UTF-16 ends
    /// in the middle of a character.
    std::optional<QString> read(QByteArrayView bytes) const;

private:
    QString readCodePage(QByteArrayView bytes) const;
    void *m_converter = nullptr;
};

/// The value of a cell that is not Null. A single is the shortest decimal that reads back to the same single; a day
/// loses its time of day; a time loses its day and is rounded to the nearest second, 23:59:59.7 down to 23:59:59: its
/// day stands in another column. `scale` is the number of decimals of a Decimal. Nothing where the bytes are no such
/// value. CanBeRead(type, as) must hold.
std::optional<Value> ReadOldValue(QByteArrayView bytes, OldType type, int scale, ColumnKind as,
                                  const OldTextReader &texts);
