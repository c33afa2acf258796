#include "windows/logbook/frm_LivesAddEdit.h"

#include <QComboBox>
#include <QCompleter>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStringListModel>

#include "logic/logbook/EntryRules.h"
#include "platform/controls/Guarded.h"
#include "platform/controls/Icons.h"
#include "platform/controls/MaskedBox.h"
#include "platform/core/Doors.h"
#include "platform/core/RuntimeFailure.h"
#include "text/Dates.h"
#include "text/Numbers.h"
#include "windows/common/DateBoxes.h"

namespace {

const QString note = QStringLiteral("Note!");
const QString badDate = QStringLiteral("You must enter a valid date to add a livestock entry to the log.");

const QString places =
    QStringLiteral("SELECT distinct [where_purch] FROM livestock ORDER BY [where_purch] COLLATE CASEBLIND ASC");

/// Selects the words that are always offered and those that earlier entries used.
QString statuses()
{
    QString sql = QStringLiteral("SELECT status FROM (SELECT Status as status FROM livestock");
    for (const char *word :
         {"Active", "Deceased", "Sick", "On-order", "Available", "In quarantine", "Sale Pending", "Sold"})
        sql += QStringLiteral(" union SELECT '%1' as status from animallist").arg(QLatin1String(word));
    return sql + u") ORDER BY status COLLATE CASEBLIND";
}

} // namespace

frm_LivesAddEdit::frm_LivesAddEdit(const FormContext &context) : EntryForm(context)
{
    setWindowTitle(QStringLiteral("Livestock Detail Window"));
    setWindowIcon(Icon("livestock"));
    makeControls();
    arrange(makePage(), "Livestock Entry", cmd_OK, cmd_Cancel);
    m_checks.watch(txt_DateAdded, [this] { return txt_dateadded_LostFocus(); });
    on(txt_DateAdded, &MaskedBox::ValidationError, this, &frm_LivesAddEdit::txt_dateadded_ValidationError);
    connect(opt_Saltwater, &QRadioButton::toggled, this, guarded([this](bool chosen) {
                if (chosen)
                    opt_Saltwater_Click();
            }));
    connect(opt_Fresh, &QRadioButton::toggled, this, guarded([this](bool chosen) {
                if (chosen)
                    opt_fresh_click();
            }));
    on(cmd_OK, &QPushButton::clicked, this, &frm_LivesAddEdit::cmd_OK_Click);
    on(cmd_Cancel, &QPushButton::clicked, this, &frm_LivesAddEdit::cmd_Cancel_Click);
    on(cmd_Caldate, &QPushButton::clicked, this, &frm_LivesAddEdit::cmd_caldate_Click);
}

void frm_LivesAddEdit::makeControls()
{
    lst_AnimalList = makeCombo("lst_AnimalList");
    m_animals = new QStringListModel(this);
    lst_AnimalList->setModel(m_animals);
    lst_AnimalList->completer()->setModel(m_animals);
    txt_DateAdded = makeDateBox("txt_DateAdded", "");
    cmd_Caldate = makeCalendarButton("cmd_Caldate", QStringLiteral("Choose the date acquired from a calendar"));
    txt_timeadded = makeTimeBox("txt_timeadded", "");
    txt_quantity = new MaskedBox;
    txt_quantity->setObjectName(QStringLiteral("txt_quantity"));
    txt_quantity->setFormat(QStringLiteral("###0"));
    txt_quantity->setMaxLength(64);
    txt_quantity->setAlignment(Qt::AlignRight);
    lst_where = makeCombo("lst_where");
    lst_Status = makeCombo("lst_Status");
    txt_pricepaid = new QLineEdit;
    txt_pricepaid->setObjectName(QStringLiteral("txt_pricepaid"));
    txt_pricepaid->setAlignment(Qt::AlignRight);
    txt_pricesold = new QLineEdit;
    txt_pricesold->setObjectName(QStringLiteral("txt_pricesold"));
    txt_pricesold->setAlignment(Qt::AlignRight);
    txt_datelost = makeDateBox("txt_datelost", "");
    txt_Comment = makeNotes("txt_Comment", "");
    cmd_OK = makeButton("cmd_OK", "&OK", true);
    cmd_Cancel = makeButton("cmd_Cancel", "&Cancel", false);
}

QWidget *frm_LivesAddEdit::makeListType()
{
    auto *frame = new QGroupBox(QStringLiteral("Animal List Type"));
    frame->setObjectName(QStringLiteral("Frame1"));
    opt_Fresh = new QRadioButton(QStringLiteral("Freshwater"));
    opt_Fresh->setObjectName(QStringLiteral("opt_Fresh"));
    opt_Saltwater = new QRadioButton(QStringLiteral("Saltwater / Marine / Reef"));
    opt_Saltwater->setObjectName(QStringLiteral("opt_Saltwater"));
    auto *row = new QHBoxLayout(frame);
    row->addWidget(opt_Fresh);
    row->addWidget(opt_Saltwater);
    row->addStretch(1);
    return frame;
}

QWidget *frm_LivesAddEdit::makePage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setHorizontalSpacing(10);
    const auto field = [this, grid](int row, int column, const char *caption, QWidget *box) {
        grid->addWidget(makeLabel(caption, box), row, column);
        grid->addWidget(box, row, column + 1);
    };
    field(0, 0, "Animal Name", lst_AnimalList);
    QWidget *listType = makeListType();
    grid->addWidget(listType, 0, 2, 2, 2);
    grid->addWidget(makeLabel("Date Acquired", txt_DateAdded), 1, 0);
    grid->addLayout(withCalendar(txt_DateAdded, cmd_Caldate), 1, 1);
    field(2, 0, "Time Acquired", txt_timeadded);
    field(2, 2, "Status", lst_Status);
    field(3, 0, "Quantity", txt_quantity);
    field(3, 2, "Where Purchased", lst_where);
    field(4, 0, "Price Paid", txt_pricepaid);
    field(4, 2, "Price Sold", txt_pricesold);
    field(5, 2, "Date Lost / Sold", txt_datelost);
    // All rows are as high as the frame needs its two, so that the steps are even.
    const int half = (listType->sizeHint().height() - grid->verticalSpacing() + 1) / 2;
    for (int row = 0; row < grid->rowCount(); ++row)
        grid->setRowMinimumHeight(row, qMax(half, lst_AnimalList->sizeHint().height()));
    grid->addWidget(makeLabel(" Comment:", txt_Comment), 6, 0);
    grid->addWidget(txt_Comment, 7, 0, 1, 4);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(7, 1);
    return page;
}

void frm_LivesAddEdit::Form_Load()
{
    // Water types 2 and 3 are saltwater. Brackish water and ponds get the freshwater list.
    const bool sea = g.gTankWaterType == u"2" || g.gTankWaterType == u"3";
    (sea ? opt_Saltwater : opt_Fresh)->setChecked(true);
    fillCombo(*lst_where, places);
    fillCombo(*lst_Status, statuses());
}

void frm_LivesAddEdit::fillCombo(QComboBox &combo, const QString &sql)
{
    QStringList texts;
    for (Recordset rows = g.gDatabase->OpenRecordset(sql); !rows.EOF_(); rows.MoveNext()) {
        const QString text = rows.rows()->text(rows.AbsolutePosition(), 0);
        if (!text.isEmpty() && text != u" ")
            texts << text;
    }
    combo.addItems(texts);
    combo.setCurrentIndex(-1);
    combo.clearEditText();
}

void frm_LivesAddEdit::setDateOrder()
{
    UseDateOrder(*txt_DateAdded, g.options);
    UseDateOrder(*txt_datelost, g.options);
}

void frm_LivesAddEdit::setDefaults()
{
    setToNow(*txt_DateAdded, *txt_timeadded);
    txt_quantity->setText(QString::number(startAnimals));
    txt_Comment->setPlainText(startNote);
}

void frm_LivesAddEdit::load(Recordset &row)
{
    lst_AnimalList->setEditText(row[QStringLiteral("animalname")].text());
    const Value quantity = row[QStringLiteral("quantity")].value();
    txt_quantity->setText(quantity.isNull() ? QString() : Format(quantity.toDouble(), QStringLiteral("###0")));
    txt_Comment->setPlainText(row[QStringLiteral("Comment")].text());
    lst_Status->setEditText(row[QStringLiteral("Status")].text());
    txt_pricepaid->setText(row[QStringLiteral("price_paid")].text());
    if (const Value lost = row[QStringLiteral("datelost")].value(); !lost.isNull())
        txt_datelost->setText(Format(lost.toDate(), g.options.DatePicture));
    txt_pricesold->setText(row[QStringLiteral("price_sold")].text());
    lst_where->setEditText(row[QStringLiteral("where_purch")].text());
    for (const QWidget *box :
         std::initializer_list<QWidget *>{lst_AnimalList, txt_DateAdded, txt_timeadded, txt_quantity, txt_Comment,
                                          lst_Status, txt_pricepaid, txt_pricesold, txt_datelost, lst_where})
        m_shown.remember(*box);
}

void frm_LivesAddEdit::ShowWindow(const Recordset &row, const QString &tankId) { showFor(row, tankId, lst_AnimalList); }

bool frm_LivesAddEdit::txt_dateadded_LostFocus() { return isDate(*txt_DateAdded) || refuse(badDate, txt_DateAdded); }

void frm_LivesAddEdit::txt_dateadded_ValidationError() { refuse(badDate, txt_DateAdded); }

bool frm_LivesAddEdit::datesAndPricesAreGood()
{
    // The message names the date lost for both dates. The date acquired is checked even if its mask is empty: an empty
    // one is refused.
    const QString badLost = u"You must enter a valid date in " + g.options.DatePicture +
                            u" format to add a \"Date Lost\" to the livestock entry to the log.";
    if (!isDate(*txt_DateAdded))
        return refuse(badLost, txt_DateAdded);
    if (!txt_datelost->ClipText().isEmpty() && !isDate(*txt_datelost))
        return refuse(badLost, txt_datelost);
    return priceIsGood(*txt_pricepaid, QStringLiteral("Price Paid")) &&
           priceIsGood(*txt_pricesold, QStringLiteral("Price Sold"));
}

bool frm_LivesAddEdit::priceIsGood(QLineEdit &box, const QString &name)
{
    if (box.text().isEmpty() || !m_shown.isEdited(box))
        return true;
    const Complaint bad = BadPrice(name, box.text());
    return !bad || refuse(*bad, &box);
}

bool frm_LivesAddEdit::fieldsAreGood()
{
    const QString animal = lst_AnimalList->currentText();
    if (animal.isEmpty())
        return refuse(QLatin1String(noAnimal), lst_AnimalList);
    if (const auto tooLong = TooLong(animalLimit, animal))
        return refuse(*tooLong, lst_AnimalList, note);
    if (const auto tooLong = TooLong(placeLimit, lst_where->currentText()))
        return refuse(*tooLong, lst_where, note);
    if (!datesAndPricesAreGood())
        return false;
    if (const auto tooLong = TooLong(statusLimit, lst_Status->currentText()))
        return refuse(*tooLong, lst_Status, note);
    if (const auto tooMany = TooMuch(animalsLimit, txt_quantity->Text()))
        return refuse(*tooMany, txt_quantity, note);
    // The store would refuse these texts; here the messages of the other windows are shown instead.
    if (const auto noNumber = NoNumber(animalsLimit, txt_quantity->Text()))
        return refuse(*noNumber, txt_quantity);
    if (!IsBoxTime(txt_timeadded->Text()))
        return refuse(QStringLiteral(
                          "You must enter a valid time in \"HH:MM:SS am\" format to add a livestock entry to the log."),
                      txt_timeadded);
    return true;
}

void frm_LivesAddEdit::store()
{
    Recordset &row = m_row;
    beginAgain(row);
    row[QStringLiteral("tankname")].setValue(m_tankId);
    putDate(row, "dateadded", *txt_DateAdded);
    put(row, "timeadded", *txt_timeadded);
    put(row, "animalname", *lst_AnimalList);
    put(row, "quantity", *txt_quantity);
    put(row, "Comment", *txt_Comment);
    put(row, "Status", *lst_Status);
    // An empty price or date is not written: the stored value stays.
    if (!txt_pricepaid->text().isEmpty())
        put(row, "price_paid", *txt_pricepaid);
    if (!txt_pricesold->text().isEmpty())
        put(row, "price_sold", *txt_pricesold);
    if (!txt_datelost->ClipText().isEmpty())
        putDate(row, "datelost", *txt_datelost);
    put(row, "where_purch", *lst_where);
    row.Update();
}

void frm_LivesAddEdit::cmd_OK_Click()
{
    if (!m_checks.passes() || !fieldsAreGood())
        return;
    if (stored([this] { store(); },
               QStringLiteral("This tank already has an entry for that animal at that date and time."), txt_timeadded))
        Unload(*this);
}

void frm_LivesAddEdit::cmd_Cancel_Click() { Unload(*this); }

void frm_LivesAddEdit::cmd_caldate_Click() { pickDate(*txt_DateAdded); }
