// The signals by which the system or the user ends a program (SIGTERM, SIGINT, SIGHUP), turned into a byte in a pipe:
// the program ends in its own time, with nothing half done.
#pragma once

#include <csignal>

namespace vanzer {

class SegnaliDiFine {
  public:
    /// Watches from here on; one at a time. A signal that the program was started without stays ignored.
    SegnaliDiFine();
    ~SegnaliDiFine();
    SegnaliDiFine(const SegnaliDiFine&) = delete;
    SegnaliDiFine& operator=(const SegnaliDiFine&) = delete;

    /// A file descriptor that can be read once a signal has come; -1 where there are no such signals.
    [[nodiscard]] int descrittore() const { return pipe_[0]; }
    /// The first signal that has come, 0 for none. A second one ends the program at once, but for SIGHUP, which a
    /// terminal that goes sends twice.
    [[nodiscard]] static int arrived() { return first_; }
    /// Ends the program by that signal.
    [[noreturn]] static void die(int signal);

  private:
    static void note(int signal);

    static inline volatile std::sig_atomic_t first_ = 0;
    static inline volatile std::sig_atomic_t writingEnd_ = -1;
    int pipe_[2] = {-1, -1};
};

} // namespace vanzer
