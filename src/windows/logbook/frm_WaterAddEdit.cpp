#include "windows/logbook/frm_WaterAddEdit.h"

#include <cmath>

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "logic/logbook/EntryRules.h"
#include "platform/controls/Caption.h"
#include "platform/controls/Guarded.h"
#include "platform/controls/Icons.h"
#include "platform/controls/MaskedBox.h"
#include "platform/controls/UpDown.h"
#include "platform/core/Doors.h"
#include "text/Dates.h"
#include "text/Numbers.h"

namespace {

constexpr int columnsOfGrid = 3;
constexpr int longestNumber = 64;
constexpr int digitsInSight = 10; ///< even if the names of the user-defined measurements are long
constexpr int highestPosition = 10000;

const QString badTime =
    QStringLiteral("You must enter a valid time in \"HH:MM:SS am\" format to add a water quality entry to the log.");

} // namespace

frm_WaterAddEdit::frm_WaterAddEdit(const FormContext &context) : EntryForm(context)
{
    setWindowTitle(QStringLiteral("Water Quality Log Detail"));
    setWindowIcon(Icon("waterquality"));

    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    column->addWidget(makeDateRow());
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(8);
    for (size_t i = 0; i < measurements.size(); ++i)
        makeMeasurement(i, *grid);
    column->addLayout(grid);
    txt_Comment = makeNotes("txt_Comment", "Record your comments here");
    column->addWidget(makeLabel("Comment:", txt_Comment));
    column->addWidget(txt_Comment, 1);
    cmd_OK = makeButton("cmd_OK", "&OK", true);
    cmd_Exit = makeButton("cmd_Exit", "Cancel", false);
    arrange(page, "Water Log Entry", cmd_OK, cmd_Exit);
    connectAll();
}

QWidget *frm_WaterAddEdit::makeDateRow()
{
    txt_date = makeDateBox("txt_date", "Date measurements were taken");
    cmd_Caldate = makeCalendarButton("cmd_Caldate", QStringLiteral("Choose the date from a calendar"));
    txt_time = makeTimeBox("txt_time", "Time measurements were taken");
    auto *row = new QWidget;
    auto *line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 8);
    line->addWidget(makeLabel("Date Performed", txt_date));
    line->addWidget(txt_date);
    line->addWidget(cmd_Caldate);
    line->addSpacing(24);
    line->addWidget(makeLabel("Time Performed", txt_time));
    line->addWidget(txt_time);
    line->addStretch(1);
    return row;
}

void frm_WaterAddEdit::makeMeasurement(size_t index, QGridLayout &grid)
{
    const MeasurementEntry &entry = measurements[index].entry;
    Line &line = m_lines[index];
    line.measurement = &measurements[index];
    line.label = new QLabel(QLatin1String(entry.label));
    line.label->setObjectName(QLatin1String(entry.labelName));
    line.label->setTextFormat(Qt::PlainText);
    line.label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    line.box = new MaskedBox;
    line.box->setObjectName(QLatin1String(entry.box));
    line.box->setFormat(QLatin1String(entry.boxPicture));
    line.box->setMaxLength(longestNumber);
    line.box->setMinimumWidth(line.box->fontMetrics().horizontalAdvance(u'0') * digitsInSight);
    line.box->setToolTip(QLatin1String(entry.toolTip));
    line.box->setAccessibleDescription(QLatin1String(entry.toolTip));
    line.box->setAlignment(Qt::AlignRight);
    line.label->setBuddy(line.box);
    line.upDown = new UpDown;
    line.upDown->setObjectName(QLatin1String(entry.upDown));
    line.upDown->setMin(0);
    line.upDown->setMax(highestPosition);
    line.upDown->setIncrement(1);
    line.upDown->setKeyBox(line.box);

    auto *pair = new QHBoxLayout;
    pair->setSpacing(0);
    pair->addWidget(line.box, 1);
    pair->addWidget(line.upDown);
    const int row = static_cast<int>(index) / columnsOfGrid;
    const int column = static_cast<int>(index) % columnsOfGrid * 2;
    grid.addWidget(line.label, row, column);
    grid.addLayout(pair, row, column + 1);
    grid.setColumnStretch(column + 1, 1);
    grid.setColumnMinimumWidth(column, line.label->fontMetrics().horizontalAdvance(QStringLiteral("MMMMMMMM")));
}

void frm_WaterAddEdit::connectAll()
{
    for (const Line &line : m_lines) {
        m_checks.watch(line.box, [this, &line] { return numberIsGood(line); });
        connect(line.upDown, &UpDown::Change, this, guarded([this, &line] { upDown_Change(line); }));
    }
    m_checks.watch(txt_date, [this] { return txt_date_LostFocus(); });
    m_checks.watch(txt_time, [this] { return txt_time_LostFocus(); });
    on(txt_date, &MaskedBox::ValidationError, this, &frm_WaterAddEdit::txt_date_ValidationError);
    on(txt_time, &MaskedBox::ValidationError, this, &frm_WaterAddEdit::txt_time_ValidationError);
    on(cmd_OK, &QPushButton::clicked, this, &frm_WaterAddEdit::cmd_OK_Click);
    on(cmd_Exit, &QPushButton::clicked, this, &frm_WaterAddEdit::cmd_Exit_Click);
    on(cmd_Caldate, &QPushButton::clicked, this, &frm_WaterAddEdit::cmd_Caldate_Click);
}

void frm_WaterAddEdit::Form_Load()
{
    for (const Line &line : m_lines)
        if (line.measurement->userField)
            line.label->setText(Caption(nameOf(*line.measurement)));
}

QString frm_WaterAddEdit::nameOf(const MeasurementRow &measurement) const
{
    return NameOf(measurement, measurement.entry.name, g.userFieldNames());
}

/// Sets the up-down first, because its Change() writes into the box.
void frm_WaterAddEdit::set(const Line &line, int position, const QString &text)
{
    line.upDown->setValue(position);
    line.box->setText(text);
}

void frm_WaterAddEdit::setDefaults(const QString &waterType)
{
    setToNow(*txt_date, *txt_time);
    for (const Line &line : m_lines) {
        const MeasurementEntry &entry = line.measurement->entry;
        const StartValue &start = waterType == u"SALT" ? entry.salt : entry.fresh;
        set(line, start.position, QLatin1String(start.text));
    }
    txt_Comment->setPlainText(startNote);
}

void frm_WaterAddEdit::load(Recordset &row)
{
    for (const Line &line : m_lines) {
        const MeasurementEntry &entry = line.measurement->entry;
        const Value value = row[QLatin1String(line.measurement->column)].value();
        const double number = value.toDoubleOr(0); // another program may have left it empty
        const double position = qBound(0.0, std::round(number * entry.positionsPerUnit), double(highestPosition));
        set(line, static_cast<int>(position), Format(number, QLatin1String(entry.rowPicture)));
        if (!value.isNull())
            m_shown.remember(*line.box);
    }
    txt_Comment->setPlainText(row[QStringLiteral("Comment")].text());
    for (const QWidget *box : std::initializer_list<QWidget *>{txt_Comment, txt_date, txt_time})
        m_shown.remember(*box);
}

void frm_WaterAddEdit::ShowWindow(const Recordset &row, const QString &tankId) { showFor(row, tankId, txt_date); }

bool frm_WaterAddEdit::numberIsGood(const Line &line)
{
    const QStringList complaints = MeasurementComplaints(*line.measurement, g.userFieldNames(), line.box->Text());
    for (const QString &complaint : complaints) {
        g.gMessage = complaint;
        refuse(complaint, line.box);
    }
    return complaints.isEmpty();
}

bool frm_WaterAddEdit::txt_date_LostFocus()
{
    return isDate(*txt_date) ||
           refuse(QStringLiteral("You must enter a valid date to add a water quality log entry to the log."), txt_date);
}

bool frm_WaterAddEdit::txt_time_LostFocus() { return IsBoxTime(txt_time->Text()) || refuse(badTime, txt_time); }

void frm_WaterAddEdit::txt_date_ValidationError()
{
    refuse(QStringLiteral("You must enter a valad date to add a water quality entry to the log."), txt_date);
}

void frm_WaterAddEdit::txt_time_ValidationError() { refuse(badTime, txt_time); }

void frm_WaterAddEdit::upDown_Change(const Line &line)
{
    const MeasurementEntry &entry = line.measurement->entry;
    const double number = double(line.upDown->Value()) / entry.positionsPerUnit;
    line.box->setText(entry.upDownPicture ? Format(number, QLatin1String(entry.upDownPicture)) : PlainText(number));
    if (isVisible())
        m_checks.suspect(line.box);
}

void frm_WaterAddEdit::store()
{
    Recordset &row = m_row;
    beginAgain(row);
    putDate(row, "logdate", *txt_date);
    put(row, "logtime", *txt_time);
    for (const Line &line : m_lines)
        put(row, line.measurement->column, *line.box);
    put(row, "Comment", *txt_Comment);
    row[QStringLiteral("tankname")].setValue(m_tankId);
    row.Update();
}

void frm_WaterAddEdit::cmd_OK_Click()
{
    if (!m_checks.passes())
        return;
    if (stored([this] { store(); }, QStringLiteral("This tank already has a water test at that date and time."),
               txt_time))
        Unload(*this);
}

void frm_WaterAddEdit::cmd_Exit_Click() { Unload(*this); }

void frm_WaterAddEdit::cmd_Caldate_Click() { pickDate(*txt_date); }
