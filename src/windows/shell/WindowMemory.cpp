#include "windows/shell/WindowMemory.h"

#include <algorithm>
#include <map>
#include <optional>

#include <QEvent>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QRegularExpression>
#include <QScreen>

#include "platform/controls/ListView.h"
#include "platform/controls/WindowSize.h"
#include "platform/core/Doors.h"
#include "platform/core/RuntimeFailure.h"
#include "platform/core/SettingsStore.h"
#include "windows/shell/Arrange.h"
#include "windows/shell/ChildForm.h"

namespace {

/// Windows whose size depends on their content.
const QStringList ofToldSize = {
    QStringLiteral("frm_DiagnosisQA"),     QStringLiteral("frm_Caltool"), QStringLiteral("frm_OMKaboutbox"),
    QStringLiteral("frm_OMKCredits"),      QStringLiteral("frm_OMKtod"),  QStringLiteral("frm_OMKupgrade"),
    QStringLiteral("frm_SchedNewAddEdit"),
};

/// How much of a window's upper edge must be visible, in pixels, so that it can be seen and dragged.
constexpr QSize handle(80, 24);

struct Geometry
{
    QSize size;
    std::optional<QPoint> place;
    bool maximized = false;
};

/// Returns "940x560", or for the main window "1100x740+40+-8" or "1100x740+40+0 maximized".
QString textOf(const Geometry &geometry)
{
    QString text = QStringLiteral("%1x%2").arg(geometry.size.width()).arg(geometry.size.height());
    if (geometry.place)
        text += QStringLiteral("+%1+%2").arg(geometry.place->x()).arg(geometry.place->y());
    return geometry.maximized ? QString(text + u" maximized") : text;
}

std::optional<Geometry> geometryIn(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^([1-9][0-9]{0,4})x([1-9][0-9]{0,4})(?:\\+(-?[0-9]{1,5})\\+(-?[0-9]{1,5}))?( maximized)?$"));
    const auto match = form.match(text);
    if (!match.hasMatch())
        return {};
    Geometry geometry{{match.captured(1).toInt(), match.captured(2).toInt()}, {}, match.hasCaptured(5)};
    if (match.hasCaptured(3))
        geometry.place = QPoint(match.captured(3).toInt(), match.captured(4).toInt());
    return geometry;
}

/// The screen on which a window of this geometry can be seen and dragged; null if there is none.
const QScreen *screenOf(const Geometry &geometry)
{
    const QRect edge(geometry.place.value_or(QPoint()), QSize(geometry.size.width(), handle.height()));
    for (const QScreen *screen : QGuiApplication::screens()) {
        const QRect seen = screen->availableGeometry() & edge;
        if (seen.width() >= std::min(handle.width(), edge.width()) && seen.height() == edge.height())
            return screen;
    }
    return nullptr;
}

class WindowMemory : public QObject
{
public:
    explicit WindowMemory(QWidget &window) : QObject(&window), m_window(window)
    {
        restore();
        window.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (!event->spontaneous() && event->type() == QEvent::Show)
            m_shown = state();
        else if (!event->spontaneous() && event->type() == QEvent::Hide)
            store();
        return false;
    }

private:
    using State = std::map<QString, QString>; ///< keyed as in the settings

    bool isMain() const { return qobject_cast<QMainWindow *>(&m_window) != nullptr; }

    /// Returns nothing for a child that is maximized, minimized, shaded or tiled, because it has no size of its own
    /// then.
    std::optional<Geometry> geometry() const
    {
        if (const auto *frame = qobject_cast<QMdiSubWindow *>(m_window.parentWidget())) {
            if (frame->isMaximized() || frame->isMinimized() || frame->isShaded() || WasTiled(*frame))
                return {};
            return Geometry{frame->size() - childFrame, {}};
        }
        if (!isMain())
            return Geometry{m_window.size(), {}};
        const QRect normal = m_window.normalGeometry();
        return m_window.isMaximized() && normal.isValid() ? Geometry{normal.size(), normal.topLeft(), true}
                                                          : Geometry{m_window.size(), m_window.pos()};
    }

    /// None for the main window, because the lists in it belong to its children.
    QList<ListView *> lists() const { return isMain() ? QList<ListView *>() : m_window.findChildren<ListView *>(); }
    QString keyOf(const ListView &list) const { return m_window.objectName() + u'.' + list.objectName(); }

    State state() const
    {
        State state;
        if (const auto present = geometry())
            state[m_window.objectName()] = textOf(*present);
        for (const ListView *list : lists())
            state[keyOf(*list)] = list->columnLayout();
        return state;
    }

    static QString remembered(const QString &key)
    {
        return Doors::current().settings().value(key, {}, SettingsStore::Section::Windows);
    }

    void restore()
    {
        if (const auto geometry = geometryIn(remembered(m_window.objectName())))
            restore(*geometry);
        for (ListView *list : lists())
            list->setColumnLayout(remembered(keyOf(*list)));
    }

    void restore(const Geometry &geometry)
    {
        const QScreen *screen = geometry.place ? screenOf(geometry) : nullptr;
        const QScreen *roomy = screen ? screen : QGuiApplication::primaryScreen();
        m_window.resize(geometry.size.boundedTo(RoomOn(*roomy)));
        if (!isMain())
            return;
        if (screen)
            m_window.move(*geometry.place);
        if (geometry.maximized)
            m_window.setWindowState(Qt::WindowMaximized);
    }

    void store()
    {
        try {
            for (const auto &[key, value] : state())
                if (const auto before = m_shown.find(key); before == m_shown.end() || before->second != value)
                    Doors::current().settings().setValue(key, value, SettingsStore::Section::Windows);
        } catch (const RuntimeFailure &) {
            return; // not reported, because only a window's size is lost; the next change is stored again
        }
    }

    QWidget &m_window;
    State m_shown; ///< the state when the window was shown
};

} // namespace

void RememberWindow(QWidget &window)
{
    FitToScreen(window);
    if (!ofToldSize.contains(window.objectName()))
        new WindowMemory(window);
}
