#include "app/main_window_look.h"

#include <algorithm>

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QMenu>
#include <QScreen>

#include "controls/looks.h"
#include "platform/bundle.h"
#include "platform/shown_text.h"
#include "ui_Main.h"

namespace {

constexpr QSize leastWindow(560, 380);
constexpr int leastListWidth = 260;
constexpr int leastListHeight = 200;
constexpr int leastPaneWidth = 240;

QIcon image(const char* name) {
    return Bundle::imageNamed(QLatin1String(name));
}

QString mainText(const char* key) {
    return Bundle::localizedString(QLatin1String(key), QStringLiteral("Main"));
}

// An icon of two pictures, for the two states of a checkable button.
QIcon twoStates(const char* off, const char* on) {
    const QString file = QStringLiteral(":/images/%1.svg");
    QIcon icon;
    icon.addFile(file.arg(QLatin1String(off)), {}, QIcon::Normal, QIcon::Off);
    icon.addFile(file.arg(QLatin1String(on)), {}, QIcon::Normal, QIcon::On);
    return icon;
}

// The list, header, pane and bar have fixed light colours. On a dark desktop the rest of the window
// is light too; only the selection keeps the desktop's colours.
QPalette windowPalette(const QPalette& desktop) {
    constexpr int middle = 128;
    if (desktop.color(QPalette::Window).lightness() >= middle &&
        desktop.color(QPalette::Base).lightness() >= middle) {
        return {};
    }
    QPalette light(QColor(239, 240, 241));
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText}) {
        light.setColor(role, desktop.color(role));
    }
    light.setColor(QPalette::Disabled, QPalette::HighlightedText,
                   light.color(QPalette::Disabled, QPalette::Text));
    return light;
}

// Pane and bar lie on a light backdrop whatever the desktop's palette is.
QPalette backdropPalette() {
    QPalette onBackdrop(QColor(222, 225, 229), QColor(185, 190, 197));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        onBackdrop.setColor(QPalette::Active, role, QColor(20, 24, 29));
        onBackdrop.setColor(QPalette::Inactive, role, QColor(20, 24, 29));
        onBackdrop.setColor(QPalette::Disabled, role, QColor(70, 76, 83));
    }
    return onBackdrop;
}

void applyInvitationLook(const Ui::Main& ui) {
    ui.invitation->setAutoFillBackground(false);
    // Drops and clicks on the invitation are meant for the list beneath it.
    ui.textScrollCiew->setAttribute(Qt::WA_TransparentForMouseEvents);
    ui.textScrollCiew->setAcceptDrops(false);
    ui.invitationPicture->setPicture(image("drop"), {96, 96});
}

void applyControlLook(const Ui::Main& ui) {
    ui.hiddenCaption->setText(mainText("L5h-mo-cYT.title"));
    ui.visibleCaption->setText(mainText("lEi-kk-qD3.title"));
    ui.addButton->setIcon(image("add"));
    ui.addButton->setIconSize({20, 20});
    ui.addButton->setToolTip(withoutMnemonic(mainText("addMenuItem")));
    ui.addButton->setAppearance(PaneButton::Appearance::Framed);
    ui.settingButton->setIcon(image("settings"));
    ui.settingButton->setIconSize({24, 24});
    ui.settingButton->setToolTip(withoutMnemonic(mainText("preferenceMenuItem")));
    ui.requirePassword->setIcon(twoStates("protection-off", "protection-on"));
    ui.requirePassword->setIconSize({42, 22});
    // Only shows the state of the button beside it.
    ui.sanjiao->setEnabled(false);
    ui.sanjiao->setIcon(twoStates("disclosure-closed", "disclosure-open"));
    ui.sanjiao->setIconSize({12, 12});
    ui.sanjiao->setAppearance(PaneButton::Appearance::Indicator);
    ui.sanjiao->setAttribute(Qt::WA_TransparentForMouseEvents);
}

/// Keeps the window's colours and its least sizes as the desktop's palette, the font and the texts
/// need them.
class Look final : public QObject {
public:
    Look(const Ui::Main& ui, QMainWindow& window) : QObject(&window), ui_(ui), window_(window) {
        ui.contentLayout->insertItem(0, strut_);
        applyInvitationLook(ui);
        applyControlLook(ui);
        ui.informationScroll->viewport()->setAutoFillBackground(false);
        ui.customInfoView->setAutoFillBackground(false);
        colour();
        fit();
        window.resize(grown(window.size(), window.font())
                          .boundedTo(window.screen()->availableSize() - QSize(40, 80)));
        for (QObject* watched : std::initializer_list<QObject*>{
                 &window, ui.invitation, ui.customInfoView, ui.bottomBar, ui.quietLine}) {
            watched->installEventFilter(this);
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
            case QEvent::ApplicationPaletteChange:
                colour();
                break;
            case QEvent::FontChange:
            case QEvent::LayoutRequest:
            case QEvent::LanguageChange:
                fit();
                break;
            case QEvent::ShowToParent:
            case QEvent::HideToParent:
                // A pane that is not shown must not show a scroll bar.
                if (watched == ui_.customInfoView) {
                    ui_.informationScroll->setVerticalScrollBarPolicy(ui_.customInfoView->isHidden()
                                                                          ? Qt::ScrollBarAlwaysOff
                                                                          : Qt::ScrollBarAsNeeded);
                }
                break;
            case QEvent::Resize:
                if (watched == ui_.quietLine) {
                    fit();
                }
                break;
            default:
                break;
        }
        return false;
    }

private:
    void colour() {
        window_.setPalette(windowPalette(QApplication::palette()));
        for (QMenu* menu : ui_.mainMenu->findChildren<QMenu*>()) {
            menu->setPalette(window_.palette());
        }
        ui_.informationBackdrop->setPalette(backdropPalette());
        ui_.bottomBar->setPalette(backdropPalette());
    }

    // Nothing is cut off in the smallest window.
    void fit() {
        const int scrollBar = window_.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        const int pane =
            std::max(leastPaneWidth, ui_.informationLayout->minimumSize().width() + scrollBar);
        ui_.informationBackdrop->setMinimumWidth(pane);
        ui_.informationBackdrop->setMaximumWidth(2 * pane);
        const int width = std::max(grown(leastListWidth, window_.font()),
                                   ui_.fileListView->minimumSizeHint().width());
        const int invitation = ui_.invitationLayout->heightForWidth(width);
        ui_.fileListView->setMinimumSize(width, std::max(leastListHeight, invitation));
        // The quiet line wraps, which the window's layout does not ask for.
        ui_.quietLine->setMinimumHeight(
            ui_.quietLine->isHidden() ? 0 : ui_.quietLine->heightForWidth(ui_.quietLine->width()));
        const int menus = ui_.mainMenu->sizeHint().width();
        const int upper = leastWindow.height() - ui_.mainMenu->sizeHint().height() -
                          ui_.bottomBar->minimumSizeHint().height() - 1;
        ui_.informationBackdrop->setMinimumHeight(upper);
        if (const int least = std::max(leastWindow.width(), menus);
            strut_->minimumSize().width() != least) {
            strut_->changeSize(least, 0, QSizePolicy::Minimum, QSizePolicy::Fixed);
            ui_.contentLayout->invalidate();
        }
    }

    const Ui::Main ui_;
    QMainWindow& window_;
    QSpacerItem* strut_ = new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Fixed);
};

}  // namespace

void applyLook(const Ui::Main& ui, QMainWindow& window) {
    new Look(ui, window);
}
