#include "app/main_window.h"

#include <utility>

#include <QWindow>

#include "app/main_menu.h"
#include "app/main_window_look.h"
#include "controls/rd_custom_button.h"
#include "controls/rd_switch_button.h"
#include "platform/application.h"
#include "state/user_defaults.h"
#include "ui_Main.h"

namespace {

std::unique_ptr<Ui::Main> loadInterface(QMainWindow& window) {
    auto ui = std::make_unique<Ui::Main>();
    ui->setupUi(&window);
    dressMainWindow(*ui, window);
    return ui;
}

InformationPane::Outlets paneOutlets(const Ui::Main& ui) {
    return {.customInfoView = ui.customInfoView,
            .textScrollCiew = ui.textScrollCiew,
            .fileIconView = ui.fileIconView,
            .filleTitle = ui.filleTitle,
            .kinTitle = ui.kinTitle,
            .kinDescLabel = ui.kinDescLabel,
            .whereTitle = ui.whereTitle,
            .whereDescLabel = ui.whereDescLabel,
            .sizeTitle = ui.sizeTitle,
            .sizeDescLabel = ui.sizeDescLabel,
            .createdTitle = ui.createdTitle,
            .createdDescLabel = ui.createdDescLabel,
            .modifiedTitle = ui.modifiedTitle,
            .modifiedDescLabel = ui.modifiedDescLabel,
            .dianjibutton = ui.dianjibutton,
            .sanjiao = ui.sanjiao,
            .switchButton = ui.switchButton};
}

ViewController::Outlets viewOutlets(const Ui::Main& ui) {
    return {.fileListView = ui.fileListView,
            .switchButton = ui.switchButton,
            .requirePassword = ui.requirePassword,
            .textScrollCiew = ui.textScrollCiew,
            .textView = ui.textView,
            .fileListViewRightLine = ui.fileListViewRightLine,
            .fileListViewBottomLine = ui.fileListViewBottomLine,
            .itemInfomationLine = ui.itemInfomationLine};
}

}  // namespace

MainWindow::MainWindow(OpenPanel openPanel)
    : outlets_(loadInterface(window_)),
      quietLine_(outlets_->quietLine),
      delegate_(MenuOutlets(*outlets_)),
      itemCommands_({.hideMenuItem = outlets_->hideMenuItem,
                     .openMenuItem = outlets_->openMenuItem,
                     .revealInFinderMenuItem = outlets_->revealInFinderMenuItem,
                     .removeMenuItem = outlets_->removeMenuItem}),
      passwordGate_({.window = &window_,
                     .requirePassword = outlets_->requirePassword,
                     .fileListView = outlets_->fileListView,
                     .passwordMeunItem = outlets_->passwordMeunItem}),
      informationPane_(paneOutlets(*outlets_), *outlets_->fileListView, itemCommands_,
                       [this] { return passwordGate_.canEditorItem(); }),
      itemSwitch_(*outlets_->fileListView, itemCommands_, hiding_),
      itemAdding_(window_, *outlets_->fileListView, itemCommands_, std::move(openPanel),
                  [this] { return passwordGate_.canEditorItem(); }),
      viewController_(viewOutlets(*outlets_), delegate_,
                      {.hiding = hiding_,
                       .itemCommands = itemCommands_,
                       .itemSwitch = itemSwitch_,
                       .itemAdding = itemAdding_,
                       .informationPane = informationPane_,
                       .passwordGate = passwordGate_}),
      windowController_(window_, hiding_) {
    setMenuKeys(delegate_.outlets());
    connectStandardCommands(delegate_.outlets(), window_);
    connectControls();
    connectQuietLine();
    Shell::setWhileWaiting([this] { stayPainted(); });
}

MainWindow::~MainWindow() {
    Shell::setWhileWaiting({});
}

void MainWindow::load() {
    windowController_.windowDidLoad();
    viewController_.viewDidLoad();
    followStore();
}

void MainWindow::readStoreAgain() {
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    if (!defaults.isRead() && defaults.readAgain()) {
        viewController_.loadFromStore();
        followStore();
    }
}

void MainWindow::followStore() {
    // What would change the store waits until it is read.
    const bool isRead = UserDefaults::standardUserDefaults().isRead();
    const Ui::Main& ui = *outlets_;
    for (QWidget* control : std::initializer_list<QWidget*>{ui.addButton, ui.switchButton,
                                                            ui.requirePassword, ui.settingButton}) {
        control->setEnabled(isRead);
    }
    ui.addMenuItem->setEnabled(isRead);
    ui.preferenceMenuItem->setEnabled(isRead);
}

void MainWindow::bringForward(const QByteArray& token) {
    if (!token.isEmpty()) {
        qputenv("XDG_ACTIVATION_TOKEN", token);
    }
    if (window_.isMinimized()) {
        window_.showNormal();
    }
    window_.raise();
    window_.activateWindow();
}

void MainWindow::stayPainted() {
    // Nothing but painting: whatever else comes waits for the end of the press or the pass.
    if (window_.isVisible()) {
        window_.repaint();
    }
    if (auto* application = qobject_cast<Application*>(QCoreApplication::instance())) {
        application->discardPendingInput();
    }
}

void MainWindow::connectControls() {
    const Ui::Main& ui = *outlets_;
    ViewController* const view = &viewController_;
    const auto onClick = [view](QAbstractButton* button, auto action) {
        QObject::connect(button, &QAbstractButton::clicked, view, action);
    };
    onClick(ui.switchButton, [view, &ui] { view->touchSwitch(ui.switchButton); });
    onClick(ui.dianjibutton, [view, &ui] { view->touchEvent(ui.dianjibutton); });
    onClick(ui.requirePassword, [view, &ui] { view->require_password(ui.requirePassword); });
    onClick(ui.addButton, [view, &ui] { view->addfileList(ui.addButton); });
    onClick(ui.settingButton, [view] { view->settingButtonTouch(); });
    QObject::connect(&windowController_, &RDWindowController::stayed, ui.fileListView, [&ui] {
        ui.fileListView->takeMarks(
            UserDefaults::standardUserDefaults().itemList().value_or(ItemList()));
    });
    if (auto* application = qobject_cast<Application*>(QCoreApplication::instance())) {
        QObject::connect(application, &Application::exceptionReported, ui.fileListView,
                         &DragDropView::showWhatIsThere);
        QObject::connect(application, &QGuiApplication::focusWindowChanged, view,
                         [this] { readStoreAgain(); });
    }
}

void MainWindow::connectQuietLine() {
    UserDefaults* const defaults = &UserDefaults::standardUserDefaults();
    const auto sayProblem = [this, defaults] { quietLine_.sayStore(defaults->problem()); };
    QObject::connect(defaults, &UserDefaults::problemChanged, &quietLine_, sayProblem);
    sayProblem();
    QObject::connect(outlets_->fileListView, &DragDropView::dropRefused, &quietLine_,
                     &QuietLine::sayDrop);
    QObject::connect(&hiding_, &Hiding::switched, &quietLine_, &QuietLine::saySwitched);
    QObject::connect(&hiding_, &Hiding::unreachedChanged, &quietLine_,
                     [this] { quietLine_.sayUnreached(hiding_.unreached()); });
}
