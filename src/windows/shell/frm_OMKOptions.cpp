#include "windows/shell/frm_OMKOptions.h"

#include <QSignalBlocker>

#include "logic/shell/Options.h"
#include "platform/controls/Caption.h"
#include "platform/controls/Guarded.h"
#include "platform/controls/ShownTexts.h"
#include "platform/core/Doors.h"
#include "text/Dates.h"

namespace {

struct GraphType
{
    const char *text;
    int code; ///< the type number of the chart
};

constexpr GraphType graphTypes[] = {
    {"3D Bar", 0},  {"2D Bar", 1},  {"3D Line", 2}, {"2D Line", 3},        {"3D Step", 6},        {"2D Pie", 14},
    {"2D Step", 7}, {"3D Area", 4}, {"2D Area", 5}, {"3D Combination", 8}, {"2D Combination", 9}, {"2D XY", 16},
};

bool isBlank(const QString &name) { return name.isEmpty() || name.startsWith(u' '); }

} // namespace

frm_OMKOptions::frm_OMKOptions(const FormContext &context) : DialogForm(context)
{
    setupUi(this);
    makeChecks();
    connectControls();
}

/// Four check boxes for each column. The user-defined measurements start a new column.
void frm_OMKOptions::makeChecks()
{
    constexpr int perColumn = 4;
    QWidget *before = chk_SkipZeroValues;
    int place = 0;
    for (std::size_t i = 0; i < m_checks.size(); ++i) {
        const MeasurementRow &row = RowOf(listOrder[i]);
        if (row.userField == 1)
            place = (place + perColumn - 1) / perColumn * perColumn;
        auto *check = new QCheckBox(QString::fromLatin1(row.graph.checkCaption));
        check->setObjectName(QLatin1String(row.graph.check));
        lay_Frame3->addWidget(check, place % perColumn, place / perColumn);
        setTabOrder(before, check);
        before = check;
        m_checks[i] = check;
        ++place;
    }
}

void frm_OMKOptions::connectOption(QRadioButton *option, Handler handler)
{
    connect(option, &QRadioButton::toggled, this, guarded([this, handler](bool isOn) {
                if (isOn)
                    (this->*handler)();
            }));
}

void frm_OMKOptions::connectControls()
{
    connectOption(opt_Salt, &frm_OMKOptions::opt_Salt_Click);
    connectOption(opt_Fresh, &frm_OMKOptions::opt_Fresh_Click);
    connectOption(opt_Dateform_MMDDYY, &frm_OMKOptions::opt_Dateform_MMDDYY_Click);
    connectOption(opt_Dateform_ddmmyy, &frm_OMKOptions::opt_Dateform_ddmmyy_Click);
    connectOption(opt_Dateform_YYMMDD, &frm_OMKOptions::opt_Dateform_YYMMDD_Click);
    connectOption(opt_BWPrinting, &frm_OMKOptions::opt_BWPrinting_Click);
    connectOption(opt_ColorPrinting, &frm_OMKOptions::opt_ColorPrinting_Click);
    connectOption(opt_UseFreshDB, &frm_OMKOptions::opt_UseFreshDB_Click);
    connectOption(opt_UseFreshFile, &frm_OMKOptions::opt_UseFreshFile_Click);
    connectOption(opt_UseSaltDb, &frm_OMKOptions::opt_UseSaltDb_Click);
    connectOption(opt_UseSaltFile, &frm_OMKOptions::opt_UseSaltFile_Click);
    on(chk_SkipZeroValues, &QCheckBox::toggled, this, &frm_OMKOptions::chk_SkipZeroValues_Click);
    on(cbo_Delimiter, &QComboBox::currentIndexChanged, this, &frm_OMKOptions::cbo_Delimiter_Click);
    on(cbo_GraphType, &QComboBox::currentIndexChanged, this, &frm_OMKOptions::cbo_GraphType_Click);
    on(cmdOK, &QPushButton::clicked, this, &frm_OMKOptions::cmdOK_Click);
    on(cmdCancel, &QPushButton::clicked, this, &frm_OMKOptions::cmdCancel_Click);
    // cmdApply does nothing: only OK stores.
}

void frm_OMKOptions::Get_Initial_Properties()
{
    m_config = ReadOptions(g);
    const OptionsMembers inForce = g.options; // filling the controls changes g.options through their handlers
    fillLists();
    showGeneral(inForce);
    showGraphSettings(inForce);
    (inForce.UseFileFresh ? opt_UseFreshFile : opt_UseFreshDB)->setChecked(true);
    (inForce.UseFileSalt ? opt_UseSaltFile : opt_UseSaltDb)->setChecked(true);
}

void frm_OMKOptions::fillLists()
{
    const QSignalBlocker quietTypes(cbo_GraphType), quietDelimiters(cbo_Delimiter); // filling a list selects nothing
    cbo_GraphType->clear();
    for (const GraphType &type : graphTypes)
        cbo_GraphType->addItem(QLatin1String(type.text), type.code);
    cbo_GraphType->setCurrentIndex(-1);
    cbo_Delimiter->clear();
    for (const char *delimiter : dateDelimiters)
        cbo_Delimiter->addItem(QLatin1String(delimiter));
    cbo_Delimiter->setCurrentIndex(-1);
}

void frm_OMKOptions::showGeneral(const OptionsMembers &options)
{
    (options.DefaultWaterType == u"SALT" ? opt_Salt : opt_Fresh)->setChecked(true);
    ShowWhole(*txt_username1, g.gUserFieldName1);
    ShowWhole(*txt_username2, g.gUserFieldName2);
    QRadioButton *option = options.DateOrder == DateOrder::DDMMYY   ? opt_Dateform_ddmmyy
                           : options.DateOrder == DateOrder::YYMMDD ? opt_Dateform_YYMMDD
                                                                    : opt_Dateform_MMDDYY;
    option->setChecked(true);
    cbo_Delimiter->setCurrentIndex(cbo_Delimiter->findText(options.DateDelimiter));
    showDateCaptions();
}

void frm_OMKOptions::showDateCaptions()
{
    const QString pattern = QStringLiteral("%1") + g.options.DateDelimiter + QStringLiteral("%2") +
                            g.options.DateDelimiter + QStringLiteral("%3");
    const QString day = QStringLiteral("18"), month = QStringLiteral("02"), year = QStringLiteral("97");
    opt_Dateform_ddmmyy->setText(pattern.arg(day, month, year));
    opt_Dateform_MMDDYY->setText(pattern.arg(month, day, year));
    opt_Dateform_YYMMDD->setText(pattern.arg(year, month, day));
}

void frm_OMKOptions::showGraphSettings(const OptionsMembers &options)
{
    for (std::size_t i = 0; i < m_checks.size(); ++i) {
        const MeasurementRow &row = RowOf(listOrder[i]);
        if (row.userField)
            m_checks[i]->setText(Caption(NameOf(row, nullptr, g.userFieldNames())));
        m_checks[i]->setChecked(options.GraphChecks[qsizetype(i)] == u'1');
    }
    cbo_GraphType->setCurrentIndex(cbo_GraphType->findData(options.GraphStyle)); // selects nothing for an unknown code
    chk_SkipZeroValues->setChecked(options.GraphSkipZeroes == 1);
    (options.GraphPrintColor == 1 ? opt_ColorPrinting : opt_BWPrinting)->setChecked(true);
}

QString frm_OMKOptions::graphChecks() const
{
    QString text;
    for (const QCheckBox *check : m_checks)
        text += check->isChecked() ? u'1' : u'0';
    return text;
}

void frm_OMKOptions::ShowOptions(int tab)
{
    const Forms::Pin pin(*this);
    Get_Initial_Properties();
    g.options.ActiveTab = qint16(tab);
    SSTab1->setCurrentIndex(g.options.ActiveTab);
    m_inForce = g.options;
    ShowModal();
    Unload(*this);
}

// Stores before the dialog closes: if that fails, it stays open with what was entered, and nothing is stored.
void frm_OMKOptions::cmdOK_Click()
{
    g.options.GraphChecks = graphChecks();
    StoreOptions(g, m_config, {opt_Salt->isChecked(), txt_username1->text(), txt_username2->text()},
                 m_inForce.DateOrder);
    hide();
}

// Restores what the clicks have changed before the dialog closes, because the window behind it reads the options when
// it comes to the front. It reads nothing from the file, so it cannot fail.
void frm_OMKOptions::cmdCancel_Click()
{
    g.options = m_inForce;
    hide();
}

bool frm_OMKOptions::CheckUserFieldNames()
{
    for (QLineEdit *box : {txt_username1, txt_username2})
        if (isBlank(box->text()))
            return refuse(
                QStringLiteral("User defined field names cannot be blank. Please enter a name of at least one "
                               "character."),
                box);
    if (txt_username1->text() == txt_username2->text())
        return refuse(QStringLiteral("Both User defined field names cannot be the same. Please make them different by "
                                     "at least one character."),
                      txt_username2);
    return true;
}

// A click copies the control's value to its member, so g.options changes while the dialog is open.
void frm_OMKOptions::opt_Salt_Click() { g.options.DefaultWaterType = QStringLiteral("SALT"); }
void frm_OMKOptions::opt_Fresh_Click() { g.options.DefaultWaterType = QStringLiteral("FRESH"); }
void frm_OMKOptions::opt_Dateform_MMDDYY_Click() { g.options.DateOrder = DateOrder::MMDDYY; }
void frm_OMKOptions::opt_Dateform_ddmmyy_Click() { g.options.DateOrder = DateOrder::DDMMYY; }
void frm_OMKOptions::opt_Dateform_YYMMDD_Click() { g.options.DateOrder = DateOrder::YYMMDD; }
void frm_OMKOptions::chk_SkipZeroValues_Click() { g.options.GraphSkipZeroes = chk_SkipZeroValues->isChecked(); }
void frm_OMKOptions::opt_BWPrinting_Click() { g.options.GraphPrintColor = 0; }
void frm_OMKOptions::opt_ColorPrinting_Click() { g.options.GraphPrintColor = 1; }
void frm_OMKOptions::opt_UseFreshDB_Click() { g.options.UseFileFresh = false; }
void frm_OMKOptions::opt_UseFreshFile_Click() { g.options.UseFileFresh = true; }
void frm_OMKOptions::opt_UseSaltDb_Click() { g.options.UseFileSalt = false; }
void frm_OMKOptions::opt_UseSaltFile_Click() { g.options.UseFileSalt = true; }

void frm_OMKOptions::cbo_Delimiter_Click()
{
    g.options.DateDelimiter = cbo_Delimiter->currentText();
    showDateCaptions();
}

void frm_OMKOptions::cbo_GraphType_Click()
{
    if (cbo_GraphType->currentIndex() >= 0 && cbo_GraphType->currentData().toInt() >= 0)
        g.options.GraphStyle = qint16(cbo_GraphType->currentData().toInt());
}
