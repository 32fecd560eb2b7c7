#include "tool/output/Interruption.h"

#include <atomic>
#include <cstring>
#include <string>

namespace keltavlo {

namespace {

std::atomic<int> noted = 0;
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler may use it");

void Note(int number) {
    noted = number;
}

} // namespace

Interruption::Interruption() {
    noted = 0;
    for (std::size_t i = 0; i < handled.size(); ++i) {
        struct sigaction action {};
        const bool ends = handled[i] != SIGXFSZ;
        action.sa_handler = ends ? Note : SIG_IGN;
        action.sa_flags = ends ? SA_RESTART | static_cast<int>(SA_RESETHAND) : 0;
        sigaction(handled[i], nullptr, &former[i]);
        if (former[i].sa_handler != SIG_IGN) sigaction(handled[i], &action, nullptr);
    }
}

Interruption::~Interruption() {
    for (std::size_t i = 0; i < handled.size(); ++i) sigaction(handled[i], &former[i], nullptr);
}

int Interruption::GetSignal() {
    return noted;
}

InterruptedError::InterruptedError(int number)
    : std::runtime_error(std::string("Ended by a signal: ") + strsignal(number) + "."),
      exitCode(128 + number) {}

} // namespace keltavlo
