#pragma once

#include <QObject>

class QAction;
class QMenu;
class QWidget;

/// The platform's standard edit commands, sent to whatever holds the keyboard focus. Each is
/// offered only where the focus can do it; the program itself never enables or disables them.
class StandardActions final : public QObject {
    Q_OBJECT

public:
    explicit StandardActions(QObject* parent = nullptr);

    /// Makes `action` send the named command ("undo", "redo", "cut", "copy", "paste", "del" or
    /// "selectAll"); `menu` is where it is shown.
    void connectAction(QAction* action, const char* command, QMenu* menu);
};
