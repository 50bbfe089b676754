#pragma once

#include <functional>

#include "platform/open_panel.h"

class DragDropView;
class ItemCommands;
class QWidget;

/// Adding files through the open panel.
class ItemAdding final {
public:
    /// `window` is what the panel belongs to; `openPanel` is how files are chosen; `canEditorItem`
    /// tells whether the list may be changed now. Window, list and commands must outlive this
    /// object.
    ItemAdding(QWidget& window, DragDropView& list, const ItemCommands& commands,
               OpenPanel openPanel, std::function<bool()> canEditorItem);

    /// Appends what is chosen and stores the list, also when nothing was chosen. Does nothing while
    /// the list may not be changed.
    void addfileList() const;

private:
    QWidget& window_;
    DragDropView& list_;
    const ItemCommands& commands_;
    OpenPanel openPanel_;
    std::function<bool()> canEditorItem_;
};
