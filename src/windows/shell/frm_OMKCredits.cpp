#include "windows/shell/frm_OMKCredits.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/controls/Guarded.h"

namespace {

const QString thanks =
    QStringLiteral("<p>To every keeper who gets up before work to look whether they are all still there.</p>"
                   "<p>To those who shook the little bottles, counted the drops and held the glass against the window, "
                   "week after week, and "
                   "wrote the number down even when it was not the one they had hoped for.</p>"
                   "<p>To those who asked, those who doubted, and those who sent back a page with a mistake ringed in "
                   "red. The logbook is the "
                   "better for each of you.</p>"
                   "<p>To the makers of the tools we stand on: <b>Qt</b> for the windows, <b>SQLite</b> for a memory "
                   "that does not forget, "
                   "<b>QCustomPlot</b> for the curves. They gave their work away; so do we.</p>"
                   "<p>And to the fish, who never asked for any of this and made it worth while.</p>");

} // namespace

frm_OMKCredits::frm_OMKCredits(const FormContext &context) : DialogForm(context)
{
    setWindowTitle(QStringLiteral("Thank You"));
    auto *heading = new QLabel(QStringLiteral("Thank you"));
    QFont letters = heading->font();
    letters.setPointSizeF(letters.pointSizeF() * 1.6);
    letters.setBold(true);
    heading->setFont(letters);

    auto *text = new QLabel(thanks);
    text->setObjectName(QStringLiteral("lbl_Thanks"));
    text->setWordWrap(true);
    text->setFixedWidth(fontMetrics().averageCharWidth() * 68); // a comfortable line to read

    auto *cmd_OK = new QPushButton(QStringLiteral("OK"));
    cmd_OK->setObjectName(QStringLiteral("cmd_OK"));
    cmd_OK->setDefault(true);
    on(cmd_OK, &QPushButton::clicked, this, &frm_OMKCredits::cmd_OK_Click);

    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(28, 22, 28, 20);
    all->setSpacing(10);
    all->setSizeConstraint(QLayout::SetFixedSize);
    all->addWidget(heading);
    all->addWidget(text);
    all->addSpacing(6);
    all->addWidget(cmd_OK, 0, Qt::AlignRight);
}

void frm_OMKCredits::cmd_OK_Click() { Unload(*this); }
