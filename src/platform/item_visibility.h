#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>

/// Whether a file manager that is opened now would leave the item at `path` out. Read from the disk
/// at each call. The item need not exist: what counts is whether its name is hidden.
bool isItemHidden(const QString& path);

/// Answers for many paths what isItemHidden() answers for one; what a folder hides is read once.
class HiddenItems final {
public:
    bool contains(const QString& path);

private:
    QHash<QByteArray, QSet<QByteArray>> namesOfFolders_;
};
