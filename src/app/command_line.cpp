#include "app/command_line.h"

#include <unistd.h>

#include <cstdio>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QProcess>

#include "hiding/hiding.h"
#include "hiding/list_request.h"
#include "platform/desktop_notification.h"
#include "platform/file_addresses.h"
#include "platform/shell.h"
#include "platform/single_instance.h"
#include "platform/termination_signals.h"
#include "state/preference_keys.h"
#include "state/user_defaults.h"

namespace {

using Kind = FileRequest::Kind;

QString text(const char* sentence) {
    return QCoreApplication::translate("CommandLine", sentence);
}

/// The options and what they mean, for reading and for the help.
class Parser final : public QCommandLineParser {
public:
    Parser() {
        addOption(hide);
        addOption(show);
        addOption(showAll);
        addOption(help);
        addOption(version);
        addPositionalArgument(QStringLiteral("file"),
                              text("Files and folders to add to the list, and to hide or show."),
                              QStringLiteral("[--] [file...]"));
        setApplicationDescription(
            text("Hide files and folders from the file manager, and show them again."));
    }

    const QCommandLineOption hide{QStringLiteral("hide"),
                                  text("Hide the files; those that are not listed are added.")};
    const QCommandLineOption show{QStringLiteral("show"), text("Show the files that are listed.")};
    const QCommandLineOption showAll{QStringLiteral("show-all"), text("Show every listed item.")};
    const QCommandLineOption help{QStringLiteral("help"), text("Print this help.")};
    const QCommandLineOption version{QStringLiteral("version"), text("Print the version.")};
};

void addFile(const QString& argument, FileRequest& request) {
    const bool isAddress = argument.startsWith(QLatin1String("file:"));
    const FileAddresses files =
        filesAt({isAddress ? QUrl(argument)
                           : QUrl::fromLocalFile(QDir::current().absoluteFilePath(argument))});
    for (const QString& path : files.paths) {
        request.paths << QDir::cleanPath(path);
    }
    request.someAreNoFiles = request.someAreNoFiles || argument.isEmpty() || files.someUnreadable;
}

QStringList carryOutHere(const FileRequest& request, bool& locked) {
    UserDefaults defaults(UserDefaults::standardFile());
    if (!defaults.isRead()) {
        return {defaults.problem()};
    }
    locked = isProtected();
    if (locked) {
        return {lockedSentence()};
    }
    const TerminationSignals terminationSignals;
    Shell::setInterruption(terminationSignals.descriptor());
    Hiding hiding;
    ItemList list = defaults.itemList().value_or(ItemList());
    QStringList sentences = carryOut(request, list, hiding).sentences;
    defaults.setItemList(list);
    if (!defaults.synchronize()) {
        sentences << defaults.problem();
    }
    Shell::setInterruption(-1);
    return sentences;
}

// Starts the program with its window, which asks for the password. That process outlives this one,
// and so must not keep its output open: whoever reads that would wait for both to end.
void startWindow() {
    QProcess process;
    process.setProgram(QCoreApplication::applicationFilePath());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.startDetached();
}

QStringList carryOutAnywhere(const FileRequest& request) {
    constexpr std::chrono::seconds longest{60};
    bool locked = false;
    QStringList sentences;
    {
        SingleInstance instance(UserDefaults::fileBeside(QStringLiteral("instance.lock")));
        const bool turn = instance.waitForTurn(longest);
        if (!turn || !instance.isFirst()) {
            return (turn ? instance.askFirst(request) : std::nullopt)
                .value_or(QStringList{text("Velmora is running already, but does not answer.")});
        }
        sentences = carryOutHere(request, locked);
    }
    if (locked) {
        startWindow();
    }
    return sentences;
}

}  // namespace

CommandLine readCommandLine(const QStringList& arguments) {
    CommandLine line;
    Parser parser;
    if (!parser.parse(arguments)) {
        line.error = parser.errorText();
    }
    const bool hide = parser.isSet(parser.hide);
    const bool show = parser.isSet(parser.show);
    const bool showAll = parser.isSet(parser.showAll);
    const QStringList files = parser.positionalArguments();
    line.help = parser.isSet(parser.help);
    line.version = parser.isSet(parser.version);
    line.request.kind = hide ? Kind::Hide : show ? Kind::Show : showAll ? Kind::ShowAll : Kind::Add;
    for (const QString& file : files) {
        addFile(file, line.request);
    }
    if (line.error.isEmpty() && hide + show + showAll > 1) {
        line.error = text("Only one of --hide, --show and --show-all can be given.");
    } else if (line.error.isEmpty() && (hide || show) && files.isEmpty()) {
        line.error = text("No file was given.");
    } else if (line.error.isEmpty() && showAll && !files.isEmpty()) {
        line.error = text("--show-all takes no files.");
    }
    return line;
}

QString commandLineHelp() {
    return Parser().helpText();
}

int carryOutWithoutWindow(const FileRequest& request) {
    const QStringList sentences = carryOutAnywhere(request);
    for (const QString& sentence : sentences) {
        std::fprintf(stderr, "velmora: %s\n", qPrintable(sentence));
    }
    if (!sentences.isEmpty() && isatty(STDERR_FILENO) == 0) {
        notifyDesktop(sentences.join(u'\n'));
    }
    return sentences.isEmpty() ? 0 : 1;
}
