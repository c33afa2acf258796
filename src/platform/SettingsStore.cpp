#include "platform/SettingsStore.h"

#include <QStandardPaths>

#include "platform/RuntimeFailure.h"

namespace {

QString path(const QString &key) { return u"SETTINGS/" + key; }

} // namespace

SettingsStore::SettingsStore(const QString &fileName) : m_settings(fileName, QSettings::IniFormat) {}

QString SettingsStore::value(const QString &key, const QString &defaultValue) const
{
    const QVariant stored = m_settings.value(path(key), defaultValue);
    // A text with a comma that someone wrote by hand, without quotation marks, is read as a list.
    return stored.typeId() == QMetaType::QStringList ? stored.toStringList().join(u", ") : stored.toString();
}

void SettingsStore::setValue(const QString &key, const QString &value)
{
    m_settings.setValue(path(key), value);
    m_settings.sync();
    if (m_settings.status() != QSettings::NoError)
        throw RuntimeFailure(Failure::PermissionDenied,
                             QStringLiteral("The settings could not be written to \"%1\".").arg(m_settings.fileName()));
}

QString SettingsStore::userFileName()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/ostrelmark/OMK.ini";
}
