#pragma once

#include "state/item_list.h"

inline ItemList listOf(int count, const QString& name) {
    ItemList list;
    for (int i = 0; i < count; ++i) {
        list.append(ItemRecord::forPath(QStringLiteral("/some/where/%1/%2").arg(i).arg(name),
                                        VisibleForm::StringOne));
    }
    return list;
}
