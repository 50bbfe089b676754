#include <QLabel>
#include <QMainWindow>
#include <QScreen>
#include <QTimer>

#include "app/app_delegate.h"
#include "app/view_controller.h"
#include "controls/rd_custom_button.h"
#include "hiding/command_lines.h"
#include "platform/application.h"
#include "platform/bundle.h"
#include "platform/file_finder.h"
#include "platform/notification_center.h"
#include "platform/notification_names.h"
#include "platform/shell.h"
#include "state/dropped_items.h"
#include "state/preference_keys.h"
#include "state/readings.h"
#include "state/user_defaults.h"
#include "ui_Main.h"

namespace {

constexpr int passwordPromptDelay = 1000;  // milliseconds
constexpr QColor introductionColor{184, 184, 184};

}  // namespace

ViewController::ViewController(QMainWindow* window, AppDelegate& delegate, OpenPanel openPanel)
    : window_(window),
      delegate_(delegate),
      ui_(delegate.outlets()),
      openPanel_(std::move(openPanel)),
      informationPane_(ui_),
      quietLine_(ui_.quietLine),
      refresh_(Shell::defaultCompanionsFolder() + QStringLiteral("/refresh")) {}

ViewController::~ViewController() {
    // Two names are left in place; an observer that is gone is never called.
    for (const QString& name :
         {notification_names::showOrHideInformation, notification_names::verifyPassword,
          notification_names::changePassword, notification_names::addItem,
          notification_names::hideItem, notification_names::openItem,
          notification_names::removeItem, notification_names::closeItem}) {
        NotificationCenter::defaultCenter().removeObserver(this, name);
    }
    ui_.fileListView->setDelegate(nullptr);
}

void ViewController::viewDidLoad() {
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    dressWindow();
    addNotification();
    addLocal();
    launchReveal();

    const QString password = storedPassword();
    ui_.requirePassword->setState(password.isEmpty() ? 0 : 1);
    ui_.textScrollCiew->viewport()->setAutoFillBackground(false);
    QPalette blackLine;
    blackLine.setColor(QPalette::WindowText, Qt::black);
    for (QFrame* line :
         {ui_.fileListViewRightLine, ui_.fileListViewBottomLine, ui_.itemInfomationLine}) {
        line->setPalette(blackLine);
    }
    ui_.fileListView->setDelegate(this);
    ui_.fileListView->setCanDragDrop(canEditorItem());
    ui_.requirePassword->setState(
        password.isEmpty() ? 0 : integerReading(defaults.objectForKey(requirePasswordKey)));
    dropMissingItems();

    if (ui_.fileListView->canDragDrop()) {
        loadList();
    } else if (!password.isEmpty()) {
        QTimer::singleShot(passwordPromptDelay, this, &ViewController::promptAtLaunch);
    }
    const bool empty = ui_.fileListView->count() == 0;
    ui_.customInfoView->setHidden(empty);
    ui_.textScrollCiew->setHidden(!empty);

    QPalette introduction = ui_.textView->palette();
    introduction.setColor(QPalette::WindowText, introductionColor);
    ui_.textView->setPalette(introduction);
    ui_.textView->setText(
        Bundle::localizedString(QStringLiteral("textViewTitle"), QStringLiteral("Main")));
    updatePasswordCommand();
    connectControls();
}

void ViewController::launchReveal() {
    // The one place that resolves the preference in the table "Main".
    if (!preference(Preference::MakeVisibleAtLaunch, QStringLiteral("Main"))) {
        return;
    }
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    std::optional<ItemList> list = defaults.itemList();
    if (!list) {
        return;
    }
    for (qsizetype index = list->size() - 1; index >= 0; --index) {
        ItemRecord record = list->at(index);
        Shell::run(command_lines::show(record.filePath()));
        tellFileManagers(record.filePath());
        record.setVisible(VisibleForm::StringOne);
        list->replace(index, record);
    }
    // Saved to the file together with what dropMissingItems() leaves, in the same turn.
    defaults.setItemList(list);
}

void ViewController::dropMissingItems() {
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    std::optional<ItemList> list = defaults.itemList();
    if (list) {
        // Without a message; but an item that was hidden on a disk that is not there now must not
        // be forgotten for good.
        ItemList missing;
        FileFinder files(list->size());
        list->removeIf([&](const ItemRecord& record) {
            const bool gone = !files.exists(record.filePath());
            if (gone) {
                missing.append(record);
            }
            return gone;
        });
        DroppedItems(UserDefaults::fileBeside(DroppedItems::fileName)).keep(missing);
    }
    defaults.setItemList(list);
}

void ViewController::loadList() {
    DragDropView* list = ui_.fileListView;
    list->setFileLists(UserDefaults::standardUserDefaults().itemList());
    list->topViw()->activateLeftButton();
    list->reloadData();
    list->selectTableViewCellForRowIndex(0);
}

void ViewController::dressWindow() {
    const auto image = [](const char* name) { return Bundle::imageNamed(QLatin1String(name)); };
    const auto mainText = [](const char* key) {
        return Bundle::localizedString(QLatin1String(key), QStringLiteral("Main"));
    };
    // Pane and bar lie on a light backdrop whatever the desktop's palette is.
    QPalette onBackdrop(QColor(222, 225, 229), QColor(185, 190, 197));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        onBackdrop.setColor(QPalette::Active, role, QColor(20, 24, 29));
        onBackdrop.setColor(QPalette::Inactive, role, QColor(20, 24, 29));
        onBackdrop.setColor(QPalette::Disabled, role, QColor(110, 117, 125));
    }
    ui_.informationBackdrop->setPalette(onBackdrop);
    ui_.bottomBar->setPalette(onBackdrop);
    ui_.informationScroll->viewport()->setAutoFillBackground(false);
    ui_.customInfoView->setAutoFillBackground(false);
    ui_.invitation->setAutoFillBackground(false);
    // Drops and clicks on the invitation are meant for the list beneath it.
    ui_.textScrollCiew->setAttribute(Qt::WA_TransparentForMouseEvents);
    ui_.textScrollCiew->setAcceptDrops(false);
    ui_.invitationPicture->setPixmap(
        image("drop").pixmap(QSize(96, 96), ui_.invitationPicture->devicePixelRatioF()));

    // A larger font gets a larger window and a wider pane.
    constexpr double usualLine = 15.0;
    const double scale = std::max(1.0, window_->fontMetrics().height() / usualLine);
    ui_.informationBackdrop->setMinimumWidth(static_cast<int>(240 * scale));
    ui_.informationBackdrop->setMaximumWidth(static_cast<int>(480 * scale));
    window_->resize((QSizeF(window_->size()) * scale)
                        .toSize()
                        .boundedTo(window_->screen()->availableSize() - QSize(40, 80)));

    ui_.hiddenCaption->setText(mainText("L5h-mo-cYT.title"));
    ui_.visibleCaption->setText(mainText("lEi-kk-qD3.title"));
    ui_.addButton->setIcon(image("add"));
    ui_.addButton->setIconSize({20, 20});
    ui_.addButton->setToolTip(mainText("addMenuItem"));
    ui_.settingButton->setIcon(image("settings"));
    ui_.settingButton->setIconSize({24, 24});
    ui_.settingButton->setToolTip(mainText("preferenceMenuItem"));

    QIcon protection;
    protection.addPixmap(image("protection-off").pixmap(QSize(84, 44)), QIcon::Normal, QIcon::Off);
    protection.addPixmap(image("protection-on").pixmap(QSize(84, 44)), QIcon::Normal, QIcon::On);
    ui_.requirePassword->setIcon(protection);
    ui_.requirePassword->setIconSize({42, 22});
    QIcon triangle;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled}) {
        triangle.addPixmap(image("disclosure-closed").pixmap(QSize(24, 24)), mode, QIcon::Off);
        triangle.addPixmap(image("disclosure-open").pixmap(QSize(24, 24)), mode, QIcon::On);
    }
    // Only shows how the button beside it stands.
    ui_.sanjiao->setEnabled(false);
    ui_.sanjiao->setIcon(triangle);
    ui_.sanjiao->setIconSize({12, 12});
    ui_.sanjiao->setAccessibleName(QStringLiteral("Disclosure triangle"));
    ui_.sanjiao->setAttribute(Qt::WA_TransparentForMouseEvents);
    ui_.addButton->setFramed(true);
}

void ViewController::connectControls() {
    connect(ui_.switchButton, &RDSwitchButton::clicked, this,
            [this] { touchSwitch(ui_.switchButton); });
    connect(ui_.dianjibutton, &RdCustomButton::clicked, this,
            [this] { touchEvent(ui_.dianjibutton); });
    connect(ui_.requirePassword, &RdCustomButton::clicked, this,
            [this] { require_password(ui_.requirePassword); });
    connect(ui_.addButton, &QToolButton::clicked, this, [this] { addfileList(ui_.addButton); });
    connect(ui_.settingButton, &QToolButton::clicked, this, &ViewController::settingButtonTouch);

    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    const auto showProblem = [this, &defaults] {
        quietLine_.say(QuietLine::Store, defaults.problem());
    };
    connect(&defaults, &UserDefaults::problemChanged, this, showProblem);
    showProblem();
    connect(ui_.fileListView, &DragDropView::dropRefused, this,
            [this](const QString& text) { quietLine_.say(QuietLine::Drop, text); });
    connect(&visibility_, &ItemVisibility::checked, this,
            [this](const QString& message) { quietLine_.say(QuietLine::Item, message); });
    connect(&refresh_, &FileManagerRefresh::unreachedChanged, this, &ViewController::sayUnreached);
    if (auto* application = qobject_cast<Application*>(QCoreApplication::instance())) {
        connect(application, &Application::exceptionReported, this,
                &ViewController::showWhatIsThere);
    }
}

void ViewController::showWhatIsThere() {
    // A handler that failed may have shortened the list in memory. Nothing is reported for it.
    DragDropView* list = ui_.fileListView;
    if (list->selectRowIndex() >= list->count()) {
        list->setSelectRowIndex(static_cast<int>(list->count()) - 1);
    }
    list->tableView()->reloadData();
}
