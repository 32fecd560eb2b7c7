#include "app/ui/SuddenEnd.h"

#include "app/Rescue.h"
#include "framework/core/CWinApp.h"

#include <QApplication>
#include <QSessionManager>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <fcntl.h>
#include <unistd.h>

namespace keltavlo {

namespace {

constexpr int endingSignals[] = {SIGINT, SIGTERM, SIGHUP};
constexpr int codeOfFirstSignal = 128; // as shells count

// Where the signal handler writes.
int signalsIn = -1;

std::terminate_handler formerTerminate = nullptr;

// A handler may do little more than this.
void NoteSignal(int number) {
    const int error = errno;
    const auto byte = static_cast<char>(number);
    static_cast<void>(write(signalsIn, &byte, 1) < 0);
    errno = error;
}

// Signals that the program was started to ignore, as by nohup, stay ignored.
void HandleSignals() {
    for (const int number : endingSignals) {
        struct sigaction action {
        }, former{};
        action.sa_handler = NoteSignal;
        action.sa_flags = SA_RESTART;
        sigaction(number, nullptr, &former);
        if (former.sa_handler != SIG_IGN) sigaction(number, &action, nullptr);
    }
}

int OpenPipe() {
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) == 0) signalsIn = ends[1];
    return ends[0];
}

// When the connection to the display breaks, Qt and Xlib call exit() from wherever they notice. The program's
// objects still exist then. Ends at once, because their windows have nothing left to be drawn on.
void OnExit() {
    if (!Rescue::Find()) return;
    SuddenEnd::RescueDocuments();
    std::_Exit(EXIT_FAILURE);
}

[[noreturn]] void OnTerminate() {
    SuddenEnd::RescueDocuments();
    formerTerminate();
    std::abort();
}

} // namespace

SuddenEnd::SuddenEnd() : signalsOut(OpenPipe()), notifier(signalsOut.Get(), QSocketNotifier::Read) {
    std::atexit(OnExit);
    formerTerminate = std::set_terminate(OnTerminate);
    connect(&notifier, &QSocketNotifier::activated, this, [this] { OnSignal(); });
    connect(qApp, &QGuiApplication::commitDataRequest, this, &SuddenEnd::OnSessionEnd, Qt::DirectConnection);
    if (signalsIn >= 0) HandleSignals();
}

void SuddenEnd::RescueDocuments() noexcept {
    if (Rescue* rescue = Rescue::Find()) rescue->SaveModified();
}

// Runs in the event loop, also in that of a dialog.
void SuddenEnd::OnSignal() {
    char number = 0;
    if (read(signalsOut.Get(), &number, 1) != 1) return;
    RescueDocuments();
    std::_Exit(codeOfFirstSignal + number);
}

void SuddenEnd::OnSessionEnd(QSessionManager& session) {
    // A dialog that is open may already be asking about a document.
    if (QApplication::activeModalWidget() || !session.allowsInteraction()) return RescueDocuments();
    const bool agreed = CWinApp::Get().SaveAllModified();
    session.release();
    if (!agreed) session.cancel();
}

} // namespace keltavlo
