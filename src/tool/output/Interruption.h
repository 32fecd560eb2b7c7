#pragma once

#include <array>
#include <csignal>
#include <stdexcept>

namespace keltavlo {

// While one exists, the first signal that asks the program to end (SIGINT, SIGTERM, SIGHUP) is only noted, so
// that a run can end between two files; a second one of its kind ends the program at once. Signals that the
// program was started to ignore stay ignored. Writing beyond the limit of a file's size fails instead of
// ending the program.
class Interruption {
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    // The signal that was noted last; 0 for none. Safe to call from any thread.
    static int GetSignal();

private:
    static constexpr std::array<int, 4> handled{SIGINT, SIGTERM, SIGHUP, SIGXFSZ};
    std::array<struct sigaction, handled.size()> former;
};

// A run ended because of a signal.
class InterruptedError : public std::runtime_error {
public:
    explicit InterruptedError(int number);
    // 128 and the signal's number, as shells have it.
    int GetExitCode() const { return exitCode; }

private:
    int exitCode;
};

} // namespace keltavlo
