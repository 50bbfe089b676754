#pragma once

#include <optional>

#include <QString>
#include <QStringList>

#include "platform/file_request.h"

/// What the program was started with.
struct CommandLine {
    /// Its kind is Add, with no paths, when neither an option nor a file was given.
    FileRequest request;
    bool help = false;
    bool version = false;
    /// What is wrong with the arguments, translated; empty when nothing is.
    QString error;
};

/// Reads the arguments, of which the first is the program's own name. Files may be given as paths,
/// relative to the working folder or absolute, or as `file:` addresses; all become absolute paths.
CommandLine readCommandLine(const QStringList& arguments);
/// The translated text for `--help`.
QString commandLineHelp();

/// Carries out a request to hide or show without a window: by the running program where there is
/// one, else on the stored list. Blocks, for as long as a dialog is open in the running program (at
/// most ten minutes). What was not done is told on standard error and, when that is no terminal, by
/// a notification of the desktop. When the list is locked nothing is done, and the program is
/// started with its window, which asks for the password. Returns the exit status: 0, or 1 when
/// something was not done.
int carryOutWithoutWindow(const FileRequest& request);
