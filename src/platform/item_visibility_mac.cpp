#include <sys/stat.h>

#include <QFile>

#include "platform/item_visibility.h"

bool isHiddenInFileManagers(const QString& path) {
    struct stat status {};
    return lstat(QFile::encodeName(path).constData(), &status) == 0 &&
           (status.st_flags & UF_HIDDEN) != 0;
}
