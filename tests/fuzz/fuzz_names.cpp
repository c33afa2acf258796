// Fuzzes the reading of name files with any bytes.
#include "Fuzzing.h"
#include "logic/common/NameFile.h"

namespace {

/// The expected text: valid UTF-8 is read as UTF-8, anything else as Latin-1, so that no letter is lost or changed.
QString lettersOf(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    const QByteArray withoutMark = bytes.startsWith("\xef\xbb\xbf") ? bytes.sliced(3) : bytes;
    return text.toUtf8() == withoutMark ? text : QString::fromLatin1(bytes);
}

} // namespace

void fuzz(Input &input)
{
    const bool many = input.choice(256) == 1; // enough names for the progress to start again
    const QByteArray bytes = many ? input.rest().repeated(64) : input.rest();
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
    const auto progress = [&](const QString &text) { // at the first name and at each new dot
        FUZZ_REQUIRE(taken == 1 || taken % 20 == 0, QString::number(taken));
        FUZZ_REQUIRE(text.startsWith("Loading.") && text.size() <= 8 + 100, text);
    };
    const int count = ReadNameFile(scratchPath("NAMES.TXT"), take, progress);
    FUZZ_REQUIRE(count == wanted.size() && taken == count, QString::number(count));
}
