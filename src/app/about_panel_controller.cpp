#include "app/about_panel_controller.h"

#include <QCoreApplication>
#include <QDialog>

#include "platform/bundle.h"
#include "ui_AboutPanelController.h"

std::unique_ptr<QWidget> AboutPanelController::loadWindow() {
    const auto text = [](const char* key) {
        return Bundle::localizedString(QString::fromUtf8(key),
                                       QStringLiteral("AboutPanelController"));
    };
    auto window = std::make_unique<QDialog>();
    Ui::AboutPanelController ui;
    ui.setupUi(window.get());
    ui.iconView->setPicture(Bundle::imageNamed(QStringLiteral("velmora")), {128, 128});
    QFont nameFont = ui.nameLabel->font();
    nameFont.setBold(true);
    nameFont.setPointSizeF(nameFont.pointSizeF() * 1.6);
    ui.nameLabel->setFont(nameFont);
    ui.nameLabel->setText(QStringLiteral("Velmora"));
    ui.versionLabel->setText(text("Version %1").arg(QCoreApplication::applicationVersion()));
    ui.descriptionLabel->setText(
        text("Hides files and folders from the file manager, and shows them again."));
    ui.copyrightLabel->setText(text("Copyright © 2026 The Velmora developers"));
    return window;
}
