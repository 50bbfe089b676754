#pragma once

#include <memory>

#include <QObject>

class QDialog;
class QWidget;

/// The about window; made fresh for each showing and run application-modally.
class AboutPanelController final : public QObject {
    Q_OBJECT

public:
    AboutPanelController();
    ~AboutPanelController() override;

    /// The window, loaded on the first request.
    QWidget* window();
    /// Nothing is left to do once the window is there.
    void windowDidLoad() {}
    /// Ends the modal loop; the window may close.
    bool windowShouldClose();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    std::unique_ptr<QDialog> window_;
};
