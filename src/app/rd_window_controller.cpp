#include "app/rd_window_controller.h"

#include <QEvent>
#include <QMainWindow>

#include "hiding/command_lines.h"
#include "platform/application.h"
#include "platform/bundle.h"
#include "platform/shell.h"
#include "state/preference_keys.h"
#include "state/user_defaults.h"

RDWindowController::RDWindowController(QMainWindow* window, QObject* parent)
    : QObject(parent), window_(window) {}

void RDWindowController::windowDidLoad() {
    window_->setWindowTitle(
        Bundle::localizedString(QStringLiteral("uQy-DD-JDr.title"), QStringLiteral("Main")));
    window_->installEventFilter(this);
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
        for (qsizetype index = 0; index < list.size(); ++index) {
            ItemRecord record = list.at(index);
            record.setVisible(VisibleForm::StringZero);
            list.replace(index, record);
            Shell::run(command_lines::hideAtQuit(record.filePath()));
            emit itemHidden(record.filePath());
        }
        defaults.setItemList(list);
    }
    Application::terminate();
}

bool RDWindowController::windowShouldClose() {
    Application::stopModal();
    return true;
}

bool RDWindowController::eventFilter(QObject* object, QEvent* event) {
    if (object == window_ && event->type() == QEvent::Close) {
        event->ignore();
        if (windowShouldClose()) {
            closeApplication();
        }
        return true;
    }
    return QObject::eventFilter(object, event);
}
