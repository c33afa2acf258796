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
    m_settings.allKeys(); // otherwise, if a section occurs twice, only the last is read until the first write
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
    // A status keeps the first failure, which may be an old one or a line in the file that is not a setting. A new
    // object also writes the file when it is created, and its status is about this writing only.
    if (QSettings(m_settings.fileName(), QSettings::IniFormat).status() == QSettings::NoError)
        return former;
    put(former); // a value that is not in the file must not be read back as if it were
    throw RuntimeFailure(Failure::PermissionDenied,
                         QStringLiteral("The settings could not be written to \"%1\".").arg(file.fileName()));
}

QString SettingsStore::userFileName()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/ostrelmark/OMK.ini";
}
