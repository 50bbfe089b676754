#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

/// The window of a pass over the list that takes long: how many of how many, the current name, a
/// bar, and a button where the pass may be stopped.
class ProgressDialog final : public QDialog {
    Q_OBJECT

public:
    enum class Pass { Launch, Quit };

    ProgressDialog(Pass pass, int total);

    /// `done` items are done; `name` is the current one's, and empty where no name may be shown.
    void follow(int done, const QString& name);
    /// What Escape, the button and closing the window do: stopRequested() in a quit pass, once;
    /// nothing in a launch pass.
    void reject() override;

signals:
    void stopRequested();

private:
    Pass pass_;
    QLabel* name_;
    QLabel* count_;
    QProgressBar* bar_;
    QPushButton* stop_ = nullptr;
};
