// The settings of one user, kept in an INI file. Section "SETTINGS" holds what the keeper has chosen, section "WINDOWS"
// what the program remembers about its windows. Keys are case-sensitive, and every value is text.
#pragma once

#include <utility>
#include <vector>

#include <QSettings>
#include <QString>

class SettingsStore
{
public:
    /// Uses the INI file of that path; the first write creates the file if it does not exist.
    explicit SettingsStore(const QString &fileName);

    enum class Section { Settings, Windows };

    QString value(const QString &key, const QString &defaultValue, Section section = Section::Settings) const;
    /// Writes to the file at once. Throws RuntimeFailure (PermissionDenied) if it cannot be written.
    void setValue(const QString &key, const QString &value, Section section = Section::Settings)
    {
        setValues({{key, value}}, section);
    }
    /// Keys and their values; an invalid value removes the key.
    using Values = std::vector<std::pair<QString, QVariant>>;
    /// Writes either all values or none. Returns the former values, so that they can be restored. Throws as setValue()
    /// does.
    Values setValues(const Values &values, Section section = Section::Settings);
    QString fileName() const { return m_settings.fileName(); }

    /// Path of the current user's settings file: OMK.ini in the program's configuration folder.
    static QString userFileName();

private:
    QSettings m_settings;
};
