#pragma once

#include "platform/modal_window_controller.h"

class QTextBrowser;

/// A window that shows one of the program's documents. The flags choose it and must be set before
/// the window is first asked for; with both set the licence agreement wins, with neither the view
/// stays empty. A missing document leaves the view as it was.
class RDShowMessageTextWindowController final : public ModalWindowController {
    Q_OBJECT

public:
    bool licenseAgreement = false;
    bool ackNowleDgments = false;

    QTextBrowser* messageTextView() const { return messageTextView_; }

    /// The window's own button.
    void cancelAction();

protected:
    std::unique_ptr<QWidget> loadWindow() override;
    void windowDidLoad() override;

private:
    QTextBrowser* messageTextView_ = nullptr;
};
