// main() of the tests that use windows. They run with the program's own application object, and a warning from Qt fails
// the test that caused it.
#include <cstdio>

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/desktop/Application.h"

namespace {

void takeMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    // The offscreen plugin warns at every dialog: "This plugin does not support raise()".
    if (text.startsWith(u"This plugin does not support"))
        return;
    if (type == QtWarningMsg || type == QtCriticalMsg)
        ADD_FAILURE() << "Qt: " << text.toStdString();
    else
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

int main(int argc, char **argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    // No display and none of the user's settings or run-time folders are used, however the tests are started or listed.
    const QTemporaryDir folder;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, folder.path().toLocal8Bit());
    qInstallMessageHandler(takeMessage);
    Application application(argc, argv);
    return RUN_ALL_TESTS();
}
