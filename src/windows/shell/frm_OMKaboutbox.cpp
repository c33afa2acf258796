#include "windows/shell/frm_OMKaboutbox.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QSvgRenderer>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/controls/Guarded.h"
#include "windows/shell/frm_OMKCredits.h"

namespace {

/// Draws the picture sharp at any scale. The file is read at the first painting, not at the start of the program.
class Picture : public QWidget
{
public:
    Picture()
    {
        setAccessibleName(QStringLiteral("A planted aquarium with fish"));
        setFixedSize(480, 270);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        if (!m_drawing.isValid())
            m_drawing.load(QStringLiteral(":/icons/about.svg"));
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        m_drawing.render(&painter, QRectF(rect()));
    }

private:
    QSvgRenderer m_drawing;
};

QLabel *line(const char *text, double size, bool bold)
{
    auto *label = new QLabel(QString::fromUtf8(text));
    QFont letters = label->font();
    letters.setPointSizeF(letters.pointSizeF() * size);
    letters.setBold(bold);
    label->setFont(letters);
    return label;
}

} // namespace

frm_OMKaboutbox::frm_OMKaboutbox(const FormContext &context) : DialogForm(context), tim_splash(new QTimer(this))
{
    setWindowTitle(QStringLiteral("About Ostrelmark"));
    context.parent->installEventFilter(this);
    tim_splash->setObjectName(QStringLiteral("tim_splash"));
    tim_splash->setSingleShot(true);
    on(tim_splash, &QTimer::timeout, this, &frm_OMKaboutbox::tim_splash_Timer);

    auto *texts = new QVBoxLayout;
    texts->setContentsMargins(24, 16, 24, 20);
    texts->setSpacing(4);
    texts->addWidget(line("Ostrelmark 98", 2.0, true));
    texts->addWidget(line("Version 2.0", 1.15, false));
    texts->addWidget(line("Revision " OMK_REVISION, 1.0, false));
    texts->addSpacing(10);
    QLabel *licence =
        line("Free software under the GNU General Public License, version 3 or later. It comes without any warranty.",
             0.9, false);
    licence->setWordWrap(true);
    texts->addWidget(licence);

    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->setSizeConstraint(QLayout::SetFixedSize);
    all->addWidget(new Picture);
    all->addLayout(texts);
}

void frm_OMKaboutbox::ShowBox()
{
    setWindowFlag(Qt::FramelessWindowHint, g.gSplashMode);
    if (g.gSplashMode)
        tim_splash->start(g.splashMilliseconds);
    ShowModal();
}

/// The splash screen follows the main window, which the desktop moves to its place only after it is shown.
bool frm_OMKaboutbox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Move && g.gSplashMode)
        move(parentWidget()->geometry().center() - rect().center());
    return DialogForm::eventFilter(watched, event);
}

void frm_OMKaboutbox::Cancel() { Form_Click(); }

void frm_OMKaboutbox::Form_Click()
{
    if (!g.gSplashMode)
        Unload(*this);
}

void frm_OMKaboutbox::tim_splash_Timer()
{
    if (g.gSplashMode)
        Unload(*this);
}

void frm_OMKaboutbox::mouseReleaseEvent(QMouseEvent *event)
{
    // Closes on the release, so that no part of the click reaches the window below.
    if (rect().contains(event->position().toPoint()))
        Form_Click();
}

void frm_OMKaboutbox::keyPressEvent(QKeyEvent *event)
{
    constexpr auto chord = Qt::ControlModifier | Qt::ShiftModifier;
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Form_Click();
    else if (event->key() == Qt::Key_T && (event->modifiers() & chord) == chord && !g.gSplashMode)
        guarded([] { Form<frm_OMKCredits>().ShowCredits(); })();
    else
        DialogForm::keyPressEvent(event);
}
