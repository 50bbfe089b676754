#pragma once

#include <QString>

/// A file's name or path as it is shown and spoken: each character that changes the direction of
/// writing becomes its code, as "<U+202E>", so that no name can be displayed as another. Line
/// breaks stay. For display only: the result may be no existing name.
QString shownName(const QString& name);
/// The same with a blank for each line break, for rows and sentences.
QString shownInLine(const QString& name);

/// A menu's or button's text without the mark of its mnemonic: "&Open" and "打开(&O)" become "Open"
/// and "打开".
QString withoutMnemonic(const QString& text);
