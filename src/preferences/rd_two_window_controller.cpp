#include "preferences/rd_two_window_controller.h"

#include <algorithm>
#include <array>

#include <QActionGroup>
#include <QCheckBox>
#include <QMainWindow>
#include <QShortcut>
#include <QVBoxLayout>

#include "platform/application.h"
#include "platform/bundle.h"
#include "platform/log.h"
#include "platform/notification_center.h"
#include "platform/notification_names.h"
#include "state/preference_keys.h"
#include "ui_RDTwoWindowController.h"

namespace {

using Touch = void (RDTwoWindowController::*)(QCheckBox*);

struct Option {
    Preference preference;
    const char* titleKey;
    QRect frame;  // in the pane, origin at the bottom left
    Touch touch;
};

constexpr QSize paneSize(540, 222);
constexpr int paneBottom = 19;

const std::array<Option, 4>& options() {
    using Controller = RDTwoWindowController;
    static const std::array<Option, 4> all{{
        {Preference::MakeVisibleAtLaunch,
         "Make visible all the listed items at launch",
         {75, 177, 271, 14},
         &Controller::checkButton1Touch},
        {Preference::MakeInvisibleOnQuit,
         "Make invisible all the listed items on quit",
         {75, 130, 268, 14},
         &Controller::checkButton2Touch},
        {Preference::OpenOnDoubleClick,
         "Make visible and open hidden items on double click",
         {75, 81, 338, 14},
         &Controller::checkButton3Touch},
        {Preference::AlternatingRowColors,
         "Use Alternating Colors For the Items List Rows",
         {75, 32, 307, 14},
         &Controller::checkButton4Touch},
    }};
    return all;
}

void store(int number, Preference preference, const QCheckBox* sender) {
    Log::line(QStringLiteral("%1 state:%2").arg(number).arg(sender->checkState() == Qt::Checked));
    setPreference(preference, sender->checkState() == Qt::Checked);
}

}  // namespace

std::unique_ptr<QWidget> RDTwoWindowController::loadWindow() {
    auto window = std::make_unique<QMainWindow>();
    Ui::RDTwoWindowController ui;
    ui.setupUi(window.get());
    window->setWindowTitle(Bundle::localizedString(QStringLiteral("Preferences"), preferenceTable));
    general_ = ui.general;
    general_->setText(Bundle::localizedString(QStringLiteral("General"), preferenceTable));
    general_->setIcon(Bundle::imageNamed(QStringLiteral("general")));
    // The buttons of a tool bar take no keyboard focus by default.
    ui.toobar->widgetForAction(general_)->setFocusPolicy(Qt::TabFocus);
    auto* panes = new QActionGroup(window.get());
    panes->addAction(general_);
    auto* close = new QShortcut(QKeySequence::Cancel, window.get());
    connect(close, &QShortcut::activated, this, &RDTwoWindowController::closeWindow);
    generalView_ = new QWidget(ui.content);
    generalView_->setObjectName(QStringLiteral("generalView"));
    auto* content = new QVBoxLayout(ui.content);
    content->setContentsMargins(0, 0, 0, paneBottom);
    content->addWidget(generalView_);
    return window;
}

void RDTwoWindowController::windowDidLoad() {
    test1();
    general_->setChecked(true);
    addBoxes();
    generalView_->findChild<QCheckBox*>()->setFocus();
    window()->adjustSize();
}

// The frames in options() are the least sizes: a box that the font makes higher grows around the
// middle of its frame, and pushes those below it down only where they would touch.
void RDTwoWindowController::addBoxes() {
    auto* rows = new QVBoxLayout(generalView_);
    rows->setContentsMargins(options().front().frame.x(), 0, 20, 0);
    rows->setSpacing(0);
    int top = 0;  // of the room that is left in the pane
    for (const Option& option : options()) {
        auto* box = new QCheckBox(
            Bundle::localizedString(QLatin1String(option.titleKey), preferenceTable), generalView_);
        box->setObjectName(preferenceName(option.preference));
        box->setMinimumSize(option.frame.size().expandedTo(box->sizeHint()));
        const int height = box->minimumHeight();
        const int given =
            paneSize.height() - option.frame.y() - (option.frame.height() + height) / 2;
        rows->addSpacing(std::max(0, given - top));
        rows->addWidget(box);
        top = std::max(top, given) + height;
        connect(box, &QCheckBox::clicked, this,
                [this, box, touch = option.touch] { (this->*touch)(box); });
        box->setChecked(preference(option.preference));
    }
    rows->addStretch();
    generalView_->setMinimumSize(paneSize.expandedTo(rows->minimumSize()));
}

void RDTwoWindowController::checkButton1Touch(QCheckBox* sender) {
    store(1, Preference::MakeVisibleAtLaunch, sender);
}

void RDTwoWindowController::checkButton2Touch(QCheckBox* sender) {
    store(2, Preference::MakeInvisibleOnQuit, sender);
}

void RDTwoWindowController::checkButton3Touch(QCheckBox* sender) {
    store(3, Preference::OpenOnDoubleClick, sender);
}

void RDTwoWindowController::checkButton4Touch(QCheckBox* sender) {
    store(4, Preference::AlternatingRowColors, sender);
    NotificationCenter::defaultCenter().postNotification(notification_names::changeCellData);
}

void RDTwoWindowController::closeWindow() {
    Application::stopModal();
    window()->close();
}

void RDTwoWindowController::test1() {
    generalView_->setHidden(false);
}
