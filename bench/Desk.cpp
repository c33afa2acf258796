#include "Desk.h"

#include <stdexcept>

#include <QDeadlineTimer>
#include <QDir>
#include <QTest>
#include <QTreeWidget>

#include "platform/controls/ListView.h"
#include "windows/logbook/frm_Waterlog.h"
#include "windows/shell/frm_OMKMDIMain.h"

PaintWatch::PaintWatch(QWidget *widget) { widget->installEventFilter(this); }

bool PaintWatch::eventFilter(QObject *, QEvent *event)
{
    m_painted = m_painted || event->type() == QEvent::Paint;
    return false;
}

// The filter sees the paint event before the widget does; when processEvents() returns, the painting is over.
void PaintWatch::wait()
{
    const QDeadlineTimer deadline(30'000);
    while (!m_painted) {
        if (deadline.hasExpired())
            throw std::runtime_error("nothing was painted in 30 seconds");
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1000);
    }
}

void press(QWidget *widget, const QPoint &place)
{
    QTest::mousePress(widget->window()->windowHandle(), Qt::LeftButton, {}, widget->mapTo(widget->window(), place));
}

void release(QWidget *widget, const QPoint &place)
{
    QTest::mouseRelease(widget->window()->windowHandle(), Qt::LeftButton, {}, widget->mapTo(widget->window(), place));
}

void settle(QWidget *widget)
{
    widget->window()->activateWindow();
    widget->setFocus();
    QTest::qWait(20);
}

Desk::Desk(const QString &folder)
{
    QDir::setCurrent(folder);
    Doors::install(&m_doors);
    m_globals.splashMilliseconds = 0;
    m_forms = std::make_unique<Forms>(m_globals);
    auto &main = Form<frm_OMKMDIMain>();
    SaveSetting(QStringLiteral("Show_Tips"), QStringLiteral("No")); // the tip would wait for someone to close it
    main.MDIForm_Load();
    main.mnu_ToolsLogbook_Click();
    m_logbook = &Form<frm_Waterlog>();
    settle(m_logbook->TreeView1);
}

Desk::~Desk() = default;

ListView &Desk::waterList() { return *m_logbook->lstv_WaterLog; }

std::shared_ptr<const Rows> Desk::waterRows() const
{
    return m_globals.gDatabase
        ->OpenRecordset(QStringLiteral("SELECT * FROM waterlog WHERE tankname = ? ORDER BY logdate, logtime"),
                        {m_globals.gTankId})
        .rows();
}

void Desk::openFirstTank()
{
    QTreeWidget *tree = m_logbook->TreeView1;
    const QRect node = tree->visualItemRect(tree->topLevelItem(0)->child(0));
    PaintWatch watch(waterList().viewport());
    press(tree->viewport(), node.center());
    release(tree->viewport(), node.center());
    watch.wait();
}
