#include "platform/desktop/Application.h"

#include <optional>

#include <QLineEdit>
#include <QLocale>

#include "platform/controls/Guarded.h"
#include "platform/controls/Icons.h"
#include "platform/controls/OneLine.h"
#include "platform/controls/OptionFocus.h"
#include "platform/controls/Style.h"

Application::Application(int &argc, char **argv) : QApplication(argc, argv)
{
    setStyle(new Style);
    setApplicationName(QStringLiteral("ostrelmark"));
    setDesktopFileName(QStringLiteral("ostrelmark"));
    Q_INIT_RESOURCE(icons); // needed because they are in a static library
    setWindowIcon(Icon("ostrelmark"));
    // The windows speak English, and numbers use "." and ",", whatever the system's locale.
    QLocale::setDefault(QLocale::c());
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    if (event->type() == QEvent::Polish) // every widget gets this event before it is shown
        if (auto *box = qobject_cast<QLineEdit *>(receiver))
            KeepToOneLine(*box);
    std::optional<RuntimeFailure> failure;
    try {
        return PassesFocusToSetOption(*receiver, *event) || QApplication::notify(receiver, event);
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
