// The editor of one reminder: a task, a pattern with its values, a range of dates. It says the rule in one sentence as
// it is composed, and shows its dates on demand. It knows no table: it is given the rule, and hands the new one to
// whoever stores it. The list of reminders opens it.
#pragma once

#include <array>
#include <functional>

#include "logic/reminders/RecurrenceRule.h"
#include "ui_frm_SchedNewAddEdit.h"
#include "windows/shell/DialogForm.h"

struct DateBox;
struct DateConventions;
struct EditorComplaint;
struct EditorFields;

class frm_SchedNewAddEdit : public DialogForm, public Ui::frm_SchedNewAddEdit
{
    Q_OBJECT
public:
    /// Stores a rule; false, after a box, where it may not be stored as it is: the editor then goes on with it.
    using Store = std::function<bool(const RecurrenceRule &)>;

    explicit frm_SchedNewAddEdit(const FormContext &context);
    void Form_Load();

    /// Composes a new rule, which starts as a daily one with the task and the range of that one. True if it was stored.
    bool AddNewTask(const RecurrenceRule &start, const Store &store);
    /// Shows a rule to be changed. True if it was stored.
    bool ShowExistingTask(const RecurrenceRule &rule, const Store &store);

    bool EditCancelled = true;                ///< until OK has been pressed on a rule that holds, and that was stored
    std::array<QCheckBox *, 7> chk_WeeklyDay; ///< from Sunday

private:
    struct PatternRow;
    struct VariantRow;
    static const std::array<PatternRow, 5> patternRows;
    static const std::array<VariantRow, 6> variantRows;

    void Cancel() override { cmd_Cancel_Click(); }
    void FilltheStupidListBoxes();
    void connectControls();
    void opt_Pattern_Click(const PatternRow &row);
    void opt_Variant_Click(const VariantRow &row);
    void UpdateEnglishDescription();
    void cal_Click(MaskedBox &box);
    void cmd_PreviewSchedule_Click();
    void cmd_OK_Click();
    void cmd_Cancel_Click();

    DateConventions dates() const;
    DateBox dateOf(const MaskedBox &box) const;
    void put(MaskedBox &box, const DateBox &date);
    EditorFields fields() const;
    void show(const EditorFields &fields);
    /// Is the rule as composed good to be stored? If not, says why and puts the focus there.
    bool EditForm();
    void complain(const EditorComplaint &complaint);
    bool showUntilDone(const Store &store);

    RecurrenceRule m_rule; ///< what its new pattern does not need stays as it was
    Store m_store;
    std::map<const MaskedBox *, QDate> m_put; ///< the date behind a text that the program put in
};
