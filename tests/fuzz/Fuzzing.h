// What the fuzz targets share: reading the input piece by piece, the doors, a folder in memory for files, and the check
// that ends a run. A target checks what must be true for every input.
#pragma once

#include <cstdint>
#include <utility>

#include "support/ScriptedDoors.h"
#include "support/TestFiles.h"

/// Ends the process if the condition is false, so that libFuzzer keeps the input. `seen` describes what was found.
#define FUZZ_REQUIRE(holds, seen)                                                                                      \
    do {                                                                                                               \
        if (!(holds))                                                                                                  \
            qFatal("%s:%d: %s\n%s", __FILE__, __LINE__, #holds, qPrintable(QString(seen)));                            \
    } while (false)

/// Reads the input from its start. Past its end, lines are empty and numbers are 0.
class Input
{
public:
    Input(const std::uint8_t *data, std::size_t size) : m_rest(reinterpret_cast<const char *>(data), qsizetype(size)) {}

    bool isEmpty() const { return m_rest.isEmpty(); }
    /// The text up to the next line feed, which is skipped.
    QString line()
    {
        const qsizetype end = m_rest.indexOf('\n');
        const QByteArray line = m_rest.first(end < 0 ? m_rest.size() : end);
        m_rest.remove(0, line.size() + 1);
        return QString::fromUtf8(line);
    }
    /// Reads one byte as a number from 0 to `count` - 1. The digit "0" gives 0, so that inputs can be read and written
    /// by hand.
    int choice(int count) { return std::uint8_t(number(1) - '0') % count; }
    /// Reads a number of that many bytes, the most significant first.
    std::uint32_t number(int length)
    {
        std::uint32_t value = 0;
        for (; length > 0 && !m_rest.isEmpty(); --length, m_rest.remove(0, 1))
            value = value << 8 | std::uint8_t(m_rest.front());
        return value;
    }
    QByteArray rest() { return std::exchange(m_rest, {}); }

private:
    QByteArray m_rest;
};

/// Path of a file in a folder that is removed when the process ends; in memory if the system allows it.
inline QString scratchPath(const QString &name)
{
    static const QTemporaryDir memory("/dev/shm/omk_fuzz-XXXXXX"), disk;
    return (memory.isValid() ? memory : disk).filePath(name);
}

/// Each target implements this: one run with one input. The doors are installed.
void fuzz(Input &input);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const ScriptedDoors doors;
    Input input(data, size);
    fuzz(input);
    return 0;
}
