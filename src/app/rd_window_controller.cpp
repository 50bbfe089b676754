#include "app/rd_window_controller.h"

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

RDWindowController::RDWindowController(QMainWindow& window, Hiding& hiding, QObject* parent)
    : QObject(parent), window_(window), hiding_(hiding) {}

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
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    if (preference(Preference::MakeInvisibleOnQuit)) {
        // On the stored list, not the window's working copy: the two agree.
        ItemList list = defaults.itemList().value_or(ItemList());
        hiding_.hideAtQuit(list);
        defaults.setItemList(list);
    }
    // An end that was asked for from outside meanwhile asks nobody.
    if (defaults.synchronize() || Shell::isInterrupted() || askWhetherToLoseChanges()) {
        Application::terminate();
    } else {
        closing_ = false;
        emit stayed();
    }
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
