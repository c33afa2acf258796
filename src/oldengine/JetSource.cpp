#include "oldengine/JetSource.h"

#include <deque>

#include <glib.h> // before the other, which includes it as C
#include <mdbtools.h>
#include <QFile>
#include <QtEndian>

#include "oldengine/OldFile.h"
#include "platform/core/RuntimeFailure.h"

namespace {

// A page: what it is, whose it is, and from the end on its rows, of which the head keeps the offsets.
constexpr int dataPage = 1;
constexpr qint64 memoPages = 0x4c41564c; // "LVAL" stands in the place of the owner
constexpr unsigned offsetBits = 0x1fff, movedBit = 0x4000, deletedBit = 0x8000;

// A memo in its row: length and flags, where it is, and, where it is short, its text.
constexpr int memoHead = 12, memoPointerAt = 4;
constexpr quint32 memoIsHere = 0x80000000, memoIsOnOnePage = 0x40000000, memoLength = 0x00ffffff;
constexpr int nextPieceSize = 4;

/// Where a row is on the page.
struct Place
{
    int start = 0, size = 0;
    unsigned bits = 0;
};

int pageOfPointer(quint32 pointer) { return int(pointer >> 8); }
int rowOfPointer(quint32 pointer) { return int(pointer & 0xff); }

} // namespace

struct JetSource::Library
{
    MdbHandle *file = nullptr;
    std::vector<MdbTableDef *> tables; // as m_tables; null where one cannot be read
    qint64 pages = 0;

    ~Library()
    {
        for (MdbTableDef *table : tables)
            if (table)
                mdb_free_tabledef(table);
        if (file)
            mdb_close(file);
    }
};

/// The rows of one table.
class JetSource::Walk
{
public:
    Walk(Library &library, MdbTableDef *table) :
        m_file(library.file), m_table(table), m_pages(library.pages), m_fields(table->num_cols),
        m_cells(table->num_cols)
    {
    }

    qint64 run(const std::function<void(std::span<const OldCell>)> &take)
    {
        mdb_rewind_table(m_table);
        for (qint64 pages = 0; pages < m_pages && mdb_read_next_dpg(m_table) != 0; ++pages)
            for (int row = 0, rows = rowsOfPage(m_file->pg_buf); row < rows; ++row)
                takeRow(row, take);
        return m_lost;
    }

private:
    int rowsOfPage(const unsigned char *page) const
    {
        return qFromLittleEndian<quint16>(page + m_file->fmt->row_count_offset);
    }
    static qint64 ownerOf(const unsigned char *page)
    {
        return page[0] == dataPage ? qFromLittleEndian<quint32>(page + 4) : 0;
    }
    std::optional<Place> placeOf(const unsigned char *page, int row) const
    {
        const int size = int(m_file->fmt->pg_size), offsets = m_file->fmt->row_count_offset + 2;
        if (row < 0 || row >= rowsOfPage(page) || offsets + 2 * (row + 1) > size)
            return std::nullopt;
        const auto offset = [&](int of) { return unsigned(qFromLittleEndian<quint16>(page + offsets + 2 * of)); };
        const int start = int(offset(row) & offsetBits), end = row == 0 ? size : int(offset(row - 1) & offsetBits);
        if (start < offsets + 2 * (row + 1) || start > end || end > size)
            return std::nullopt;
        return Place{start, end - start, offset(row) & ~offsetBits};
    }

    void takeRow(int row, const std::function<void(std::span<const OldCell>)> &take)
    {
        const auto place = placeOf(m_file->pg_buf, row);
        if (place && (place->bits & deletedBit) != 0)
            return;
        bool isGood = false;
        if (place && (place->bits & movedBit) != 0) {
            const auto pointer = qFromLittleEndian<quint32>(m_file->pg_buf + place->start);
            if (place->size < 4 || !fetchPage(pointer, m_table->entry->table_pg))
                return; // nothing was moved: so another library marks a deleted row
            mdb_swap_pgbuf(m_file);
            const auto moved = placeOf(m_file->pg_buf, rowOfPointer(pointer));
            isGood = moved && crack(*moved);
            mdb_swap_pgbuf(m_file);
        } else {
            isGood = place && crack(*place);
        }
        if (!isGood) {
            ++m_lost;
            return;
        }
        m_memos.clear();
        for (guint i = 0; i < m_table->num_cols; ++i)
            if (columnOf(i)->col_type == MDB_MEMO && m_cells[i].state == OldCell::State::Present)
                readMemo(m_cells[i]);
        take(m_cells);
    }

    /// Reads a page into the second buffer; false where it is not there or somebody else's.
    bool fetchPage(quint32 pointer, qint64 owner)
    {
        return pageOfPointer(pointer) > 0 && pageOfPointer(pointer) < m_pages &&
               mdb_read_alt_pg(m_file, gulong(pageOfPointer(pointer))) > 0 && ownerOf(m_file->alt_pg_buf) == owner;
    }

    /// Takes the cells of a row in the first buffer; what they point to is a copy.
    bool crack(const Place &place)
    {
        if (place.size < 2 || mdb_crack_row(m_table, place.start, std::size_t(place.size), m_fields.data()) < 0)
            return false;
        m_row.assign(m_file->pg_buf + place.start, m_file->pg_buf + place.start + place.size);
        for (guint i = 0; i < m_table->num_cols; ++i)
            if (!takeCell(i, place))
                return false;
        return true;
    }

    bool takeCell(guint column, const Place &place)
    {
        const MdbField &field = m_fields[column];
        OldCell &cell = m_cells[column];
        static constexpr char yesAndNo[] = {1, 0};
        if (columnOf(column)->col_type == MDB_BOOL) { // which is the bit that else tells Null
            cell = {OldCell::State::Present, QByteArrayView(yesAndNo + (field.is_null ? 1 : 0), 1)};
            return true;
        }
        cell = {};
        if (field.is_null)
            return true;
        const int at = field.start - place.start;
        if (at < 0 || field.siz < 0 || at + field.siz > place.size)
            return false;
        cell = {OldCell::State::Present, QByteArrayView(reinterpret_cast<const char *>(m_row.data()) + at, field.siz)};
        return true;
    }

    void readMemo(OldCell &cell)
    {
        const QByteArrayView head = cell.bytes;
        if (head.isEmpty())
            return;
        cell = {OldCell::State::Unreadable, {}};
        if (head.size() < memoHead)
            return;
        const auto flags = qFromLittleEndian<quint32>(head.data());
        const qsizetype length = flags & memoLength;
        auto pointer = qFromLittleEndian<quint32>(head.data() + memoPointerAt);
        QByteArray &text = m_memos.emplace_back();
        if ((flags & memoIsHere) != 0) {
            text = head.sliced(memoHead).toByteArray();
        } else if ((flags & memoIsOnOnePage) != 0) {
            if (!appendPiece(text, pointer, 0))
                return;
        } else {
            while (pointer != 0 && text.size() < length) {
                const auto next = nextPiece(pointer);
                if (!next || !appendPiece(text, pointer, nextPieceSize))
                    return;
                pointer = *next;
            }
        }
        if (text.size() < length)
            return;
        cell = {OldCell::State::Present, QByteArrayView(text).first(length)};
    }

    /// The row of a memo page that is in the second buffer then.
    std::optional<Place> fetchPiece(quint32 pointer)
    {
        return fetchPage(pointer, memoPages) ? placeOf(m_file->alt_pg_buf, rowOfPointer(pointer)) : std::nullopt;
    }
    std::optional<quint32> nextPiece(quint32 pointer)
    {
        const auto place = fetchPiece(pointer);
        if (!place || place->size < nextPieceSize)
            return std::nullopt;
        return qFromLittleEndian<quint32>(m_file->alt_pg_buf + place->start);
    }
    bool appendPiece(QByteArray &text, quint32 pointer, int from)
    {
        const auto place = fetchPiece(pointer);
        if (!place || place->size <= from)
            return false;
        text.append(reinterpret_cast<const char *>(m_file->alt_pg_buf) + place->start + from, place->size - from);
        return true;
    }

    MdbColumn *columnOf(guint i) const { return static_cast<MdbColumn *>(g_ptr_array_index(m_table->columns, i)); }

    MdbHandle *m_file;
    MdbTableDef *m_table;
    qint64 m_pages;
    std::vector<MdbField> m_fields;
    std::vector<OldCell> m_cells;
    std::vector<unsigned char> m_row;
    std::deque<QByteArray> m_memos; // of the row; one that is added moves none
    qint64 m_lost = 0;
};

JetSource::JetSource(const QString &path) : m_library(std::make_unique<Library>())
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeFailure(Failure::PermissionDenied, file.errorString());
    const OldHeader header = ReadOldHeader(file.read(oldHeaderSize));
    if (header.hasPassword)
        throw RuntimeFailure(Failure::PermissionDenied,
                             QStringLiteral("The file has a password. Take it off with the program that set it."));
    m_codePage = header.codePage;
    m_library->file = mdb_open(QFile::encodeName(path).constData(), MDB_NOFLAGS);
    const auto refuse = [](const QString &why) { throw RuntimeFailure(Failure::UnrecognizedFormat, why); };
    if (!m_library->file)
        refuse(QStringLiteral("The beginning of the file is damaged."));
    m_library->pages = file.size() / m_library->file->fmt->pg_size;
    if (!mdb_read_catalog(m_library->file, MDB_TABLE))
        refuse(QStringLiteral("The list of the tables in the file is damaged."));
    for (guint i = 0; i < m_library->file->num_catalog; ++i) {
        auto *entry = static_cast<MdbCatalogEntry *>(g_ptr_array_index(m_library->file->catalog, i));
        if (entry->object_type != MDB_TABLE || mdb_is_system_table(entry))
            continue;
        OldTable table{QString::fromUtf8(entry->object_name), {}, 0};
        MdbTableDef *definition = mdb_read_table(entry);
        if (definition && mdb_read_columns(definition)) {
            table.rows = definition->num_rows;
            for (guint c = 0; c < definition->num_cols; ++c) {
                const auto *column = static_cast<MdbColumn *>(g_ptr_array_index(definition->columns, c));
                table.columns.push_back(
                    {QString::fromUtf8(column->name), OldType(column->col_type), column->col_scale});
            }
        }
        m_library->tables.push_back(definition);
        m_tables.push_back(std::move(table));
    }
}

JetSource::~JetSource() = default;

qint64 JetSource::readRows(const OldTable &table, const std::function<void(std::span<const OldCell>)> &take)
{
    const auto at = std::size_t(&table - m_tables.data());
    return Walk(*m_library, m_library->tables[at]).run(take);
}
