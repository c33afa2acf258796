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

void fuzz(Input &input, ScriptedDoors &)
{
    const bool many = input.choice(256) == 1; // enough names for the progress to start again
    const QByteArray bytes = many ? input.rest().repeated(64) : input.rest();
    static const QString path = scratchPath(QStringLiteral("NAMES.TXT"));
    writeFile(path, bytes);

    QStringList wanted;
    for (const QString &line : lettersOf(bytes).replace(u'\r', u'\n').split(u'\n'))
        if (line.size() >= 51 && !line.startsWith(u'!'))
            wanted << line;
    qsizetype taken = 0, told = 0;
    const int count = ReadNameFile(
        path,
        [&](const NameRecord &name) {
            const QString line = wanted.value(taken++), common = line.left(49).trimmed();
            const qsizetype blank = common.lastIndexOf(u' ') + 1;
            const QString turned = blank == 0 ? common : common.mid(blank) + u" - " + common.left(blank);
            FUZZ_REQUIRE(name.common == turned && name.latin == line.mid(49).trimmed(), name.common);
        },
        [&](const QString &text) {
            ++told; // shown at the first name and at each new dot
            FUZZ_REQUIRE(taken == 1 || taken % 20 == 0, QString::number(taken));
            FUZZ_REQUIRE(text.startsWith(u"Loading.") && text.size() <= 8 + 100, text);
        });
    FUZZ_REQUIRE(count == wanted.size() && taken == count && told == (count > 0) + count / 20, QString::number(count));
}
