#include "data/CsvReader.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <cstring>

#include <csv.h>
#include <QFile>
#include <QFileInfo>

#include "platform/core/RuntimeFailure.h"

namespace {

constexpr qint64 blockSize = 64 * 1024;
constexpr QByteArrayView byteOrderMark = "\xef\xbb\xbf";

int isNoBlank(unsigned char) { return 0; }

void *growUpToLongest(void *memory, std::size_t size)
{
    return size > CsvReader::longestValue ? nullptr : std::realloc(memory, size);
}

/// How many lines end within a text; CR and LF together end one line.
qint64 lineEnds(std::string_view text)
{
    qint64 count = 0;
    for (std::size_t i = 0; i < text.size(); ++i)
        count += text[i] == '\n' ? i == 0 || text[i - 1] != '\r' : text[i] == '\r';
    return count;
}

} // namespace

struct CsvReader::Parser
{
    struct Place
    {
        std::size_t at, length;
        bool isNull;
    };
    struct Record
    {
        qint64 line;
        std::size_t first, kept, count; ///< its first place, how many places are kept, and how many values it has
    };

    QFile file;
    csv_parser csv;
    std::string text; ///< the values of all records below, one after the other
    std::vector<Place> places;
    std::vector<Record> records;
    std::size_t taken = 0; ///< how many records next() has returned
    Record open{1, 0, 0, 0};
    qint64 line = 1;          ///< the line that the parser is at
    bool afterReturn = false; ///< the last line ended with CR, so an LF that follows belongs to it
    bool isStart = true, isEnded = false;

    Parser(const QString &fileName, char delimiter) : file(fileName)
    {
        csv_init(&csv, CSV_STRICT | CSV_STRICT_FINI | CSV_REPALL_NL | CSV_EMPTY_IS_NULL);
        csv_set_delim(&csv, static_cast<unsigned char>(delimiter));
        csv_set_space_func(&csv, isNoBlank);
        csv_set_realloc_func(&csv, growUpToLongest);
    }
    ~Parser() { csv_free(&csv); }

    // The parser's calls of these two go through C, so they must not throw.
    static void takeCell(void *bytes, std::size_t length, void *self) noexcept
    {
        static_cast<Parser *>(self)->addCell(static_cast<const char *>(bytes), length);
    }
    static void takeEnd(int character, void *self) noexcept { static_cast<Parser *>(self)->endLine(character); }

    void addCell(const char *bytes, std::size_t length)
    {
        afterReturn = false;
        const std::string_view value(bytes ? bytes : "", length);
        line += lineEnds(value);
        if (open.count++ >= mostCells)
            return;
        places.push_back({text.size(), length, bytes == nullptr});
        text.append(value);
        ++open.kept;
    }

    void endLine(int character)
    {
        if (character == '\n' && afterReturn) {
            afterReturn = false;
            open.line = line;
            return;
        }
        if (open.count > 0)
            records.push_back(open);
        ++line;
        afterReturn = character == '\r';
        open = {line, places.size(), 0, 0};
    }

    /// Forgets the records that next() has returned, but keeps the values of a record that is not complete yet.
    void forgetTaken()
    {
        const std::size_t keptFrom = open.kept > 0 ? places[open.first].at : text.size();
        text.erase(0, keptFrom);
        places.erase(places.begin(), places.begin() + std::ptrdiff_t(open.first));
        for (Place &place : places)
            place.at -= keptFrom;
        open.first = 0;
        records.clear();
        taken = 0;
    }

    QByteArray read()
    {
        QByteArray block = file.read(blockSize);
        if (block.isEmpty() && file.error() != QFileDevice::NoError)
            throw RuntimeFailure(Failure::DeviceError,
                                 QStringLiteral("Reading %1.\n(%2)").arg(file.fileName(), file.errorString()));
        if (std::exchange(isStart, false) && block.startsWith(byteOrderMark))
            block.remove(0, byteOrderMark.size());
        return block;
    }

    CsvFault faultHere() const
    {
        if (csv.status == CSV_ENOMEM)
            return {line, QStringLiteral("A value is longer than 16 MB. Perhaps a quotation mark is missing.")};
        if (isEnded)
            return {line,
                    QStringLiteral("A value begins with a quotation mark and the file ends before a second one.")};
        // The unfinished value began on `line`, and the part of it that was read may itself contain line ends.
        const std::string_view seen(reinterpret_cast<const char *>(csv.entry_buf), csv.entry_pos);
        return {line + lineEnds(seen),
                QStringLiteral("A quotation mark is inside a value. A value with quotation marks is put between "
                               "quotation marks, and each one inside is doubled.")};
    }
};

bool CsvReader::canDelimit(char delimiter)
{
    return delimiter == '\t' || (delimiter >= ' ' && delimiter < 0x7f && !std::strchr("\".-+", delimiter) &&
                                 !std::isalnum(static_cast<unsigned char>(delimiter)));
}

CsvReader::CsvReader(const QString &fileName, char delimiter) : m_parser(std::make_unique<Parser>(fileName, delimiter))
{
    if (m_parser->file.open(QIODevice::ReadOnly))
        return;
    const Failure failure = QFileInfo::exists(fileName) ? Failure::PermissionDenied : Failure::FileNotFound;
    throw RuntimeFailure(failure, QStringLiteral("Reading %1.\n(%2)").arg(fileName, m_parser->file.errorString()));
}

CsvReader::~CsvReader() = default;

bool CsvReader::fill()
{
    Parser &p = *m_parser;
    p.forgetTaken();
    while (p.records.empty() && !p.isEnded && !m_fault) {
        const QByteArray block = p.read();
        p.isEnded = block.isEmpty();
        const auto size = std::size_t(block.size());
        csv_set_blk_size(&p.csv,
                         std::max(csv_get_buffer_size(&p.csv), std::size_t(blockSize))); // a long value doubles it
        const bool isGood =
            p.isEnded ? csv_fini(&p.csv, Parser::takeCell, Parser::takeEnd, &p) == 0
                      : csv_parse(&p.csv, block.constData(), size, Parser::takeCell, Parser::takeEnd, &p) == size;
        if (!isGood)
            m_fault = p.faultHere();
    }
    return !p.records.empty();
}

bool CsvReader::next()
{
    Parser &p = *m_parser;
    if (p.taken == p.records.size() && (m_fault || !fill()))
        return false;
    const Parser::Record &record = p.records[p.taken++];
    m_line = record.line;
    m_cellCount = record.count;
    m_cells.clear();
    for (std::size_t i = record.first; i < record.first + record.kept; ++i)
        m_cells.push_back({std::string_view(p.text).substr(p.places[i].at, p.places[i].length), p.places[i].isNull});
    return true;
}
