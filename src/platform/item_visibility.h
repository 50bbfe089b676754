#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>

/// Whether a file manager that is opened now would leave the item at `path` out. It is asked of the
/// disk itself, at once; an item that does not exist is as its name was left.
bool isItemHidden(const QString& path);

/// Answers for many paths what isItemHidden() answers for one; what a folder hides is read once.
class HiddenItems final {
public:
    bool contains(const QString& path);

private:
    QHash<QByteArray, QSet<QByteArray>> namesOfFolders_;
};
