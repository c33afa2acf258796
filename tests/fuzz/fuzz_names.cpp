// Fuzzes the reading of name files with any bytes.
#include "Fuzzing.h"
#include "logic/common/NameFile.h"

/// The expected text: valid UTF-8 is read as UTF-8, anything else as Latin-1, so that no letter is lost or changed.
static QString lettersOf(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    const QByteArray withoutMark = bytes.startsWith("\xef\xbb\xbf") ? bytes.sliced(3) : bytes;
    return text.toUtf8() == withoutMark ? text : QString::fromLatin1(bytes);
}

void fuzz(Input &input)
{
    const QByteArray bytes = input.rest();
    writeFile(scratchPath("NAMES.TXT"), bytes);

    QStringList wanted;
    for (const QString &line : lettersOf(bytes).replace('\r', '\n').split('\n'))
        if (line.size() >= 51 && !line.startsWith('!'))
            wanted << line;
    qsizetype taken = 0;
    const auto take = [&](const NameRecord &name) {
        const QString line = wanted.value(taken++), common = line.left(49).trimmed();
        const qsizetype blank = common.lastIndexOf(' ') + 1;
        const QString turned = blank == 0 ? common : common.mid(blank) + " - " + common.left(blank);
        FUZZ_REQUIRE(name.common == turned && name.latin == line.mid(49).trimmed(), name.common);
    };
    const int count = ReadNameFile(scratchPath("NAMES.TXT"), take, [](const QString &) {});
    FUZZ_REQUIRE(count == wanted.size() && taken == count, QString::number(count));
}
