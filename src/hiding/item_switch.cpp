#include "hiding/item_switch.h"

#include "controls/rd_switch_button.h"
#include "hiding/hiding.h"
#include "hiding/item_commands.h"
#include "list/drag_drop_view.h"

void ItemSwitch::touchSwitch(RDSwitchButton* sender) {
    hiding_.resetShowAll();
    const ItemList lists = list_.fileLists().value_or(ItemList());
    if (lists.isEmpty()) {
        return;
    }
    ItemRecord record = lists.at(list_.selectRowIndex());
    commands_.setSelectPath(record.filePath());
    sender->setButtonOnOrOff();
    const bool visible = sender->on();
    hiding_.switchItem(record, visible);
    commands_.follow(visible);
    list_.replaceRecord(list_.selectRowIndex(), record);
    list_.storeFileLists();
    list_.reloadData();
}
