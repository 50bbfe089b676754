#include "app/main_window_look.h"

#include <algorithm>

#include <QMainWindow>
#include <QScreen>

#include "platform/bundle.h"
#include "ui_Main.h"

namespace {

QIcon image(const char* name) {
    return Bundle::imageNamed(QLatin1String(name));
}

QString mainText(const char* key) {
    return Bundle::localizedString(QLatin1String(key), QStringLiteral("Main"));
}

// An icon of two pictures, for the two states of a checkable button.
QIcon twoStates(const char* off, const char* on, const QSize& size) {
    QIcon icon;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled}) {
        icon.addPixmap(image(off).pixmap(size), mode, QIcon::Off);
        icon.addPixmap(image(on).pixmap(size), mode, QIcon::On);
    }
    return icon;
}

// Pane and bar lie on a light backdrop whatever the desktop's palette is.
void dressBackdrops(const Ui::Main& ui) {
    QPalette onBackdrop(QColor(222, 225, 229), QColor(185, 190, 197));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        onBackdrop.setColor(QPalette::Active, role, QColor(20, 24, 29));
        onBackdrop.setColor(QPalette::Inactive, role, QColor(20, 24, 29));
        onBackdrop.setColor(QPalette::Disabled, role, QColor(110, 117, 125));
    }
    ui.informationBackdrop->setPalette(onBackdrop);
    ui.bottomBar->setPalette(onBackdrop);
    ui.informationScroll->viewport()->setAutoFillBackground(false);
    ui.customInfoView->setAutoFillBackground(false);
}

void dressInvitation(const Ui::Main& ui) {
    ui.invitation->setAutoFillBackground(false);
    // Drops and clicks on the invitation are meant for the list beneath it.
    ui.textScrollCiew->setAttribute(Qt::WA_TransparentForMouseEvents);
    ui.textScrollCiew->setAcceptDrops(false);
    ui.invitationPicture->setPixmap(
        image("drop").pixmap(QSize(96, 96), ui.invitationPicture->devicePixelRatioF()));
}

// A larger font gets a larger window and a wider pane.
void growWithFont(const Ui::Main& ui, QMainWindow& window) {
    constexpr double usualLine = 15.0;
    const double scale = std::max(1.0, window.fontMetrics().height() / usualLine);
    ui.informationBackdrop->setMinimumWidth(static_cast<int>(240 * scale));
    ui.informationBackdrop->setMaximumWidth(static_cast<int>(480 * scale));
    window.resize((QSizeF(window.size()) * scale)
                      .toSize()
                      .boundedTo(window.screen()->availableSize() - QSize(40, 80)));
}

void dressControls(const Ui::Main& ui) {
    ui.hiddenCaption->setText(mainText("L5h-mo-cYT.title"));
    ui.visibleCaption->setText(mainText("lEi-kk-qD3.title"));
    ui.addButton->setIcon(image("add"));
    ui.addButton->setIconSize({20, 20});
    ui.addButton->setToolTip(mainText("addMenuItem"));
    ui.addButton->setFramed(true);
    ui.settingButton->setIcon(image("settings"));
    ui.settingButton->setIconSize({24, 24});
    ui.settingButton->setToolTip(mainText("preferenceMenuItem"));
    ui.requirePassword->setIcon(twoStates("protection-off", "protection-on", {84, 44}));
    ui.requirePassword->setIconSize({42, 22});
    // Only shows how the button beside it stands.
    ui.sanjiao->setEnabled(false);
    ui.sanjiao->setIcon(twoStates("disclosure-closed", "disclosure-open", {24, 24}));
    ui.sanjiao->setIconSize({12, 12});
    ui.sanjiao->setAccessibleName(QStringLiteral("Disclosure triangle"));
    ui.sanjiao->setAttribute(Qt::WA_TransparentForMouseEvents);
}

}  // namespace

void dressMainWindow(const Ui::Main& ui, QMainWindow& window) {
    dressBackdrops(ui);
    dressInvitation(ui);
    dressControls(ui);
    growWithFont(ui, window);
}
