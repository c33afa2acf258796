#include "BigOldFile.h"

#include <stdexcept>
#include <vector>

#include <QFile>
#include <QtEndian>

namespace {

// A file of Jet 4. The first byte of a page is its kind. A page with rows has at 4 the page of its table, at 12 the
// number of its rows, and after that the places of the rows.
constexpr int pageSize = 4096;
constexpr char rowsPage = 1, mapPage = 5;
constexpr int ownerAt = 4, rowCountAt = 12, slotsAt = 14, offsetBits = 0x1fff;
constexpr int dayInRow = 2; // the first column of fixed size
// The page of a table has the number of its rows, and says which row of which page is the map of its pages.
constexpr int tableRowsAt = 16, tableMapAt = 55;

class BigFile
{
public:
    explicit BigFile(const QByteArray &bytes) : m_bytes(bytes) {}

    void multiply(int tablePage, int times)
    {
        std::vector<int> pages;
        for (int page = 0; page < pageCount(); ++page)
            if (at(page)[0] == rowsPage && int(read<quint32>(page, ownerAt)) == tablePage)
                pages.push_back(page);
        const std::size_t first = pages.size();
        const int rows = int(read<quint32>(tablePage, tableRowsAt));
        for (int time = 1; time < times; ++time)
            for (std::size_t i = 0; i < first; ++i) {
                pages.push_back(pageCount());
                m_bytes += QByteArray(at(pages[i]), pageSize);
                moveDays(pages.back(), rows * time);
            }
        write<quint32>(tablePage, tableRowsAt, quint32(rows * times));
        writeMap(tablePage, pages);
    }
    const QByteArray &bytes() const { return m_bytes; }
    int pageCount() const { return int(m_bytes.size() / pageSize); }
    template <class Number> Number read(int page, int offset) { return qFromLittleEndian<Number>(at(page) + offset); }

private:
    char *at(int page) { return m_bytes.data() + qsizetype(page) * pageSize; }
    template <class Number> void write(int page, int offset, Number number)
    {
        qToLittleEndian(number, at(page) + offset);
    }
    int rowAt(int page, int row) { return read<quint16>(page, slotsAt + 2 * row) & offsetBits; }

    void moveDays(int page, int days)
    {
        for (int row = 0; row < read<quint16>(page, rowCountAt); ++row) {
            const int day = rowAt(page, row) + dayInRow;
            write<double>(page, day, read<double>(page, day) + days);
        }
    }
    /// Gives the table a map that fills a page of its own, with one bit for each page of the file.
    void writeMap(int tablePage, const std::vector<int> &pages)
    {
        const auto pointer = read<quint32>(tablePage, tableMapAt);
        const int map = rowAt(int(pointer >> 8), int(pointer & 0xff));
        const int bits = pageCount();
        m_bytes += QByteArray(pageSize, '\0');
        *at(bits) = mapPage;
        at(bits)[1] = 1;
        for (const int page : pages) {
            char &byte = at(bits)[4 + page / 8];
            byte = char(byte | 1 << page % 8);
        }
        char *place = at(int(pointer >> 8)) + map;
        *place = 1;
        qToLittleEndian(quint32(bits), place + 1);
        std::fill_n(place + 5, 64, '\0'); // the places of further pages of the map
    }

    QByteArray m_bytes;
};

/// The only table with 200 rows.
int waterTestsIn(BigFile &file)
{
    for (int page = 0; page < file.pageCount(); ++page)
        if (file.read<quint8>(page, 0) == 2 && file.read<quint32>(page, tableRowsAt) == 200)
            return page;
    throw std::runtime_error("the file has no table of 200 rows");
}

} // namespace

void WriteBigOldFile(const QString &from, const QString &to, int times)
{
    QFile source(from), target(to);
    if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly))
        throw std::runtime_error("cannot write " + to.toStdString());
    BigFile file(source.readAll());
    file.multiply(waterTestsIn(file), times);
    if (target.write(file.bytes()) != file.bytes().size())
        throw std::runtime_error("cannot write " + to.toStdString());
}
