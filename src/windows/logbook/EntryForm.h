// The base of the entry windows of the three logs. It makes the boxes for date and time, the calendar buttons and the
// buttons that close the window, and it keeps the row that OK writes and the tank of the entry. Both belong to the
// window, because other windows can change the current tank while it is open. Each window has its own checks, in its
// own order and words.
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

    // These make a control and give it its object name.
    MaskedBox *makeDateBox(const char *name, const char *toolTip);
    MaskedBox *makeTimeBox(const char *name, const char *toolTip);
    QPushButton *makeCalendarButton(const char *name, const QString &whatFor);
    QBoxLayout *withCalendar(MaskedBox *date, QPushButton *calendar);
    QPushButton *makeButton(const char *name, const char *caption, bool isDefault);
    QPlainTextEdit *makeNotes(const char *name, const char *toolTip);
    /// A box for any text with a list of texts that were used before. It never changes what was typed.
    QComboBox *makeCombo(const char *name);
    QLabel *makeLabel(const char *caption, QWidget *buddy);
    /// Lays out the page of fields as the only tab, with the buttons below it.
    void arrange(QWidget *page, const char *tabCaption, QPushButton *ok, QPushButton *cancel);

    /// Fills in the current date and time, for a new entry.
    void setToNow(MaskedBox &date, MaskedBox &time) const;
    /// Opens the calendar at the date in the box, or at today, and puts the chosen day into the box.
    void pickDate(MaskedBox &box);

    /// Whether the box holds a date, read in the user's date order.
    bool isDate(const MaskedBox &box) const;

    /// Runs `store`. If the moment of the entry is taken, shows `ifTaken` and returns false. Other failures are thrown
    /// on.
    bool stored(const std::function<void()> &store, const QString &ifTaken, QWidget *box);

    /// Starts the row again, so that nothing of a refused attempt remains in it.
    static void beginAgain(Recordset &row);
    /// Writes the text of a box into the row, unless the box still shows the text that it was filled with from there.
    void put(Recordset &row, const char *column, const QWidget &box) const;
    void putDate(Recordset &row, const char *column, const MaskedBox &box) const;

    /// Shows the window with the focus in `first`. OK writes `row`, on which AddNew or Edit has been called.
    void showFor(const Recordset &row, const QString &tankId, QWidget *first);

    LeavingChecks m_checks;
    ShownTexts m_shown;
    Recordset m_row;
    QString m_tankId;
};
