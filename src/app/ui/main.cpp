#include "app/ui/CKelTavloApp.h"
#include "app/ui/CommandLine.h"

#include <QApplication>

#include <cstdio>

namespace {

void NameApplication() {
    QCoreApplication::setApplicationName(QStringLiteral("KelTavlo"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KELTAVLO_VERSION));
}

// Texts need no screen, so they are answered before the windowing system is asked for one.
bool AnswerOnConsole(int argc, char** argv) {
    const QCoreApplication console(argc, argv);
    const CommandLine line = ParseCommandLine(QCoreApplication::arguments());
    if (line.help)
        std::fputs(HelpText().c_str(), stdout);
    else if (line.version)
        std::fputs(VersionText().c_str(), stdout);
    return line.help || line.version;
}

int RunProgram(const CommandLine& line) {
    if (!line.error.empty()) {
        std::fprintf(stderr, "keltavlo: %s\n", line.error.c_str());
        return 1;
    }
    CKelTavloApp program(std::make_unique<ProfileStore>("KelTavlo", "KelTavlo"));
    return program.InitInstance(line.paths) ? QCoreApplication::exec() : 1;
}

} // namespace

int main(int argc, char** argv) {
    NameApplication();
    if (AnswerOnConsole(argc, argv)) return 0;
    const QApplication windows(argc, argv);
    return RunProgram(ParseCommandLine(QCoreApplication::arguments()));
}
