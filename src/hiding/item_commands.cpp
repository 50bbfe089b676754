#include "hiding/item_commands.h"

#include <QAction>

#include "platform/log.h"

void ItemCommands::follow(bool visible) const {
    // Fixed texts: from the first selection on they replace the localised title.
    items_.hideMenuItem->setText(visible ? QStringLiteral("Hide") : QStringLiteral("Show"));
    // Any item can be switched; before the first report there is none.
    items_.hideMenuItem->setEnabled(true);
    items_.openMenuItem->setEnabled(visible);
    items_.revealInFinderMenuItem->setEnabled(visible);
    items_.removeMenuItem->setEnabled(visible);
}

void ItemCommands::allowRemoval(bool allowed) const {
    items_.removeMenuItem->setEnabled(allowed);
}

void ItemCommands::disable() const {
    for (QAction* item :
         {items_.openMenuItem, items_.revealInFinderMenuItem, items_.removeMenuItem}) {
        item->setEnabled(false);
    }
}

void ItemCommands::logRemoveItem() const {
    Log::line(QStringLiteral("_appDelegate.removeMenuItem.enabled : %1")
                  .arg(items_.removeMenuItem->isEnabled() ? 1 : 0));
}
