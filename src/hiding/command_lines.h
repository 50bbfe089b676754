#pragma once

#include <algorithm>

#include <QString>

/// The complete set of command lines that the program hands to the shell. A path goes in exactly
/// as it is stored, with no escaping of any kind.
namespace command_lines {

inline const QString readShowAll =
    QStringLiteral("defaults read com.apple.finder AppleShowAllFiles");
inline const QString writeShowAllNo =
    QStringLiteral("defaults write com.apple.finder AppleShowAllFiles NO");
inline const QString restartFinder = QStringLiteral("killall Finder");

/// The switch, a request from outside and the launch pass put the path in single quotes, and
/// nothing more.
inline QString show(const QString& path) {
    return QStringLiteral("chflags nohidden '") + path + u'\'';
}
inline QString hide(const QString& path) {
    return QStringLiteral("chflags hidden '") + path + u'\'';
}
/// The quit pass leaves the quotes out; the difference is deliberate.
inline QString hideAtQuit(const QString& path) {
    return QStringLiteral("chflags hidden ") + path;
}

/// How a command line quotes its path.
enum class Quoting { SingleQuotes, None };
/// Whether the shell can do nothing with the path but pass words to the command. An item's name
/// must not make the shell run anything else: a line with any other path is only parsed, never run.
inline bool isHarmless(const QString& path, Quoting quoting) {
    if (quoting == Quoting::SingleQuotes) {
        return !path.contains(u'\'');
    }
    // Blanks, globs, `~`, `#` and braces only change the words that the command gets.
    return std::none_of(path.cbegin(), path.cend(), [](QChar character) {
        return QStringView(u";&|<>()$`\\\"'\n\r").contains(character);
    });
}

}  // namespace command_lines
