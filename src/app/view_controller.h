#pragma once

#include <optional>

#include <QObject>

#include "app/quiet_line.h"
#include "hiding/information_pane.h"
#include "list/drag_drop_view.h"
#include "platform/file_manager_refresh.h"
#include "platform/item_visibility.h"
#include "platform/open_panel.h"

class AppDelegate;
class QMainWindow;
class RDPasswordViewController;
class RDSwitchButton;
class RdCustomButton;
struct Notification;
namespace Ui {
class Main;
}

/// The main view's controller. Its definitions lie with the concern that they belong to: start-up
/// and menus in app/, switching, adding and the information pane in hiding/, the password flows
/// in password/.
class ViewController final : public QObject, public DragDropViewDelegate {
    Q_OBJECT

public:
    /// `delegate` and the outlets behind it must outlive the controller. `openPanel` is how files
    /// to add are chosen.
    ViewController(QMainWindow* window, AppDelegate& delegate, OpenPanel openPanel = runOpenPanel);
    ~ViewController() override;

    /// Builds the main window's state from the store; once, before the window is shown.
    void viewDidLoad();

    /// Only passes the object on: the view shows no represented object.
    void setRepresentedObject(const QVariant& object) { setProperty("representedObject", object); }
    /// Has open file managers look again at an item that was hidden or shown.
    void tellFileManagers(const QString& path) { refresh_.itemChanged(path); }

    // Menus and routing.
    void addNotification();
    void addLocal();
    void settingButtonTouch();
    void addmeaunItem(const Notification& notification);
    void hidemeaunItem(const Notification& notification);
    void openmeaunItem(const Notification& notification);
    void removemeaunItem(const Notification& notification);
    void revealInFinderMenuItem(const Notification& notification);
    void closemeaunItem(const Notification& notification);

    // Switching, adding, the information pane.
    /// The file manager's show-all setting as the shell printed it; no value when that was no
    /// text.
    std::optional<QString> InvokingShellScript() const;
    /// Hides or shows the current item. Does not ask the password gate.
    void touchSwitch(RDSwitchButton* sender);
    /// Folds the information pane, or opens it again.
    void touchEvent(RdCustomButton* sender);
    void addfileList(QObject* sender);
    void selectedTableLists(const ItemRecord* record) override;
    void showOrHideInfomation(const Notification& notification);

    // The password gate.
    /// Whether the user may change the list now.
    bool canEditorItem() const;
    void require_password(RdCustomButton* sender);
    /// Asks for the password; `sender` may be null.
    void inputRequire_password(RdCustomButton* sender);
    void changePasswordMeunItem(const Notification& notification);
    void changePassword(const Notification& notification);
    void yanzhengPassword(const Notification& notification);

    /// Path of the item last shown or acted upon; the open and reveal commands act on it.
    QString selectPath() const { return selectPath_; }

private:
    void launchReveal();
    void dropMissingItems();
    void loadList();
    void dressWindow();
    void connectControls();
    void connectStandardActions();
    void setMenuTitles();
    void setMenuKeys();
    void resetShowAll() const;
    void updateItemCommands(bool visible);
    void updatePasswordCommand();
    void setPasswordItemTitle();
    void sayUnreached();
    void showWhatIsThere();
    void promptAtLaunch();
    void presentAsModalWindow(RDPasswordViewController* dialog);

    QMainWindow* window_;
    AppDelegate* appDelegate_ = nullptr;
    AppDelegate& delegate_;
    const Ui::Main& ui_;
    OpenPanel openPanel_;
    InformationPane informationPane_;
    QuietLine quietLine_;
    ItemVisibility visibility_;
    FileManagerRefresh refresh_;
    QString selectPath_;
    bool canReSetRequirtPassword_ = false;
};
