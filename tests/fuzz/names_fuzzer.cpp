#include <QFile>
#include <QTemporaryDir>

#include "fuzz.h"
#include "hiding/command_lines.h"
#include "platform/shell.h"

using namespace command_lines;

/// No path makes the shell do more than start chflags, which here does nothing.
void tryInput(const QByteArray& input) {
    static const QTemporaryDir commands;
    static const QString beyond = commands.filePath("beyond");
    if (Shell::companionsFolder().isEmpty()) {
        QFile::link("/bin/true", commands.filePath("chflags"));
        QFile::link("/bin/true", commands.filePath("a"));
        qputenv("LD_PRELOAD", SHELL_RECORDER);
        qputenv("SHELL_RECORD", beyond.toUtf8());
        Shell::setCompanionsFolder(commands.path());
        qunsetenv("LD_PRELOAD");
        Shell::setPatience(std::chrono::seconds(2));
        Shell::run("exec /none");
        demand(QFile::remove(beyond));
    }
    const QString path = QString::fromUtf8(input);
    isHarmless(path, Quoting::SingleQuotes) ? Shell::run(show(path)) : Shell::read(show(path));
    const QString atQuit = hideAtQuit(path);
    isHarmless(path, Quoting::None) ? Shell::run(atQuit) : Shell::read(atQuit);
    demand(!QFile::exists(beyond));
}
