#include "oldengine/OldFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>

#include <QFile>
#include <QtEndian>

#include "platform/core/RuntimeFailure.h"

namespace {

constexpr QByteArrayView mark("\0\1\0\0Standard Jet DB", 20); // including the 0 at its end
constexpr qsizetype formatAt = 20, codedFrom = 24;
constexpr char format3 = 0, format4 = 1;
constexpr qsizetype codePageAt = 0x3c, passwordAt = 0x42, madeAt = 0x72; // when the file was made, in days
constexpr qsizetype passwordSize3 = 20, passwordSize4 = 40;
constexpr int usualCodePage = 1252;

bool hasMark(QByteArrayView bytes)
{
    return bytes.size() > formatAt && bytes.startsWith(mark) &&
           (bytes[formatAt] == format3 || bytes[formatAt] == format4);
}

/// The engine encodes the page with RC4, always with the same key.
QByteArray decoded(QByteArrayView bytes)
{
    constexpr std::array<quint8, 4> key{0xc7, 0xda, 0x39, 0x6b};
    std::array<quint8, 256> state{};
    std::iota(state.begin(), state.end(), quint8(0));
    for (unsigned i = 0, j = 0; i < 256; ++i) {
        j = (j + state[i] + key[i % key.size()]) % 256;
        std::swap(state[i], state[j]);
    }
    QByteArray plain = bytes.toByteArray();
    unsigned i = 0, j = 0;
    for (qsizetype at = codedFrom; at < plain.size(); ++at) {
        i = (i + 1) % 256;
        j = (j + state[i]) % 256;
        std::swap(state[i], state[j]);
        plain[at] = char(quint8(plain[at]) ^ state[(state[i] + state[j]) % 256]);
    }
    return plain;
}

/// An empty password consists of zeros. The later format combines it with the day on which the file was made (by xor).
bool hasPassword(const QByteArray &page, bool isFormat4)
{
    std::array<char, 4> cover{};
    const double made = qFromLittleEndian<double>(page.constData() + madeAt);
    if (isFormat4 && std::fabs(made) < std::numeric_limits<qint32>::max())
        qToLittleEndian(qint32(made), cover.data());
    const qsizetype size = isFormat4 ? passwordSize4 : passwordSize3;
    for (qsizetype i = 0; i < size; ++i)
        if (page[passwordAt + i] != cover[std::size_t(i) % cover.size()])
            return true;
    return false;
}

} // namespace

bool IsOldEngineFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && hasMark(file.read(formatAt + 1));
}

OldHeader ReadOldHeader(QByteArrayView bytes)
{
    if (bytes.size() < oldHeaderSize || !hasMark(bytes))
        throw RuntimeFailure(Failure::UnrecognizedFormat,
                             QStringLiteral("The file is too short, or not one of the old engine."));
    const bool isFormat4 = bytes[formatAt] == format4;
    const QByteArray page = decoded(bytes.first(oldHeaderSize));
    const int codePage = qFromLittleEndian<quint16>(page.constData() + codePageAt);
    return {isFormat4 ? 0 : codePage == 0 ? usualCodePage : codePage, hasPassword(page, isFormat4)};
}
