// What the entry windows of the three logs have in common: date boxes in the user's order with a calendar beside them,
// a time box, the box that refuses a value, the closing buttons; and the row that OK writes, with the tank that the
// entry belongs to. Both are the window's own: while it is open, other windows may take another tank in hand. What
// differs (checks, their order and words) is each window's own.
#pragma once

#include <functional>

#include "platform/controls/LeavingChecks.h"
#include "platform/controls/ShownTexts.h"
#include "windows/shell/DialogForm.h"

class MaskedBox;
class QBoxLayout;
class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

class EntryForm : public DialogForm
{
protected:
    explicit EntryForm(const FormContext &context);

    // Makers of controls, each under its name.
    MaskedBox *makeDateBox(const char *name, const char *toolTip);
    MaskedBox *makeTimeBox(const char *name, const char *toolTip);
    QPushButton *makeCalendarButton(const char *name, const QString &whatFor);
    QBoxLayout *withCalendar(MaskedBox *date, QPushButton *calendar);
    QPushButton *makeButton(const char *name, const char *caption, bool isDefault);
    QPlainTextEdit *makeNotes(const char *name, const char *toolTip);
    /// A box of free text with a list of what was used before; typing never changes what was typed.
    QComboBox *makeCombo(const char *name);
    QLabel *makeLabel(const char *caption, QWidget *buddy);
    /// The page of the fields under its one tab, and the buttons below it.
    void arrange(QWidget *page, const char *tabCaption, QPushButton *ok, QPushButton *cancel);

    /// Today and now, as a new entry starts.
    void setToNow(MaskedBox &date, MaskedBox &time) const;
    /// Opens the calendar on the box's date, or on today, and puts the choice into the box.
    void pickDate(MaskedBox &box);

    /// The date of a box, read in the user's order; nothing where it is none.
    bool isDate(const MaskedBox &box) const;

    /// Runs the storing; false, after a refusal in those words, where the entry's moment is taken. Other failures go
    /// on.
    bool stored(const std::function<void()> &store, const QString &ifTaken, QWidget *box);

    /// Begins the row once more, so that nothing stays of a try that was refused.
    static void beginAgain(Recordset &row);
    /// Writes a box's text into the row, unless the box still shows what it was filled with from there.
    void put(Recordset &row, const char *column, const QWidget &box) const;
    void putDate(Recordset &row, const char *column, const MaskedBox &box) const;

    /// Shows the window with the focus in that box. `row` is what OK writes, begun by AddNew or Edit.
    void showFor(const Recordset &row, const QString &tankId, QWidget *first);

    LeavingChecks m_checks;
    ShownTexts m_shown;
    Recordset m_row;
    QString m_tankId;
};
