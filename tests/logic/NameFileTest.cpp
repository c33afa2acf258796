#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include "common/NameFile.h"
#include "support/ScriptedDoors.h"

namespace {

QByteArray recordLine(const QByteArray &common, const QByteArray &latin) { return common.leftJustified(49) + latin; }

/// The names and Latin names of a file of these bytes, between bars.
QStringList read(const QByteArray &bytes)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("NAMESSW.TXT"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    QStringList names;
    ReadNameFile(
        folder.filePath("namessw.txt"), [&names](const NameRecord &r) { names << r.common + '|' + r.latin.toString(); },
        [](const QString &) {});
    return names;
}

} // namespace

TEST(NameFile, TakesRecordsAloneWhateverTheLineEnds)
{
    const QByteArray tang = recordLine("Yellow Tang", "Zebrasoma flavescens");
    const QString name = "Tang - Yellow |Zebrasoma flavescens";
    for (const QByteArray end : {"\n", "\r\n", "\r"})
        EXPECT_EQ(read("\xEF\xBB\xBF! Title" + QByteArray(60, '-') + end + end + tang + end +
                       recordLine("Too short", "X") + end + // 50 characters
                       recordLine("Enough", "Xy") + end + "!" + tang + end + tang),
                  QStringList({name, "Enough|Xy", name}));
}

TEST(NameFile, CountsCharactersNotBytes)
{
    const QString umlaut = QString::fromUtf8("Grüner Fisch").leftJustified(49) + "Pisces viridis";
    for (const QByteArray &bytes : {umlaut.toUtf8(), umlaut.toLatin1()})
        EXPECT_EQ(read(bytes), QStringList(QString::fromUtf8("Fisch - Grüner |Pisces viridis")));
    EXPECT_EQ(read(recordLine("Fish", "Pisces b\xe9")), QStringList(QString::fromUtf8("Fish|Pisces bé")));
    EXPECT_TRUE(read(QString::fromUtf8("ü").repeated(50).toUtf8()).isEmpty()) << "100 bytes";
}

TEST(NameFile, TheShippedOnesKeepTheFormat)
{
    // A name that reached column 49 would touch the Latin one.
    const QRegularExpression record("^\\S.{47} [A-Z][a-z]+ ([a-z][a-z-]+|sp\\.)$");
    for (const char *name : {"NAMESSW.TXT", "NAMESFW.TXT"}) {
        QFile file(QStringLiteral(OMK_DATA_DIR "/") + name);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QString before;
        QSet<QString> seen;
        for (const QString &line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)) {
            if (line.startsWith('!') && before.isEmpty())
                continue;
            EXPECT_TRUE(record.match(line).hasMatch()) << line.toStdString();
            EXPECT_LT(before, line.toCaseFolded()) << "not sorted";
            before = line.toCaseFolded();
            const QString common = before.left(49);
            EXPECT_FALSE(seen.contains(common)) << line.toStdString();
            seen.insert(common);
        }
        EXPECT_GE(seen.size(), 800);
    }
}
