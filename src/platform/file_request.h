#pragma once

#include <functional>

#include <QByteArray>
#include <QStringList>

/// What is asked of the program from outside its window: by files that it is started with, its
/// options, the desktop, or a file manager's menu.
struct FileRequest {
    enum class Kind { Add, Hide, Show, ShowAll };

    Kind kind = Kind::Add;
    QStringList paths;            ///< absolute; none for ShowAll
    bool someAreNoFiles = false;  ///< others were given that name no file on this computer
    QByteArray token;             ///< lets the window take the focus where the desktop asks for one
    /// Empty when nobody waits for an answer. Otherwise whoever carries the request out, or refuses
    /// it, calls this once, with a translated sentence for each thing that was not done.
    std::function<void(const QStringList& sentences)> answer;
};
