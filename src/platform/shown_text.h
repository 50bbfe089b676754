#pragma once

#include <QString>

/// A file's name or path as it is shown and spoken: with the characters that turn the direction of
/// writing made visible, so that "txt.exe" cannot pose as "exe.txt". Line breaks stay.
QString shownName(const QString& name);
/// The same in one line, for rows and sentences.
QString shownInLine(const QString& name);

/// A menu's or button's text without the mark of its key: "&Open" and "打开(&O)" become "Open" and
/// "打开".
QString withoutMnemonic(const QString& text);
