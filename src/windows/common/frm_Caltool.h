// The calendar: a small modal window that shows one month, for every date box of the program (DateBoxes.h). A click on
// a day chooses it; the OK button, Esc and the title bar close the window without a choice. Globals::calendar holds the
// window's date as "mm/dd/yyyy", whatever form was handed in. Without a choice, it is the original date again.
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

    /// Shows the month of g.calendar.SelectedDate (month-first text; today if it is not a date), waits for the choice,
    /// and returns the chosen day, if any. A left or top of at least 1 twip within the screen moves the window there; 0
    /// leaves it where it is.
    std::optional<QDate> ShowCalendar(int left, int top);

    QPushButton *panMonth;
    QPushButton *panYear;
    QScrollBar *scrMonth; ///< 0 to 13, so that it can wrap at both ends
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

    /// Selects the date and shows its month.
    void select(const QDate &date);
    void setSelected(const QDate &date);
    /// Goes to a month and keeps the day, or takes the last day if the month is shorter.
    void goTo(int month, int year);
    void moveTo(int left, int top);
    void drawMonth();
    DayButton &selectedButton();

    QDate DateOnEntry;
    QDate m_selected; ///< the selected date
    bool m_picked = false;
};
