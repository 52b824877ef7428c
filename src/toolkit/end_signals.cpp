// SPDX-License-Identifier: MIT
#include "toolkit/end_signals.h"

#include <cstdlib>

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <array>
#include <cerrno>

#include <fcntl.h>
#include <unistd.h>
#endif

namespace vanzer {

#ifdef Q_OS_UNIX

namespace {

constexpr std::array ends{SIGTERM, SIGINT, SIGHUP};

void ignoreOrDie(int signal) {
    std::signal(signal, signal == SIGHUP ? SIG_IGN : SIG_DFL);
}

} // namespace

void SegnaliDiFine::note(int signal) {
    const int kept = errno;
    first_ = signal;
    for (const int end : ends)
        ignoreOrDie(end);
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(writingEnd_, &byte, 1);
    errno = kept;
}

SegnaliDiFine::SegnaliDiFine() {
    if (::pipe2(pipe_, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    first_ = 0;
    writingEnd_ = pipe_[1];
    for (const int end : ends) {
        struct sigaction before {};
        ::sigaction(end, nullptr, &before);
        if (before.sa_handler != SIG_IGN)
            std::signal(end, note);
    }
}

SegnaliDiFine::~SegnaliDiFine() {
    for (const int end : ends) {
        struct sigaction now {};
        ::sigaction(end, nullptr, &now);
        if (now.sa_handler == note)
            std::signal(end, SIG_DFL);
    }
    ::close(pipe_[0]);
    ::close(pipe_[1]);
}

void SegnaliDiFine::die(int signal) {
    std::signal(signal, SIG_DFL);
    std::raise(signal);
    std::abort();
}

#else

SegnaliDiFine::SegnaliDiFine() = default;
SegnaliDiFine::~SegnaliDiFine() = default;

void SegnaliDiFine::die(int /*signal*/) {
    std::abort();
}

#endif

} // namespace vanzer
