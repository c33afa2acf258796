#include "windows/reminders/frm_SchedNewAddEdit.h"

#include "logic/reminders/RuleFields.h"
#include "platform/controls/FocusAtFault.h"
#include "platform/controls/Guarded.h"
#include "platform/controls/Icons.h"
#include "platform/controls/ShownTexts.h"
#include "windows/common/DateBoxes.h"
#include "windows/reminders/OccurrenceRows.h"

using Editor = frm_SchedNewAddEdit;

/// An option of the left column and the panel that it shows.
struct frm_SchedNewAddEdit::PatternRow
{
    Pattern pattern;
    QRadioButton *Ui::frm_SchedNewAddEdit::*option;
    QWidget *Ui::frm_SchedNewAddEdit::*panel;
};

/// One of the two variants of a pattern, and the controls that belong to it.
struct frm_SchedNewAddEdit::VariantRow
{
    QRadioButton *Ui::frm_SchedNewAddEdit::*option;
    std::vector<QWidget *> (*own)(const Editor &);
};

const std::array<Editor::PatternRow, 5> Editor::patternRows = {{
    {Pattern::Once, &Editor::opt_Once, &Editor::pic_Once},
    {Pattern::Daily, &Editor::opt_Daily, &Editor::pic_Daily},
    {Pattern::Weekly, &Editor::opt_Weekly, &Editor::pic_Weekly},
    {Pattern::Monthly, &Editor::opt_Monthly, &Editor::pic_Monthly},
    {Pattern::Yearly, &Editor::opt_Yearly, &Editor::pic_Yearly},
}};

// Two rows for each pattern: the option of one disables the controls of the other, which keep their values.
using Controls = std::vector<QWidget *>;
const std::array<Editor::VariantRow, 6> Editor::variantRows = {{
    {&Editor::opt_DailyEveryXDays,
     [](const Editor &e) {
         return Controls{e.txt_DailyDays, e.ud_Daily};
     }},
    {&Editor::opt_DailyEveryWeekday, [](const Editor &) { return Controls{}; }},
    {&Editor::opt_MonthlyXdayofEveryMonth,
     [](const Editor &e) {
         return Controls{e.txt_MonthlyDay, e.ud_Month1, e.txt_MonthlyNumofMonths, e.ud_month2};
     }},
    {&Editor::Opt_MonthlyXWeekdayofEveryMonth,
     [](const Editor &e) {
         return Controls{e.cbo_MonthlyWeekday, e.cbo_MonthlyXth, e.txt_MonthlyNumofMonths2, e.ud_month3};
     }},
    {&Editor::opt_YearlyEvery,
     [](const Editor &e) {
         return Controls{e.cbo_YearlyMonth, e.txt_YearlyDay, e.ud_Yearly};
     }},
    {&Editor::opt_YearlyThe,
     [](const Editor &e) {
         return Controls{e.cbo_YearlyMonth2, e.cbo_YearlyWeekday, e.cbo_YearlyXth};
     }},
}};

frm_SchedNewAddEdit::frm_SchedNewAddEdit(const FormContext &context) : DialogForm(context)
{
    setupUi(this);
    for (std::size_t i = 0; i < chk_WeeklyDay.size(); ++i)
        chk_WeeklyDay[i] = findChild<QCheckBox *>(QStringLiteral("chk_WeeklyDay_%1").arg(i));
    lstv_Schedule->setColumns({{QStringLiteral("date shown"), QStringLiteral("date shown"), false, 200},
                               {QStringLiteral("date not shown"), QStringLiteral("date not shown"), false, 0}});
    lstv_Schedule->setColumnHidden(1, true);
    for (QPushButton *calendar : {cmd_OnceCal, cmd_CalStartDate, cmd_CalEndDate})
        calendar->setIcon(Icon("calendar"));
    connectControls();
}

void frm_SchedNewAddEdit::connectControls()
{
    for (const auto &[upDown, box] : {std::pair{ud_Daily, txt_DailyDays},
                                      {ud_Weekly, txt_WeeklyWeeks},
                                      {ud_Month1, txt_MonthlyDay},
                                      {ud_month2, txt_MonthlyNumofMonths},
                                      {ud_month3, txt_MonthlyNumofMonths2},
                                      {ud_Yearly, txt_YearlyDay}}) {
        upDown->setBoundBox(box);
        box->setFixedWidth(box->fontMetrics().horizontalAdvance(u'0') * 6); // wide enough for 16 bits in any font
        on(box, &QLineEdit::textChanged, this, &Editor::UpdateEnglishDescription);
    }
    on(txt_OnceDate, &QLineEdit::textChanged, this, &Editor::UpdateEnglishDescription);
    for (QCheckBox *day : chk_WeeklyDay)
        on(day, &QCheckBox::toggled, this, &Editor::UpdateEnglishDescription);
    for (QComboBox *list :
         {cbo_MonthlyWeekday, cbo_MonthlyXth, cbo_YearlyMonth, cbo_YearlyMonth2, cbo_YearlyWeekday, cbo_YearlyXth})
        on(list, &QComboBox::currentIndexChanged, this, &Editor::UpdateEnglishDescription);
    for (const PatternRow &row : patternRows)
        connect(this->*row.option, &QRadioButton::toggled, this,
                guarded([this, &row](bool) { opt_Pattern_Click(row); }));
    for (const VariantRow &row : variantRows)
        connect(this->*row.option, &QRadioButton::toggled, this,
                guarded([this, &row](bool) { opt_Variant_Click(row); }));
    for (const auto &[button, box] :
         {std::pair{cmd_OnceCal, txt_OnceDate}, {cmd_CalStartDate, txt_StartDate}, {cmd_CalEndDate, txt_endDate}})
        connect(button, &QPushButton::clicked, this, guarded([this, box = box](bool) { cal_Click(*box); }));
    on(cmd_PreviewSchedule, &QPushButton::clicked, this, &Editor::cmd_PreviewSchedule_Click);
    on(cmd_OK, &QPushButton::clicked, this, &Editor::cmd_OK_Click);
    on(cmd_Cancel, &QPushButton::clicked, this, &Editor::cmd_Cancel_Click);
}

void frm_SchedNewAddEdit::Form_Load()
{
    FilltheStupidListBoxes();
    for (QRadioButton *first : {opt_DailyEveryXDays, opt_MonthlyXdayofEveryMonth, opt_YearlyEvery, opt_Daily})
        first->setChecked(true);
    for (const VariantRow &row : variantRows)
        opt_Variant_Click(row); // also for those that were never checked
    for (MaskedBox *box : {txt_StartDate, txt_endDate, txt_OnceDate})
        UseDateOrder(*box, g.options);
}

void frm_SchedNewAddEdit::FilltheStupidListBoxes()
{
    const QDate today = Now().date();
    const auto fill = [](QComboBox &list, const QStringList &names, int firstData, int position) {
        for (int i = 0; i < names.size(); ++i)
            list.addItem(names[i], firstData + i);
        list.setCurrentIndex(position);
    };
    for (QComboBox *months : {cbo_YearlyMonth, cbo_YearlyMonth2})
        fill(*months, FullMonthNames(), 1, today.month() - 1);
    for (QComboBox *weekdays : {cbo_YearlyWeekday, cbo_MonthlyWeekday})
        fill(*weekdays, WeekdayNames(), 1, today.dayOfWeek() % 7);
    for (QComboBox *ordinals : {cbo_MonthlyXth, cbo_YearlyXth})
        fill(*ordinals, OrdinalNames(), 0, 0);
}

DateConventions frm_SchedNewAddEdit::dates() const { return {g.options.DateOrder, g.options.DatePicture}; }

DateBox frm_SchedNewAddEdit::dateOf(const MaskedBox &box) const
{
    const auto found = m_put.find(&box);
    return {box.Text(), found == m_put.end() ? QDate() : found->second};
}

void frm_SchedNewAddEdit::put(MaskedBox &box, const DateBox &date)
{
    m_put[&box] = date.put;
    box.setText(date.text);
}

EditorFields frm_SchedNewAddEdit::fields() const
{
    EditorFields f;
    f.txt_TaskDescription = txt_TaskDescription->text();
    f.txt_StartDate = dateOf(*txt_StartDate);
    f.txt_endDate = dateOf(*txt_endDate);
    f.txt_OnceDate = dateOf(*txt_OnceDate);
    for (const PatternRow &row : patternRows)
        if ((this->*row.option)->isChecked())
            f.pattern = row.pattern;
    f.txt_EnglishDesc = txt_EnglishDesc->text();
    f.opt_DailyEveryWeekday = opt_DailyEveryWeekday->isChecked();
    f.txt_DailyDays = txt_DailyDays->text();
    f.txt_WeeklyWeeks = txt_WeeklyWeeks->text();
    for (std::size_t i = 0; i < chk_WeeklyDay.size(); ++i)
        f.chk_WeeklyDay[i] = chk_WeeklyDay[i]->isChecked();
    f.Opt_MonthlyXWeekdayofEveryMonth = Opt_MonthlyXWeekdayofEveryMonth->isChecked();
    f.txt_MonthlyDay = txt_MonthlyDay->text();
    f.txt_MonthlyNumofMonths = txt_MonthlyNumofMonths->text();
    f.cbo_MonthlyXth = cbo_MonthlyXth->currentIndex();
    f.cbo_MonthlyWeekday = cbo_MonthlyWeekday->currentIndex();
    f.txt_MonthlyNumofMonths2 = txt_MonthlyNumofMonths2->text();
    f.opt_YearlyThe = opt_YearlyThe->isChecked();
    f.cbo_YearlyMonth = cbo_YearlyMonth->currentIndex();
    f.txt_YearlyDay = txt_YearlyDay->text();
    f.cbo_YearlyXth = cbo_YearlyXth->currentIndex();
    f.cbo_YearlyWeekday = cbo_YearlyWeekday->currentIndex();
    f.cbo_YearlyMonth2 = cbo_YearlyMonth2->currentIndex();
    return f;
}

void frm_SchedNewAddEdit::show(const EditorFields &f)
{
    ShowWhole(*txt_TaskDescription, f.txt_TaskDescription);
    put(*txt_StartDate, f.txt_StartDate);
    put(*txt_endDate, f.txt_endDate);
    put(*txt_OnceDate, f.txt_OnceDate);
    for (const PatternRow &row : patternRows)
        if (row.pattern == f.pattern)
            (this->*row.option)->setChecked(true);
    (f.opt_DailyEveryWeekday ? opt_DailyEveryWeekday : opt_DailyEveryXDays)->setChecked(true);
    ShowWhole(*txt_DailyDays, f.txt_DailyDays);
    ShowWhole(*txt_WeeklyWeeks, f.txt_WeeklyWeeks);
    for (std::size_t i = 0; i < chk_WeeklyDay.size(); ++i)
        chk_WeeklyDay[i]->setChecked(f.chk_WeeklyDay[i]);
    (f.Opt_MonthlyXWeekdayofEveryMonth ? Opt_MonthlyXWeekdayofEveryMonth : opt_MonthlyXdayofEveryMonth)
        ->setChecked(true);
    ShowWhole(*txt_MonthlyDay, f.txt_MonthlyDay);
    ShowWhole(*txt_MonthlyNumofMonths, f.txt_MonthlyNumofMonths);
    cbo_MonthlyXth->setCurrentIndex(f.cbo_MonthlyXth);
    cbo_MonthlyWeekday->setCurrentIndex(f.cbo_MonthlyWeekday);
    ShowWhole(*txt_MonthlyNumofMonths2, f.txt_MonthlyNumofMonths2);
    (f.opt_YearlyThe ? opt_YearlyThe : opt_YearlyEvery)->setChecked(true);
    cbo_YearlyMonth->setCurrentIndex(f.cbo_YearlyMonth);
    ShowWhole(*txt_YearlyDay, f.txt_YearlyDay);
    cbo_YearlyXth->setCurrentIndex(f.cbo_YearlyXth);
    cbo_YearlyWeekday->setCurrentIndex(f.cbo_YearlyWeekday);
    cbo_YearlyMonth2->setCurrentIndex(f.cbo_YearlyMonth2);
    txt_EnglishDesc->setText(f.txt_EnglishDesc); // last, because each control set above changes the sentence
}

bool frm_SchedNewAddEdit::AddNewTask(const RecurrenceRule &start, const Store &store)
{
    m_rule = start;
    opt_Daily->setChecked(true);
    put(*txt_StartDate, PutDate(start.StartDate, dates()));
    put(*txt_endDate, PutDate(start.EndDate, dates()));
    txt_TaskDescription->setText(start.TaskDescription);
    UpdateEnglishDescription();
    return showUntilDone(store);
}

bool frm_SchedNewAddEdit::ShowExistingTask(const RecurrenceRule &rule, const Store &store)
{
    m_rule = rule;
    EditorFields shown = fields();
    ShowRecurrence(rule, dates(), shown);
    show(shown);
    return showUntilDone(store);
}

bool frm_SchedNewAddEdit::showUntilDone(const Store &store)
{
    const Forms::Pin whileItWaits(*this);
    m_store = store;
    EditCancelled = true;
    txt_TaskDescription->setFocus();
    ShowModal();
    Unload(*this);
    return !EditCancelled;
}

void frm_SchedNewAddEdit::opt_Pattern_Click(const PatternRow &row)
{
    if ((this->*row.option)->isChecked())
        panels->setCurrentWidget(this->*row.panel);
    UpdateEnglishDescription();
}

void frm_SchedNewAddEdit::opt_Variant_Click(const VariantRow &row)
{
    for (QWidget *control : row.own(*this))
        control->setEnabled((this->*row.option)->isChecked());
    UpdateEnglishDescription();
}

void frm_SchedNewAddEdit::UpdateEnglishDescription() { txt_EnglishDesc->setText(EnglishSentence(fields())); }

void frm_SchedNewAddEdit::cal_Click(MaskedBox &box)
{
    // The chosen day keeps its century, because the date behind the text is remembered.
    if (const auto chosen = AskCalendar(g, ReadRangeDate(dateOf(box), dates())))
        put(box, PutDate(*chosen, dates()));
}

void frm_SchedNewAddEdit::cmd_PreviewSchedule_Click()
{
    lstv_Schedule->show();
    resize(width(), std::max(height(), sizeHint().height()));
    lstv_Schedule->Clear();
    const RulePreview preview = MakePreview(fields(), dates());
    auto rows = std::make_shared<OccurrenceRows>(previewRun, g.options.DatePicture, QStringList());
    for (const QDate &date : preview.dates)
        rows->add(date, 0);
    rows->sort();
    lstv_Schedule->setSource(rows);
    if (preview.complaint)
        complain(*preview.complaint);
}

bool frm_SchedNewAddEdit::EditForm()
{
    const auto fault = EditFault(fields(), dates());
    if (fault)
        complain(*fault);
    return !fault;
}

void frm_SchedNewAddEdit::complain(const EditorComplaint &complaint)
{
    MsgBox(complaint.text, vbInformation, complaint.title);
    if (auto *control = findChild<QWidget *>(complaint.control))
        FocusAtFault(*control);
}

void frm_SchedNewAddEdit::cmd_OK_Click()
{
    if (!EditForm())
        return;
    RecurrenceRule rule = m_rule;
    StoreRecurrence(fields(), dates(), rule);
    if (!m_store(rule)) {
        FocusAtFault(*txt_TaskDescription);
        return;
    }
    EditCancelled = false;
    hide();
}

void frm_SchedNewAddEdit::cmd_Cancel_Click()
{
    EditCancelled = true;
    hide();
}
