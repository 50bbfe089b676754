#include "app/rd_window_controller.h"

#include <utility>

#include <QEvent>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>

#include "hiding/hiding.h"
#include "platform/application.h"
#include "platform/bundle.h"
#include "platform/shell.h"
#include "state/preference_keys.h"
#include "state/user_defaults.h"

RDWindowController::RDWindowController(QMainWindow& window, Hiding& hiding,
                                       std::function<bool()> isListShown, QObject* parent)
    : QObject(parent), window_(window), hiding_(hiding), isListShown_(std::move(isListShown)) {}

void RDWindowController::windowDidLoad() {
    window_.setWindowTitle(
        Bundle::localizedString(QStringLiteral("uQy-DD-JDr.title"), QStringLiteral("Main")));
    window_.installEventFilter(this);
}

void RDWindowController::closeApplication() {
    if (closing_) {
        return;
    }
    closing_ = true;
    const bool goesOn = !preference(Preference::MakeInvisibleOnQuit) || hideAtQuit();
    const bool isStored = UserDefaults::standardUserDefaults().synchronize();
    // An end that was asked for from outside meanwhile asks nobody.
    if (Shell::isInterrupted() || (goesOn && (isStored || askWhetherToLoseChanges()))) {
        Application::terminate();
    } else {
        closing_ = false;
        emit stayed();
    }
}

bool RDWindowController::hideAtQuit() {
    using Names = Hiding::Names;
    // On the stored list, not the window's working copy: the two agree.
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    ItemList list = defaults.itemList().value_or(ItemList());
    const bool goesOn =
        hiding_.hideAtQuit(list, isListShown_() ? Names::Shown : Names::Withheld, window_.winId());
    defaults.setItemList(list);
    return goesOn;
}

bool RDWindowController::askWhetherToLoseChanges() {
    QMessageBox alert(&window_);
    alert.setIcon(QMessageBox::Warning);
    alert.setText(UserDefaults::standardUserDefaults().problem());
    alert.setInformativeText(tr("Quit all the same, and lose the changes?"));
    const QPushButton* quit = alert.addButton(tr("Quit"), QMessageBox::DestructiveRole);
    QPushButton* stay = alert.addButton(tr("Stay"), QMessageBox::RejectRole);
    alert.setDefaultButton(stay);
    alert.setEscapeButton(stay);
    alert.exec();
    return alert.clickedButton() == quit;
}

bool RDWindowController::windowShouldClose() {
    Application::stopModal();
    return true;
}

bool RDWindowController::eventFilter(QObject* object, QEvent* event) {
    if (object == &window_ && event->type() == QEvent::Close) {
        event->ignore();
        if (windowShouldClose()) {
            closeApplication();
        }
        return true;
    }
    return QObject::eventFilter(object, event);
}
