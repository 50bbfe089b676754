#pragma once

#include <optional>

#include <QString>
#include <QStringList>

#include "platform/file_request.h"

/// What the program was started with.
struct CommandLine {
    /// Add for a start with a window, also when no file was given.
    FileRequest request;
    bool help = false;
    bool version = false;
    /// What is wrong with it; empty for nothing.
    QString error;
};

/// Reads the arguments, the program's own name first. Names become absolute paths of this folder.
CommandLine readCommandLine(const QStringList& arguments);
/// The text for `--help`.
QString commandLineHelp();

/// Hides or shows without a window, by the running program where there is one. What is not done is
/// told on standard error, and by the desktop where no terminal reads that. The status to end with:
/// 0, or 1 when something was not done.
int carryOutWithoutWindow(const FileRequest& request);
