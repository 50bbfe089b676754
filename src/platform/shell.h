#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include <QString>

/// Command lines handed to `/bin/sh`: how the program changes files and asks the file manager.
/// Every call blocks until the line has ended, and none looks at its exit status.
///
/// Every line is a process group of its own, which is killed as a whole when it takes too long or
/// the program is asked to end. Main thread only; no event is handled meanwhile.
class Shell {
public:
    /// Folder put first on `PATH` for these command lines alone (what the program opens does not
    /// inherit it); empty for none. Where a system lacks `chflags`, `defaults` and `killall`, it
    /// holds programs of these names. The rest of the environment is taken over at this call.
    static void setCompanionsFolder(const QString& folder);
    /// The folder that was set last; empty for none.
    static QString companionsFolder();
    /// The folder that belongs to the running program: `../libexec/velmora` beside its own.
    static QString defaultCompanionsFolder();

    enum class Ending {
        ByItself,
        TimeUp,       ///< killed after the longest time
        Interrupted,  ///< killed because the program is to end, or a WhileWaiting said so
    };

    /// Runs the line. Its standard input is empty; what it prints goes where the program's own
    /// output does. A shell that cannot be started is logged and counts as ended by itself.
    static Ending run(const QString& commandLine);
    /// The same, but the shell only parses the line and runs nothing of it.
    static Ending read(const QString& commandLine);
    /// Runs the line; what it printed on its standard output, also when it was killed, or no value
    /// when that is not valid UTF-8. Standard input and standard error stay the program's own.
    /// Throws LaunchException (platform/exceptions.h) when the shell cannot be started.
    static std::optional<QString> output(const QString& commandLine);

    /// How long a line may take: 30 seconds, unless a test sets it.
    static void setPatience(std::chrono::milliseconds longest);
    /// A descriptor that becomes readable when the program is asked to end; -1 for none. It is
    /// polled, never read or closed; unset it before it is closed.
    static void setInterruption(int descriptor);
    /// Whether the program has been asked to end.
    static bool isInterrupted();
};

/// Work to be done while a command line is waited for: for as long as this object lives, it is
/// called several times a second once a line has taken a tenth of a second. Main thread only.
class WhileWaiting final {
public:
    /// `work` returns whether to go on: false kills the line at once. It must not run a line
    /// itself.
    explicit WhileWaiting(std::function<bool()> work);
    ~WhileWaiting();
    WhileWaiting(const WhileWaiting&) = delete;
    WhileWaiting& operator=(const WhileWaiting&) = delete;

    /// Calls the work of every living object; false when one of them returned false.
    static bool work();

private:
    std::function<bool()> work_;
};
