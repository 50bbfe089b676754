#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>

#include "platform/item_visibility.h"

namespace {

// The lines of the list that hides names; none when it is no ordinary file, such as a pipe that
// would keep its reader waiting.
QByteArrayList namesHiddenIn(const QByteArray& folder) {
    const int descriptor =
        open((folder + ".hidden").constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat status {};
    QFile list;
    if (descriptor < 0 || !list.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle) ||
        fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        return {};
    }
    return list.readAll().split('\n');
}

}  // namespace

bool HiddenItems::contains(const QString& path) {
    QByteArray item = QFile::encodeName(path);
    while (item.size() > 1 && item.endsWith('/')) {
        item.chop(1);
    }
    const qsizetype nameStart = item.lastIndexOf('/') + 1;
    const QByteArray name = item.sliced(nameStart);
    if (name.startsWith('.')) {
        return true;
    }
    const QByteArray folder = item.first(nameStart);
    auto names = namesOfFolders_.constFind(folder);
    if (names == namesOfFolders_.cend()) {
        const QByteArrayList hidden = namesHiddenIn(folder);
        names = namesOfFolders_.insert(folder, {hidden.cbegin(), hidden.cend()});
    }
    return names->contains(name);
}

bool isItemHidden(const QString& path) {
    return HiddenItems().contains(path);
}
