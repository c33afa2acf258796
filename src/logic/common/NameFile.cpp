#include "logic/common/NameFile.h"

#include <QFile>
#include <QStringDecoder>

#include "platform/core/Files.h"
#include "platform/core/RuntimeFailure.h"

namespace {

constexpr qsizetype commonLength = 49;
constexpr qsizetype shortestRecord = 51;
constexpr int namesOfADot = 20;
constexpr int namesOfALine = 2000;

const QString firstProgress = QStringLiteral("Loading.");

QString readAll(const QString &fileName)
{
    const QString path = FindFile(fileName);
    QFile file(path.isEmpty() ? fileName : path);
    if (path.isEmpty())
        throw RuntimeFailure(Failure::FileNotFound, QStringLiteral("The name file \"%1\" is not there.").arg(fileName));
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeFailure(Failure::PermissionDenied,
                             QStringLiteral("The name file \"%1\" cannot be read.").arg(fileName));
    const QByteArray bytes = file.readAll();
    // The decoder removes a byte order mark. It is stateless because only then is a letter that is cut off by the end
    // of the file an error.
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8(bytes);
    return utf8.hasError() ? QString::fromLatin1(bytes) : text;
}

bool isRecord(QStringView line) { return line.size() >= shortestRecord && line.front() != u'!'; }

} // namespace

QString TurnAbout(QStringView name)
{
    const qsizetype blank = name.lastIndexOf(u' ');
    return blank < 0 ? name.toString() : QString(name.sliced(blank + 1) + u" - " + name.first(blank + 1));
}

int ReadNameFile(const QString &fileName, const std::function<void(NameRecord)> &take,
                 const std::function<void(const QString &)> &progress)
{
    const QString text = readAll(fileName);
    QString told = firstProgress;
    int count = 0;
    for (qsizetype start = 0; start < text.size();) {
        qsizetype end = start;
        while (end < text.size() && text[end] != u'\n' && text[end] != u'\r')
            ++end;
        const QStringView line = QStringView(text).sliced(start, end - start);
        start = end + 1;
        if (!isRecord(line))
            continue;
        take({TurnAbout(line.first(commonLength).trimmed()), line.sliced(commonLength).trimmed()});
        ++count;
        if (count % namesOfALine == 0)
            told = firstProgress;
        if (count % namesOfADot == 0)
            told += u'.';
        if (count == 1 || count % namesOfADot == 0)
            progress(told);
    }
    return count;
}
