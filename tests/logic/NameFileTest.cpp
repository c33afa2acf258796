#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include "common/NameFile.h"
#include "support/ScriptedDoors.h"

namespace {

QByteArray recordLine(const QByteArray &common, const QByteArray &latin) { return common.leftJustified(49) + latin; }

struct Names
{
    explicit Names(const QByteArray &bytes)
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath("NAMESSW.TXT"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        file.close();
        ReadNameFile(
            folder.filePath("namessw.txt"), [this](NameRecord r) { read << r.common + '|' + r.latin.toString(); },
            [this](const QString &text) { progress << text; });
    }
    QStringList read, progress;
};

} // namespace

TEST(NameFile, TakesRecordsAloneWhateverTheLineEnds)
{
    const QByteArray tang = recordLine("Yellow Tang", "Zebrasoma flavescens");
    for (const QByteArray end : {"\n", "\r\n", "\r"}) {
        const Names names("\xEF\xBB\xBF! Title" + QByteArray(60, '-') + end + end + tang + end +
                          recordLine("Too short", "X") + end + // 50 characters
                          recordLine("Enough", "Xy") + end + "!" + tang + end + tang);
        EXPECT_EQ(names.read, QStringList({"Tang - Yellow |Zebrasoma flavescens", "Enough|Xy",
                                           "Tang - Yellow |Zebrasoma flavescens"}));
    }
}

TEST(NameFile, CountsCharactersNotBytes)
{
    const QString umlaut = QString::fromUtf8("Grüner Fisch").leftJustified(49) + "Pisces viridis";
    for (const QByteArray &bytes : {umlaut.toUtf8(), umlaut.toLatin1()})
        EXPECT_EQ(Names(bytes).read, QStringList(QString::fromUtf8("Fisch - Grüner |Pisces viridis")));
    EXPECT_EQ(Names(recordLine("Fish", "Pisces b\xe9")).read, QStringList(QString::fromUtf8("Fish|Pisces bé")));
    EXPECT_TRUE(Names(QString::fromUtf8("ü").repeated(50).toUtf8()).read.isEmpty()); // 100 bytes
}

TEST(NameFile, TellsADotForEachTwentyNamesAndStartsAgainAtTwoThousand)
{
    const QStringList progress = Names(QByteArray(recordLine("Fish", "Pisces") + '\n').repeated(2041)).progress;
    ASSERT_EQ(progress.size(), 103) << "the first name, and each twentieth";
    EXPECT_EQ(progress[99].count('.'), 100);
    EXPECT_EQ(progress[100], "Loading..") << "set anew, and a dot of its own";
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
