#include "windows/advisers/frm_FantAddAnimal.h"

#include "logic/advisers/Compatibility.h"
#include "platform/controls/Guarded.h"
#include "platform/controls/Icons.h"
#include "platform/controls/WindowSize.h"
#include "text/Numbers.h"

namespace {

constexpr double usualSize = 6; ///< inches; larger fish bring up a reminder about the rule of inches to gallons

const QString oops = QStringLiteral("Oops");

const QString reminderText = QStringLiteral(
    "Note! Ostrelmark's \"Fantasy Tank\" is based on a variation of the traditional \"inches to gallons\" "
    "rule-of-thumb, and adjusted for the variables shown on the screen.\r"
    "  This rule, like most aquarium-related \"rules\", is not accurate in all cases. Typical exceptions to this rule "
    "are large fish (over 5 inches), abnormally passive or agressive fish, or those with \"atypical\" body shapes (eg. "
    "eels, anemones, etc). The compatibility guidelines in Ostrelmark are based on fish having the sizes as listed on "
    "the screen when they first appear.\r"
    "  In light of all of this, be sure to double-check ANY stocking combinations with a qualified dealer or "
    "vererinarian BEFORE you attempt to put these animals together!");

// The warnings about an animal, %1, and others, %2. A list of others ends with a comma and a blank.
const QString ownKindText = QStringLiteral(
    "WARNING! Keeping 2 or more %1 in 1 tank may cause compatibility problems, possibly SERIOUS ones, "
    "and particularly if they are the same species!\r"
    "  You can continue \"Fantasy Tank\" with this selection but don't attempt to put these animals together without "
    "first consulting with your EXPERIENCED dealer or veterinarian!");
const QString maybeText = QStringLiteral(
    "Warning! You MAY have problems if you try to put %1 together with %2 depending on the particular animals "
    "involved.\r You should consider checking with your dealer or veterinarian BEFORE attempting to place these "
    "animals "
    "together.");
const QString incompatibleText = QStringLiteral(
    "Warning! %1 are generally considered INCOMPATIBLE with %2and may cause SERIOUS compatibility problems if "
    "attempted.\r Always check with your dealer or veterinarian BEFORE attempting to place these animals together!");

} // namespace

frm_FantAddAnimal::frm_FantAddAnimal(const FormContext &context) : DialogForm(context)
{
    setupUi(this);
    setWindowIcon(Icon("fantasy"));
    pic_fish->setPixmap(Icon("fish-drop").pixmap(pic_fish->minimumSize(), devicePixelRatio()));
    for (QLineEdit *number : {txt_howmany, txt_Howbig})
        number->setMaximumWidth(qRound(70 * FontScale(font())));
    ud_Howmany->setKeyBox(txt_howmany);
    ud_HowBig->setKeyBox(txt_Howbig);
    on(ud_Howmany, &UpDown::Change, this, &frm_FantAddAnimal::ud_howmany_Change);
    on(ud_HowBig, &UpDown::Change, this, &frm_FantAddAnimal::ud_Howbig_Change);
    on(txt_Howbig, &QLineEdit::textChanged, this, &frm_FantAddAnimal::txt_Howbig_Change);
    on(cmd_Addit, &QPushButton::clicked, this, &frm_FantAddAnimal::cmd_Addit_Click);
    on(cmd_Cancel, &QPushButton::clicked, this, &frm_FantAddAnimal::cmd_Cancel_Click);
}

void frm_FantAddAnimal::ShowAnimal(FantasyPlan &plan, WaterKind water, const QString &line)
{
    m_plan = &plan;
    m_water = water;
    lbl_selected_animal->setText(line);
    // The arrows beside the size do not start at it: they start at 1 for every animal.
    txt_Howbig->setText(PlainText(AnimalOf(water, plan.SelectedAnimal).TypicalSize));
    txt_howmany->setText(QStringLiteral("1"));
    ud_Howmany->setValue(1);
    txt_howmany->selectAll();
    ShowModal();
}

void frm_FantAddAnimal::cmd_Addit_Click()
{
    const double howMany = Val(txt_howmany->text());
    const double howBig = Val(txt_Howbig->text());
    // Only 0 is refused. Sizes below an inch and negative numbers are accepted, although the messages say otherwise.
    if (howMany == 0) {
        refuse(QStringLiteral("You must add at least one animal to the tank."), txt_howmany, oops);
    } else if (howBig == 0) {
        refuse(QStringLiteral("Your fish must be at least one inch long to add it to the tank."), txt_Howbig, oops);
    } else if (m_plan->isFull()) {
        refuse(
            QStringLiteral("Your \"Fantasy Tank\" holds %1 entries already, and there is no room for another. Remove "
                           "one of them first.")
                .arg(FantasyPlan::mostRows),
            cmd_Cancel, oops);
    } else {
        AddAnimal(howMany, howBig);
        Unload(*this);
    }
}

void frm_FantAddAnimal::AddAnimal(double howMany, double howBig)
{
    const AddWarnings warnings = m_plan->Add(m_water, howMany, howBig);
    const QString name = ShortName(m_water, m_plan->SelectedAnimal);
    const QString possible = QStringLiteral("Possible compatibility Problem!");
    if (warnings.crowdsOwnKind) {
        Beep();
        MsgBox(ownKindText.arg(name), vbExclamation, possible);
    }
    if (!warnings.maybe.isEmpty()) {
        Beep();
        MsgBox(maybeText.arg(name, warnings.maybe), vbExclamation, possible);
    }
    if (!warnings.incompatible.isEmpty()) {
        Beep();
        Beep();
        MsgBox(incompatibleText.arg(name, warnings.incompatible), vbCritical,
               QStringLiteral("Serious compatibility Warning!"));
    }
}

void frm_FantAddAnimal::cmd_Cancel_Click() { Unload(*this); }

void frm_FantAddAnimal::ud_howmany_Change() { txt_howmany->setText(PlainText(ud_Howmany->Value())); }

void frm_FantAddAnimal::ud_Howbig_Change()
{
    txt_Howbig->setText(PlainText(ud_HowBig->Value()));
    remindOfSize(); // a second time, after that for the changed text
}

void frm_FantAddAnimal::txt_Howbig_Change() { remindOfSize(); }

void frm_FantAddAnimal::remindOfSize()
{
    if (Val(txt_Howbig->text()) > usualSize)
        ShowSizeReminder();
}

void frm_FantAddAnimal::ShowSizeReminder()
{
    Beep();
    Beep();
    MsgBox(reminderText, vbExclamation, QStringLiteral("A Reminder!"));
}
