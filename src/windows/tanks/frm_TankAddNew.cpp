#include "windows/tanks/frm_TankAddNew.h"

#include "logic/logbook/EntryRules.h"
#include "logic/shell/ErrorHandler.h"
#include "platform/controls/FocusAtFault.h"
#include "platform/controls/Guarded.h"
#include "platform/controls/WindowSize.h"
#include "platform/core/Doors.h"
#include "text/Dates.h"
#include "text/Numbers.h"

namespace {

struct WaterType
{
    const char *code;
    QRadioButton *Ui::frm_TankAddNew::*option;
};

constexpr WaterType waterTypes[] = {
    {"1", &Ui::frm_TankAddNew::opt_Freshwater}, {"2", &Ui::frm_TankAddNew::opt_Saltwater},
    {"3", &Ui::frm_TankAddNew::opt_Reef},       {"4", &Ui::frm_TankAddNew::Opt_Brackish},
    {"5", &Ui::frm_TankAddNew::opt_Pond},
};

const QString tankByName = QStringLiteral("where tankname = ?");

} // namespace

frm_TankAddNew::frm_TankAddNew(const FormContext &context) : DialogForm(context), m_checks(this)
{
    setupUi(this);
    txt_tanksize->setMaximumWidth(qRound(80 * FontScale(font())));
    ud_tanksize->setBoundBox(txt_tanksize);
    for (const WaterType &type : waterTypes) {
        connect(this->*type.option, &QRadioButton::toggled, this, [this, code = type.code](bool chosen) {
            if (chosen)
                m_waterType = QLatin1String(code);
        });
    }
    m_checks.watch(txt_tanksize, [this] { return txt_tanksize_LostFocus(); });
    m_checks.exempt(cmd_Cancel);
    on(cmd_OK, &QPushButton::clicked, this, &frm_TankAddNew::cmd_OK_Click);
    on(cmd_Cancel, &QPushButton::clicked, this, &frm_TankAddNew::cmd_Cancel_Click);
}

QRadioButton *frm_TankAddNew::waterTypeOption(const QString &code)
{
    for (const WaterType &type : waterTypes)
        if (code == QLatin1String(type.code))
            return this->*type.option;
    return nullptr;
}

void frm_TankAddNew::AddNewTank()
{
    m_tank = g.gDatabase->OpenForAppend(QStringLiteral("Tanklst"));
    m_tank.AddNew();
    if (g.gDefaultWaterType == u"SALT")
        opt_Saltwater->setChecked(true);
    else if (g.gDefaultWaterType == u"FRESH")
        opt_Freshwater->setChecked(true);
    ud_tanksize->setValue(startTankSize);
    txt_tanksize->setText(QString::number(startTankSize));
    DialogMode = QStringLiteral("add");
    main.disablePrint();
    ShowModal();
}

void frm_TankAddNew::ChangeTank(const QString &tankName)
{
    g.gTankName = tankName;
    m_tank = g.gDatabase->OpenForUpdate(QStringLiteral("tanklst"), tankByName, {tankName});
    m_tank.MoveFirst();
    m_tank.Edit();
    m_waterType = m_tank[QStringLiteral("TankWaterType")].text(); // an unknown code has no option and is kept
    if (auto *option = waterTypeOption(m_waterType))
        option->setChecked(true);
    const QString size = m_tank[QStringLiteral("tanksize")].text();
    ud_tanksize->setValue(static_cast<int>(qBound(0.0, Val(size), tankSizeLimit.most))); // it starts at the size shown
    ShowWhole(*txt_tanksize, size);
    ShowWhole(*txt_tankname, tankName);
    ShowWhole(*txt_long_desc, m_tank[QStringLiteral("Tankdesc")].text());
    txt_tanknotes->setPlainText(m_tank[QStringLiteral("tanknotes")].text());
    for (const QWidget *box :
         std::initializer_list<QWidget *>{txt_tanksize, txt_tankname, txt_long_desc, txt_tanknotes})
        m_shown.remember(*box);
    DialogMode = QStringLiteral("edit");
    setWindowTitle(u"Change Tank Info for " + tankName);
    main.disablePrint();
    ShowModal();
}

bool frm_TankAddNew::fieldsAreGood()
{
    const QString size = txt_tanksize->text();
    const QString name = txt_tankname->Text();
    // A file from elsewhere may hold more than can be typed. It is no fault of the keeper, who has not edited it.
    const auto edited = [this](const QWidget &box, const Complaint &complaint) {
        return m_shown.isEdited(box) ? complaint : std::nullopt;
    };
    if (size.isEmpty())
        return refuse(QLatin1String(noTankSize), txt_tanksize);
    if (const auto tooBig = edited(*txt_tanksize, TooMuch(tankSizeLimit, size)))
        return refuse(*tooBig, txt_tanksize);
    if (const auto tooLong = edited(*txt_tankname, TooLong(tankNameLimit, name)))
        return refuse(*tooLong, txt_tankname);
    if (const auto bad = BadTankName(name))
        return refuse(*bad, txt_tankname);
    if (const auto tooLong = edited(*txt_long_desc, TooLong(tankDescriptionLimit, txt_long_desc->Text())))
        return refuse(*tooLong, txt_long_desc);
    return true;
}

bool frm_TankAddNew::txt_tanksize_LostFocus()
{
    if (txt_tanksize->text().isEmpty() || IsNumeric(txt_tanksize->text()))
        return true;
    return refuse(QLatin1String(tankSizeLimit.ifNoNumber), txt_tanksize);
}

void frm_TankAddNew::put(const char *column, const QWidget &box, const Value &value)
{
    if (m_shown.isEdited(box))
        m_tank[QLatin1String(column)].setValue(value);
}

void frm_TankAddNew::store()
{
    if (DialogMode == u"add") // started again, so that nothing of a refused attempt remains
        m_tank.AddNew();
    else
        m_tank.Edit();
    put("tanksize", *txt_tanksize, Val(txt_tanksize->text()));
    put("tankname", *txt_tankname, txt_tankname->Text());
    put("Tankdesc", *txt_long_desc, txt_long_desc->Text());
    put("tanknotes", *txt_tanknotes, txt_tanknotes->toPlainText());
    m_tank[QStringLiteral("TankWaterType")].setValue(m_waterType);
    if (DialogMode == u"add") {
        QDateTime moment = Now();
        const QString id = NewTankId(*g.gDatabase, moment);
        m_tank[QStringLiteral("tankid")].setValue(id);
        m_tank.Update();
        g.gTankId = id;
    } else {
        m_tank.Update();
    }
    g.gTankName = txt_tankname->Text();
}

void frm_TankAddNew::cmd_OK_Click()
{
    if (!m_checks.passes() || !fieldsAreGood())
        return;
    try {
        store();
    } catch (const RuntimeFailure &failure) {
        HandleError(
            g, failure,
            QStringLiteral(
                "That identical tank name already exists. Make your new tank name unique by changing or adding at "
                "least one letter."));
        if (failure.number() == Failure::DuplicateKey)
            FocusAtFault(*txt_tankname);
        return;
    }
    Unload(*this);
}

void frm_TankAddNew::cmd_Cancel_Click() { Unload(*this); }
