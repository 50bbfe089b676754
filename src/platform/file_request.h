#pragma once

#include <functional>

#include <QByteArray>
#include <QStringList>

/// What is asked of the program from outside its window: by files that it is started with, its
/// options, the desktop, or a file manager's menu.
struct FileRequest {
    enum class Kind { Add, Hide, Show, ShowAll };

    Kind kind = Kind::Add;
    QStringList paths;            // absolute; none for ShowAll
    bool someAreNoFiles = false;  // others that were given and are no places on this computer
    QByteArray token;             // lets the window take the focus where the desktop asks for one
    /// Where the asker waits for an answer: the sentences on what was not done, none when all went
    /// well. To be called once.
    std::function<void(const QStringList& sentences)> answer;
};
