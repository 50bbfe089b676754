#include "platform/modal_window_controller.h"

#include <QEvent>
#include <QWidget>

#include "platform/application.h"

ModalWindowController::ModalWindowController() = default;
ModalWindowController::~ModalWindowController() = default;

QWidget* ModalWindowController::window() {
    if (!window_) {
        window_ = loadWindow();
        window_->installEventFilter(this);
        windowDidLoad();
    }
    return window_.get();
}

void ModalWindowController::runModal() {
    Application::runModalForWindow(window());
}

bool ModalWindowController::windowShouldClose() {
    Application::stopModal();
    return true;
}

bool ModalWindowController::eventFilter(QObject* object, QEvent* event) {
    if (object == window_.get() && event->type() == QEvent::Close) {
        return !windowShouldClose();
    }
    return QObject::eventFilter(object, event);
}
