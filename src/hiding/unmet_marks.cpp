#include "hiding/unmet_marks.h"

#include "platform/item_visibility.h"
#include "state/item_list.h"
#include "state/readings.h"

UnmetMarks countUnmetMarks(const ItemList& list) {
    UnmetMarks unmet;
    HiddenItems hidden;
    list.forEach([&](const ItemRecord& record) {
        const bool isMarkedVisible = integerReading(record.visible()) == 1;
        if (hidden.contains(record.filePath()) == isMarkedVisible) {
            ++(isMarkedVisible ? unmet.stillHidden : unmet.stillVisible);
        }
    });
    return unmet;
}
