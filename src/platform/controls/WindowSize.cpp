#include "platform/controls/WindowSize.h"

#include <algorithm>

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QFontMetricsF>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

const QString letters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789");
constexpr double widthOfLetters = 461.3; ///< in DejaVu Sans of 9 points, the widest of the usual fonts

/// What a desktop draws around a window: its title and its edges.
constexpr QMargins desktopsFrame(6, 30, 6, 6);

/// Holds the controls of a dialog for which the screen is too small. They keep their layout, and the control that has
/// the focus is always in view.
class ScrolledContents : public QScrollArea
{
public:
    explicit ScrolledContents(QDialog &dialog) : QScrollArea(&dialog)
    {
        setFrameShape(NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // else its width is forgotten where a text wraps
        setWidget(new QWidget);
        widget()->setLayout(dialog.layout()); // takes the controls along
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
            if (now && widget()->isAncestorOf(now))
                ensureWidgetVisible(now);
        });
    }
    QSize sizeHint() const override { return withBars(widget()->sizeHint()); }
    QSize minimumSizeHint() const override { return withBars(widget()->minimumSizeHint()); }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (object == widget() && event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return QScrollArea::eventFilter(object, event);
    }

private:
    QSize withBars(QSize size) const
    {
        const QSize room = RoomOn(*screen());
        size.rwidth() += verticalScrollBar()->sizeHint().width();
        if (size.width() > room.width())
            size.rheight() += horizontalScrollBar()->sizeHint().height();
        return size.boundedTo(room);
    }
};

/// Keeps a dialog on the screen. It leaves alone what the keeper does to the window by mouse.
class DialogFit : public QObject
{
public:
    explicit DialogFit(QDialog &dialog) : QObject(&dialog), m_dialog(dialog) { dialog.installEventFilter(this); }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->spontaneous() || !m_dialog.isVisible()) // it may be large only until its contents are set
            return false;
        if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show)
            scrollIfTooLarge();
        if (event->type() == QEvent::Resize || (event->type() == QEvent::Show && m_dialog.testAttribute(Qt::WA_Moved)))
            keepOnScreen();
        return false;
    }

private:
    void scrollIfTooLarge()
    {
        const QSize room = RoomOn(*m_dialog.screen());
        const QSize needed = m_dialog.layout() ? m_dialog.layout()->totalMinimumSize() : QSize();
        if (m_scrolls || needed.boundedTo(room) == needed)
            return;
        m_scrolls = true;
        QWidget *const focus = m_dialog.focusWidget();
        auto *contents = new ScrolledContents(m_dialog);
        auto *whole = new QVBoxLayout(&m_dialog);
        whole->setContentsMargins(0, 0, 0, 0);
        whole->addWidget(contents);
        m_dialog.setMinimumSize(0, 0); // the layout of the contents has set it, and perhaps the other one
        m_dialog.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        contents->show();
        if (focus)
            focus->setFocus();
        m_dialog.resize(m_dialog.size().expandedTo(contents->minimumSizeHint()).boundedTo(room));
    }

    void keepOnScreen()
    {
        m_dialog.resize(m_dialog.size().boundedTo(RoomOn(*m_dialog.screen())));
        const QRect room = m_dialog.screen()->availableGeometry().marginsRemoved(desktopsFrame);
        const QRect now = m_dialog.geometry();
        const auto within = [](int place, int first, int last) { return std::max(first, std::min(place, last)); };
        const QPoint place(within(now.left(), room.left(), room.right() - now.width() + 1),
                           within(now.top(), room.top(), room.bottom() - now.height() + 1));
        if (place != now.topLeft())
            m_dialog.move(m_dialog.pos() + place - now.topLeft());
    }

    QDialog &m_dialog;
    bool m_scrolls = false;
};

} // namespace

double FontScale(const QFont &font) { return QFontMetricsF(font).horizontalAdvance(letters) / widthOfLetters; }

QSize RoomOn(const QScreen &screen) { return screen.availableGeometry().marginsRemoved(desktopsFrame).size(); }

void FitToScreen(QWidget &window)
{
    if (window.testAttribute(Qt::WA_Resized))
        window.resize((window.size() * FontScale(window.font())).boundedTo(RoomOn(*window.screen())));
    if (auto *dialog = qobject_cast<QDialog *>(&window))
        new DialogFit(*dialog);
}
