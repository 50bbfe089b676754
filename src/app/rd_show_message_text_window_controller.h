#pragma once

#include <memory>

#include <QObject>

class QDialog;
class QTextBrowser;
class QWidget;

/// A window that shows one of the program's documents. The flags choose it and must be set before
/// the window is first asked for; with both set the licence agreement wins, with neither the view
/// stays empty. A missing document leaves the view as it was.
class RDShowMessageTextWindowController final : public QObject {
    Q_OBJECT

public:
    RDShowMessageTextWindowController();
    ~RDShowMessageTextWindowController() override;

    bool licenseAgreement = false;
    bool ackNowleDgments = false;

    /// The window, loaded on the first request.
    QWidget* window();
    QTextBrowser* messageTextView() const { return messageTextView_; }

    /// The window's own button.
    void cancelAction();
    /// Ends the modal loop; the window may close.
    bool windowShouldClose();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void windowDidLoad();

    std::unique_ptr<QDialog> window_;
    QTextBrowser* messageTextView_ = nullptr;
};
