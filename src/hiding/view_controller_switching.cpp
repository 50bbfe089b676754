#include <QAction>
#include <QFileInfo>

#include "app/view_controller.h"
#include "controls/rd_custom_button.h"
#include "controls/rd_switch_button.h"
#include "hiding/command_lines.h"
#include "platform/bundle.h"
#include "platform/shell.h"
#include "ui_Main.h"

std::optional<QString> ViewController::InvokingShellScript() const {
    return Shell::output(command_lines::readShowAll);
}

void ViewController::resetShowAll() const {
    // Only the word counts: a setting that reads 1 or true leaves the file manager alone.
    const QString setting = InvokingShellScript().value_or(QString());
    if (setting.toLower().contains(QStringLiteral("yes"))) {
        Shell::run(command_lines::writeShowAllNo);
        Shell::run(command_lines::restartFinder);
    }
}

void ViewController::touchSwitch(RDSwitchButton* sender) {
    resetShowAll();
    DragDropView* list = ui_.fileListView;
    const ItemList lists = list->fileLists().value_or(ItemList());
    if (lists.isEmpty()) {
        return;
    }
    ItemRecord record = lists.at(list->selectRowIndex());
    selectPath_ = record.filePath();
    sender->setButtonOnOrOff();
    const bool visible = sender->on();
    if (visible) {
        Shell::run(command_lines::show(selectPath_));
        record.setVisible(VisibleForm::StringOne);
    } else {
        Shell::run(command_lines::hide(selectPath_));
        record.setVisible(VisibleForm::StringZero);
    }
    updateItemCommands(visible);
    list->replaceRecord(list->selectRowIndex(), record);
    list->storeFileLists();
    list->reloadData();
    // The record keeps what was asked; the quiet line tells when the item is not so.
    visibility_.check(selectPath_, visible);
    tellFileManagers(selectPath_);
}

void ViewController::updateItemCommands(bool visible) {
    // Fixed texts: from the first selection on they replace the localised title.
    ui_.hideMenuItem->setText(visible ? QStringLiteral("Hide") : QStringLiteral("Show"));
    // There is an item to switch from the first report on; it can always be switched.
    ui_.hideMenuItem->setEnabled(true);
    ui_.openMenuItem->setEnabled(visible);
    ui_.revealInFinderMenuItem->setEnabled(visible);
    ui_.removeMenuItem->setEnabled(visible);
}

void ViewController::sayUnreached() {
    QStringList sentences;
    for (const FileManagerRefresh::Unreached& manager : refresh_.unreached()) {
        sentences << Bundle::localizedString(QStringLiteral("Press %1 in %2 to see the change."),
                                             QStringLiteral("Main"))
                         .arg(manager.keys, manager.manager);
    }
    quietLine_.say(QuietLine::Refresh, sentences.join(u' '));
}

void ViewController::touchEvent(RdCustomButton* sender) {
    DragDropView* list = ui_.fileListView;
    if (!canEditorItem() || list->count() == 0) {
        return;
    }
    selectPath_ = list->fileLists()->at(list->selectRowIndex()).filePath();
    ui_.sanjiao->setChecked(sender->on() != 0);
    if (sender->on() != 1) {
        sender->setOn(1);
        sender->setText(QStringLiteral("       Show item Info"));
        informationPane_.setLabelsHidden(true);
    } else {
        sender->setOn(0);
        sender->setText(QStringLiteral("       Hide item Info"));
        informationPane_.setLabelsHidden(false);
    }
}
