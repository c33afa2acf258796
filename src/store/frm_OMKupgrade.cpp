#include "store/frm_OMKupgrade.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/Doors.h"
#include "platform/Guarded.h"
#include "platform/HourGlass.h"
#include "platform/Icons.h"
#include "store/Backup.h"
#include "store/Upgrade.h"
#include "store/Version.h"

namespace {

/// What the window shows of a step.
struct StepTexts
{
    const char *to; ///< the version, as UpgradeStep has it
    const char *label;
    const char *done;
    int flags; ///< of the box; its answer is not used
    int bar;   ///< where the bar stands when the step begins
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

/// The version as a keeper knows it: the first had no column to stand in.
QString nameOfVersion(const QString &version) { return version == u"0.0 " ? QStringLiteral("1.0") : version.trimmed(); }

constexpr int untilShown = 100; // milliseconds: the window is on the screen by then

} // namespace

frm_OMKupgrade::frm_OMKupgrade(std::unique_ptr<Database> &database, const QString &databaseName, QString &version) :
    Label1(new QLabel(QStringLiteral("Upgrading Database to ver "))), ProgressBar1(new QProgressBar),
    Timerx(new QTimer(this)), m_database(database), m_databaseName(databaseName), m_version(version)
{
    setObjectName(QStringLiteral("frm_OMKupgrade"));
    setWindowTitle(QStringLiteral("Processing Status"));
    setWindowIcon(Icon("ostrelmark"));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    Label1->setObjectName(QStringLiteral("Label1"));
    ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
    ProgressBar1->setAccessibleName(QStringLiteral("Progress of the upgrade"));
    ProgressBar1->setRange(0, 100);
    ProgressBar1->setValue(0);
    ProgressBar1->setMinimumWidth(fontMetrics().averageCharWidth() * 60);
    Timerx->setObjectName(QStringLiteral("Timerx"));
    on(Timerx, &QTimer::timeout, this, &frm_OMKupgrade::Timerx_Timer);

    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(24, 20, 24, 24);
    all->setSpacing(10);
    all->setSizeConstraint(QLayout::SetFixedSize);
    all->addWidget(Label1);
    all->addWidget(ProgressBar1);
}

void frm_OMKupgrade::Form_Load() { Timerx->start(untilShown); }

void frm_OMKupgrade::Upgrade()
{
    Form_Load();
    exec();
    if (m_failure)
        throw RuntimeFailure(*m_failure);
}

void frm_OMKupgrade::Timerx_Timer()
{
    Timerx->stop();
    try {
        runSteps();
    } catch (const RuntimeFailure &failure) {
        // The start ends with it, once the window is closed.
        m_failure = RuntimeFailure(
            failure.number(),
            QStringLiteral("%1\nThe database \"%2\" is whole and of version %3. Start the "
                           "program again to go on with its upgrade.")
                .arg(failure.description().section(u'\n', 1), m_database->fileName(), nameOfVersion(m_version)));
    }
    accept();
}

void frm_OMKupgrade::runSteps()
{
    const auto steps = UpgradeSteps(m_version);
    if (!steps.empty())
        KeepOldDatabase(m_database->fileName(), nameOfVersion(m_version));
    for (const UpgradeStep &step : steps) {
        const StepTexts &texts = textsOf(step);
        {
            const HourGlass waiting;
            Label1->setText(QLatin1String(texts.label));
            ProgressBar1->setValue(0);
            repaintAll();
            reopen(Database::Access::Exclusive);
            const auto moveBar = [this](int value) {
                ProgressBar1->setValue(value);
                repaintAll();
            };
            moveBar(texts.bar);
            step.run(*m_database, moveBar);
            m_version = QLatin1String(step.to);
            if (m_version == presentDatabaseVersion)
                reopen(Database::Access::Shared);
        }
        MsgBox(QLatin1String(texts.done), texts.flags, QStringLiteral("Upgrade Successful"));
    }
}

void frm_OMKupgrade::reopen(Database::Access access)
{
    m_database->Close();
    m_database = Database::OpenDatabase(m_databaseName, access);
}

void frm_OMKupgrade::repaintAll()
{
    repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}
