#include "app/ui/CommandLine.h"

#include "framework/core/Text.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {

struct Parser : QCommandLineParser {
    QCommandLineOption help = addHelpOption();
    QCommandLineOption version = addVersionOption();

    Parser() {
        setApplicationDescription(QStringLiteral("A workshop for the textures of games."));
        setSingleDashWordOptionMode(ParseAsLongOptions); // such as the toolkit's own "-platform"
        addPositionalArgument(QStringLiteral("file"),
                              QStringLiteral("The file to open, also one inside an archive."),
                              QStringLiteral("[file...]"));
    }
};

} // namespace

CommandLine ParseCommandLine(const QStringList& arguments) {
    Parser parser;
    CommandLine line;
    if (!parser.parse(arguments)) line.error = FromQString(parser.errorText());
    line.help = parser.isSet(parser.help);
    line.version = parser.isSet(parser.version);
    for (const QString& path : parser.positionalArguments()) line.paths.push_back(FromQString(path));
    return line;
}

std::string HelpText() {
    return FromQString(Parser().helpText());
}

std::string VersionText() {
    return FromQString(QCoreApplication::applicationName() + ' ' + QCoreApplication::applicationVersion() +
                       '\n');
}
