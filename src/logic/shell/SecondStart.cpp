#include "logic/shell/SecondStart.h"

#include <algorithm>
#include <array>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

/// A desktop gives this to a program that it starts. Whoever has it may come to the front.
constexpr char activationToken[] = "XDG_ACTIVATION_TOKEN";

/// The folder may be reached under several names, so its socket is named by its numbers.
QByteArray pathFor(int folder)
{
    struct stat status = {};
    const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
    if (runtime.isEmpty() || ::fstat(folder, &status) != 0)
        return {};
    const QByteArray path = runtime + "/ostrelmark-" + QByteArray::number(quint64(status.st_dev), 16) + '-' +
                            QByteArray::number(quint64(status.st_ino), 16);
    return size_t(path.size()) < sizeof(sockaddr_un::sun_path) ? path : QByteArray();
}

sockaddr_un addressOf(const QByteArray &path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::ranges::copy(path, address.sun_path);
    return address;
}

int makeSocket() { return ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0); }

} // namespace

SecondStart::SecondStart(int folder, std::function<void()> asked) : m_asked(std::move(asked)), m_path(pathFor(folder))
{
    if (m_path.isEmpty())
        return;
    m_socket = makeSocket();
    const sockaddr_un address = addressOf(m_path);
    ::unlink(m_path.constData()); // a killed program leaves one
    if (::bind(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_socket, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { answer(); });
}

SecondStart::~SecondStart()
{
    if (m_notifier)
        ::unlink(m_path.constData());
    m_notifier.reset();
    if (m_socket >= 0)
        ::close(m_socket);
}

void SecondStart::answer()
{
    std::array<char, 256> token{};
    const ssize_t size = ::recv(m_socket, token.data(), token.size(), 0);
    if (size < 0)
        return;
    if (size > 0)
        qputenv(activationToken, QByteArray(token.data(), size)); // the toolkit takes it from there
    m_asked();
}

void SecondStart::ask(int folder)
{
    const QByteArray path = pathFor(folder), token = qgetenv(activationToken);
    if (path.isEmpty())
        return;
    const int socket = makeSocket();
    const sockaddr_un address = addressOf(path);
    ::sendto(socket, token.constData(), size_t(token.size()), 0, reinterpret_cast<const sockaddr *>(&address),
             sizeof address);
    ::close(socket);
}
