#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class QAction;
class QMenu;

/// The platform's standard edit commands, sent to whatever holds the keyboard focus. Each is
/// enabled only where the focus can do it; no other part of the program enables or disables them.
///
/// A text field can do what its slots are named after. Any other widget says so by a property
/// "editCommands", the names of the slots of its own that can be called now; it answers for the
/// widgets in it as well.
class StandardActions final : public QObject {
    Q_OBJECT

public:
    explicit StandardActions(QObject* parent = nullptr);

    /// Makes `action` send the named command ("undo", "redo", "cut", "copy", "paste", "del" or
    /// "selectAll"); `menu` is where it is shown.
    void connectAction(QAction* action, const char* command, QMenu* menu);

private:
    QWidget* performer(const QByteArray& command) const;

    QPointer<QWidget> focus_;  // the menu bar's own does not count
};
