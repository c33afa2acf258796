// The name files that are shipped; what is read of a file stands in tests/fuzz/fuzz_names.cpp.
#include <gtest/gtest.h>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include "support/ScriptedDoors.h"

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
