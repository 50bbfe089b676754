#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include <QString>

/// The two ways in which the program changes files and asks the file manager: a command line
/// handed to `/bin/sh`. Both block until the line has ended; neither looks at the exit status.
///
/// Every line is a process group of its own, which is ended as a whole when it takes too long or
/// the program is asked to end. Main thread only; no event is handled meanwhile.
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

    enum class Ending { ByItself, TimeUp, Interrupted };

    /// Standard input is empty; what the line prints goes where the program's own does.
    static Ending run(const QString& commandLine);
    /// Has the shell read the line without running anything of it.
    static Ending read(const QString& commandLine);
    /// What the command line printed on its standard output; no value when that is not valid
    /// UTF-8. Standard input and standard error stay the program's own.
    static std::optional<QString> output(const QString& commandLine);

    /// How long a line may take: 30 seconds, unless a test sets it.
    static void setPatience(std::chrono::milliseconds longest);
    /// A descriptor that becomes readable when the program is asked to end; -1 for none. It is only
    /// looked at.
    static void setInterruption(int descriptor);
    /// Whether the program has been asked to end.
    static bool isInterrupted();
};

/// What is done while a command line takes long, several times a second from a tenth of a second
/// on, for as long as this lives. Main thread only.
class WhileWaiting final {
public:
    /// `work` returns whether to go on: false ends the line at once.
    explicit WhileWaiting(std::function<bool()> work);
    ~WhileWaiting();
    WhileWaiting(const WhileWaiting&) = delete;
    WhileWaiting& operator=(const WhileWaiting&) = delete;

    /// Does the work of all that there are; false when one of them does not want to go on.
    static bool work();

private:
    std::function<bool()> work_;
};
