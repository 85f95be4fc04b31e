// A signal handler may do next to nothing: it writes a byte into a socket, and the event loop reads
// at the other end. The alarm is for a loop that does not come to that.
#include "desktop/Signals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace tumbledeep {

namespace {

constexpr std::array EndingNumbers{SIGTERM, SIGINT, SIGHUP};
/// In seconds: how long the event loop has to end the process in good order.
constexpr unsigned Patience = 1;

volatile std::sig_atomic_t wakeUp = -1; ///< where the event loop is told; none yet: -1

void EndAtOnce(int /*signal*/) { _exit(0); }

void Tell(int signal) {
    if (wakeUp < 0) EndAtOnce(signal);
    const int before = errno;
    const char byte = 1;
    [[maybe_unused]] const auto written = write(wakeUp, &byte, sizeof byte);
    alarm(Patience);
    errno = before;
}

void Handle(int signal, void (*handler)(int)) {
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
}

} // namespace

void EndOnSignals() {
    Handle(SIGALRM, EndAtOnce);
    for (const int signal : EndingNumbers) Handle(signal, Tell);
    const sigset_t set = EndingSignals();
    sigprocmask(SIG_UNBLOCK, &set, nullptr);
}

void QuitOnSignals(std::function<void()> quit) {
    std::array<int, 2> ends{-1, -1};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return;
    auto* const notifier =
        new QSocketNotifier(ends[1], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, notifier,
                     [notifier, quit = std::move(quit)] {
                         notifier->setEnabled(false);
                         quit();
                     });
    wakeUp = ends[0];
}

sigset_t EndingSignals() {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : EndingNumbers) sigaddset(&set, signal);
    return set;
}

} // namespace tumbledeep
