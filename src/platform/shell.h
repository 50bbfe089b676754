#pragma once

#include <optional>

#include <QString>

/// The two ways in which the program changes files and asks the file manager: a command line
/// handed to `/bin/sh`. Both block until the shell has ended; neither looks at the exit status.
class Shell {
public:
    /// Folder put first on `PATH` for these command lines alone (what the program opens does not
    /// inherit it); empty for none. Where a system lacks `chflags`, `defaults` and `killall`,
    /// programs of these names stand there.
    static void setCompanionsFolder(const QString& folder);
    /// The folder that was set last; empty for none.
    static QString companionsFolder();
    /// The folder that belongs to the running program: `../libexec/velmora` beside its own.
    static QString defaultCompanionsFolder();

    static void run(const QString& commandLine);
    /// What the command line printed on its standard output; no value when that is not valid
    /// UTF-8. Standard input and standard error stay the program's own.
    static std::optional<QString> output(const QString& commandLine);
};
