#include "list/accessible_items.h"

#include <utility>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

#include "controls/pane_button.h"
#include "list/drag_drop_table_view.h"
#include "platform/shown_text.h"

namespace {

class AccessibleTable;

class AccessibleRow final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleRow(DragDropTableView* table, int row) : table_(table), row_(row) {}

    bool isValid() const override {
        return table_ != nullptr && row_ < table_->model()->rowCount();
    }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(table_);
    }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QRect rect() const override {
        const QRect inView = table_->visualRect(table_->model()->index(row_, 0));
        return {table_->viewport()->mapToGlobal(inView.topLeft()), inView.size()};
    }
    QString text(QAccessible::Text kind) const override {
        if (!isValid()) {
            return {};
        }
        const auto cell = table_->cellForRow(row_);
        switch (kind) {
            case QAccessible::Name:
                return shownName(cell->listTextField) + QStringLiteral(", ") +
                       cell->statuesTextField;
            case QAccessible::Description:
                return shownName(cell->filePath);
            default:
                return {};
        }
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.selectable = true;
        state.focusable = true;
        state.selected = row_ == table_->currentRow();
        state.active = state.selected;
        state.focused = state.selected && table_->hasFocus();
        const QRect inView = table_->visualRect(table_->model()->index(row_, 0));
        state.offscreen = !table_->viewport()->rect().intersects(inView);
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override {
        QStringList names{pressAction()};
        if (isValid()) {
            if (table_->cellForRow(row_)->selected()) {
                names << QStringLiteral("Reveal");
            }
            names << QStringLiteral("Remove");
        }
        return names;
    }
    void doAction(const QString& name) override {
        if (!isValid() || !table_->isEnabled()) {
            return;
        }
        const auto cell = table_->cellForRow(row_);
        if (name == pressAction()) {
            table_->setFocus(Qt::OtherFocusReason);
            table_->selectRow(row_);
        } else if (name == QLatin1String("Reveal") && cell->selected()) {
            cell->searchFilePath();
        } else if (name == QLatin1String("Remove")) {
            cell->delatedFilePath();
        }
    }
    QString localizedActionName(const QString& name) const override {
        if (name == QLatin1String("Reveal")) {
            return DragDropTableView::tr("Reveal");
        }
        return name == QLatin1String("Remove")
                   ? DragDropTableView::tr("Remove")
                   : QAccessibleActionInterface::localizedActionName(name);
    }
    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

    // Whether the row's name has changed since this was last called, or since it was made.
    bool takeRenamed() {
        const QString name = text(QAccessible::Name);
        return std::exchange(name_, name) != name;
    }

private:
    QPointer<DragDropTableView> table_;
    int row_;
    QString name_ = text(QAccessible::Name);
};

class AccessibleTable final : public QAccessibleWidget {
public:
    explicit AccessibleTable(DragDropTableView* table)
        : QAccessibleWidget(table, QAccessible::List) {}
    ~AccessibleTable() override {
        for (const QAccessible::Id id : std::as_const(rows_)) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }

    // Called as early as in the table's constructor, when there is no model yet.
    int rowCount() const { return table()->model() != nullptr ? table()->model()->rowCount() : 0; }

    // The rows first, then the buttons of the row under the pointer.
    int childCount() const override { return rowCount() + static_cast<int>(shownButtons().size()); }
    QAccessibleInterface* child(int index) const override {
        if (index >= 0 && index < rowCount()) {
            return row(index);
        }
        return QAccessible::queryAccessibleInterface(shownButtons().value(index - rowCount()));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        for (auto entry = rows_.cbegin(); entry != rows_.cend(); ++entry) {
            if (QAccessible::accessibleInterface(entry.value()) == child) {
                return entry.key();
            }
        }
        const auto button = shownButtons().indexOf(qobject_cast<PaneButton*>(child->object()));
        return button < 0 ? -1 : rowCount() + static_cast<int>(button);
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint inView = table()->viewport()->mapFromGlobal(QPoint(x, y));
        for (PaneButton* button : shownButtons()) {
            if (button->geometry().contains(inView)) {
                return QAccessible::queryAccessibleInterface(button);
            }
        }
        const QModelIndex index = table()->indexAt(inView);
        return index.isValid() ? row(index.row()) : nullptr;
    }
    QAccessibleInterface* focusChild() const override {
        const int current = table()->currentRow();
        return table()->hasFocus() && current >= 0 && current < rowCount() ? row(current) : nullptr;
    }

    // With rows, the focus is that of the current one.
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.focused = state.focused && focusChild() == nullptr;
        return state;
    }

    void rowsChanged() {
        for (const QAccessible::Id id : std::as_const(rows_)) {
            auto* known = static_cast<AccessibleRow*>(QAccessible::accessibleInterface(id));
            if (known != nullptr && known->isValid() && known->takeRenamed()) {
                QAccessibleEvent name(known, QAccessible::NameChanged);
                QAccessible::updateAccessibility(&name);
            }
        }
        if (std::exchange(toldCount_, rowCount()) != rowCount()) {
            QAccessibleEvent reorder(table(), QAccessible::ObjectReorder);
            QAccessible::updateAccessibility(&reorder);
        }
    }
    // To be called when the table already reports the new row as current.
    void currentRowChanged(int left) const {
        const auto tell = [this](int of, QAccessible::Event what) {
            if (of >= 0 && of < rowCount()) {
                QAccessibleEvent event(row(of), what);
                QAccessible::updateAccessibility(&event);
            }
        };
        tell(left, QAccessible::SelectionRemove);
        tell(table()->currentRow(), QAccessible::SelectionAdd);
        if (table()->hasFocus()) {
            tell(table()->currentRow(), QAccessible::Focus);
        }
    }

private:
    DragDropTableView* table() const { return static_cast<DragDropTableView*>(object()); }
    QList<PaneButton*> shownButtons() const {
        QList<PaneButton*> shown;
        for (PaneButton* button : {table()->checkButton(), table()->deletedButton()}) {
            if (button->isVisible()) {
                shown << button;
            }
        }
        return shown;
    }
    QAccessibleInterface* row(int index) const {
        const auto known = rows_.constFind(index);
        if (known != rows_.cend()) {
            return QAccessible::accessibleInterface(*known);
        }
        auto* made = new AccessibleRow(table(), index);
        rows_.insert(index, QAccessible::registerAccessibleInterface(made));
        return made;
    }

    mutable QHash<int, QAccessible::Id> rows_;
    int toldCount_ = rowCount();
};

AccessibleTable* accessibleTable(DragDropTableView* table) {
    return QAccessible::isActive()
               ? dynamic_cast<AccessibleTable*>(QAccessible::queryAccessibleInterface(table))
               : nullptr;
}

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* table = qobject_cast<DragDropTableView*>(object);
    return table != nullptr ? new AccessibleTable(table) : nullptr;
}

}  // namespace

void installAccessibleItems() {
    QAccessible::installFactory(makeInterface);
}

void updateAccessibleItems(DragDropTableView* table) {
    if (AccessibleTable* known = accessibleTable(table)) {
        known->rowsChanged();
    }
}

void tellCurrentItem(DragDropTableView* table, int left) {
    if (const AccessibleTable* known = accessibleTable(table)) {
        known->currentRowChanged(left);
    }
}
