// Processes by POSIX and, for those whose parent has ended, by Linux: they become children of this
// one. All are in a process group of their own, by which signals reach them.
#include "map/play/GameRun.h"

#include <cstring>
#include <spawn.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tumbledeep {

namespace {

pid_t Start(std::vector<std::string>& words, const HeldSignals& signals) {
    std::vector<char*> argv;
    argv.reserve(words.size() + 1);
    for (std::string& word : words) argv.push_back(word.data());
    argv.push_back(nullptr);

    posix_spawnattr_t how{};
    posix_spawnattr_init(&how);
    posix_spawnattr_setpgroup(&how, 0);
    posix_spawnattr_setsigmask(&how, &signals.Before);
    posix_spawnattr_setflags(&how, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK);
    pid_t process = 0;
    const int error =
        posix_spawn(&process, words.front().c_str(), nullptr, &how, argv.data(), environ);
    posix_spawnattr_destroy(&how);
    if (error == 0) return process;
    throw std::runtime_error(words.front() + ": the game can't be started: " + strerror(error));
}

/// Takes leave of the children that have ended. False when none is left.
bool HasChildren(int& lastStatus) {
    int status = 0;
    pid_t ended = 0;
    while ((ended = waitpid(-1, &status, WNOHANG)) > 0) lastStatus = status;
    return ended == 0;
}

/// As a shell tells it.
int ExitStatus(int status) {
    constexpr int bySignal = 128;
    return WIFEXITED(status) ? WEXITSTATUS(status) : bySignal + WTERMSIG(status);
}

} // namespace

HeldSignals::HeldSignals() {
    sigemptyset(&Awaited);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGCHLD}) sigaddset(&Awaited, signal);
    sigprocmask(SIG_BLOCK, &Awaited, &Before);
    // If it was ignored, nobody would tell of children.
    std::signal(SIGCHLD, SIG_DFL);
}

int RunGameToItsEnd(std::vector<std::string> words, const HeldSignals& signals,
                    const std::function<void()>& meanwhile) {
    constexpr timespec pause{0, 250'000'000};
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    const pid_t group = Start(words, signals);
    int status = 0;
    while (HasChildren(status)) {
        const int signal = sigtimedwait(&signals.Awaited, nullptr, &pause);
        if (signal > 0 && signal != SIGCHLD) kill(-group, signal);
        meanwhile();
    }
    return ExitStatus(status);
}

} // namespace tumbledeep
