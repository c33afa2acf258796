#include "windows/common/frm_Caltool.h"

#include <algorithm>

#include <QAction>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QScreen>

#include "platform/controls/Guarded.h"
#include "platform/core/Doors.h"
#include "text/Dates.h"
#include "windows/common/CalendarControls.h"

namespace {

struct MonthEntry
{
    const char *name;
    const char *caption;
};

constexpr MonthEntry monthEntries[] = {
    {"mnu_January", "January"}, {"mnu_Feb", "February"},      {"mnu_March", "March"},
    {"mnu_April", "April"},     {"mnu_May", "May"},           {"mnu_june", "June"},
    {"mnu_July", "July"},       {"mnu_August", "August"},     {"mnu_September", "September"},
    {"mnu_October", "October"}, {"mnu_November", "November"}, {"mnu_December", "December"},
};

constexpr int twipsPerPixel = 15;
const QString datePicture = QStringLiteral("mm/dd/yyyy"); // four digits, so that the century is kept

/// The number of days of a month given as "MMYY". Its year is read like any year typed with two digits, so that the
/// February of a century year (1900, 2100) has as many days as that of 2000.
int daysInMonth(const QString &monthAndYear)
{
    for (int day = 31; day > 28; --day)
        if (IsDate(QStringLiteral("%1/%2/%3").arg(monthAndYear.left(2)).arg(day).arg(monthAndYear.right(2))))
            return day;
    return 28;
}

int daysInMonth(const QDate &date) { return daysInMonth(Format(date, QStringLiteral("MMYY"))); }

/// That day of the month, or the last day if the month is shorter.
QDate dayOfMonth(int year, int month, int day)
{
    const QDate first(year, month, 1);
    return QDate(year, month, std::min(day, first.daysInMonth()));
}

int cellOfFirst(const QDate &date) { return QDate(date.year(), date.month(), 1).dayOfWeek() % 7; }

} // namespace

frm_Caltool::frm_Caltool(const FormContext &context) : DialogForm(context)
{
    setWindowTitle(QStringLiteral("Calendar"));
    panMonth = new MenuPanel(QStringLiteral("panMonth"), QStringLiteral("Choose a month"));
    panYear = new MenuPanel(QStringLiteral("panYear"), QStringLiteral("Choose a year"));
    on(panMonth, &QPushButton::clicked, this, &frm_Caltool::panMonth_MouseUp);
    on(panYear, &QPushButton::clicked, this, &frm_Caltool::panYear_MouseUp);
    makeBars();
    makeMenus();
    for (int i = 0; i < int(cmdDay.size()); ++i) {
        cmdDay[size_t(i)] = new DayButton;
        cmdDay[size_t(i)]->setObjectName(QStringLiteral("cmdDay_%1").arg(i));
        connect(cmdDay[size_t(i)], &QPushButton::clicked, this, guarded([this, i] { cmdDay_Click(i); }));
    }
    lblReturnDate = new QLabel;
    lblReturnDate->setObjectName(QStringLiteral("lblReturnDate"));
    cmd_ok = new QPushButton(QStringLiteral("OK"));
    cmd_ok->setObjectName(QStringLiteral("cmd_ok"));
    on(cmd_ok, &QPushButton::clicked, this, &frm_Caltool::cmd_ok_Click);
    arrange();
}

void frm_Caltool::makeBars()
{
    scrMonth = new MonthBar(QStringLiteral("scrMonth"), QStringLiteral("Month"), 0, 13, 1);
    scrMonth->setValue(1);
    scrYear = new MonthBar(QStringLiteral("scrYear"), QStringLiteral("Year"), 100, 9999, 10);
    scrYear->setValue(100);
    on(scrMonth, &QScrollBar::valueChanged, this, &frm_Caltool::scrMonth_change);
    on(scrYear, &QScrollBar::valueChanged, this, &frm_Caltool::scrYear_change);
    // Only the label follows while the slider is dragged.
    connect(scrMonth, &QScrollBar::sliderMoved, this,
            [this](int month) { panMonth->setText(QLatin1String(monthEntries[(month + 11) % 12].caption)); });
    connect(scrYear, &QScrollBar::sliderMoved, this, [this](int year) { panYear->setText(QString::number(year)); });
}

void frm_Caltool::makeMenus()
{
    mnu_Month = new QMenu(QStringLiteral("Months"), this);
    mnu_Month->setObjectName(QStringLiteral("mnu_Month"));
    int month = 0;
    for (const MonthEntry &entry : monthEntries) {
        QAction *action = mnu_Month->addAction(QLatin1String(entry.caption));
        action->setObjectName(QLatin1String(entry.name));
        connect(action, &QAction::triggered, scrMonth, [this, value = ++month] { scrMonth->setValue(value); });
    }
    mnu_Year = new QMenu(QStringLiteral("Years"), this);
    mnu_Year->setObjectName(QStringLiteral("mnu_Year"));
    for (int year = 1994; year <= 2003; ++year) {
        QAction *action = mnu_Year->addAction(QString::number(year));
        action->setObjectName(QStringLiteral("mnu_%1").arg(year));
        connect(action, &QAction::triggered, scrYear, [this, year] { scrYear->setValue(year); });
    }
}

void frm_Caltool::arrange()
{
    auto *head = new QGridLayout;
    head->setHorizontalSpacing(14);
    head->setVerticalSpacing(4);
    head->addWidget(panMonth, 0, 0);
    head->addWidget(panYear, 0, 1);
    head->addWidget(scrMonth, 1, 0);
    head->addWidget(scrYear, 1, 1);
    head->setColumnStretch(0, 1);
    head->setColumnStretch(1, 1);

    auto *month = new QGridLayout;
    month->setSpacing(2);
    const QDate aSunday(1998, 2, 1);
    for (int column = 0; column < 7; ++column) {
        auto *weekday = new QLabel(Format(aSunday.addDays(column), QStringLiteral("ddd")));
        weekday->setAlignment(Qt::AlignCenter);
        month->addWidget(weekday, 0, column);
    }
    for (int i = 0; i < int(cmdDay.size()); ++i)
        month->addWidget(cmdDay[size_t(i)], 1 + i / 7, i % 7);

    auto *foot = new QHBoxLayout;
    foot->addWidget(lblReturnDate, 1);
    foot->addWidget(cmd_ok);

    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(16, 12, 16, 14);
    all->setSpacing(10);
    all->addLayout(head);
    all->addLayout(month, 1);
    all->addLayout(foot);
}

std::optional<QDate> frm_Caltool::ShowCalendar(int left, int top)
{
    const Forms::Pin pin(*this);
    DateOnEntry = ReadDate(g.calendar.SelectedDate).value_or(Now().date());
    m_picked = false;
    g.calendar.PickCancelled = true;
    select(DateOnEntry);
    moveTo(left, top);
    ShowModal();
    if (m_picked)
        return m_selected;
    setSelected(DateOnEntry);
    return std::nullopt;
}

void frm_Caltool::moveTo(int left, int top)
{
    const QRect screenArea = screen()->geometry();
    if (left >= 1 && left < screenArea.width() * twipsPerPixel)
        move(screenArea.left() + left / twipsPerPixel, y());
    if (top >= 1 && top < screenArea.height() * twipsPerPixel)
        move(x(), screenArea.top() + top / twipsPerPixel);
}

void frm_Caltool::setSelected(const QDate &date)
{
    m_selected = date;
    g.calendar.SelectedDate = Format(date, datePicture);
    lblReturnDate->setText(g.calendar.SelectedDate);
}

DayButton &frm_Caltool::selectedButton() { return *cmdDay[size_t(cellOfFirst(m_selected) + m_selected.day() - 1)]; }

void frm_Caltool::select(const QDate &date)
{
    setSelected(date);
    scrYear->setValue(date.year()); // these draw the month too, if their value changes
    scrMonth->setValue(date.month());
    drawMonth();
}

void frm_Caltool::drawMonth()
{
    const QDate date = m_selected;
    const QDate today = Now().date();
    panMonth->setText(Format(date, QStringLiteral("mmmm")));
    panYear->setText(Format(date, QStringLiteral("YYYY")));
    const int offset = cellOfFirst(date);
    const int days = daysInMonth(date);

    DayButton &chosen = selectedButton();
    chosen.setEnabled(true);
    // The focus moves first, because the cell that has it may be disabled below.
    if (std::find(cmdDay.begin(), cmdDay.end(), focusWidget()) != cmdDay.end())
        chosen.setFocus();
    for (int i = 0; i < int(cmdDay.size()); ++i) {
        DayButton &cell = *cmdDay[size_t(i)];
        const int day = i >= offset && i < offset + days ? i - offset + 1 : 0;
        const QDate shown(date.year(), date.month(), day); // invalid for the extra day of a century year's February
        cell.showDay(day, shown, &cell == &chosen, shown == today);
    }
    chosen.setDefault(true);
}

void frm_Caltool::goTo(int month, int year)
{
    QDate date(year, month, m_selected.day());
    if (!date.isValid())
        date = dayOfMonth(year, month, daysInMonth(QDate(year, month, 1)));
    setSelected(date);
    drawMonth();
}

void frm_Caltool::scrMonth_change()
{
    // The months wrap within the year: January of the same year follows December.
    if (scrMonth->value() == 13)
        scrMonth->setValue(1);
    else if (scrMonth->value() == 0)
        scrMonth->setValue(12);
    else
        goTo(scrMonth->value(), scrYear->value());
}

void frm_Caltool::scrYear_change() { goTo(m_selected.month(), scrYear->value()); }

void frm_Caltool::panMonth_MouseUp()
{
    mnu_Month->popup(panMonth->mapToGlobal(panMonth->rect().bottomLeft()));
    mnu_Month->setActiveAction(mnu_Month->actions().at(m_selected.month() - 1));
}

void frm_Caltool::panYear_MouseUp() { mnu_Year->popup(panYear->mapToGlobal(panYear->rect().bottomLeft())); }

void frm_Caltool::cmdDay_Click(int Index)
{
    const QString caption = cmdDay[size_t(Index)]->text();
    if (!caption.isEmpty())
        setSelected(dayOfMonth(m_selected.year(), m_selected.month(), caption.toInt()));
    m_picked = true;
    g.calendar.PickCancelled = false;
    Unload(*this);
}

void frm_Caltool::cmd_ok_Click() { Unload(*this); } // no day was clicked, so the original date is restored

void frm_Caltool::Form_Activate()
{
    selectedButton().setDefault(true);
    selectedButton().setFocus();
}

void frm_Caltool::changeEvent(QEvent *event)
{
    DialogForm::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Form_Activate();
}

void frm_Caltool::keyPressEvent(QKeyEvent *event)
{
    const QDate date = m_selected;
    const bool byYear = event->modifiers() & Qt::ControlModifier;
    QDate next;
    switch (event->key()) {
    case Qt::Key_Left: next = date.addDays(-1); break;
    case Qt::Key_Right: next = date.addDays(1); break;
    case Qt::Key_Up: next = date.addDays(-7); break;
    case Qt::Key_Down: next = date.addDays(7); break;
    case Qt::Key_Home: next = dayOfMonth(date.year(), date.month(), 1); break;
    case Qt::Key_End: next = dayOfMonth(date.year(), date.month(), 31); break;
    case Qt::Key_PageUp: (byYear ? scrYear : scrMonth)->triggerAction(QScrollBar::SliderSingleStepSub); return;
    case Qt::Key_PageDown: (byYear ? scrYear : scrMonth)->triggerAction(QScrollBar::SliderSingleStepAdd); return;
    default: DialogForm::keyPressEvent(event); return;
    }
    if (next.year() >= scrYear->minimum() && next.year() <= scrYear->maximum())
        select(next);
}
