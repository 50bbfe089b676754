#include "controls/accessible_labels.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLabel>

namespace {

/// A picture or a line that only repeats what is said in words beside it.
class AccessibleDecoration final : public QAccessibleWidget {
public:
    explicit AccessibleDecoration(QWidget* widget)
        : QAccessibleWidget(widget, QAccessible::Whitespace) {}

    QAccessible::State state() const override {
        QAccessible::State state;
        state.invisible = true;
        return state;
    }
};

class AccessibleLiveRegion final : public QAccessibleWidget {
public:
    explicit AccessibleLiveRegion(QLabel* label)
        : QAccessibleWidget(label, QAccessible::Notification) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? static_cast<QLabel*>(object())->text()
                                         : QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget != nullptr && widget->property("decoration").toBool()) {
        return new AccessibleDecoration(widget);
    }
    auto* label = qobject_cast<QLabel*>(object);
    if (label != nullptr && label->property("liveRegion").toBool()) {
        return new AccessibleLiveRegion(label);
    }
    return nullptr;
}

}  // namespace

void installAccessibleLabels() {
    QAccessible::installFactory(makeInterface);
}
