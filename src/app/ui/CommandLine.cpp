#include "app/ui/CommandLine.h"

#include "framework/core/Text.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace keltavlo {

namespace {

struct Parser : QCommandLineParser {
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                            QStringLiteral("Print this text.")};
    QCommandLineOption version = addVersionOption();

    Parser() {
        setApplicationDescription(QStringLiteral("A workshop for the textures of games."));
        addOption(help);
        setSingleDashWordOptionMode(ParseAsLongOptions); // for Qt's own options, such as "-platform"
        addPositionalArgument(QStringLiteral("file"),
                              QStringLiteral("The file to open, which may be inside an archive."),
                              QStringLiteral("[file...]"));
    }
};

// File names need not be UTF-8. The parser sees each byte as one character, so that all bytes survive.
QString FromBytes(const std::string& bytes) {
    return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

std::string ToBytes(const QString& text) {
    return text.toLatin1().toStdString();
}

} // namespace

CommandLine ParseCommandLine(const std::vector<std::string>& arguments) {
    Parser parser;
    CommandLine line;
    QStringList texts;
    for (const std::string& argument : arguments) texts.push_back(FromBytes(argument));
    if (!parser.parse(texts)) line.error = ToBytes(parser.errorText());
    line.help = parser.isSet(parser.help);
    line.version = parser.isSet(parser.version);
    for (const QString& path : parser.positionalArguments()) line.paths.push_back(ToBytes(path));
    return line;
}

std::string HelpText() {
    return FromQString(Parser().helpText());
}

std::string VersionText() {
    return FromQString(QCoreApplication::applicationName() + ' ' + QCoreApplication::applicationVersion() +
                       '\n');
}

} // namespace keltavlo
