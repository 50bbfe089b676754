#pragma once

#include <memory>

#include <QDialog>

namespace Ui {
class RDPasswordViewController;
}

/// The one dialog through which the user sets, changes or enters the password. It unlocks nothing
/// itself: it posts "changePassword" (at most once, from Save or Cancel) and then exactly one
/// "yanzhengPassword" for each showing; in set and change mode it also stores the new password.
///
/// Set the flags before the dialog is shown; they choose the mode:
/// set (`setPassword`), change (`setPassword` and `setNewPassword`), verify (`yanzheng`), plain
/// (none; nobody opens it so).
class RDPasswordViewController final : public QDialog {
    Q_OBJECT

public:
    explicit RDPasswordViewController(QWidget* parent = nullptr);
    ~RDPasswordViewController() override;

    bool yanzheng = false;
    bool setPassword = false;
    bool setNewPassword = false;
    /// Save was pressed at least once.
    bool touchDownSave() const { return touchDownSave_; }

    /// Fills texts and pictures for the mode; when the dialog is shown at the latest.
    void viewDidLoad();
    void save();
    /// Also what Escape and the close box do. Reports the typed text too: the observer takes it
    /// as an attempt.
    void cancel();

    void reject() override { cancel(); }

protected:
    void showEvent(QShowEvent* event) override;

private:
    /// What will happen, in a sentence.
    QString hint() const;
    void showTypedText(bool shown);
    void saveNewPassword();
    void verify();
    void dismissController();
    void viewWillDisappear();

    std::unique_ptr<Ui::RDPasswordViewController> ui_;
    bool touchDownSave_ = false;
    bool loaded_ = false;
    bool dismissed_ = false;
};
