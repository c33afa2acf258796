// The editor of one reminder: a task, a pattern with its values, and a range of dates. It describes the rule in a
// sentence while it is edited, and shows its dates on demand. It does not use the database: it is given a rule and a
// function that stores the new one. The list of reminders opens it.
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
    /// Stores a rule. If the rule cannot be stored, it shows a message and returns false, and the editor stays open.
    using Store = std::function<bool(const RecurrenceRule &)>;

    explicit frm_SchedNewAddEdit(const FormContext &context);
    void Form_Load();

    /// Edits a new rule, which starts as a daily one with the task and the range of `start`. Returns true if it was
    /// stored.
    bool AddNewTask(const RecurrenceRule &start, const Store &store);
    /// Edits an existing rule. Returns true if it was stored.
    bool ShowExistingTask(const RecurrenceRule &rule, const Store &store);

    bool EditCancelled = true;                ///< until OK has stored a valid rule
    std::array<QCheckBox *, 7> chk_WeeklyDay; ///< starting with Sunday

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
    /// Whether the rule is valid. If not, shows why and moves the focus to the fault.
    bool EditForm();
    void complain(const EditorComplaint &complaint);
    bool showUntilDone(const Store &store);

    RecurrenceRule m_rule; ///< columns that the new pattern does not use are kept
    Store m_store;
    std::map<const MaskedBox *, QDate> m_put; ///< the date behind each text that the program put in
};
