#include "preferences/rd_two_window_controller.h"

#include <QActionGroup>
#include <QCheckBox>
#include <QEvent>
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

RDTwoWindowController::RDTwoWindowController() = default;
RDTwoWindowController::~RDTwoWindowController() = default;

QWidget* RDTwoWindowController::window() {
    if (!window_) {
        window_ = std::make_unique<QMainWindow>();
        ui_ = std::make_unique<Ui::RDTwoWindowController>();
        ui_->setupUi(window_.get());
        window_->installEventFilter(this);
        windowDidLoad();
    }
    return window_.get();
}

void RDTwoWindowController::windowDidLoad() {
    const QString table = preferenceTable;
    window_->setWindowTitle(Bundle::localizedString(QStringLiteral("Preferences"), table));
    ui_->general->setText(Bundle::localizedString(QStringLiteral("General"), table));
    ui_->general->setIcon(Bundle::imageNamed(QStringLiteral("general")));

    // The frames in options() are the least sizes: a row keeps its place while font and language
    // allow, and pushes the others down otherwise.
    generalView_ = new QWidget(window_->centralWidget());
    generalView_->setObjectName(QStringLiteral("generalView"));
    auto* content = new QVBoxLayout(window_->centralWidget());
    content->setContentsMargins(0, 0, 0, paneBottom);
    content->addWidget(generalView_);
    test1();
    auto* close = new QShortcut(QKeySequence::Cancel, window_.get());
    connect(close, &QShortcut::activated, this, &RDTwoWindowController::closeWindow);
    auto* panes = new QActionGroup(window_.get());
    panes->addAction(ui_->general);
    ui_->general->setChecked(true);

    auto* rows = new QVBoxLayout(generalView_);
    rows->setContentsMargins(options().front().frame.x(), 0, 20, 0);
    rows->setSpacing(0);
    int top = paneSize.height();
    for (const Option& option : options()) {
        auto* box = new QCheckBox(Bundle::localizedString(QLatin1String(option.titleKey), table),
                                  generalView_);
        box->setObjectName(preferenceName(option.preference));
        box->setMinimumSize(option.frame.size().expandedTo(box->sizeHint()));
        rows->addSpacing(top - (option.frame.y() + option.frame.height()) -
                         (box->sizeHint().height() - option.frame.height()) / 2);
        rows->addWidget(box);
        top = option.frame.y();
        connect(box, &QCheckBox::clicked, this,
                [this, box, touch = option.touch] { (this->*touch)(box); });
        box->setChecked(preference(option.preference));
    }
    rows->addStretch();
    generalView_->setMinimumSize(paneSize.expandedTo(rows->minimumSize()));
    window_->adjustSize();
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

bool RDTwoWindowController::windowShouldClose() {
    Application::stopModal();
    return true;
}

void RDTwoWindowController::closeWindow() {
    Application::stopModal();
    window()->close();
}

void RDTwoWindowController::test1() {
    generalView_->setHidden(false);
}

bool RDTwoWindowController::eventFilter(QObject* object, QEvent* event) {
    if (object == window_.get() && event->type() == QEvent::Close) {
        return !windowShouldClose();
    }
    return QObject::eventFilter(object, event);
}
