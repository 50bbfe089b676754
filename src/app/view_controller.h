#pragma once

#include <optional>

#include <QObject>

#include "list/drag_drop_view.h"

class AppDelegate;
class Hiding;
class InformationPane;
class ItemAdding;
class ItemCommands;
class ItemSwitch;
class PasswordGate;
class QFrame;
class QLabel;
class QScrollArea;
class RDSwitchButton;
class RdCustomButton;
struct Notification;

/// The main view's controller: the start of the window, and the one place where menu commands,
/// controls and the list's reports arrive. It passes each on to the part of the program that it
/// concerns.
class ViewController final : public QObject, public DragDropViewDelegate {
    Q_OBJECT

public:
    /// What the start itself touches. Not owned; must outlive the controller, as must the parts.
    struct Outlets {
        DragDropView* fileListView;
        RDSwitchButton* switchButton;
        RdCustomButton* requirePassword;
        QScrollArea* textScrollCiew;  // with the introductory text
        QLabel* textView;
        QFrame* fileListViewRightLine;
        QFrame* fileListViewBottomLine;
        QFrame* itemInfomationLine;
    };
    /// What it passes them on to.
    struct Parts {
        Hiding& hiding;
        ItemCommands& itemCommands;
        ItemSwitch& itemSwitch;
        ItemAdding& itemAdding;
        InformationPane& informationPane;
        PasswordGate& passwordGate;
    };
    ViewController(const Outlets& outlets, AppDelegate& delegate, const Parts& parts,
                   QObject* parent = nullptr);
    ~ViewController() override;

    /// Builds the main window's state from the store; once, before the window is shown.
    void viewDidLoad();
    /// The part of it that depends on the store; again when that could not be read before.
    void loadFromStore();
    /// Only passes the object on: the view shows no represented object.
    void setRepresentedObject(const QVariant& object) { setProperty("representedObject", object); }

    // Menus and routing.
    void addNotification();
    void addLocal();
    void settingButtonTouch();
    void addmeaunItem(const Notification& notification);
    void hidemeaunItem(const Notification& notification);
    void openmeaunItem(const Notification& notification);
    void removemeaunItem(const Notification& notification);
    void revealInFinderMenuItem(const Notification& notification);
    /// Does nothing, on purpose: the Close command has no effect.
    void closemeaunItem(const Notification& /*notification*/) {}

    // Switching, adding, the information pane.
    std::optional<QString> InvokingShellScript() const;
    void touchSwitch(RDSwitchButton* sender);
    void touchEvent(RdCustomButton* sender);
    void addfileList(QObject* sender);
    void selectedTableLists(const ItemRecord* record) override;
    void showOrHideInfomation(const Notification& notification);

    // The password gate.
    bool canEditorItem() const;
    void require_password(RdCustomButton* sender);
    void inputRequire_password(RdCustomButton* sender);
    void changePasswordMeunItem(const Notification& notification);
    void changePassword(const Notification& notification);
    void yanzhengPassword(const Notification& notification);

    QString selectPath() const;

private:
    void launchReveal();
    void showIntroduction();

    Outlets outlets_;
    AppDelegate& delegate_;
    AppDelegate* appDelegate_ = nullptr;
    Parts parts_;
};
