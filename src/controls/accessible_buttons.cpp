#include "controls/accessible_buttons.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>
#include <QToolButton>

#include "controls/rd_custom_button.h"
#include "controls/rd_switch_button.h"
#include "platform/shown_text.h"

namespace {

// What a click would do if the user could make one now: not while another window is in the way.
void clickIfInReach(QAbstractButton* button) {
    const QWidget* modal = QApplication::activeModalWidget();
    if (button->isVisible() && (modal == nullptr || modal == button->window())) {
        button->click();
    }
}

/// A button whose actions click.
class AccessibleButton : public QAccessibleWidget {
public:
    explicit AccessibleButton(QAbstractButton* button, QAccessible::Role role)
        : QAccessibleWidget(button, role) {}

    QStringList actionNames() const override {
        QStringList names{pressAction()};
        if (state().checkable) {
            names << toggleAction();
        }
        return names << setFocusAction();
    }
    void doAction(const QString& name) override {
        if (name == setFocusAction()) {
            button()->setFocus(Qt::OtherFocusReason);
        } else if (actionNames().contains(name) && button()->isEnabled()) {
            // The caller is answered first: the click may open a window that stays for long.
            QMetaObject::invokeMethod(
                button(), [clicked = button()] { clickIfInReach(clicked); }, Qt::QueuedConnection);
        }
    }
    QString text(QAccessible::Text kind) const override {
        const QString given = QAccessibleWidget::text(kind);
        // The disclosure button is named by its title, without the blanks that make room for the
        // triangle.
        return kind == QAccessible::Name && given.isEmpty()
                   ? withoutMnemonic(button()->text()).trimmed()
                   : given.trimmed();
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = button()->isCheckable();
        state.checked = button()->isChecked();
        return state;
    }

protected:
    QAbstractButton* button() const { return static_cast<QAbstractButton*>(object()); }
};

class AccessibleShowSwitch final : public AccessibleButton {
public:
    explicit AccessibleShowSwitch(RDSwitchButton* button)
        : AccessibleButton(button, QAccessible::CheckBox) {}

    QAccessible::State state() const override {
        QAccessible::State state = AccessibleButton::state();
        state.checkable = true;
        state.checked = static_cast<RDSwitchButton*>(object())->on();
        return state;
    }
};

class AccessibleCustomButton final : public AccessibleButton {
public:
    explicit AccessibleCustomButton(RdCustomButton* button)
        : AccessibleButton(button, QAccessible::CheckBox) {}

    QAccessible::State state() const override {
        QAccessible::State state = AccessibleButton::state();
        const auto* custom = static_cast<RdCustomButton*>(object());
        // The protection switch shows its built-in state, which its owner sets; the disclosure
        // button has a title and says whether the pane is open.
        if (!custom->text().isEmpty()) {
            state.checkable = false;
            state.checked = false;
            state.expandable = true;
            state.expanded = custom->on() != 1;
            state.collapsed = custom->on() == 1;
        }
        return state;
    }
    QAccessible::Role role() const override {
        return static_cast<RdCustomButton*>(object())->text().isEmpty() ? QAccessible::CheckBox
                                                                        : QAccessible::Button;
    }
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    if (auto* show = qobject_cast<RDSwitchButton*>(object)) {
        return new AccessibleShowSwitch(show);
    }
    if (auto* custom = qobject_cast<RdCustomButton*>(object)) {
        return new AccessibleCustomButton(custom);
    }
    auto* button = qobject_cast<QAbstractButton*>(object);
    if (button == nullptr) {
        return nullptr;
    }
    if (qobject_cast<QCheckBox*>(object) != nullptr) {
        return new AccessibleButton(button, QAccessible::CheckBox);
    }
    if (qobject_cast<QRadioButton*>(object) != nullptr) {
        return new AccessibleButton(button, QAccessible::RadioButton);
    }
    // A tool button may become checkable after this. One with a menu keeps Qt's own interface.
    const auto* tool = qobject_cast<QToolButton*>(object);
    if (button->isCheckable() || (tool != nullptr && tool->menu() == nullptr)) {
        return new AccessibleButton(button, QAccessible::Button);
    }
    return nullptr;
}

}  // namespace

void installAccessibleButtons() {
    QAccessible::installFactory(makeInterface);
}
