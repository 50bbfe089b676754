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

    /// Whether the user may change the list now.
    bool canEditorItem() const;
    /// The protection switch was pressed.
    void require_password(RdCustomButton* sender);
    /// Asks for the password; `sender` may be null.
    void inputRequire_password(RdCustomButton* sender);
    void changePasswordMeunItem(const Notification& notification);
    void changePassword(const Notification& notification);
    void yanzhengPassword(const Notification& notification);

    /// Asks for the password a second from now, unless it has been entered by then or is being
    /// asked for.
    void askSoon();
    /// The same at once.
    void askNow();
    /// Titles the password command by whether a password is stored.
    void titleCommand() const;
    /// Changing the password asks for no old one, so the command is closed while the list is
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
