#include "app/rd_show_message_text_window_controller.h"

#include <QDialog>
#include <QFile>
#include <QTextBrowser>

#include "platform/application.h"
#include "platform/bundle.h"
#include "ui_RDShowMessageTextWindowController.h"

std::unique_ptr<QWidget> RDShowMessageTextWindowController::loadWindow() {
    auto window = std::make_unique<QDialog>();
    Ui::RDShowMessageTextWindowController ui;
    ui.setupUi(window.get());
    messageTextView_ = ui.messageTextView;
    messageTextView_->document()->setDocumentMargin(20);
    connect(ui.closeButton, &QPushButton::clicked, this,
            &RDShowMessageTextWindowController::cancelAction);
    return window;
}

void RDShowMessageTextWindowController::windowDidLoad() {
    // The documents are rich text; the build turns them into what the text view reads.
    const auto show = [this](const QString& name, const char* title) {
        window()->setWindowTitle(Bundle::localizedString(
            QLatin1String(title), QStringLiteral("RDShowMessageTextWindowController")));
        messageTextView_->setAccessibleName(window()->windowTitle());
        QFile document(Bundle::pathForResource(name, QStringLiteral("html")));
        if (document.open(QIODevice::ReadOnly)) {
            messageTextView_->setHtml(QString::fromUtf8(document.readAll()));
        }
    };
    if (ackNowleDgments) {
        show(QStringLiteral("Acknowledgments"), "Acknowledgments");
    }
    if (licenseAgreement) {
        show(QStringLiteral("LicenseAgreement"), "License Agreement");
    }
}

void RDShowMessageTextWindowController::cancelAction() {
    window()->close();
    Application::stopModal();
}
