// Fuzzes the settings file with any bytes: it must be readable, every setting must be text, and what is written must be
// read back.
#include <QLoggingCategory>

#include "Fuzzing.h"
#include "platform/core/SettingsStore.h"

void fuzz(Input &input)
{
    static const QStringList keys{"DateOrder", "DATEORDER", "DateDelimiter", "ShowTips", "TipNumber", "Caption 1"};
    QLoggingCategory::setFilterRules("*.warning=false"); // Qt warns about odd values
    const QString key = keys[input.choice(int(keys.size()))], written = input.line();
    static int files = 0; // a new name for each: Qt does not read a file of the same name and age again
    const QString path = scratchPath(QString("%1.ini").arg(++files));
    const QByteArray content = input.rest();
    writeFile(path, content);

    std::map<QString, QString> before;
    SettingsStore store(path);
    for (const QString &k : keys) {
        before[k] = store.value(k, "default");
        FUZZ_REQUIRE(!content.isEmpty() || before[k] == "default", k);
    }
    store.setValue(key, written);
    FUZZ_REQUIRE(store.value(key, "default") == written, written);
    QFile::rename(path, path + '2'); // under another name Qt reads it from the file
    const SettingsStore again(path + '2');
    for (const QString &k : keys) {
        const QString now = again.value(k, "default");
        // Writing may uncover a setting below a broken section header, but none may be lost or changed.
        const bool cameToLight = k != key && before[k] == "default";
        FUZZ_REQUIRE(cameToLight || now == (k == key ? written : before[k]), k + ": " + now);
    }
    QFile::remove(path + '2');
}
