#pragma once

#include <memory>

#include <QObject>

class QWidget;

/// The controller of an application-modal window: made fresh for each showing, loaded on the first
/// request for its window, and done when the window has been closed.
class ModalWindowController : public QObject {
    Q_OBJECT

public:
    ModalWindowController();
    ~ModalWindowController() override;

    /// The window, loaded on the first request; owned by the controller.
    QWidget* window();
    /// Shows the window and returns when it was closed. The rest of the program gets no events.
    void runModal();
    /// Ends the modal loop; the window may close.
    bool windowShouldClose();

protected:
    /// Makes the window with what is in it.
    virtual std::unique_ptr<QWidget> loadWindow() = 0;
    /// The window is there; called once.
    virtual void windowDidLoad() {}

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    std::unique_ptr<QWidget> window_;
};
