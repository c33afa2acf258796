#include "platform/SettingsStore.h"

#include <QStandardPaths>

#include "platform/RuntimeFailure.h"

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

void SettingsStore::setValue(const QString &key, const QString &value, Section section)
{
    QSettings file(m_settings.fileName(), QSettings::IniFormat);
    file.allKeys(); // reads all sections
    const QVariant former = file.value(path(key, section));
    file.setValue(path(key, section), value);
    // A status keeps the first failure: of the past, or of a line in the file that is no setting. So another object
    // writes, as each does when it is made, and has a status of its own.
    if (QSettings(m_settings.fileName(), QSettings::IniFormat).status() == QSettings::NoError)
        return;
    // What is not in the file must not be read back as if it were.
    former.isValid() ? file.setValue(path(key, section), former) : file.remove(path(key, section));
    throw RuntimeFailure(Failure::PermissionDenied,
                         QStringLiteral("The settings could not be written to \"%1\".").arg(file.fileName()));
}

QString SettingsStore::userFileName()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/ostrelmark/OMK.ini";
}
