#include "app/ui/CommandLine.h"

#include "framework/core/Text.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace keltavlo {

namespace {

// The options that the toolkit takes for itself. They are named here only so that the parser accepts them.
constexpr const char* toolkitOptions[] = {"reverse", "widgetcount"};
constexpr const char* toolkitValues[] = {"display",       "name",    "platform",    "platformpluginpath",
                                         "platformtheme", "plugin",  "qwindowicon", "qwindowgeometry",
                                         "qwindowtitle",  "session", "style",       "stylesheet"};

struct Parser : QCommandLineParser {
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                            QStringLiteral("Print this text.")};
    QCommandLineOption version = addVersionOption();
    QCommandLineOption service{
        QStringLiteral("service"),
        QStringLiteral("Wait for the desktop to open files; the session bus starts this.")};

    Parser() {
        setApplicationDescription(QStringLiteral("A workshop for the textures of games."));
        addOption(help);
        addOption(service);
        setSingleDashWordOptionMode(ParseAsLongOptions); // as the toolkit's options are written
        for (const char* name : toolkitOptions) AddToolkitOption(name, {});
        for (const char* name : toolkitValues) AddToolkitOption(name, QStringLiteral("value"));
        addPositionalArgument(QStringLiteral("file"),
                              QStringLiteral("The file to open, which may be inside an archive."),
                              QStringLiteral("[file...]"));
    }

private:
    void AddToolkitOption(const char* name, const QString& value) {
        QCommandLineOption option(QString::fromLatin1(name), {}, value);
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        addOption(option);
    }
};

// Names of files need not be UTF-8. The parser sees each byte as one character, so all of them survive.
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
    line.service = parser.isSet(parser.service);
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
