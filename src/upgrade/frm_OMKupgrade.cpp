#include "upgrade/frm_OMKupgrade.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/controls/Guarded.h"

namespace {

constexpr int untilShown = 100; // milliseconds, after which the window is on the screen

} // namespace

frm_OMKupgrade::frm_OMKupgrade(Work work) :
    Label1(new QLabel(QStringLiteral("Upgrading Database to ver "))), ProgressBar1(new QProgressBar),
    Timerx(new QTimer(this)), m_work(std::move(work))
{
    setObjectName(QStringLiteral("frm_OMKupgrade"));
    setWindowTitle(QStringLiteral("Processing Status"));
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

void frm_OMKupgrade::Run()
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
        m_work(*this);
    } catch (const RuntimeFailure &failure) {
        m_failure = failure; // thrown when the window has closed
    }
    accept();
}

void frm_OMKupgrade::Show(const QString &text, int bar)
{
    Label1->setText(text);
    Show(bar);
}

void frm_OMKupgrade::Show(int bar)
{
    ProgressBar1->setValue(bar);
    repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}
