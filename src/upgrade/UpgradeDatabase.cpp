#include "upgrade/UpgradeDatabase.h"

#include "platform/controls/HourGlass.h"
#include "platform/core/Doors.h"
#include "platform/core/RuntimeFailure.h"
#include "store/Backup.h"
#include "store/Upgrade.h"
#include "store/Version.h"
#include "upgrade/frm_OMKupgrade.h"

namespace {

/// The texts of a step.
struct StepTexts
{
    const char *to; ///< the version, as in UpgradeStep
    const char *label;
    const char *done;
    int flags; ///< of the message box, whose answer is not used
    int bar;   ///< the progress when the step begins
};

constexpr StepTexts stepTexts[] = {
    {"1.1 ", "Upgrading database to version 1.1",
     "Your copy of Ostrelmark has been successfully upgraded to version 1.1. The new \"tank water type\" and "
     "freshwater animal list options have been installed, and all of your tanks are set to \"salt water\". Be sure to "
     "use the \"Setup/Manage Tanks\" option to set the correct water type if this is incorrect. You will not get "
     "freshwater animals lists until you do. ",
     vbOKCancel, 0},
    {"2.0 ", "Upgrading database to version 2.0",
     "Your copy of Ostrelmark has been successfully upgraded to version 98.", vbInformation, 10},
};

const StepTexts &textsOf(const UpgradeStep &step)
{
    for (const StepTexts &texts : stepTexts)
        if (QLatin1String(texts.to) == QLatin1String(step.to))
            return texts;
    qFatal("an upgrade step has no texts");
}

/// The version as keepers know it. The first version did not store its number.
QString nameOfVersion(const QString &version) { return version == u"0.0 " ? QStringLiteral("1.0") : version.trimmed(); }

} // namespace

UpgradeWork::UpgradeWork(std::unique_ptr<Database> &database, const QString &databaseName, QString &version) :
    m_database(database), m_databaseName(databaseName), m_version(version)
{
}

void UpgradeWork::operator()(frm_OMKupgrade &window)
{
    try {
        runSteps(window);
    } catch (const RuntimeFailure &failure) {
        throw RuntimeFailure(
            failure.number(),
            QStringLiteral("%1\nThe database \"%2\" is whole and of version %3. Start the "
                           "program again to go on with its upgrade.")
                .arg(failure.description().section(u'\n', 1), m_database->fileName(), nameOfVersion(m_version)));
    }
}

void UpgradeWork::runSteps(frm_OMKupgrade &window)
{
    const auto steps = UpgradeSteps(m_version);
    if (!steps.empty())
        KeepOldDatabase(m_database->fileName(), nameOfVersion(m_version));
    for (const UpgradeStep &step : steps) {
        const StepTexts &texts = textsOf(step);
        {
            const HourGlass waiting;
            window.Show(QLatin1String(texts.label), 0);
            reopen(Database::Access::Exclusive);
            window.Show(texts.bar);
            step.run(*m_database, [&window](int value) { window.Show(value); });
            m_version = QLatin1String(step.to);
            if (m_version == presentDatabaseVersion)
                reopen(Database::Access::Shared);
        }
        MsgBox(QLatin1String(texts.done), texts.flags, QStringLiteral("Upgrade Successful"));
    }
}

void UpgradeWork::reopen(Database::Access access)
{
    m_database->Close();
    m_database = Database::OpenDatabase(m_databaseName, access);
}
