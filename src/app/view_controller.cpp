#include "app/view_controller.h"

#include <QFrame>
#include <QLabel>
#include <QScrollArea>

#include "app/app_delegate.h"
#include "app/main_menu.h"
#include "controls/rd_custom_button.h"
#include "hiding/hiding.h"
#include "hiding/information_pane.h"
#include "hiding/item_adding.h"
#include "hiding/item_commands.h"
#include "hiding/item_switch.h"
#include "password/password_gate.h"
#include "platform/bundle.h"
#include "platform/notification_center.h"
#include "platform/notification_names.h"
#include "platform/workspace.h"
#include "preferences/rd_two_window_controller.h"
#include "state/missing_items.h"
#include "state/preference_keys.h"
#include "state/readings.h"
#include "state/user_defaults.h"

namespace {

constexpr QColor introductionColor{184, 184, 184};

void setTextColor(QWidget* widget, const QColor& color) {
    QPalette palette = widget->palette();
    palette.setColor(QPalette::WindowText, color);
    widget->setPalette(palette);
}

}  // namespace

ViewController::ViewController(const Outlets& outlets, AppDelegate& delegate, const Parts& parts,
                               QObject* parent)
    : QObject(parent), outlets_(outlets), delegate_(delegate), parts_(parts) {}

ViewController::~ViewController() {
    // The registrations of two other names stay: an observer that is destroyed is never called.
    for (const QString& name :
         {notification_names::showOrHideInformation, notification_names::verifyPassword,
          notification_names::changePassword, notification_names::addItem,
          notification_names::hideItem, notification_names::openItem,
          notification_names::removeItem, notification_names::closeItem}) {
        NotificationCenter::defaultCenter().removeObserver(this, name);
    }
    outlets_.fileListView->setDelegate(nullptr);
}

void ViewController::viewDidLoad() {
    addNotification();
    addLocal();
    loadFromStore();
}

void ViewController::loadFromStore() {
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    parts_.passwordGate.titleCommand();
    launchReveal();

    const QString password = storedPassword();
    outlets_.requirePassword->setState(password.isEmpty() ? 0 : 1);
    outlets_.textScrollCiew->viewport()->setAutoFillBackground(false);
    for (QFrame* line : {outlets_.fileListViewRightLine, outlets_.fileListViewBottomLine,
                         outlets_.itemInfomationLine}) {
        line->setPalette(Qt::black);
        line->setAutoFillBackground(true);
    }
    DragDropView* const list = outlets_.fileListView;
    list->setDelegate(this);
    list->setCanDragDrop(canEditorItem());
    outlets_.requirePassword->setState(
        password.isEmpty() ? 0 : integerReading(defaults.objectForKey(requirePasswordKey)));
    removeMissingItems(defaults);

    if (list->canDragDrop()) {
        list->loadStoredList();
    } else if (!password.isEmpty()) {
        parts_.passwordGate.askSoon();
    }
    parts_.informationPane.showOrHide();
    showIntroduction();
    parts_.passwordGate.enableCommand();
}

void ViewController::launchReveal() {
    // Looked up in the table "Main", although the preferences window stores it through its own.
    if (!preference(Preference::MakeVisibleAtLaunch, QStringLiteral("Main"))) {
        return;
    }
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    if (std::optional<ItemList> list = defaults.itemList()) {
        parts_.hiding.showAtLaunch(
            *list, canEditorItem() ? Hiding::Names::Shown : Hiding::Names::Withheld);
        // Saved to the file together with what the existence filter leaves, in the same turn.
        defaults.setItemList(list);
    }
}

void ViewController::showIntroduction() {
    setTextColor(outlets_.textView, introductionColor);
    outlets_.textView->setText(
        Bundle::localizedString(QStringLiteral("textViewTitle"), QStringLiteral("Main")));
}

void ViewController::addNotification() {
    NotificationCenter& center = NotificationCenter::defaultCenter();
    namespace names = notification_names;
    center.addObserver(this, &ViewController::revealInFinderMenuItem, names::revealInFinder);
    center.addObserver(this, &ViewController::showOrHideInfomation, names::showOrHideInformation);
    center.addObserver(this, &ViewController::changePassword, names::changePassword);
    center.addObserver(this, &ViewController::yanzhengPassword, names::verifyPassword);
    center.addObserver(this, &ViewController::addmeaunItem, names::addItem);
    center.addObserver(this, &ViewController::hidemeaunItem, names::hideItem);
    center.addObserver(this, &ViewController::openmeaunItem, names::openItem);
    center.addObserver(this, &ViewController::removemeaunItem, names::removeItem);
    center.addObserver(this, &ViewController::closemeaunItem, names::closeItem);
    center.addObserver(this, &ViewController::changePasswordMeunItem, names::changePasswordItem);
}

void ViewController::addLocal() {
    appDelegate_ = &delegate_;
    titleMenus(appDelegate_->outlets());
}

void ViewController::settingButtonTouch() {
    RDTwoWindowController controller;
    controller.runModal();
}

void ViewController::addmeaunItem(const Notification& /*notification*/) {
    addfileList(nullptr);
}

void ViewController::hidemeaunItem(const Notification& /*notification*/) {
    touchSwitch(outlets_.switchButton);
}

void ViewController::openmeaunItem(const Notification& /*notification*/) {
    Workspace::shared().openFile(selectPath());
}

void ViewController::removemeaunItem(const Notification& /*notification*/) {
    outlets_.fileListView->removeCurrentRecord();
    if (outlets_.fileListView->count() == 0) {
        parts_.itemCommands.disable();
    }
}

void ViewController::revealInFinderMenuItem(const Notification& /*notification*/) {
    Workspace::shared().selectFile(selectPath());
}

std::optional<QString> ViewController::InvokingShellScript() const {
    return parts_.hiding.showAllSetting();
}

void ViewController::touchSwitch(RDSwitchButton* sender) {
    parts_.itemSwitch.touchSwitch(sender);
}

void ViewController::touchEvent(RdCustomButton* sender) {
    parts_.informationPane.touchEvent(sender);
}

void ViewController::addfileList(QObject* /*sender*/) {
    parts_.itemAdding.addfileList();
}

void ViewController::selectedTableLists(const ItemRecord* record) {
    parts_.informationPane.selectedTableLists(record);
}

void ViewController::showOrHideInfomation(const Notification& notification) {
    parts_.informationPane.showOrHideInfomation(notification);
}

bool ViewController::canEditorItem() const {
    return parts_.passwordGate.canEditorItem();
}

void ViewController::require_password(RdCustomButton* sender) {
    parts_.passwordGate.require_password(sender);
}

void ViewController::inputRequire_password(RdCustomButton* sender) {
    parts_.passwordGate.inputRequire_password(sender);
}

void ViewController::changePasswordMeunItem(const Notification& notification) {
    parts_.passwordGate.changePasswordMeunItem(notification);
}

void ViewController::changePassword(const Notification& notification) {
    parts_.passwordGate.changePassword(notification);
}

void ViewController::yanzhengPassword(const Notification& notification) {
    parts_.passwordGate.yanzhengPassword(notification);
}

QString ViewController::selectPath() const {
    return parts_.itemCommands.selectPath();
}
