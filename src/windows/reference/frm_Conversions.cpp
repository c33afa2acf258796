#include "windows/reference/frm_Conversions.h"

#include <algorithm>
#include <cmath>

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

#include "logic/reference/Conversions.h"
#include "platform/controls/FocusAtFault.h"
#include "platform/controls/Icons.h"
#include "platform/controls/ListView.h"
#include "platform/core/Doors.h"
#include "text/Numbers.h"

namespace {

const QString resultPicture = QStringLiteral("###,###,###,###,##0.0000");

QLabel *makeLabel(const char *name, const char *text, QWidget *buddy = nullptr)
{
    auto *label = new QLabel(QLatin1String(text));
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(buddy);
    return label;
}

QLineEdit *makeBox(const char *name, const char *accessibleName)
{
    auto *box = new QLineEdit;
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(QLatin1String(accessibleName));
    box->setAlignment(Qt::AlignRight);
    return box;
}

QPushButton *makeButton(const char *name, const char *caption)
{
    auto *button = new QPushButton(QLatin1String(caption));
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(true); // Enter presses it while it has the focus
    return button;
}

} // namespace

frm_Conversions::frm_Conversions(const FormContext &context) : ChildForm(context)
{
    setWindowTitle(QStringLiteral("Conversions"));
    setWindowIcon(Icon("rulers"));
    makeControls();
    arrange();
    connectAll();
    beginWith(txt_FromValue);
    resize(560, 460);
}

void frm_Conversions::makeControls()
{
    lstv_Convert = new ListView;
    lstv_Convert->setObjectName(QStringLiteral("lstv_Convert"));
    lstv_Convert->setAccessibleName(QStringLiteral("Conversions"));
    lstv_Convert->setColumns({{QStringLiteral("from"), QStringLiteral("Convert From"), false, 255},
                              {QStringLiteral("to"), QStringLiteral("Convert To"), false, 255}});
    lstv_Convert->horizontalHeader()->setStretchLastSection(true);
    txt_FromValue = makeBox("txt_FromValue", "Value to convert");
    txt_ToValue = makeBox("txt_ToValue", "Result");
    txt_ToValue->setReadOnly(true);
    lbl_From = makeLabel("lbl_From", "");
    lbl_To = makeLabel("lbl_To", "");
    cmd_Convert = makeButton("cmd_Convert", "Convert");
    cmd_Close = makeButton("cmd_Close", "Close");
}

void frm_Conversions::arrange()
{
    auto *grid = new QGridLayout(this);
    grid->addWidget(makeLabel("Label3", "Conversions:", lstv_Convert), 0, 0, 1, 4);
    grid->addWidget(lstv_Convert, 1, 0, 1, 4);
    grid->addWidget(makeLabel("Label1", "Convert from:", txt_FromValue), 2, 0);
    grid->addWidget(txt_FromValue, 2, 1);
    grid->addWidget(lbl_From, 2, 2);
    grid->addWidget(cmd_Convert, 2, 3);
    grid->addWidget(makeLabel("Label2", "To:", txt_ToValue), 3, 0);
    grid->addWidget(txt_ToValue, 3, 1);
    grid->addWidget(lbl_To, 3, 2);
    grid->addWidget(cmd_Close, 3, 3);
    grid->setRowStretch(1, 1);
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(2, 3);
    // Both have room for the longest unit at any time, so that none is cut and none pushes the boxes aside.
    int widest = 0;
    for (const Conversion &conversion : conversions)
        for (const QString &unit : {UnitFrom(conversion.key), UnitTo(conversion.key)})
            widest = std::max(widest, fontMetrics().horizontalAdvance(unit));
    lbl_From->setMinimumWidth(widest + 2);
    lbl_To->setMinimumWidth(widest + 2);
}

void frm_Conversions::connectAll()
{
    on(cmd_Convert, &QPushButton::clicked, this, &frm_Conversions::cmd_Convert_Click);
    on(cmd_Close, &QPushButton::clicked, this, &frm_Conversions::cmd_Close_Click);
    on(lstv_Convert, &ListView::Click, this, &frm_Conversions::lstv_Convert_Click);
    // The units also follow when the keeper moves through the list by keyboard.
    on(lstv_Convert->selectionModel(), &QItemSelectionModel::selectionChanged, this, &frm_Conversions::SetLabels);
    connect(lstv_Convert, &ListView::ColumnClick, this,
            guarded([this](int index) { lstv_Convert_ColumnClick(index); }));
    on(txt_FromValue, &QLineEdit::returnPressed, this, &frm_Conversions::cmd_Convert_Click);
    const auto onKey = [this](Qt::Key key, QWidget *where, void (frm_Conversions::*handler)()) {
        auto *shortcut = new QShortcut(key, where);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        on(shortcut, &QShortcut::activated, this, handler);
    };
    onKey(Qt::Key_Return, lstv_Convert, &frm_Conversions::cmd_Convert_Click);
    onKey(Qt::Key_Enter, lstv_Convert, &frm_Conversions::cmd_Convert_Click);
    onKey(Qt::Key_Escape, this, &frm_Conversions::cmd_Close_Click);
}

void frm_Conversions::Form_Load()
{
    for (const Conversion &row : conversions) {
        const QString key = QLatin1String(row.key);
        lstv_Convert->Add(key, {UnitFrom(key), UnitTo(key)});
    }
    lstv_Convert->Select(1);
    SetLabels();
}

void frm_Conversions::Form_Activate() { SetListViewStyle(*lstv_Convert); }

void frm_Conversions::SetLabels()
{
    const int row = lstv_Convert->SelectedItem();
    const QString key = row ? lstv_Convert->Key(row) : QString();
    lbl_From->setText(UnitFrom(key));
    lbl_To->setText(UnitTo(key));
    txt_ToValue->clear();
}

void frm_Conversions::lstv_Convert_ColumnClick(int index) { SortByColumn(*lstv_Convert, index); }

void frm_Conversions::refuse(const QString &text)
{
    Beep();
    MsgBox(text, vbExclamation, QStringLiteral("Oops!"));
    FocusAtFault(*txt_FromValue);
}

void frm_Conversions::cmd_Convert_Click()
{
    const int row = lstv_Convert->SelectedItem();
    if (!row) {
        MsgBox(QStringLiteral("Select a formula by clicking on it. "), vbInformation, QStringLiteral("Note!"));
        return;
    }
    const auto value = ReadNumber(txt_FromValue->text());
    const double result = value ? Convert_Formula(lstv_Convert->Key(row), *value) : 0;
    if (!value && !IsNumeric(txt_FromValue->text()))
        return refuse(QStringLiteral("The value to convert must be a number."));
    if (!value || !std::isfinite(result))
        return refuse(QStringLiteral("The value to convert is too large."));
    txt_ToValue->setText(Format(result, resultPicture));
}
