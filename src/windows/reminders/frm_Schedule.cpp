#include "windows/reminders/frm_Schedule.h"

#include <QScopeGuard>

#include "data/Export.h"
#include "logic/reminders/ReminderRun.h"
#include "logic/reminders/ScheduleReport.h"
#include "platform/controls/EmptyText.h"
#include "platform/controls/FocusAtFault.h"
#include "platform/controls/HourGlass.h"
#include "platform/controls/Icons.h"
#include "platform/core/Doors.h"
#include "windows/common/DateBoxes.h"
#include "windows/common/PrintReport.h"
#include "windows/reminders/OccurrenceRows.h"

namespace {

constexpr int firstYear = 1995; ///< the first year in which a range may end

} // namespace

frm_Schedule::frm_Schedule(const FormContext &context) : ChildForm(context)
{
    setupUi(this);
    setWindowIcon(Icon("cal"));
    lstv_Reminders->setColumns({{QStringLiteral("date shown"), QStringLiteral("date shown"), false, 180},
                                {QStringLiteral("Task"), QStringLiteral("Task"), false, 380},
                                {QStringLiteral("date not shown"), QStringLiteral("date not shown"), false, 0}});
    lstv_Reminders->setColumnHidden(2, true);
    new EmptyText(*lstv_Reminders, QStringLiteral("Press \"Generate\" to list the dates of your reminders."));
    for (QPushButton *calendar : {cmd_Calfrom, cmd_Calto})
        calendar->setIcon(Icon("calendar"));
    for (QRadioButton *option : {opt_2years, opt_DateRange})
        on(option, &QRadioButton::toggled, this, &frm_Schedule::opt_range_Click);
    for (const auto &[button, box] : {std::pair{cmd_Calfrom, txt_startdate}, {cmd_Calto, txt_enddate}})
        connect(button, &QPushButton::clicked, this, guarded([this, box = box](bool) { cal_Click(*box); }));
    on(cmd_Generate, &QPushButton::clicked, this, &frm_Schedule::cmd_Generate_Click);
    on(cmd_Print, &QPushButton::clicked, this, &frm_Schedule::Print_Schedule);
    beginWith(cmd_Generate);
}

void frm_Schedule::Form_Load()
{
    followDateOrder();
    opt_2years->setChecked(true);
}

void frm_Schedule::followDateOrder()
{
    if (!txt_startdate->ClipText().isEmpty() || !txt_enddate->ClipText().isEmpty())
        return;
    m_dates = {g.options.DateOrder, g.options.DatePicture};
    for (MaskedBox *box : {txt_startdate, txt_enddate}) {
        UseDateOrder(*box, g.options);
        box->setToolTip(m_dates.picture);
    }
}

void frm_Schedule::Form_Activate()
{
    main.offerPrint(*this, true);
    SetListViewStyle(*lstv_Reminders);
    followDateOrder();
}

void frm_Schedule::opt_range_Click()
{
    for (QWidget *control : {static_cast<QWidget *>(txt_startdate), static_cast<QWidget *>(txt_enddate),
                             static_cast<QWidget *>(cmd_Calfrom), static_cast<QWidget *>(cmd_Calto)})
        control->setEnabled(opt_DateRange->isChecked());
}

std::optional<QDate> frm_Schedule::dateIn(const MaskedBox &box) const
{
    return ReadDate(NormalizeDateText(box.Text(), m_dates.order));
}

void frm_Schedule::cal_Click(MaskedBox &box)
{
    if (const auto chosen = AskCalendar(g, dateIn(box)))
        PutDay(box, *chosen, m_dates);
}

std::optional<DateRange> frm_Schedule::askedRange()
{
    const auto refuse = [](const QString &text, MaskedBox &box) -> std::optional<DateRange> {
        MsgBox(text, vbInformation, QStringLiteral("Oops!"));
        FocusAtFault(box);
        return {};
    };
    const auto from = dateIn(*txt_startdate);
    if (!from)
        return refuse(QStringLiteral("The start date must be a valid date. Please reenter it and try again."),
                      *txt_startdate);
    const auto to = dateIn(*txt_enddate);
    if (!to)
        return refuse(QStringLiteral("The end date must be a valid date. Please reenter it and try again."),
                      *txt_enddate);
    if (to->year() < firstYear || to->year() > lastTypedYear())
        return refuse(QStringLiteral("The end date cannot be more than 30 years in the future or past the year 2029. "
                                     "(Come on, 30 years of maintenance?) "),
                      *txt_enddate);
    if (*to < *from)
        return refuse(
            QStringLiteral("The start date must be prior to, or equal to, the end date for schedule generation"),
            *txt_startdate);
    return DateRange{*from, *to};
}

void frm_Schedule::cmd_Generate_Click()
{
    ProgressBar1->setValue(0);
    std::optional<DateRange> range;
    if (opt_DateRange->isChecked() && !(range = askedRange()))
        return;
    const auto rules = LoadReminders(g);
    if (rules.empty())
        MsgBox(QStringLiteral("No Reminder details found for maintenance schedule."));
    else
        generate(rules, range);
}

void frm_Schedule::generate(const std::vector<RecurrenceRule> &rules, const std::optional<DateRange> &range)
{
    QStringList tasks;
    for (const RecurrenceRule &rule : rules)
        tasks << rule.TaskDescription;
    auto rows = std::make_shared<OccurrenceRows>(scheduleRun, g.options.DatePicture, tasks);
    UndatedReminders undated;
    {
        const HourGlass waiting;
        const auto ready = qScopeGuard([this] {
            ProgressBar1->setValue(0);
            StatusBar1->showMessage(QStringLiteral("Ready."));
        });
        ProgressBar1->setMaximum(int(rules.size()));
        undated = RunReminders(g, rules,
                               {scheduleRun, range, [&rows](const QDate &date, int rule) { rows->add(date, rule); },
                                [this](const QString &panel, int rule) {
                                    ProgressBar1->setValue(rule + 1);
                                    StatusBar1->showMessage(panel);
                                }});
        rows->sort();
        lstv_Reminders->setSource(rows);
        if (rows->count() > 0)
            lstv_Reminders->Select(1);
        cmd_Print->setEnabled(rows->count() > 0);
    }
    if (undated.tell(g))
        main.RefillReminders();
    if (rows->count() == 0)
        MsgBox(QStringLiteral("No reminder has a date within this range."));
}

std::vector<ScheduledTask> frm_Schedule::listedTasks() const
{
    std::vector<ScheduledTask> tasks;
    for (int item = 1; item <= lstv_Reminders->Count(); ++item)
        tasks.push_back({DateOfOccurrenceKey(lstv_Reminders->Text(item, 2)), lstv_Reminders->Text(item, 1)});
    return tasks;
}

void frm_Schedule::Print_Schedule()
{
    const Forms::Pin whileItPrints(*this);
    Report report = MakeScheduleReport(lstv_Reminders->Count(),
                                       [this](int item, int subItem) { return lstv_Reminders->Text(item, subItem); });
    report.saveSpreadsheet = [this](const QString &fileName) { ExportSchedule(listedTasks(), fileName); };
    PrintReport(main, report, PrintTarget::Printer);
}
