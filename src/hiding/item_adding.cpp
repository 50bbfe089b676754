#include "hiding/item_adding.h"

#include <utility>

#include "hiding/item_commands.h"
#include "list/drag_drop_view.h"
#include "platform/log.h"

ItemAdding::ItemAdding(QWidget& window, DragDropView& list, const ItemCommands& commands,
                       OpenPanel openPanel, std::function<bool()> canEditorItem)
    : window_(window),
      list_(list),
      commands_(commands),
      openPanel_(std::move(openPanel)),
      canEditorItem_(std::move(canEditorItem)) {}

void ItemAdding::addfileList() const {
    commands_.logRemoveItem();
    if (!canEditorItem_()) {
        return;
    }
    OpenPanelRequest request;
    request.message = QStringLiteral("select a file");
    request.prompt = QStringLiteral("OK");
    request.allowsMultipleSelection = true;
    const std::optional<QStringList> paths = openPanel_(&window_, request);
    QList<ItemRecord> records;
    for (const QString& path : paths.value_or(QStringList())) {
        Log::line(path);
        records << ItemRecord::forPath(path, VisibleForm::NumberOne);
    }
    Log::line(QStringLiteral("selectPaths:") +
              Log::describe(paths ? QVariant(*paths) : QVariant()));
    // Also when the panel was cancelled: nothing is appended, and the last row becomes current.
    list_.addFileList(records);
    list_.storeFileLists();
}
