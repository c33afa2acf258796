#include "windows/shell/frm_OMKtod.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "logic/shell/Tips.h"
#include "platform/controls/Guarded.h"
#include "platform/controls/Icons.h"

namespace {

// "Next Tip" draws a number from 0 to 81, fewer than there are tips: the last ones are seen only when the window opens.
constexpr int nextDraws = 82;
constexpr int pictureSize = 72;

/// A random whole number from 0 to limit - 1.
int draw(int limit) { return int(Doors::current().random() * limit); }

} // namespace

frm_OMKtod::frm_OMKtod(const FormContext &context) : DialogForm(context)
{
    setWindowTitle(QStringLiteral("Ostrelmark - Tip of the Day"));
    makeControls();
    arrange();
    on(cmd_nexttip, &QPushButton::clicked, this, &frm_OMKtod::cmd_nexttip_Click);
    on(cmd_ok, &QPushButton::clicked, this, &frm_OMKtod::cmd_ok_Click);
    on(chk_ShowTipsAtStartup, &QCheckBox::toggled, this, &frm_OMKtod::chk_ShowTipsAtStartup_Click);
    cmd_ok->setFocus();
}

void frm_OMKtod::makeControls()
{
    txt_tod = new QPlainTextEdit;
    txt_tod->setObjectName(QStringLiteral("txt_tod"));
    txt_tod->setAccessibleName(QStringLiteral("Tip"));
    txt_tod->setReadOnly(true);
    txt_tod->setTabChangesFocus(true);
    QFont letters = txt_tod->font();
    letters.setPointSizeF(letters.pointSizeF() * 1.15);
    txt_tod->setFont(letters);
    chk_ShowTipsAtStartup = new QCheckBox(QStringLiteral("Show Tips at Startup"));
    chk_ShowTipsAtStartup->setObjectName(QStringLiteral("chk_ShowTipsAtStartup"));
    cmd_nexttip = new QPushButton(QStringLiteral("&Next Tip"));
    cmd_nexttip->setObjectName(QStringLiteral("cmd_nexttip"));
    cmd_nexttip->setAutoDefault(false);
    cmd_ok = new QPushButton(QStringLiteral("OK"));
    cmd_ok->setObjectName(QStringLiteral("cmd_ok"));
    cmd_ok->setDefault(true);
}

void frm_OMKtod::arrange()
{
    auto *picture = new QLabel;
    picture->setObjectName(QStringLiteral("Image1"));
    picture->setPixmap(Icon("tip").pixmap(QSize(pictureSize, pictureSize), devicePixelRatioF()));
    auto *heading = new QLabel(QStringLiteral("Did you know..."));
    heading->setObjectName(QStringLiteral("Label1"));
    heading->setBuddy(txt_tod);
    QFont letters = heading->font();
    letters.setPointSizeF(letters.pointSizeF() * 1.5);
    letters.setBold(true);
    heading->setFont(letters);

    auto *head = new QHBoxLayout;
    head->addWidget(picture);
    head->addSpacing(8);
    head->addWidget(heading, 1);
    auto *foot = new QHBoxLayout;
    foot->addWidget(chk_ShowTipsAtStartup);
    foot->addStretch(1);
    foot->addWidget(cmd_nexttip);
    foot->addWidget(cmd_ok);
    auto *column = new QVBoxLayout(this);
    column->addLayout(head);
    column->addWidget(txt_tod, 1);
    column->addLayout(foot);
    resize(460, 300);
}

void frm_OMKtod::Form_Load()
{
    chk_ShowTipsAtStartup->setChecked(g.gShowTips);
    g.gTipNumber = draw(int(tips().size())) + 1;
    showTip();
}

void frm_OMKtod::showTip() { txt_tod->setPlainText(QString::fromUtf8(tips()[size_t(g.gTipNumber) - 1])); }

void frm_OMKtod::cmd_nexttip_Click()
{
    const int before = g.gTipNumber;
    do
        g.gTipNumber = draw(nextDraws);
    while (g.gTipNumber == before);
    if (g.gTipNumber > nextDraws || g.gTipNumber < 1)
        g.gTipNumber = 1; // tip 1 therefore comes twice as often as the others
    showTip();
}

void frm_OMKtod::chk_ShowTipsAtStartup_Click()
{
    if (g.gShowTips == chk_ShowTipsAtStartup->isChecked())
        return; // not a change by the keeper: settings that cannot be written must not stop the start
    g.gShowTips = chk_ShowTipsAtStartup->isChecked();
    SaveSetting(QStringLiteral("Show_Tips"), g.gShowTips ? QStringLiteral("Yes") : QStringLiteral("No"));
}
