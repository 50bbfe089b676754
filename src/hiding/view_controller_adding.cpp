#include <QAction>
#include <QMainWindow>

#include "app/app_delegate.h"
#include "app/view_controller.h"
#include "controls/rd_custom_button.h"
#include "controls/rd_switch_button.h"
#include "platform/log.h"
#include "platform/notification_center.h"
#include "state/readings.h"
#include "ui_Main.h"

namespace {

void logRemoveItem(const QAction* removeMenuItem) {
    Log::line(QStringLiteral("_appDelegate.removeMenuItem.enabled : %1")
                  .arg(removeMenuItem->isEnabled() ? 1 : 0));
}

}  // namespace

void ViewController::addfileList(QObject* /*sender*/) {
    logRemoveItem(ui_.removeMenuItem);
    if (!canEditorItem()) {
        return;
    }
    OpenPanelRequest request;
    request.message = QStringLiteral("select a file");
    request.prompt = QStringLiteral("OK");
    request.allowsMultipleSelection = true;
    const std::optional<QStringList> paths = openPanel_(window_, request);
    QList<ItemRecord> records;
    for (const QString& path : paths.value_or(QStringList())) {
        Log::line(path);
        records << ItemRecord::forPath(path, VisibleForm::NumberOne);
    }
    Log::line(QStringLiteral("selectPaths:") +
              Log::describe(paths ? QVariant(*paths) : QVariant()));
    // Also when the panel was cancelled: nothing is appended, and the last row becomes current.
    ui_.fileListView->addFileList(records);
    ui_.fileListView->storeFileLists();
}

void ViewController::selectedTableLists(const ItemRecord* record) {
    const bool empty = ui_.fileListView->count() == 0;
    ui_.customInfoView->setHidden(empty);
    ui_.textScrollCiew->setHidden(!empty);
    if (record == nullptr) {
        informationPane_.clear();
        ui_.switchButton->setImage(QStringLiteral("switch-pressed-right"));
        ui_.fileListView->reloadData();
        return;
    }
    selectPath_ = record->filePath();
    informationPane_.showItem(*record);
    ui_.switchButton->setOn(truthReading(record->visible()));
    const bool visible = ui_.switchButton->on();
    ui_.switchButton->setImage(visible ? QStringLiteral("switch-pressed-right")
                                       : QStringLiteral("switch-left"));
    updateItemCommands(visible);
    logRemoveItem(ui_.removeMenuItem);
}

void ViewController::showOrHideInfomation(const Notification& notification) {
    if (!canEditorItem()) {
        return;
    }
    // "hidden" is only what the button shows; the pane follows the button's own value, so every
    // such notification toggles it.
    ui_.dianjibutton->setState(notification.userInfo.value(QStringLiteral("hidden")).toBool() ? 1
                                                                                              : 0);
    touchEvent(ui_.dianjibutton);
}
