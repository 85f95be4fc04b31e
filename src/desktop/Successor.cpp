// How two processes know of each other, by POSIX: through a pipe whose writing end the successor
// inherits and closes when it has painted.
#include "desktop/Successor.h"

#include "desktop/Signals.h"

#include <array>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <unistd.h>

namespace tumbledeep {

Successor::~Successor() {
    if (shown >= 0) close(shown);
}

bool Successor::Start(const std::string& program, std::vector<std::string> words) {
    std::array<int, 2> ends{-1, -1};
    if (pipe(ends.data()) != 0) return false;
    fcntl(ends[0], F_SETFD, FD_CLOEXEC);
    words.insert(words.begin(), {program, "--shown-pipe", std::to_string(ends[1])});
    std::vector<char*> argv;
    argv.reserve(words.size() + 1);
    for (std::string& word : words) argv.push_back(word.data());
    argv.push_back(nullptr);

    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    const sigset_t set = EndingSignals();
    posix_spawnattr_setsigmask(&attributes, &set);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    pid_t process = 0;
    const bool started =
        posix_spawn(&process, program.c_str(), nullptr, &attributes, argv.data(), environ) == 0;
    posix_spawnattr_destroy(&attributes);
    close(ends[1]);
    if (shown >= 0) close(shown);
    shown = ends[0];
    return started;
}

void Successor::AwaitShown(std::chrono::milliseconds bound) {
    if (shown < 0) return;
    pollfd end{shown, POLLIN, 0};
    poll(&end, 1, static_cast<int>(bound.count()));
}

void Successor::TellShown(int pipe) { close(pipe); }

} // namespace tumbledeep
