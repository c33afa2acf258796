// Reads a file of comma-separated values (RFC 4180) record by record, so that a file of any size needs little memory.
// libcsv splits the bytes; this class adds the numbers of the lines, skips a byte-order mark and blank lines, and says
// in plain words what is wrong. Lines may end with LF, CR or both. Blanks belong to a value. The bytes are not decoded.
#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include <QString>

/// The fault at which the reading of a file ends.
struct CsvFault
{
    qint64 line;    ///< from 1
    QString reason; ///< a sentence
};

struct CsvCell
{
    std::string_view bytes;
    bool isNull; ///< true for nothing at all, false for an empty text in quotation marks
};

class CsvReader
{
public:
    static constexpr std::size_t longestValue = 16 * 1024 * 1024; ///< bytes; a longer one lacks a quotation mark
    static constexpr std::size_t mostCells = 1000;                ///< only so many values of a record are kept

    /// Whether values can be separated by this character: tab, or a printable ASCII character that is not a letter,
    /// digit, quotation mark, point, plus or minus.
    static bool canDelimit(char delimiter);

    /// Opens the file. Throws RuntimeFailure: FileNotFound, or PermissionDenied if it cannot be read.
    CsvReader(const QString &fileName, char delimiter);
    ~CsvReader();
    CsvReader(const CsvReader &) = delete;
    CsvReader &operator=(const CsvReader &) = delete;

    /// Moves to the next record. Returns false at the end of the file and at a fault. Throws DeviceError if reading
    /// fails.
    bool next();
    /// The line on which the record begins, from 1.
    qint64 line() const { return m_line; }
    /// The values of the record, valid until next().
    const std::vector<CsvCell> &cells() const { return m_cells; }
    /// How many values the record has; more than cells() if there are more than mostCells.
    std::size_t cellCount() const { return m_cellCount; }
    /// Set if the file is not valid CSV from some line on; all records before that line were returned.
    const std::optional<CsvFault> &fault() const { return m_fault; }

private:
    struct Parser; // the handle of libcsv and the records of a block
    bool fill();

    std::unique_ptr<Parser> m_parser;
    std::vector<CsvCell> m_cells;
    std::size_t m_cellCount = 0;
    qint64 m_line = 0;
    std::optional<CsvFault> m_fault;
};
