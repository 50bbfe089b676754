#include "hiding/information_pane.h"

#include <utility>

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>

#include "controls/pane_button.h"
#include "controls/picture_label.h"
#include "controls/rd_custom_button.h"
#include "controls/rd_switch_button.h"
#include "controls/wrap_label.h"
#include "hiding/item_commands.h"
#include "list/drag_drop_view.h"
#include "platform/bundle.h"
#include "platform/file_attributes.h"
#include "platform/notification_center.h"
#include "platform/workspace.h"
#include "state/readings.h"

namespace {

constexpr QSize iconSize(96, 96);

// In units of 8192 bytes, in single precision: the figure is shown so on purpose.
QString sizeText(qint64 bytes) {
    const auto figure = static_cast<float>(static_cast<double>(bytes) * 0.125 * 0.0009765625);
    return QString::asprintf("%f K", static_cast<double>(figure));
}

// The locale's long form without the weekday, which is at its beginning, at its end or, with a word
// for "day", in between.
QString formatWithoutWeekday(const QLocale& locale) {
    static const QRegularExpression weekday(
        QStringLiteral("^dddd[\\s,،፣]*|[\\s,،-]*('[^']*'\\s*)?dddd(\\s*'[^']*')?"));
    return locale.dateFormat(QLocale::LongFormat).remove(weekday).trimmed();
}

QString dateText(const QDateTime& date) {
    if (!date.isValid()) {
        return {};
    }
    const QLocale locale;
    const QString pattern =
        Bundle::localizedString(QStringLiteral("%1 at %2"), QStringLiteral("Main"));
    return pattern.arg(locale.toString(date.date(), formatWithoutWeekday(locale)),
                       locale.toString(date.time(), QLocale::ShortFormat));
}

}  // namespace

InformationPane::InformationPane(const Outlets& outlets, DragDropView& list, ItemCommands& commands,
                                 std::function<bool()> canEditorItem)
    : outlets_(outlets),
      list_(list),
      commands_(commands),
      canEditorItem_(std::move(canEditorItem)),
      icon_(outlets.fileIconView, [this] { showIcon(); }) {
    QFont bold = outlets_.filleTitle->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.2);
    outlets_.filleTitle->setFont(bold);
}

void InformationPane::selectedTableLists(const ItemRecord* record) {
    showOrHide();
    RDSwitchButton* const show = outlets_.switchButton;
    if (record == nullptr) {
        clear();
        show->setImage(QStringLiteral("switch-pressed-right"));
        list_.reloadData();
        return;
    }
    commands_.setSelectPath(record->filePath());
    showItem(*record);
    show->setOn(truthReading(record->visible()));
    show->setImage(show->on() ? QStringLiteral("switch-pressed-right")
                              : QStringLiteral("switch-left"));
    commands_.follow(show->on());
    commands_.logRemoveItem();
}

void InformationPane::showOrHide() const {
    const bool empty = list_.count() == 0;
    outlets_.customInfoView->setHidden(empty);
    outlets_.textScrollCiew->setHidden(!empty);
}

void InformationPane::showItem(const ItemRecord& record) {
    path_ = record.filePath();
    icon_.request();
    const auto attributes = attributesOfItem(path_);
    outlets_.filleTitle->setName(record.fileTitle());
    outlets_.kinDescLabel->setText(Workspace::shared().typeOfFile(path_));
    outlets_.whereDescLabel->setName(path_);
    outlets_.sizeDescLabel->setText(sizeText(attributes ? attributes->size : 0));
    outlets_.createdDescLabel->setText(attributes ? dateText(attributes->created) : QString());
    outlets_.modifiedDescLabel->setText(attributes ? dateText(attributes->modified) : QString());
}

void InformationPane::showIcon() const {
    outlets_.fileIconView->setPicture(Workspace::shared().iconForFile(path_), iconSize);
}

void InformationPane::clear() {
    icon_.cancel();
    outlets_.fileIconView->setPicture({}, iconSize);
    for (WrapLabel* label :
         {outlets_.filleTitle, outlets_.kinDescLabel, outlets_.whereDescLabel,
          outlets_.sizeDescLabel, outlets_.createdDescLabel, outlets_.modifiedDescLabel}) {
        label->setText(QString());
    }
}

void InformationPane::touchEvent(RdCustomButton* sender) const {
    if (!canEditorItem_() || list_.count() == 0) {
        return;
    }
    commands_.setSelectPath(list_.fileLists()->at(list_.selectRowIndex()).filePath());
    outlets_.sanjiao->setChecked(sender->on() != 0);
    const bool fold = sender->on() != 1;
    sender->setOn(fold ? 1 : 0);
    sender->setText(fold ? QStringLiteral("       Show item Info")
                         : QStringLiteral("       Hide item Info"));
    setLabelsHidden(fold);
}

void InformationPane::showOrHideInfomation(const Notification& notification) const {
    if (!canEditorItem_()) {
        return;
    }
    // The pane follows the button's own value, so every such notification toggles it.
    const bool hidden = notification.userInfo.value(QStringLiteral("hidden")).toBool();
    outlets_.dianjibutton->setState(hidden ? 1 : 0);
    touchEvent(outlets_.dianjibutton);
}

void InformationPane::setLabelsHidden(bool hidden) const {
    const Outlets& ui = outlets_;
    for (QLabel* label : std::initializer_list<QLabel*>{
             ui.kinTitle, ui.whereTitle, ui.modifiedTitle, ui.createdTitle, ui.sizeTitle,
             ui.kinDescLabel, ui.whereDescLabel, ui.modifiedDescLabel, ui.createdDescLabel,
             ui.sizeDescLabel}) {
        label->setHidden(hidden);
    }
}
