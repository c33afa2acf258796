#include "windows/shell/frm_OMKMDIMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScopeGuard>
#include <QStatusBar>
#include <QToolBar>

#include "logic/reminders/ReminderRun.h"
#include "platform/controls/EmptyText.h"
#include "platform/controls/Guarded.h"
#include "platform/controls/HourGlass.h"
#include "platform/controls/ListKeys.h"
#include "platform/controls/Progress.h"
#include "windows/reminders/frm_Maintsched.h"
#include "windows/shell/ChildForm.h"
#include "windows/shell/frm_OMKOptions.h"
#include "windows/shell/MenuEntry.h"

namespace {

struct ButtonRow
{
    const char *key;
    const char *toolTip;
    const char *image;
    MenuEntry *MainMenu::*sameAs;
    bool groupBefore;
};

// The key "compatability" is misspelled everywhere: button, image and look-up must agree.
constexpr ButtonRow buttonRows[] = {
    {"tanksetup", "Setup Tanks for Logging", "setup", &MainMenu::mnu_ToolsTanksetup, false},
    {"logbook", "Logbook - Logging of Water Quality, Maintenance, Livestock", "testlog", &MainMenu::mnu_ToolsLogbook,
     false},
    {"graphing", "Graphing of Water Quality", "graphing", &MainMenu::mnu_ToolsGraphing, false},
    {"compatability", "Check Animal Compatibility", "compatability", &MainMenu::mnu_ToolsCompatibility, true},
    {"diagnose", "Diagnose Disease", "med", &MainMenu::mnu_ToolsDisease, false},
    {"maintsched", "Schedule Reminders", "handwithstring", &MainMenu::mnu_ToolsRemindersAddEdit, true},
    {"viewschedule", "View Maintenance Schedule", "cal", &MainMenu::mnu_ToolsReminderSchedule, false},
    {"fantasy", "Fantasy Tank", "fantasy", &MainMenu::mnu_ToolsFantasy, true},
    {"commonnames", "Common Names to Latin Names Reference", "commonnames", &MainMenu::mnu_ToolsCommonNames, false},
    {"conversions", "Conversion Calculator", "rulers", &MainMenu::mnu_ToolsConversions, false},
};

/// The frame of a child. It is never smaller than the child's contents allow, whatever becomes of them: a main window
/// that is too small scrolls. Controls without any room would also paint on empty pixmaps.
class ChildFrame : public QMdiSubWindow
{
protected:
    bool event(QEvent *event) override
    {
        const bool handled = QMdiSubWindow::event(event);
        if (event->type() == QEvent::LayoutRequest && !isMinimized() && !isShaded())
            setMinimumSize(minimumSizeHint());
        return handled;
    }
};

} // namespace

frm_OMKMDIMain::frm_OMKMDIMain(Globals &globals) : g(globals), m_area(new QMdiArea)
{
    setWindowTitle(QStringLiteral(" Ostrelmark 98"));
    setContextMenuPolicy(Qt::NoContextMenu); // Qt's own menu could hide the reminders
    makeMenus(*this, *menuBar());
    makeToolbar();
    makeStatusBar();

    m_area->setObjectName(QStringLiteral("mdiArea"));
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    const bool dark = palette().window().color().lightness() < 128;
    m_area->setBackground(dark ? QColor(0x22, 0x2b, 0x30) : QColor(0xc9, 0xdb, 0xe1)); // the colour of calm water
    m_nothingOpen = new EmptyText(*m_area, *m_area->viewport(), [canvas = m_area->viewport()] {
        return !canvas->findChild<QMdiSubWindow *>(QString(), Qt::FindDirectChildrenOnly);
    });
    setCentralWidget(m_area);
    connect(m_area, &QMdiArea::subWindowActivated, this,
            guarded([this](QMdiSubWindow *window) { subWindowActivated(window); }));
    connect(mnu_Window, &QMenu::aboutToShow, this, [this] { fillWindowList(); });
    qApp->installEventFilter(this);
    resize(1100, 740);
}

frm_OMKMDIMain::~frm_OMKMDIMain()
{
    m_area->disconnect(this); // children deleted with it must not call back
}

void frm_OMKMDIMain::makeToolbar()
{
    auto *strip =
        new QToolBar(this); // the strip at the top, which keeps the reminders visible when the buttons are hidden
    strip->setObjectName(QStringLiteral("Picture1"));
    strip->setMovable(false);
    Picture1 = strip;
    Toolbar1 = new QToolBar;
    Toolbar1->setObjectName(QStringLiteral("Toolbar1"));
    Toolbar1->setIconSize(QSize(24, 24));
    for (const ButtonRow &row : buttonRows) {
        if (row.groupBefore)
            Toolbar1->addSeparator();
        MenuEntry *same = this->*row.sameAs;
        std::function<void()> action;
        if (same->hasAction())
            action = [same] { same->run(); };
        auto *button =
            AddToolButton(*Toolbar1, QLatin1String(row.key), QLatin1String(row.toolTip), row.image, std::move(action));
        m_buttons.emplace(QLatin1String(row.key), button);
    }

    cbo_Reminders = new QComboBox;
    cbo_Reminders->setObjectName(QStringLiteral("cbo_Reminders"));
    cbo_Reminders->setAccessibleName(QStringLiteral("Upcoming reminders"));
    connect(cbo_Reminders, &QComboBox::currentTextChanged, cbo_Reminders,
            [box = cbo_Reminders](const QString &next) { box->setToolTip(u"Upcoming reminders\n" + next); });
    cbo_Reminders->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cbo_Reminders->setMinimumContentsLength(22); // more if the buttons leave it
    cbo_Reminders->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    on(cbo_Reminders, &QComboBox::currentIndexChanged, this, &frm_OMKMDIMain::cbo_Reminders_Click);
    m_toolbarPlace = strip->addWidget(Toolbar1);
    strip->addWidget(cbo_Reminders);
    addToolBar(Qt::TopToolBarArea, strip);
}

void frm_OMKMDIMain::makeStatusBar()
{
    statusBar()->setObjectName(QStringLiteral("sbStatusBar"));
    m_panel = new QLabel;
    m_panel->setObjectName(QStringLiteral("sbStatusBar_1"));
    m_panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long text must not widen the window
    statusBar()->addWidget(m_panel, 1);
}

void frm_OMKMDIMain::Top20List()
{
    const auto rules = LoadReminders(g);
    UpcomingReminders soonest;
    UndatedReminders undated;
    {
        const HourGlass waiting;
        const auto ready = qScopeGuard([this] { setPanel(QStringLiteral("Ready.")); });
        undated = RunReminders(
            g, rules,
            {upcomingRun,
             {},
             [&](const QDate &date, int rule) { soonest.add(date, rules[std::size_t(rule)].TaskDescription); },
             [this](const QString &panel, int) { setPanel(panel); }});
    }
    cbo_Reminders->clear();
    if (rules.empty())
        cbo_Reminders->addItem(QStringLiteral("(No Reminders Available)"));
    else
        cbo_Reminders->addItems(soonest.texts(g.options.DatePicture));
    if (undated.tell(g))
        RefillReminders();
}

void frm_OMKMDIMain::RefillReminders()
{
    if (auto *list = Forms::current().loaded<frm_Maintsched>())
        list->FillTaskList(); // this also fills the toolbar's list
    else
        Top20List();
}

void frm_OMKMDIMain::ShowChild(ChildForm &child)
{
    auto *frame = qobject_cast<QMdiSubWindow *>(child.parentWidget());
    if (!frame) {
        const QSize size = child.size() + childFrame; // the size that the window asks for
        frame = new ChildFrame;
        frame->setWidget(&child);
        frame->setAttribute(Qt::WA_DeleteOnClose);
        // Otherwise Tab would go from the last control to the frame, which passes the focus to the child's first
        // control, and the controls before that one would never be reached.
        frame->setFocusPolicy(Qt::NoFocus);
        frame->setWindowIcon(child.windowIcon());
        frame->setMinimumSize(frame->minimumSizeHint());
        frame->resize(size.boundedTo(m_area->viewport()->size()));
        m_area->addSubWindow(frame); // resized before, so that it gets a place where all of it is visible
    }
    if (frame->isMinimized())
        frame->showNormal();
    else
        frame->show();
    child.show();
    m_area->setActiveSubWindow(frame);
    child.takeFocus();
}

bool frm_OMKMDIMain::isInFront(const ChildForm &child) const { return m_activeChild == &child; }

void frm_OMKMDIMain::offerPrint(const ChildForm &child, bool enabled, const QString &caption)
{
    if (!isInFront(child))
        return;
    mnu_FilePrint->Enabled(enabled);
    mnu_FilePrint->setText(caption);
}

void frm_OMKMDIMain::disablePrint()
{
    mnu_FilePrint->Enabled(false);
    mnu_FilePrint->setText(QStringLiteral("&Print"));
}

void frm_OMKMDIMain::setPanel(const QString &text) { ShowProgress(*m_panel, text); }

void frm_OMKMDIMain::subWindowActivated(QMdiSubWindow *window)
{
    auto *child = window ? dynamic_cast<ChildForm *>(window->widget()) : nullptr;
    if (!m_area->currentSubWindow())
        disablePrint(); // the last child has closed; a dialog in front does not change the current child
    if (!child || child == m_activeChild)
        return; // a dialog or another program in front does not count as a loss of focus
    if (m_activeChild)
        m_activeChild->Form_LostFocus();
    m_activeChild = child;
    disablePrint(); // until the child enables it
    child->Form_Activate();
}

void frm_OMKMDIMain::MDIForm_Activate()
{
    // Some desktops let the keeper bring this window to the front under an open message box. Nothing may change for the
    // command that waits for the box; the child is told when the box has closed.
    if (QApplication::activeModalWidget())
        return;
    disablePrint(); // until the child enables it
    if (m_activeChild && m_activeChild->isShown())
        m_activeChild->Form_Activate();
}

void frm_OMKMDIMain::ComeToFront()
{
    if (!isVisible())
        return; // the program is still starting, and shows the window itself when it is ready
    setWindowState(windowState() & ~Qt::WindowMinimized);
    QWidget *dialog = QApplication::activeModalWidget();
    for (QWidget *window : {static_cast<QWidget *>(this), dialog})
        if (window)
            window->raise();
    (dialog ? dialog : this)->activateWindow();
}

void frm_OMKMDIMain::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        guarded([this] { MDIForm_Activate(); })();
}

bool frm_OMKMDIMain::event(QEvent *event)
{
    const bool handled = QMainWindow::event(event);
    // The last dialog has closed. If the window was already active under the dialog, it is not activated again.
    if (event->type() == QEvent::WindowUnblocked)
        QMetaObject::invokeMethod(this, guarded([this] {
                                      if (isActiveWindow())
                                          MDIForm_Activate();
                                  }),
                                  Qt::QueuedConnection);
    return handled;
}

/// A mouse press anywhere in a child brings it to the front. Qt does that only for controls that take the focus, which
/// a tool button does not.
void frm_OMKMDIMain::bringToFront(const QWidget &pressed)
{
    for (const QWidget *widget = &pressed; widget; widget = widget->parentWidget()) {
        auto *frame = qobject_cast<QMdiSubWindow *>(widget->parentWidget());
        if (frame && frame->mdiArea() == m_area && frame != m_area->currentSubWindow())
            m_area->setActiveSubWindow(frame);
    }
}

bool frm_OMKMDIMain::eventFilter(QObject *object, QEvent *event)
{
    if (!object->isWidgetType())
        return false;
    if (event->type() == QEvent::MouseButtonPress)
        bringToFront(*static_cast<QWidget *>(object));
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto &key = *static_cast<QKeyEvent *>(event);
    const auto *list = qobject_cast<QAbstractItemView *>(object);
    return helpKey(key) || (list && CopyFromList(*list, key));
}

void frm_OMKMDIMain::MDIForm_Unload()
{
    for (QMdiSubWindow *frame : m_area->subWindowList())
        frame->close();
    if (auto *options = Forms::current().loaded<frm_OMKOptions>())
        Unload(*options);
}

void frm_OMKMDIMain::closeEvent(QCloseEvent *event)
{
    guarded([this] { MDIForm_Unload(); })();
    QMainWindow::closeEvent(event);
}

void frm_OMKMDIMain::cbo_Reminders_Click()
{
    // The list is only for reading: it always shows its first entry, the next reminder.
    if (cbo_Reminders->count() > 0)
        cbo_Reminders->setCurrentIndex(0);
}
