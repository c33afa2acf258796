// A second start on a keeper's folder asks the program that has the folder open to come to the front, through a socket
// in the user's run-time folder that is named after the keeper's folder. Where there is no run-time folder, nobody is
// asked.
#pragma once

#include <functional>
#include <memory>

#include <QByteArray>
#include <QSocketNotifier>

class SecondStart
{
public:
    /// Listens; `folder` is the descriptor of the keeper's folder, which this program has locked.
    SecondStart(int folder, std::function<void()> asked);
    ~SecondStart();
    SecondStart(const SecondStart &) = delete;
    SecondStart &operator=(const SecondStart &) = delete;

    /// Asks the program that has locked the folder, and does not wait for it.
    static void ask(int folder);

private:
    void answer();

    std::function<void()> m_asked;
    QByteArray m_path; ///< empty if nobody can ask
    int m_socket = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
