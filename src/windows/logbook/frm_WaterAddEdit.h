// One water test: its measurements, date, time and comment. The logbook opens the row, fills the controls and
// shows the window; OK writes the controls into that row, so the window does not know whether it adds or changes. A
// number is tested when the focus leaves its box, and once more before OK stores.
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
    /// The values that a new test starts with, by the default water type and not by the tank's.
    void setDefaults(const QString &waterType);
    /// The current row's measurements and comment; the logbook has set its date and time.
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

    /// Leaving a number box: one bad text can bring up both boxes.
    bool numberIsGood(const Line &line);
    bool txt_date_LostFocus();
    bool txt_time_LostFocus();
    /// A key that the mask refuses.
    void txt_date_ValidationError();
    void txt_time_ValidationError();
    void upDown_Change(const Line &line);
    void store();

    void cmd_OK_Click();
    void cmd_Exit_Click();
    void cmd_Caldate_Click();

    std::array<Line, measurementCount> m_lines;
};
