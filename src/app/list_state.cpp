#include "app/list_state.h"

#include <utility>

#include <QLabel>

#include "controls/accessible_events.h"
#include "controls/picture_label.h"
#include "list/drag_drop_view.h"
#include "platform/bundle.h"
#include "state/user_defaults.h"

namespace {

constexpr QColor hintColor{84, 91, 99};
constexpr QSize pictureSize{96, 96};

}  // namespace

ListState::ListState(const Outlets& outlets, std::function<bool()> canEditorItem, QObject* parent)
    : QObject(parent), outlets_(outlets), canEditorItem_(std::move(canEditorItem)) {
    QPalette palette = outlets_.invitationHint->palette();
    palette.setColor(QPalette::WindowText, hintColor);
    outlets_.invitationHint->setPalette(palette);
}

ListState::Gate ListState::gate() const {
    if (!UserDefaults::standardUserDefaults().isRead()) {
        return Gate::StoreUnread;  // the quiet line says so already
    }
    if (!canEditorItem_()) {
        return Gate::Locked;
    }
    return outlets_.fileListView->canDragDrop() ? Gate::Open : Gate::DropsClosed;
}

void ListState::refresh() {
    const bool empty = outlets_.fileListView->count() == 0;
    const Gate now = gate();
    outlets_.textScrollCiew->setHidden(!empty);
    if (empty) {
        showHint(now);
    }
    QString reason;
    if (!empty && now == Gate::Locked) {
        reason = tr("The list is locked: the password protection switch unlocks it.");
    } else if (!empty && now == Gate::DropsClosed) {
        reason = tr("Drag and drop is closed until a password is entered or Velmora starts again.");
    }
    emit closed(reason);
}

void ListState::showHint(Gate gate) {
    if (gate == shownGate_) {
        return;
    }
    shownGate_ = gate;
    QString hint;
    switch (gate) {
        case Gate::Open:
            hint =
                tr("Drag files and folders here from your file manager,\n"
                   "or press “+” below to add files.");
            break;
        case Gate::DropsClosed:
            hint =
                tr("Press “+” below to add files. Drag and drop is closed\n"
                   "until a password is entered or Velmora starts again.");
            break;
        case Gate::Locked:
            hint = tr("The list is locked.\nThe password protection switch below unlocks it.");
            break;
        case Gate::StoreUnread:
            break;
    }
    outlets_.invitationHint->setText(hint);
    if (outlets_.invitationHint->isVisible()) {
        announce(outlets_.invitationHint, hint);
    }
    outlets_.invitationPicture->setPicture(
        Bundle::imageNamed(gate == Gate::Open ? QStringLiteral("drop") : QStringLiteral("lock")),
        pictureSize);
}
