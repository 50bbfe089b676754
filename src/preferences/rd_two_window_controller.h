#pragma once

#include "platform/modal_window_controller.h"

class QAction;
class QCheckBox;

/// The preferences window: four check boxes on one pane, each written at once when it is clicked.
class RDTwoWindowController final : public ModalWindowController {
    Q_OBJECT

public:
    /// Set by the opener before the window is first asked for; the pane is shown in every case.
    bool setting = false;
    bool settingH = false;

    void checkButton1Touch(QCheckBox* sender);
    void checkButton2Touch(QCheckBox* sender);
    void checkButton3Touch(QCheckBox* sender);
    /// Also posts "changeCellData", so that the list takes the new colours.
    void checkButton4Touch(QCheckBox* sender);
    void closeWindow();
    /// An action that does nothing.
    void valueChange() {}
    /// Makes the general pane visible.
    void test1();

protected:
    std::unique_ptr<QWidget> loadWindow() override;
    void windowDidLoad() override;

private:
    void addBoxes();

    QAction* general_ = nullptr;
    QWidget* generalView_ = nullptr;
};
