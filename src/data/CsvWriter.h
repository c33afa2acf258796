// Writes a file of comma-separated values (RFC 4180) in UTF-8, with lines that end with CR and LF. Only texts are in
// quotation marks, so that an empty text differs from nothing, and a text of digits from a number. The file is written
// under a temporary name, and gets its own name only when it is complete.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#include <QString>

#include "store/Draft.h"

class CsvWriter
{
public:
    /// Begins the file. Throws RuntimeFailure, as the other functions do: PermissionDenied, PathNotFound, DiskFull or
    /// DeviceError.
    explicit CsvWriter(const QString &fileName);
    ~CsvWriter();
    CsvWriter(const CsvWriter &) = delete;
    CsvWriter &operator=(const CsvWriter &) = delete;

    void null();
    void bare(std::string_view bytes); ///< must not contain quotation marks, commas or line ends
    void number(double value);         ///< the shortest digits that read back to the same number, with a "."
    void text(std::string_view utf8);  ///< bytes that are not UTF-8 are replaced
    void text(const QString &text);
    void endRow();

    /// Ends the file and makes sure that it is on the disk.
    void end();
    /// Gives the file its name, after end(). Replaces an older file only if `replaces`; otherwise throws
    /// PermissionDenied if there is one.
    void giveName(bool replaces);

private:
    void separate();
    void flush();
    [[noreturn]] void fail();

    QString m_doing;
    Draft m_draft;
    std::unique_ptr<std::FILE, int (*)(std::FILE *)> m_file;
    std::string m_buffer;
    bool m_isFirst = true; ///< the next value is the first of its row
};
