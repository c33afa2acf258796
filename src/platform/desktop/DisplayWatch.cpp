#include "platform/desktop/DisplayWatch.h"

#include <cstdio>
#include <cstdlib>
#include <utility>
#include <vector>

#include <QString>

namespace {

struct Message
{
    QtMsgType type;
    QByteArray category;
    QString text;
};

QtMessageHandler former = nullptr;
std::vector<Message> kept;

void take(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtFatalMsg) {
        std::fputs("ostrelmark: there is no display to show windows on. Start it in a desktop session.\n", stderr);
        std::_Exit(1);
    }
    if (type == QtDebugMsg) // somebody asked for it
        former(type, context, text);
    else
        kept.push_back({type, context.category, text});
}

} // namespace

DisplayWatch::DisplayWatch() { former = qInstallMessageHandler(take); }

DisplayWatch::~DisplayWatch()
{
    qInstallMessageHandler(former);
    for (const Message &message : std::exchange(kept, {}))
        former(message.type, QMessageLogContext(nullptr, 0, nullptr, message.category.constData()), message.text);
}
