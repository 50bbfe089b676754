#include <QFileInfo>

#include "platform/item_visibility.h"

void ItemVisibility::check(const QString& path, bool askedVisible) {
    answer(path, askedVisible, QFileInfo(path).isHidden());
}
