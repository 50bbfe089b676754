#include <algorithm>

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "list/drag_drop_table_view.h"

void DragDropTableView::mousePressEvent(QMouseEvent* event) {
    const int row = rowAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton) {
        clickedRow_ = row;
        clickStartedHere_ = true;
    } else if (row < 0) {
        return;
    }
    if (row < 0) {
        // A click below the last row deselects, which gives the list its first row back.
        const bool selected = selectedRow() >= 0;
        selectionModel()->clearSelection();
        if (!selected && currentRow_ > 0) {
            emit selectionDidChange();
        }
        return;
    }
    if (selectedRow() == row && currentRow_ != row) {
        selectRow(row);
        return;
    }
    QListView::mousePressEvent(event);
}

void DragDropTableView::mouseDoubleClickEvent(QMouseEvent* event) {
    // The second half of a double click on a hover button that the first half has taken away is
    // meant for no row.
    if (!clickStartedHere_) {
        return;
    }
    QListView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton) {
        clickedRow_ = rowAt(event->position().toPoint());
        emit doubleAction();
    }
}

void DragDropTableView::mouseMoveEvent(QMouseEvent* event) {
    setHoveredRow(rowAt(event->position().toPoint()));
    QListView::mouseMoveEvent(event);
}

void DragDropTableView::keyPressEvent(QKeyEvent* event) {
    // The Menu key comes from the platform as an event of its own.
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        requestMenuOfCurrentRow();
        return;
    }
    const int last = model()->rowCount() - 1;
    const int page = std::max(1, viewport()->height() / rowHeight() - 1);
    int row = currentRow_;
    switch (event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier
                ? event->key()
                : Qt::Key_unknown) {
        case Qt::Key_Up:
            row -= 1;
            break;
        case Qt::Key_Down:
            row += 1;
            break;
        case Qt::Key_PageUp:
            row -= page;
            break;
        case Qt::Key_PageDown:
            row += page;
            break;
        case Qt::Key_Home:
            row = 0;
            break;
        case Qt::Key_End:
            row = last;
            break;
        default:
            QListView::keyPressEvent(event);
            return;
    }
    row = std::clamp(row, 0, std::max(0, last));
    if (row != currentRow_) {
        selectRow(row);
    }
}

void DragDropTableView::contextMenuEvent(QContextMenuEvent* event) {
    const int row = rowAt(event->pos());
    if (event->reason() == QContextMenuEvent::Keyboard) {
        requestMenuOfCurrentRow();
    } else if (row >= 0) {
        emit contextMenuRequested(row, event->globalPos());
    }
}

void DragDropTableView::requestMenuOfCurrentRow() {
    if (currentRow_ >= 0 && currentRow_ < model()->rowCount()) {
        scrollToRow(currentRow_);
        const QPoint middle = visualRect(model()->index(currentRow_, 0)).center();
        emit contextMenuRequested(currentRow_, viewport()->mapToGlobal(middle));
    }
}
