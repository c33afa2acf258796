#include "oldengine/JetSource.h"

#include <deque>

#include <glib.h> // must come first: mdbtools.h includes it as C
#include <mdbtools.h>
#include <QFile>
#include <QtEndian>

#include "oldengine/OldFile.h"
#include "platform/core/RuntimeFailure.h"

namespace {

// The head of a page says what kind of page it is, which table it belongs to, and where its rows begin. The rows fill
// the page from its end.
constexpr int dataPage = 1;
constexpr qint64 memoPages = 0x4c41564c; // a page with memos says "LVAL" instead of its table
constexpr unsigned offsetBits = 0x1fff, movedBit = 0x4000, deletedBit = 0x8000;

// A row has for each memo its length with some flags, and its place. The text of a short memo follows in the row.
constexpr int memoHead = 12, memoPointerAt = 4;
constexpr quint32 memoIsHere = 0x80000000, memoIsOnOnePage = 0x40000000, memoLength = 0x00ffffff;
constexpr int nextPieceSize = 4;

// The table of all tables: the page of its description, the kind of row that is a table, and the flags of a table that
// belongs to the engine.
constexpr quint32 catalogPage = 2, pageOfId = 0x00ffffff;
constexpr int kindBits = 0x7f;
constexpr quint32 systemFlags = 0x80000002;

/// Where a row is on its page.
struct Place
{
    int start = 0, size = 0;
    unsigned bits = 0;
};

int pageOfPointer(quint32 pointer) { return int(pointer >> 8); }
int rowOfPointer(quint32 pointer) { return int(pointer & 0xff); }

/// The description of a table, as the library reads it.
class OpenTable
{
public:
    OpenTable(MdbHandle *file, const QString &name, quint32 page)
    {
        m_entry.mdb = file;
        m_entry.object_type = MDB_TABLE;
        m_entry.table_pg = page;
        qstrncpy(m_entry.object_name, name.toUtf8().constData(), sizeof m_entry.object_name);
        m_definition = mdb_read_table(&m_entry);
        m_isReadable = m_definition && mdb_read_columns(m_definition);
    }
    ~OpenTable()
    {
        if (m_definition)
            mdb_free_tabledef(m_definition);
    }
    OpenTable(const OpenTable &) = delete;
    OpenTable &operator=(const OpenTable &) = delete;

    /// Null if the description cannot be read.
    MdbTableDef *definition() const { return m_isReadable ? m_definition : nullptr; }
    OldTable table() const
    {
        OldTable table{QString::fromUtf8(m_entry.object_name), {}, 0};
        if (!m_isReadable)
            return table;
        table.rows = m_definition->num_rows;
        for (guint c = 0; c < m_definition->num_cols; ++c) {
            const auto *column = static_cast<MdbColumn *>(g_ptr_array_index(m_definition->columns, c));
            table.columns.push_back({QString::fromUtf8(column->name), OldType(column->col_type), column->col_scale});
        }
        return table;
    }

private:
    MdbCatalogEntry m_entry{}; // the definition points to it
    MdbTableDef *m_definition = nullptr;
    bool m_isReadable = false;
};

} // namespace

struct JetSource::Library
{
    MdbHandle *file = nullptr;
    std::deque<OpenTable> tables; // in the order of m_tables
    qint64 pages = 0;

    ~Library()
    {
        tables.clear();
        if (file)
            mdb_close(file);
    }
};

/// Goes through the rows of one table.
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
                return; // some libraries mark a deleted row like this, without moving anything
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

    /// Reads a page into the second buffer. False if there is no such page, or if it belongs to another table.
    bool fetchPage(quint32 pointer, qint64 owner)
    {
        return pageOfPointer(pointer) > 0 && pageOfPointer(pointer) < m_pages &&
               mdb_read_alt_pg(m_file, gulong(pageOfPointer(pointer))) > 0 && ownerOf(m_file->alt_pg_buf) == owner;
    }

    /// Finds the cells of a row in the first buffer, and keeps a copy of the row for them to point to.
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
        if (columnOf(column)->col_type == MDB_BOOL) { // a yes/no is stored in the bit that says Null for other types
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

    /// Reads the page with a piece of a memo into the second buffer, and returns where on it the piece is.
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
    std::deque<QByteArray> m_memos; // of the current row; in a deque they stay where they are when one is added
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
                             QStringLiteral("The file has a password. Remove it with the program that set it."));
    m_codePage = header.codePage;
    m_library->file = mdb_open(QFile::encodeName(path).constData(), MDB_NOFLAGS);
    const auto refuse = [](const QString &why) { throw RuntimeFailure(Failure::UnrecognizedFormat, why); };
    if (!m_library->file)
        refuse(QStringLiteral("The beginning of the file is damaged."));
    m_library->pages = file.size() / m_library->file->fmt->pg_size;
    for (const auto &[name, page] : readCatalog()) {
        m_library->tables.emplace_back(m_library->file, name, page);
        m_tables.push_back(m_library->tables.back().table());
    }
}

/// The names of the keeper's tables, and the pages of their descriptions. The library has a function for this, but that
/// one also reads properties that nobody needs here, and never comes back from some damaged ones.
std::vector<std::pair<QString, quint32>> JetSource::readCatalog()
{
    const OpenTable catalog(m_library->file, QStringLiteral("MSysObjects"), catalogPage);
    const OldTable table = catalog.table();
    const auto find = [&](const char *name) {
        const auto column = std::ranges::find(table.columns, QLatin1String(name), &OldColumn::name);
        if (column == table.columns.end() || !CanBeRead(column->type, ColumnKind::Text))
            throw RuntimeFailure(Failure::UnrecognizedFormat,
                                 QStringLiteral("The list of the tables in the file is damaged."));
        return std::size_t(column - table.columns.begin());
    };
    const auto id = find("Id"), name = find("Name"), type = find("Type"), flags = find("Flags");
    const OldTextReader texts(m_codePage);
    std::vector<std::pair<QString, quint32>> found;
    Walk(*m_library, catalog.definition()).run([&](std::span<const OldCell> cells) {
        const auto read = [&](std::size_t column) {
            const OldType as = table.columns[column].type;
            return cells[column].state == OldCell::State::Present
                       ? ReadOldValue(cells[column].bytes, as, 0, ColumnKind::Text, texts).value_or(Value())
                       : Value();
        };
        const auto number = [&](std::size_t column) { return quint32(read(column).text().toLongLong()); };
        if ((number(type) & kindBits) == MDB_TABLE && (number(flags) & systemFlags) == 0)
            found.emplace_back(read(name).text(), number(id) & pageOfId);
    });
    return found;
}

JetSource::~JetSource() = default;

qint64 JetSource::readRows(const OldTable &table, const std::function<void(std::span<const OldCell>)> &take)
{
    const auto at = std::size_t(&table - m_tables.data());
    return Walk(*m_library, m_library->tables[at].definition()).run(take);
}
