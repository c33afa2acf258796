#include "windows/logbook/frm_MaintAddEdit.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "logic/logbook/EntryRules.h"
#include "logic/shell/ErrorHandler.h"
#include "platform/controls/Guarded.h"
#include "platform/controls/Icons.h"
#include "platform/controls/MaskedBox.h"
#include "platform/controls/UpDown.h"
#include "platform/core/Doors.h"
#include "text/Dates.h"
#include "text/Numbers.h"

namespace {

const QString note = QStringLiteral("Note!");
const QString badDate = QStringLiteral("You must enter a valad date to add a maintenence entry to the log.");
const QString badTime =
    QStringLiteral("You must enter a valid time in \"HH:MM:SS am\" format to add a maintenence entry to the log.");

const QString tasks = QStringLiteral("SELECT maintlogtask FROM (SELECT animalname as maintlogtask from animallist "
                                     "where animaltype = 'M' union select maintlogtask from maintlog) "
                                     "order by maintlogtask COLLATE CASEBLIND");
constexpr const char *units[] = {"c.c.", "drops", "gallons", "litres", "ml", "oz.", "percent", "ppm"};

} // namespace

frm_MaintAddEdit::frm_MaintAddEdit(const FormContext &context) : EntryForm(context)
{
    setWindowTitle(QStringLiteral("Add a New Maintenence Activity"));
    setWindowIcon(Icon("maintenance"));
    makeControls();
    arrange(makePage(), "Maintenance Entry", cmd_OK, cmd_Cancel);
    connectAll();
}

void frm_MaintAddEdit::makeControls()
{
    txt_logdate = makeDateBox("txt_logdate", "");
    cmd_Caldate = makeCalendarButton("cmd_Caldate", QStringLiteral("Choose the date from a calendar"));
    txt_logtime = makeTimeBox("txt_logtime", "");
    lst_mainttasklist = makeCombo("lst_mainttasklist");
    txt_description = new QLineEdit;
    txt_description->setObjectName(QStringLiteral("txt_description"));
    txt_quantity = new MaskedBox;
    txt_quantity->setObjectName(QStringLiteral("txt_quantity"));
    txt_quantity->setMaxLength(64);
    txt_quantity->setAlignment(Qt::AlignRight);
    ud_quantity = new UpDown;
    ud_quantity->setObjectName(QStringLiteral("ud_quantity"));
    ud_quantity->setMax(999);
    ud_quantity->setKeyBox(txt_quantity);
    lst_unit = makeCombo("lst_unit");
    lst_unit->setMinimumContentsLength(10);
    txt_maintlognotes = makeNotes("txt_maintlognotes", "");
    cmd_OK = makeButton("cmd_OK", "&OK", true);
    cmd_Cancel = makeButton("cmd_Cancel", "&Cancel", false);
}

QWidget *frm_MaintAddEdit::makePage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setHorizontalSpacing(10);
    auto *quantityRow = new QHBoxLayout;
    quantityRow->setSpacing(0);
    quantityRow->addWidget(txt_quantity, 1);
    quantityRow->addWidget(ud_quantity);

    grid->addWidget(makeLabel("Date Performed", txt_logdate), 0, 0);
    grid->addLayout(withCalendar(txt_logdate, cmd_Caldate), 0, 1);
    grid->addWidget(makeLabel("Time Performed", txt_logtime), 0, 2);
    grid->addWidget(txt_logtime, 0, 3);
    grid->addWidget(makeLabel("Task Performed", lst_mainttasklist), 1, 0);
    grid->addWidget(lst_mainttasklist, 1, 1, 1, 3);
    grid->addWidget(makeLabel("Description of additive, medication, etc", txt_description), 2, 0, 1, 4);
    grid->addWidget(txt_description, 3, 0, 1, 4);
    grid->addWidget(makeLabel("Quantity", txt_quantity), 4, 0);
    grid->addLayout(quantityRow, 4, 1);
    grid->addWidget(makeLabel("Unit of Measure", lst_unit), 4, 2);
    grid->addWidget(lst_unit, 4, 3);
    grid->addWidget(makeLabel("Notes, Comments, etc.", txt_maintlognotes), 5, 0, 1, 4);
    grid->addWidget(txt_maintlognotes, 6, 0, 1, 4);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(6, 1);
    return page;
}

void frm_MaintAddEdit::connectAll()
{
    m_checks.watch(txt_logdate, [this] { return txt_logdate_LostFocus(); });
    m_checks.watch(txt_logtime, [this] { return txt_logtime_LostFocus(); });
    m_checks.watch(txt_quantity, [this] { return txt_quantity_LostFocus(); });
    on(txt_logdate, &MaskedBox::ValidationError, this, &frm_MaintAddEdit::txt_logdate_ValidationError);
    on(txt_logtime, &MaskedBox::ValidationError, this, &frm_MaintAddEdit::txt_logtime_ValidationError);
    on(ud_quantity, &UpDown::Change, this, &frm_MaintAddEdit::ud_quantity_Change);
    on(cmd_OK, &QPushButton::clicked, this, &frm_MaintAddEdit::cmd_OK_Click);
    on(cmd_Cancel, &QPushButton::clicked, this, &frm_MaintAddEdit::cmd_Cancel_Click);
    on(cmd_Caldate, &QPushButton::clicked, this, &frm_MaintAddEdit::cmd_caldate_Click);
}

void frm_MaintAddEdit::Form_Load()
{
    for (Recordset rows = g.gDatabase->OpenRecordset(tasks); !rows.EOF_(); rows.MoveNext())
        if (const QString task = rows[QStringLiteral("maintlogtask")].text(); !task.isEmpty())
            lst_mainttasklist->addItem(task);
    for (const char *unit : units)
        lst_unit->addItem(QLatin1String(unit));
    for (QComboBox *combo : {lst_mainttasklist, lst_unit}) {
        combo->setCurrentIndex(-1);
        combo->clearEditText();
    }
}

void frm_MaintAddEdit::setDefaults()
{
    setToNow(*txt_logdate, *txt_logtime);
    txt_maintlognotes->setPlainText(startNote);
    txt_description->setText(startNote);
    txt_quantity->setText(QString::number(startQuantity));
}

void frm_MaintAddEdit::load(Recordset &row)
{
    if (const Value date = row[QStringLiteral("maintlogdate")].value(); !date.isNull())
        txt_logdate->setText(Format(date.toDate(), g.options.DatePicture));
    if (const Value time = row[QStringLiteral("maintlogtime")].value(); !time.isNull())
        txt_logtime->setText(Format(time.toTime(), QStringLiteral("hh:mm:ss am/pm")));
    txt_maintlognotes->setPlainText(row[QStringLiteral("maintlognote")].text());
    lst_mainttasklist->setEditText(row[QStringLiteral("maintlogtask")].text());
    txt_description->setText(row[QStringLiteral("maintlogdesc")].text());
    lst_unit->setEditText(row[QStringLiteral("maintlogunit")].text());
    txt_quantity->setText(row[QStringLiteral("maintlogqty")].text());
    for (const QWidget *box : std::initializer_list<QWidget *>{txt_logtime, txt_maintlognotes, lst_mainttasklist,
                                                               txt_description, lst_unit, txt_quantity})
        m_shown.remember(*box);
}

void frm_MaintAddEdit::ShowWindow(const Recordset &row, const QString &tankId) { showFor(row, tankId, txt_logdate); }

bool frm_MaintAddEdit::txt_logdate_LostFocus()
{
    // The text is read month first, or in the user's date order if that gives no date.
    return ReadTypedDate(txt_logdate->Text(), g.options.DateOrder) || refuse(badDate, txt_logdate);
}

void frm_MaintAddEdit::txt_logdate_ValidationError() { refuse(badDate, txt_logdate); }

bool frm_MaintAddEdit::txt_logtime_LostFocus()
{
    return IsBoxTime(txt_logtime->Text()) || refuse(badTime, txt_logtime);
}

void frm_MaintAddEdit::txt_logtime_ValidationError() { refuse(badTime, txt_logtime); }

bool frm_MaintAddEdit::txt_quantity_LostFocus()
{
    const Complaint noNumber = NoNumber(quantityLimit, txt_quantity->Text());
    return txt_quantity->Text().isEmpty() || !noNumber || refuse(*noNumber, txt_quantity);
}

void frm_MaintAddEdit::ud_quantity_Change() { txt_quantity->setText(QString::number(ud_quantity->Value())); }

bool frm_MaintAddEdit::store()
{
    Recordset &row = m_row;
    beginAgain(row);
    row[QStringLiteral("mainttankname")].setValue(m_tankId);
    const auto date = ReadTypedDate(txt_logdate->Text(), g.options.DateOrder);
    row[QStringLiteral("maintlogdate")].setValue(date ? Value(*date) : Value(txt_logdate->Text()));
    put(row, "maintlogtime", *txt_logtime);
    const QString task = lst_mainttasklist->currentText();
    if (task.isEmpty())
        return refuse(QLatin1String(noTask), lst_mainttasklist, note);
    if (const auto tooLong = TooLong(taskLimit, task))
        return refuse(*tooLong, lst_mainttasklist, note);
    put(row, "maintlogtask", *lst_mainttasklist);
    if (txt_quantity->Text().isEmpty())
        txt_quantity->setText(QString::number(startQuantity));
    if (const auto tooMuch = TooMuch(quantityLimit, txt_quantity->Text()))
        return refuse(*tooMuch, txt_quantity, note);
    put(row, "maintlogqty", *txt_quantity);
    if (txt_description->text().isEmpty())
        txt_description->setText(startNote);
    if (const auto tooLong = TooLong(descriptionLimit, txt_description->text()))
        return refuse(*tooLong, txt_description, note);
    put(row, "maintlogdesc", *txt_description);
    if (const auto tooLong = TooLong(unitLimit, lst_unit->currentText()))
        return refuse(*tooLong, lst_unit, note);
    put(row, "maintlogunit", *lst_unit);
    if (txt_maintlognotes->toPlainText().isEmpty())
        txt_maintlognotes->setPlainText(startNote);
    put(row, "maintlognote", *txt_maintlognotes);
    row.Update();
    return true;
}

void frm_MaintAddEdit::cmd_OK_Click()
{
    if (!m_checks.passes())
        return;
    try {
        if (!store())
            return;
    } catch (const RuntimeFailure &failure) {
        HandleError(g, failure,
                    QStringLiteral(
                        "That identical combination of Date and Time already exists for this task. Make your new time "
                        "unique by changing at least one number."),
                    vbExclamation, QStringLiteral("Oops"));
        return;
    }
    Unload(*this);
}

void frm_MaintAddEdit::cmd_Cancel_Click() { Unload(*this); }

void frm_MaintAddEdit::cmd_caldate_Click() { pickDate(*txt_logdate); }
