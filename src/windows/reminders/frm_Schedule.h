// The dates of all reminders in one list, for two years from today or for a range of dates, shown and printed. It
// writes nothing. The list does not change until it is generated again.
#pragma once

#include <optional>

#include <QDate>

#include "text/Dates.h"
#include "ui_frm_Schedule.h"
#include "windows/shell/ChildForm.h"

class OccurrenceRows;
struct DateRange;
struct RecurrenceRule;
struct ScheduledTask;

class frm_Schedule : public ChildForm, public Ui::frm_Schedule
{
    Q_OBJECT
public:
    explicit frm_Schedule(const FormContext &context);
    void Form_Load();
    void Form_Activate() override;
    void Print() override { Print_Schedule(); }

    void Print_Schedule();

private:
    /// Uses the current date order for the two boxes while they are empty. Dates in them keep the order in which they
    /// were typed, because in another order they would become other days.
    void followDateOrder();
    void opt_range_Click();
    void cal_Click(MaskedBox &box);
    void cmd_Generate_Click();

    std::optional<QDate> dateIn(const MaskedBox &box) const;
    /// The range in the two boxes. If it is not valid, shows a message and returns nothing.
    std::optional<DateRange> askedRange();
    std::vector<ScheduledTask> listedTasks() const;
    void generate(const std::vector<RecurrenceRule> &rules, const std::optional<DateRange> &range);

    DateConventions m_dates; ///< of the two boxes
};
