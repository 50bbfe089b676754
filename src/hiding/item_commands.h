#pragma once

#include <QString>

class QAction;

/// The menu commands that act on one item, and the path that they act on.
class ItemCommands final {
public:
    /// Not owned; must outlive this object.
    struct Items {
        QAction* hideMenuItem;
        QAction* openMenuItem;
        QAction* revealInFinderMenuItem;
        QAction* removeMenuItem;
    };
    explicit ItemCommands(const Items& items) : items_(items) {}

    /// Path of the item last shown or acted upon; the open and reveal commands act on it.
    QString selectPath() const { return selectPath_; }
    void setSelectPath(const QString& path) { selectPath_ = path; }

    /// A visible item can be hidden, opened, revealed and removed; a hidden one only shown again.
    void follow(bool visible) const;
    /// Enables or disables the remove command alone.
    void allowRemoval(bool allowed) const;
    /// With an empty list there is nothing to open, reveal or remove.
    void disable() const;
    /// Notes in the log whether the remove command is enabled.
    void logRemoveItem() const;

private:
    Items items_;
    QString selectPath_;
};
