#pragma once

#include <QString>
#include <QVariant>

/// The log on standard error: one line an entry, with date, process name, process id and the text.
/// Lines that its reader does not take within a moment are lost.
class Log {
public:
    /// Routes Qt's own messages to the same form. Call once, at the start of the program.
    static void install();

    static void line(const QString& text);

    /// A value as it stands in a log line: text as it is, "(a, b)" for an array,
    /// "{key = value; }" for a dictionary, "(null)" for nothing.
    static QString describe(const QVariant& value);
};
