#include "windows/advisers/frm_Compat.h"

#include <QAbstractItemView>
#include <QSignalBlocker>

#include "logic/advisers/Compatibility.h"
#include "platform/controls/Guarded.h"
#include "platform/controls/Icons.h"
#include "platform/controls/ListKeys.h"
#include "platform/core/Doors.h"
#include "windows/advisers/SizeColumn.h"

namespace {

const QString reminderText = QStringLiteral(
    "REMINDER: This program is only a tool to allow you to experiment with a few POSSIBLE stocking and animal "
    "combinations. No program could ever guarantee complete compatibility. Numerous factors such as an animal's size, "
    "age, condition, and personality will have great effects on compatibility. For this reason, remember the rule: "
    "\"Never take ANY fish advice as gospel, EVEN FROM THIS PROGRAM!\" ALWAYS consult with an EXPERIENCED DEALER or "
    "veterinarian before putting ANY animals together, compatible or not!");

const QString agressiveText = QStringLiteral(
    "Note: The animal you've selected is generally considered \"Agressive\" or \"Semi-Agressive\".  Compatability with "
    "any of the other animals listed here will vary considerably based on the animal's size and age, tank size, "
    "stocking ratio and other factors. Placing it with any other fish should be done with GREAT CAUTION. \r"
    "  ALWAYS consult with an EXPERIENCED DEALER or veterinarian before putting ANY animals together, compatible or "
    "not!");

} // namespace

frm_Compat::frm_Compat(const FormContext &context) : ChildForm(context)
{
    setupUi(this);
    setWindowIcon(Icon("compatability"));
    const std::pair<QLabel *, const char *> pictures[] = {
        {pic_compatable, "fish-friends"}, {pic_maybe, "fish-wary"}, {pic_incompatable, "fish-foes"}};
    for (const auto &[label, picture] : pictures)
        label->setPixmap(Icon(picture).pixmap(label->minimumSize(), devicePixelRatio()));
    lst_Select->setItemDelegate(new SizeColumn(this));
    for (QListWidget *list : {lst_compatable, lst_maybe, lst_incompatable}) {
        list->setItemDelegate(new SizeColumn(list));
        MoveByKeys(*list);
    }
    connect(but_salt, &QRadioButton::toggled, this, guarded([this](bool chosen) {
                if (chosen)
                    but_salt_click();
            }));
    connect(but_fresh, &QRadioButton::toggled, this, guarded([this](bool chosen) {
                if (chosen)
                    but_fresh_click();
            }));
    on(lst_Select, &QComboBox::currentIndexChanged, this, &frm_Compat::lst_select_Click);
    beginWith(lst_Select);
}

void frm_Compat::Form_Load()
{
    (g.gDefaultWaterType == u"SALT" ? but_salt : but_fresh)->setChecked(true);
    main.ShowChild(*this);
    Beep();
    MsgBox(reminderText, vbExclamation, QStringLiteral("Please NOTE!"));
}

void frm_Compat::but_salt_click()
{
    clearLists();
    offer(SelectionLines(WaterKind::Salt));
}

void frm_Compat::but_fresh_click()
{
    clearLists();
    offer(SelectionLines(WaterKind::Fresh));
}

void frm_Compat::clearLists()
{
    for (QListWidget *list : {lst_compatable, lst_maybe, lst_incompatable})
        list->clear();
}

void frm_Compat::offer(const QStringList &animals)
{
    const QSignalBlocker quiet(lst_Select); // nothing is selected in a new list
    lst_Select->clear();
    lst_Select->addItems(animals);
    lst_Select->setCurrentIndex(-1);
}

void frm_Compat::lst_select_Click()
{
    clearLists();
    if (lst_Select->currentIndex() < 0)
        return;
    const CompatLists lists =
        SortAnimals(but_salt->isChecked() ? WaterKind::Salt : WaterKind::Fresh, lst_Select->currentIndex() + 1);
    lst_compatable->addItems(lists.compatible);
    lst_maybe->addItems(lists.maybe);
    lst_incompatable->addItems(lists.incompatible);
    if (lst_compatable->count() > 0)
        return;
    Beep();
    MsgBox(agressiveText, vbExclamation, QStringLiteral("Agressive Animal Reminder"));
}
