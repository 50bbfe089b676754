#include "controls/accessible_buttons.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "controls/rd_custom_button.h"
#include "controls/rd_switch_button.h"

namespace {

/// A button whose actions click.
class AccessibleSwitch : public QAccessibleWidget {
public:
    explicit AccessibleSwitch(QAbstractButton* button)
        : QAccessibleWidget(button, QAccessible::CheckBox) {}

    QStringList actionNames() const override {
        return {pressAction(), toggleAction(), setFocusAction()};
    }
    void doAction(const QString& name) override {
        if (name == setFocusAction()) {
            button()->setFocus(Qt::OtherFocusReason);
        } else if ((name == pressAction() || name == toggleAction()) && button()->isEnabled()) {
            button()->click();
        }
    }
    QString text(QAccessible::Text kind) const override {
        const QString given = QAccessibleWidget::text(kind);
        // The disclosure button is named by its title, without the blanks that make room for the
        // triangle.
        return kind == QAccessible::Name && given.isEmpty() ? button()->text().trimmed()
                                                            : given.trimmed();
    }

protected:
    QAbstractButton* button() const { return static_cast<QAbstractButton*>(object()); }
};

class AccessibleShowSwitch final : public AccessibleSwitch {
public:
    explicit AccessibleShowSwitch(RDSwitchButton* button) : AccessibleSwitch(button) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = static_cast<RDSwitchButton*>(object())->on();
        return state;
    }
};

class AccessibleCustomButton final : public AccessibleSwitch {
public:
    explicit AccessibleCustomButton(RdCustomButton* button) : AccessibleSwitch(button) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        const auto* custom = static_cast<RdCustomButton*>(object());
        if (custom->text().isEmpty()) {
            // The protection switch: what its owner sets, and what is drawn, is the state.
            state.checkable = true;
            state.checked = custom->state() == 1;
        } else {
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
    return nullptr;
}

}  // namespace

void installAccessibleButtons() {
    QAccessible::installFactory(makeInterface);
}
