#pragma once

#include <array>
#include <csignal>
#include <stdexcept>

namespace keltavlo {

// While one exists, the first signal that asks the program to end (SIGINT, SIGTERM, SIGHUP) is only recorded,
// so that a run can end between two files. A second signal of the same kind ends the program at once. Signals
// that were ignored when the program started stay ignored. Writing beyond the limit of a file's size fails
// instead of ending the program.
class Interruption {
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    // Returns the last recorded signal, or 0. Safe to call from any thread.
    static int GetSignal();

private:
    static constexpr std::array<int, 4> handled{SIGINT, SIGTERM, SIGHUP, SIGXFSZ};
    std::array<struct sigaction, handled.size()> former;
};

// A run ended because of a signal.
class InterruptedError : public std::runtime_error {
public:
    explicit InterruptedError(int number);
    // Returns 128 plus the signal's number, as shells do.
    int GetExitCode() const { return exitCode; }

private:
    int exitCode;
};

} // namespace keltavlo
