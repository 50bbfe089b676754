#include <QFileInfo>

#include "platform/item_visibility.h"

bool isItemHidden(const QString& path) {
    // The file's own hidden flag, on this system.
    return QFileInfo(path).isHidden();
}

bool HiddenItems::contains(const QString& path) {
    return isItemHidden(path);
}
