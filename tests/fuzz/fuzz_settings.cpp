// Fuzzes the settings file with any bytes: it must be readable, every setting must be text, and what is written must be
// read back.
#include "Fuzzing.h"
#include "platform/core/SettingsStore.h"

namespace {

const QString keys[] = {QStringLiteral("DateOrder"), QStringLiteral("DATEORDER"), QStringLiteral("DateDelimiter"),
                        QStringLiteral("ShowTips"),  QStringLiteral("TipNumber"), QStringLiteral("Caption 1")};

} // namespace

void fuzz(Input &input, ScriptedDoors &)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {}); // Qt warns about odd values
    const QString key = keys[input.choice(int(std::size(keys)))];
    const QString written = input.line();
    static int files = 0; // a new name for each: Qt does not read a file of the same name and age again
    const QString path = scratchPath(QStringLiteral("%1.ini").arg(++files));
    const QByteArray content = input.rest();
    writeFile(path, content);

    QStringList before;
    SettingsStore store(path);
    for (const QString &k : keys) {
        before << store.value(k, QStringLiteral("default"));
        FUZZ_REQUIRE(!content.isEmpty() || before.last() == u"default", k);
    }
    store.setValue(key, written);
    FUZZ_REQUIRE(store.value(key, QStringLiteral("default")) == written, written);
    QFile::copy(path, path + u'2'); // under another name Qt reads it from the file
    const SettingsStore again(path + u'2');
    for (std::size_t i = 0; i < std::size(keys); ++i) {
        const QString now = again.value(keys[i], QStringLiteral("default"));
        // Writing may uncover a setting below a broken section header, but none may be lost or changed.
        const bool cameToLight = keys[i] != key && before[qsizetype(i)] == u"default";
        FUZZ_REQUIRE(cameToLight || now == (keys[i] == key ? written : before[qsizetype(i)]), keys[i] + u": " + now);
    }
    QFile::remove(path);
    QFile::remove(path + u'2');
}
