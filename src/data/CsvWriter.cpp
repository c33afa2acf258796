#include "data/CsvWriter.h"

#include <cerrno>
#include <charconv>
#include <unistd.h>

#include <csv.h>
#include <QFile>

namespace {

constexpr std::size_t bufferSize = 256 * 1024;

} // namespace

CsvWriter::CsvWriter(const QString &fileName) :
    m_doing(QStringLiteral("Writing %1.").arg(fileName)), m_draft(fileName, m_doing),
    m_file(std::fopen(QFile::encodeName(m_draft.path()).constData(), "wb"), std::fclose)
{
    if (!m_file)
        fail();
    std::setvbuf(m_file.get(), nullptr, _IONBF, 0); // m_buffer is the only buffer
}

CsvWriter::~CsvWriter() = default;

void CsvWriter::fail() { throwErrno(errno, m_doing); }

void CsvWriter::separate()
{
    if (!std::exchange(m_isFirst, false))
        m_buffer += ',';
}

void CsvWriter::null() { separate(); }

void CsvWriter::bare(std::string_view bytes)
{
    separate();
    m_buffer += bytes;
}

void CsvWriter::number(double value)
{
    char digits[40];
    const char *end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    bare({digits, end});
}

void CsvWriter::text(std::string_view utf8)
{
    if (!QUtf8StringView(utf8.data(), qsizetype(utf8.size())).isValidUtf8())
        return text(QString::fromUtf8(utf8.data(), qsizetype(utf8.size())));
    separate();
    const std::size_t begin = m_buffer.size();
    const std::size_t atMost = 2 * utf8.size() + 2;
    m_buffer.resize(begin + atMost);
    const char *bytes = utf8.empty() ? "" : utf8.data(); // for a null pointer, csv_write would write nothing
    m_buffer.resize(begin + csv_write(m_buffer.data() + begin, atMost, bytes, utf8.size()));
}

void CsvWriter::text(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    this->text(std::string_view(utf8.constData(), std::size_t(utf8.size())));
}

void CsvWriter::endRow()
{
    m_buffer += "\r\n";
    m_isFirst = true;
    if (m_buffer.size() >= bufferSize)
        flush();
}

void CsvWriter::flush()
{
    if (std::fwrite(m_buffer.data(), 1, m_buffer.size(), m_file.get()) != m_buffer.size())
        fail();
    m_buffer.clear();
}

void CsvWriter::end()
{
    flush();
    if (::fsync(::fileno(m_file.get())) != 0)
        fail();
    if (std::fclose(m_file.release()) != 0)
        fail();
}

void CsvWriter::giveName(bool replaces)
{
    if (replaces)
        m_draft.replace();
    else
        m_draft.giveName();
}
