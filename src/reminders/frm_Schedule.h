// All reminders as one dated list, for two years from today or for a range of dates, and that list on paper. It writes
// nothing; the list stands until it is generated again.
#pragma once

#include <map>
#include <optional>

#include <QDate>

#include "shell/ChildForm.h"
#include "ui_frm_Schedule.h"

class OccurrenceRows;
struct DateBox;
struct DateConventions;
struct DateRange;
struct RecurrenceRule;

class frm_Schedule : public ChildForm, public Ui::frm_Schedule
{
    Q_OBJECT
public:
    frm_Schedule(Globals &globals, QWidget *parent);
    void Form_Load();
    void Form_Activate() override;

    void Print_Schedule();

private:
    void opt_range_Click();
    void cal_Click(MaskedBox &box);
    void cmd_Generate_Click();

    std::optional<QDate> dateIn(const MaskedBox &box) const;
    /// The range of the two boxes; nothing, after a box, where it is none.
    std::optional<DateRange> askedRange();
    void generate(const std::vector<RecurrenceRule> &rules, const std::optional<DateRange> &range);

    std::map<const MaskedBox *, QDate> m_put; ///< the date behind a text that the calendar put in
};
