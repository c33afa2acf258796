// One water test: its measurements, date, time and comment. The logbook opens the row, fills the controls and shows the
// window; OK writes the controls into that row, so the window does not know whether it adds or changes an entry. A
// number is checked when the focus leaves its box, and again before OK stores.
#pragma once

#include <array>

#include "logic/common/Measurements.h"
#include "windows/common/DateBoxes.h"
#include "windows/logbook/EntryForm.h"

class QGridLayout;
class UpDown;

class frm_WaterAddEdit : public EntryForm
{
    Q_OBJECT
public:
    explicit frm_WaterAddEdit(const FormContext &context);

    void Form_Load();
    void setDateOrder() { UseDateOrder(*txt_date, g.options); }
    /// The values that a new test starts with. They depend on the default water type, not on that of the tank.
    void setDefaults(const QString &waterType);
    /// Fills the boxes from the row, except for its date and time, which the logbook has set.
    void load(Recordset &row);
    void ShowWindow(const Recordset &row, const QString &tankId);

    MaskedBox *txt_date;
    MaskedBox *txt_time;
    QPlainTextEdit *txt_Comment;
    QPushButton *cmd_OK;
    QPushButton *cmd_Exit;
    QPushButton *cmd_Caldate;

private:
    struct Line
    {
        const MeasurementRow *measurement;
        QLabel *label;
        MaskedBox *box;
        UpDown *upDown;
    };

    void Cancel() override { cmd_Exit_Click(); }
    void makeMeasurement(size_t index, QGridLayout &grid);
    QWidget *makeDateRow();
    void connectAll();
    QString nameOf(const MeasurementRow &measurement) const;
    static void set(const Line &line, int position, const QString &text);

    /// Runs when the focus leaves a number box. One bad text can bring up both messages.
    bool numberIsGood(const Line &line);
    bool txt_date_LostFocus();
    bool txt_time_LostFocus();
    /// The mask has refused a key.
    void txt_date_ValidationError();
    void txt_time_ValidationError();
    void upDown_Change(const Line &line);
    void store();

    void cmd_OK_Click();
    void cmd_Exit_Click();
    void cmd_Caldate_Click();

    std::array<Line, measurementCount> m_lines;
};
