#include "platform/core/SettingsStore.h"

#include <QStandardPaths>

#include "platform/core/RuntimeFailure.h"

namespace {

QString path(const QString &key, SettingsStore::Section section)
{
    return (section == SettingsStore::Section::Settings ? u"SETTINGS/" : u"WINDOWS/") + key;
}

} // namespace

SettingsStore::SettingsStore(const QString &fileName) : m_settings(fileName, QSettings::IniFormat)
{
    m_settings.allKeys(); // else, of a section that occurs twice, only the last is read until the first write
}

QString SettingsStore::value(const QString &key, const QString &defaultValue, Section section) const
{
    const QVariant stored = m_settings.value(path(key, section), defaultValue);
    // QSettings reads a text with a comma that someone wrote by hand, without quotation marks, as a list of strings, or
    // as a list of variants if a part of it begins with "@".
    const bool isList = stored.typeId() == QMetaType::QStringList || stored.typeId() == QMetaType::QVariantList;
    return isList ? stored.toStringList().join(u", ") : stored.toString();
}

SettingsStore::Values SettingsStore::setValues(const Values &values, Section section)
{
    QSettings file(m_settings.fileName(), QSettings::IniFormat);
    file.allKeys(); // reads all sections
    Values former;
    for (const auto &[key, value] : values)
        former.emplace_back(key, file.value(path(key, section)));
    const auto put = [&](const Values &all) {
        for (const auto &[key, value] : all)
            value.isValid() ? file.setValue(path(key, section), value) : file.remove(path(key, section));
    };
    put(values);
    // A status keeps the first failure: of the past, or of a line in the file that is no setting. So another object
    // writes, as each does when it is made, and has a status of its own.
    if (QSettings(m_settings.fileName(), QSettings::IniFormat).status() == QSettings::NoError)
        return former;
    put(former); // what is not in the file must not be read back as if it were
    throw RuntimeFailure(Failure::PermissionDenied,
                         QStringLiteral("The settings could not be written to \"%1\".").arg(file.fileName()));
}

QString SettingsStore::userFileName()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/ostrelmark/OMK.ini";
}
