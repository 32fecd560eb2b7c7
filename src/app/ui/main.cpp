#include "app/ui/CKelTavloApp.h"
#include "app/ui/CommandLine.h"
#include "app/ui/SuddenEnd.h"
#include "framework/core/Exceptions.h"
#include "framework/core/MemoryReserve.h"
#include "framework/ui/GuardedApplication.h"

#include <QGuiApplication>

#include <cstdio>
#include <new>
#include <string_view>
#include <unistd.h>

using namespace keltavlo;

namespace {

QtMessageHandler toolkitHandler = nullptr;

void PassOn(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg) SuddenEnd::RescueDocuments(); // Qt ends the program
    toolkitHandler(type, context, text);
}

// Without a display, Qt reports why and aborts. This handler ends the program with the first reason instead.
void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    static QString reason;
    const bool isReason = std::string_view(context.category).starts_with("qt.qpa");
    if (!QCoreApplication::startingUp() || (type != QtFatalMsg && !isReason))
        return PassOn(type, context, text);
    if (reason.isEmpty()) reason = text.trimmed();
    if (type != QtFatalMsg) return;
    std::fprintf(stderr, "keltavlo: No window can be opened (%s); keltavlo-tool needs no display.\n",
                 qPrintable(reason));
    _exit(1);
}

void NameApplication() {
    QCoreApplication::setApplicationName(QStringLiteral("KelTavlo"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KELTAVLO_VERSION));
}

// Prints what needs no screen, before the windowing system is opened. Returns the exit code.
int AnswerOnConsole(const CommandLine& line, int argc, char** argv) {
    const QCoreApplication console(argc, argv); // the help shows the program's name
    if (line.help)
        std::fputs(HelpText().c_str(), stdout);
    else if (line.version)
        std::fputs(VersionText().c_str(), stdout);
    else
        std::fprintf(stderr, "keltavlo: %s\n", line.error.c_str());
    return line.help || line.version ? 0 : 1;
}

// Catches failures here, while the documents still exist.
int Run(CKelTavloApp& program, const CommandLine& line) try {
    const bool isReady = line.service ? program.InitService() : program.InitInstance(line.paths);
    return isReady ? QCoreApplication::exec() : 1;
} catch (const std::bad_alloc& failure) { // no event was being handled
    SuddenEnd::RescueDocuments();
    std::fprintf(stderr, "keltavlo: %s\n", SentenceOf(failure));
    _exit(1);
}

} // namespace

int main(int argc, char** argv) try {
    KeepMemoryReserve();
    NameApplication();
    const CommandLine line = ParseCommandLine({argv, argv + argc});
    if (line.help || line.version || !line.error.empty()) return AnswerOnConsole(line, argc, argv);
    toolkitHandler = qInstallMessageHandler(&HandleMessage);
    const GuardedApplication windows(argc, argv);
    // The desktop uses the name of the desktop file to find the program's name and icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.example.keltavlo"));
    CKelTavloApp program(ProfileStore("KelTavlo", "KelTavlo"));
    const SuddenEnd suddenEnd;
    return Run(program, line);
} catch (const std::bad_alloc& failure) { // before there were documents
    std::fprintf(stderr, "keltavlo: %s\n", SentenceOf(failure));
    return 1;
}
