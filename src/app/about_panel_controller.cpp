#include "app/about_panel_controller.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>

#include "platform/application.h"
#include "platform/bundle.h"
#include "ui_AboutPanelController.h"

AboutPanelController::AboutPanelController() = default;
AboutPanelController::~AboutPanelController() = default;

QWidget* AboutPanelController::window() {
    if (window_) {
        return window_.get();
    }
    const auto text = [](const char* key) {
        return Bundle::localizedString(QString::fromUtf8(key),
                                       QStringLiteral("AboutPanelController"));
    };
    window_ = std::make_unique<QDialog>();
    window_->installEventFilter(this);
    Ui::AboutPanelController ui;
    ui.setupUi(window_.get());
    ui.iconView->setPixmap(Bundle::imageNamed(QStringLiteral("velmora"))
                               .pixmap(QSize(128, 128), window_->devicePixelRatioF()));
    QFont nameFont = ui.nameLabel->font();
    nameFont.setBold(true);
    nameFont.setPointSizeF(nameFont.pointSizeF() * 1.6);
    ui.nameLabel->setFont(nameFont);
    ui.nameLabel->setText(QStringLiteral("Velmora"));
    ui.versionLabel->setText(text("Version %1").arg(QCoreApplication::applicationVersion()));
    ui.descriptionLabel->setText(
        text("Hides files and folders from the file manager, and shows them again."));
    ui.copyrightLabel->setText(text("Copyright © 2026 The Velmora developers"));
    windowDidLoad();
    return window_.get();
}

bool AboutPanelController::windowShouldClose() {
    Application::stopModal();
    return true;
}

bool AboutPanelController::eventFilter(QObject* object, QEvent* event) {
    if (object == window_.get() && event->type() == QEvent::Close) {
        return !windowShouldClose();
    }
    return QObject::eventFilter(object, event);
}
