// SPDX-License-Identifier: MIT
// Turns the signals that end a program (SIGTERM, SIGINT, SIGHUP) into a byte in a pipe. The program can then finish its
// work and end in order.
#pragma once

#include <csignal>

namespace vanzer {

class SegnaliDiFine {
  public:
    /// Starts watching. There may be one instance at a time. A signal that was ignored when the program started stays
    /// ignored.
    SegnaliDiFine();
    ~SegnaliDiFine();
    SegnaliDiFine(const SegnaliDiFine&) = delete;
    SegnaliDiFine& operator=(const SegnaliDiFine&) = delete;

    /// A file descriptor that becomes readable when a signal arrives; -1 on platforms without these signals.
    [[nodiscard]] int descrittore() const { return pipe_[0]; }
    /// The first signal that arrived, 0 for none. A second signal ends the program at once, except SIGHUP: a closing
    /// terminal sends that twice.
    [[nodiscard]] static int arrived() { return first_; }
    /// Ends the program with that signal's default action.
    [[noreturn]] static void die(int signal);

  private:
    static void note(int signal);

    static inline volatile std::sig_atomic_t first_ = 0;
    static inline volatile std::sig_atomic_t writingEnd_ = -1;
    int pipe_[2] = {-1, -1};
};

} // namespace vanzer
