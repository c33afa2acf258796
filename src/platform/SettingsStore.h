// The per-user settings: texts under keys, kept as an INI file. Section "SETTINGS" holds what the keeper has chosen,
// "WINDOWS" what the program remembers of its windows. A key is exact; every value is text.
#pragma once

#include <utility>
#include <vector>

#include <QSettings>
#include <QString>

class SettingsStore
{
public:
    /// Opens, or will make at the first write, the INI file of that path.
    explicit SettingsStore(const QString &fileName);

    enum class Section { Settings, Windows };

    QString value(const QString &key, const QString &defaultValue, Section section = Section::Settings) const;
    /// Writes through to the file. Throws RuntimeFailure (PermissionDenied) where it cannot be written.
    void setValue(const QString &key, const QString &value, Section section = Section::Settings)
    {
        setValues({{key, value}}, section);
    }
    /// Keys and what is written there; an invalid value takes the key away.
    using Values = std::vector<std::pair<QString, QVariant>>;
    /// Writes all of them at once, or none. Returns what was there before, so that it can be put back. Throws as
    /// setValue().
    Values setValues(const Values &values, Section section = Section::Settings);
    QString fileName() const { return m_settings.fileName(); }

    /// The file of this user: OMK.ini in the folder of the program's configuration.
    static QString userFileName();

private:
    QSettings m_settings;
};
