#pragma once

#include <QObject>

class DragDropView;
class QAction;
class QWidget;
class RDPasswordViewController;
class RdCustomButton;
struct Notification;

/// The password's side of the main view: the protection switch, the lock at launch, the command
/// that sets or changes the password, and the question whether the list may be changed now.
class PasswordGate final : public QObject {
    Q_OBJECT

public:
    /// Not owned; must outlive the gate.
    struct Outlets {
        QWidget* window;  // what the dialog is shown over
        RdCustomButton* requirePassword;
        DragDropView* fileListView;
        QAction* passwordMeunItem;
    };
    explicit PasswordGate(const Outlets& outlets, QObject* parent = nullptr);

    /// Whether the user may change the list now: the settings are read, and the list is either not
    /// protected or unlocked since the program started.
    bool canEditorItem() const;
    /// The protection switch was pressed. Opens the dialog for a first password when none is
    /// stored, turns protection on or off when the list is unlocked, and asks for the password
    /// otherwise.
    void require_password(RdCustomButton* sender);
    /// Opens the dialog that asks for the password and returns at once. `sender`, the protection
    /// switch, is shown as on; it may be null.
    void inputRequire_password(RdCustomButton* sender);
    /// The menu command: opens the dialog that sets or changes the password.
    void changePasswordMeunItem(const Notification& notification);
    /// Reports of RDPasswordViewController, in the order in which it posts them: the text that was
    /// typed, and then whether it was right.
    void changePassword(const Notification& notification);
    void yanzhengPassword(const Notification& notification);

    /// Asks for the password a second from now, unless it has been entered by then or is being
    /// asked for.
    void askSoon();
    /// The same at once.
    void askNow();
    /// Titles the password command by whether a password is stored.
    void titleCommand() const;
    /// Enables the password command while the list may be changed, and emits changed(). Changing
    /// the password does not ask for the old one, so it must not be possible while the list is
    /// locked.
    void enableCommand();

signals:
    /// What canEditorItem() answers, or whether the list takes drops, may have changed.
    void changed();

private:
    RDPasswordViewController* makeDialog() const;
    void presentAsModalWindow(RDPasswordViewController* dialog) const;

    Outlets outlets_;
    bool canReSetRequirtPassword_ = false;
};
