// The calendar picker: a small modal window with one month, for every date box of the program (DateBoxes.h). One click
// on a day is the choice; the button labelled OK, Esc and the title bar leave without one. Globals::calendar says
// meanwhile, and afterwards, which date the window is on: "mm/dd/yyyy", whatever was handed in, and without a choice
// the date of entry.
#pragma once

#include <array>
#include <optional>

#include <QDate>

#include "windows/shell/DialogForm.h"

class DayButton;
class QLabel;
class QMenu;
class QPushButton;
class QScrollBar;

class frm_Caltool : public DialogForm
{
    Q_OBJECT
public:
    explicit frm_Caltool(const FormContext &context);

    /// Shows the month of g.calendar.SelectedDate (month-first text; today where it is no date) and waits for the
    /// choice, which it gives; nothing where there was none. A left or top of at least 1 twip, and within the screen,
    /// moves the window there; 0 leaves it where it is.
    std::optional<QDate> ShowCalendar(int left, int top);

    QPushButton *panMonth;
    QPushButton *panYear;
    QScrollBar *scrMonth; ///< 0 to 13: the ends wrap
    QScrollBar *scrYear;  ///< 100 to 9999
    std::array<DayButton *, 42> cmdDay;
    QLabel *lblReturnDate;
    QPushButton *cmd_ok;
    QMenu *mnu_Month;
    QMenu *mnu_Year;

protected:
    void Cancel() override { cmd_ok_Click(); }
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void makeMenus();
    void makeBars();
    void arrange();

    void Form_Activate();
    void panMonth_MouseUp();
    void panYear_MouseUp();
    void scrMonth_change();
    void scrYear_change();
    void cmdDay_Click(int Index);
    void cmd_ok_Click();

    /// Makes it the date in hand, and shows its month.
    void select(const QDate &date);
    void setSelected(const QDate &date);
    /// Goes to a month and keeps the day, or takes the last one where the month has no such day.
    void goTo(int month, int year);
    void moveTo(int left, int top);
    void drawMonth();
    DayButton &selectedButton();

    QDate DateOnEntry;
    QDate m_selected; ///< the date in hand
    bool m_picked = false;
};
