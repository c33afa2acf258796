#include "logic/shell/Options.h"

#include <algorithm>

#include "logic/reminders/RecurrenceRule.h"
#include "platform/core/Doors.h"
#include "platform/core/RuntimeFailure.h"
#include "platform/core/SettingsStore.h"
#include "text/Dates.h"

namespace {

const QString notFound = QStringLiteral("Not Found");

/// A text in the settings and the member that holds its value. If a stored text has the wrong form, the member keeps
/// its default.
struct Setting
{
    const char *key;
    void (*take)(OptionsMembers &, const QString &stored);
    QString (*text)(const OptionsMembers &);
};

void takeNumber(qint16 &member, const QString &stored)
{
    bool good = false;
    const qint16 number = stored.trimmed().toShort(&good);
    if (good)
        member = number;
}

void takeSwitch(qint16 &member, const QString &stored)
{
    takeNumber(member, stored);
    member = member == 1;
}

void takeDelimiter(QString &member, const QString &stored)
{
    const bool known = std::any_of(dateDelimiters.begin(), dateDelimiters.end(),
                                   [&](const char *delimiter) { return stored == QLatin1String(delimiter); });
    if (known)
        member = stored;
}

/// If the text is too short, the missing measurements are not graphed.
void takeChecks(QString &member, const QString &stored)
{
    for (qsizetype i = 0; i < member.size(); ++i)
        member[i] = stored.mid(i, 1) == u"1" ? u'1' : u'0';
}

QString flagText(bool flag) { return flag ? QStringLiteral("TRUE") : QStringLiteral("FALSE"); }
bool isTrue(const QString &stored) { return stored.toUpper() == u"TRUE"; }

// They are written in this order.
constexpr Setting settings[] = {
    {"Graph_Checks", [](OptionsMembers &o, const QString &stored) { takeChecks(o.GraphChecks, stored); },
     [](const OptionsMembers &o) { return o.GraphChecks; }},
    {"Graph_Style", [](OptionsMembers &o, const QString &stored) { takeNumber(o.GraphStyle, stored); },
     [](const OptionsMembers &o) { return QString::number(o.GraphStyle); }},
    {"Graph_SkipZeroes", [](OptionsMembers &o, const QString &stored) { takeSwitch(o.GraphSkipZeroes, stored); },
     [](const OptionsMembers &o) { return QString::number(o.GraphSkipZeroes); }},
    {"GraphPrintColor", [](OptionsMembers &o, const QString &stored) { takeSwitch(o.GraphPrintColor, stored); },
     [](const OptionsMembers &o) { return QString::number(o.GraphPrintColor); }},
    {"Date_Order", [](OptionsMembers &o, const QString &stored) { o.DateOrder = ReadDateOrder(stored); },
     [](const OptionsMembers &o) { return WordOf(o.DateOrder); }},
    {"Date_Delim", [](OptionsMembers &o, const QString &stored) { takeDelimiter(o.DateDelimiter, stored); },
     [](const OptionsMembers &o) { return o.DateDelimiter; }},
    {"UseFile_Fresh", [](OptionsMembers &o, const QString &stored) { o.UseFileFresh = isTrue(stored); },
     [](const OptionsMembers &o) { return flagText(o.UseFileFresh); }},
    {"UseFile_Salt", [](OptionsMembers &o, const QString &stored) { o.UseFileSalt = isTrue(stored); },
     [](const OptionsMembers &o) { return flagText(o.UseFileSalt); }},
};

} // namespace

Recordset ReadOptions(Globals &g)
{
    Recordset config = g.gDatabase->OpenForUpdate(QStringLiteral("CONFIG"));
    config.MoveFirst();
    OptionsMembers read;
    for (const Setting &setting : settings) {
        const QString stored = GetSetting(QLatin1String(setting.key), notFound);
        if (stored.compare(notFound, Qt::CaseInsensitive) != 0)
            setting.take(read, stored);
    }
    read.ActiveTab = g.options.ActiveTab;
    read.DatePicture = MakeDatePicture(read.DateOrder, read.DateDelimiter);
    const bool salt = config[QStringLiteral("default_salt")].value().toBool();
    read.DefaultWaterType = salt ? QStringLiteral("SALT") : QStringLiteral("FRESH");
    g.options = read;
    g.gDefaultWaterType = read.DefaultWaterType;
    g.gUserFieldName1 = config[QStringLiteral("user_fieldname1")].text();
    g.gUserFieldName2 = config[QStringLiteral("user_fieldname2")].text();
    return config;
}

void StoreOptions(Globals &g, Recordset &config, const ConfigValues &values, DateOrder formerOrder)
{
    Database::Transaction whole(*g.gDatabase);
    config.Edit();
    config[QStringLiteral("default_salt")].setValue(values.salt);
    config[QStringLiteral("default_fresh")].setValue(!values.salt);
    config[QStringLiteral("user_fieldname1")].setValue(values.user_fieldname1);
    config[QStringLiteral("user_fieldname2")].setValue(values.user_fieldname2);
    config.Update();
    if (g.options.DateOrder != formerOrder)
        KeepOnceDates(*g.gDatabase, formerOrder);

    SettingsStore &store = Doors::current().settings();
    SettingsStore::Values texts;
    for (const Setting &setting : settings)
        texts.emplace_back(QLatin1String(setting.key), setting.text(g.options));
    const SettingsStore::Values former = store.setValues(texts);
    try {
        whole.commit();
    } catch (const RuntimeFailure &) {
        store.setValues(former);
        throw;
    }
    g.options.DatePicture = MakeDatePicture(g.options.DateOrder, g.options.DateDelimiter);
    g.gDefaultWaterType = values.salt ? QStringLiteral("SALT") : QStringLiteral("FRESH");
    g.gUserFieldName1 = values.user_fieldname1;
    g.gUserFieldName2 = values.user_fieldname2;
}
