#pragma once

#include <array>
#include <memory>

#include <QObject>

class QCheckBox;
class QMainWindow;
class QWidget;
namespace Ui {
class RDTwoWindowController;
}

/// The preferences window: four check boxes on one pane, each written at once when it is clicked.
/// Made fresh for each showing and run application-modally.
class RDTwoWindowController final : public QObject {
    Q_OBJECT

public:
    RDTwoWindowController();
    ~RDTwoWindowController() override;

    /// Set by the opener before the window is first asked for; the pane is shown in every case.
    bool setting = false;
    bool settingH = false;

    /// The window, loaded on the first request.
    QWidget* window();

    void checkButton1Touch(QCheckBox* sender);
    void checkButton2Touch(QCheckBox* sender);
    void checkButton3Touch(QCheckBox* sender);
    /// Also posts "changeCellData", so that the list takes the new colours.
    void checkButton4Touch(QCheckBox* sender);
    /// Ends the modal loop; the window may close.
    bool windowShouldClose();
    void closeWindow();
    /// An action that does nothing.
    void valueChange() {}
    /// Makes the general pane visible.
    void test1();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void windowDidLoad();

    std::unique_ptr<QMainWindow> window_;
    std::unique_ptr<Ui::RDTwoWindowController> ui_;
    QWidget* generalView_ = nullptr;
};
