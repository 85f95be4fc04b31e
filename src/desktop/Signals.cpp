// A signal handler may do next to nothing: it writes a byte into a socket, and the event loop reads
// at the other end.
#include "desktop/Signals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace tumbledeep {

namespace {

std::array<int, 2> ends{-1, -1};

void Tell(int /*signal*/) {
    const char byte = 1;
    [[maybe_unused]] const auto written = write(ends[0], &byte, sizeof byte);
}

} // namespace

void QuitOnSignals(std::function<void()> quit) {
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return;
    auto* const notifier =
        new QSocketNotifier(ends[1], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, notifier,
                     [notifier, quit = std::move(quit)] {
                         notifier->setEnabled(false);
                         quit();
                     });
    struct sigaction action = {};
    action.sa_handler = Tell;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) sigaction(signal, &action, nullptr);
}

} // namespace tumbledeep
