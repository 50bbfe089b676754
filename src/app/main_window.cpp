#include "app/main_window.h"

#include <utility>

#include <QWindow>

#include "app/main_menu.h"
#include "app/main_window_look.h"
#include "controls/rd_custom_button.h"
#include "controls/rd_switch_button.h"
#include "hiding/unmet_marks.h"
#include "platform/application.h"
#include "state/preference_keys.h"
#include "state/user_defaults.h"
#include "ui_Main.h"

namespace {

std::unique_ptr<Ui::Main> loadInterface(QMainWindow& window) {
    auto ui = std::make_unique<Ui::Main>();
    ui->setupUi(&window);
    applyLook(*ui, window);
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

// The reading order: the list, the pane beside it, the bar below. In code because the list's own
// controls are in no interface file.
void orderTabs(const Ui::Main& ui) {
    const DragDropView& list = *ui.fileListView;
    QWidget* const order[] = {list.topViw()->leftButton(),
                              list.topViw()->rightButton(),
                              list.tableView(),
                              ui.dianjibutton,
                              ui.addButton,
                              ui.switchButton,
                              ui.requirePassword,
                              ui.settingButton};
    for (size_t next = 1; next < std::size(order); ++next) {
        QWidget::setTabOrder(order[next - 1], order[next]);
    }
    list.tableView()->setFocus();
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
      listState_({.fileListView = outlets_->fileListView,
                  .textScrollCiew = outlets_->textScrollCiew,
                  .invitationPicture = outlets_->invitationPicture,
                  .invitationHint = outlets_->invitationHint},
                 [this] { return passwordGate_.canEditorItem(); }),
      unmetMarks_(outlets_->fileListView, [this] { tellUnmetMarks(); }),
      viewController_(viewOutlets(*outlets_), delegate_,
                      {.hiding = hiding_,
                       .itemCommands = itemCommands_,
                       .itemSwitch = itemSwitch_,
                       .itemAdding = itemAdding_,
                       .informationPane = informationPane_,
                       .passwordGate = passwordGate_}),
      windowController_(window_, hiding_, [this] { return outlets_->fileListView->isLoaded(); }),
      requests_(*outlets_->fileListView, hiding_,
                [this] { return passwordGate_.canEditorItem(); }) {
    orderTabs(*outlets_);
    setMenuKeys(delegate_.outlets());
    keepRemoveKeyIn(*outlets_->fileListView->tableView(), delegate_.outlets());
    openByKey(*outlets_->mainMenu, window_);
    connectStandardCommands(delegate_.outlets(), window_);
    outlets_->fileListView->setRowCommands({outlets_->hideMenuItem, outlets_->openMenuItem});
    connectControls();
    connectQuietLine();
}

MainWindow::~MainWindow() = default;

void MainWindow::load() {
    windowController_.windowDidLoad();
    viewController_.viewDidLoad();
    unmetMarks_.request();
    followStore();
}

void MainWindow::readStoreAgain() {
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    if (!defaults.isRead() && defaults.readAgain()) {
        viewController_.loadFromStore();
        unmetMarks_.request();
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

void MainWindow::tellUnmetMarks() {
    // Only a pass over the whole list marks items that nobody has looked at since.
    if (preference(Preference::MakeVisibleAtLaunch, QStringLiteral("Main")) ||
        preference(Preference::MakeInvisibleOnQuit)) {
        quietLine_.sayUnmet(
            countUnmetMarks(UserDefaults::standardUserDefaults().itemList().value_or(ItemList())));
    }
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
    // Only painting: all other events wait for the end of the press or the pass.
    constexpr int betweenPaintings = 400;  // milliseconds
    if (window_.isVisible() &&
        (!sincePainted_.isValid() || sincePainted_.elapsed() >= betweenPaintings)) {
        window_.repaint();
        sincePainted_.start();
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
    // A removal or a sort puts another record into the current row and reports nothing: what the
    // remove command may do follows the row all the same.
    QObject::connect(ui.fileListView, &DragDropView::reloaded, view, [this, &ui] {
        itemCommands_.allowRemoval(ui.fileListView->isCurrentRecordVisible());
        listState_.refresh();
    });
    QObject::connect(&passwordGate_, &PasswordGate::changed, &listState_, &ListState::refresh);
    QObject::connect(&requests_, &RequestQueue::locked, view, [this](const QByteArray& token) {
        bringForward(token);
        passwordGate_.askNow();
    });
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
    QObject::connect(outlets_->fileListView, &DragDropView::happened, &quietLine_,
                     &QuietLine::sayHappened);
    QObject::connect(&requests_, &RequestQueue::happened, &quietLine_, &QuietLine::sayHappened);
    QObject::connect(&listState_, &ListState::closed, &quietLine_, &QuietLine::sayClosed);
    QObject::connect(&hiding_, &Hiding::switched, &quietLine_, &QuietLine::saySwitched);
    QObject::connect(&hiding_, &Hiding::unreachedChanged, &quietLine_,
                     [this] { quietLine_.sayUnreached(hiding_.unreached()); });
}
