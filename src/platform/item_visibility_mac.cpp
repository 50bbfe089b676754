#include <sys/stat.h>

#include <QFile>

#include "platform/item_visibility.h"

void ItemVisibility::check(const QString& path, bool askedVisible) {
    struct stat status {};
    const bool hidden = lstat(QFile::encodeName(path).constData(), &status) == 0 &&
                        (status.st_flags & UF_HIDDEN) != 0;
    answer(path, askedVisible, hidden);
}
