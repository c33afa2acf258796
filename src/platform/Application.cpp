#include "platform/Application.h"

#include <optional>

#include <QLocale>
#include <QProxyStyle>

#include "platform/Guarded.h"
#include "platform/Icons.h"

namespace {

/// The arrows of bars that are too narrow are ours: the style's own are small bitmaps, which have every menu bar load
/// the readers of all image formats before it is first painted.
class Style : public QProxyStyle
{
public:
    QIcon standardIcon(StandardPixmap which, const QStyleOption *option, const QWidget *widget) const override
    {
        const bool more = which == SP_ToolBarHorizontalExtensionButton || which == SP_ToolBarVerticalExtensionButton;
        return more ? Icon("more") : QProxyStyle::standardIcon(which, option, widget);
    }
};

} // namespace

Application::Application(int &argc, char **argv) : QApplication(argc, argv)
{
    setStyle(new Style);
    setApplicationName(QStringLiteral("ostrelmark"));
    setDesktopFileName(QStringLiteral("ostrelmark"));
    Q_INIT_RESOURCE(icons); // of a static library
    // The windows speak English, and numbers use "." and ",", whatever the system's locale.
    QLocale::setDefault(QLocale::c());
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    std::optional<RuntimeFailure> failure;
    try {
        return QApplication::notify(receiver, event);
    } catch (const RuntimeFailure &e) {
        failure = e;
    } catch (const std::bad_alloc &) {
        failure = RuntimeFailure(Failure::OutOfMemory);
    } catch (const std::exception &e) {
        failure = RuntimeFailure(Failure::TypeMismatch, QString::fromUtf8(e.what()));
    }
    showFailure(*failure);
    return true;
}
