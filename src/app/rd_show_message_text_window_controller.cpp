#include "app/rd_show_message_text_window_controller.h"

#include <QDialog>
#include <QEvent>
#include <QFile>
#include <QTextBrowser>

#include "platform/application.h"
#include "platform/bundle.h"
#include "ui_RDShowMessageTextWindowController.h"

RDShowMessageTextWindowController::RDShowMessageTextWindowController() = default;
RDShowMessageTextWindowController::~RDShowMessageTextWindowController() = default;

QWidget* RDShowMessageTextWindowController::window() {
    if (!window_) {
        window_ = std::make_unique<QDialog>();
        Ui::RDShowMessageTextWindowController ui;
        ui.setupUi(window_.get());
        messageTextView_ = ui.messageTextView;
        messageTextView_->document()->setDocumentMargin(20);
        connect(ui.closeButton, &QPushButton::clicked, this,
                &RDShowMessageTextWindowController::cancelAction);
        window_->installEventFilter(this);
        windowDidLoad();
    }
    return window_.get();
}

void RDShowMessageTextWindowController::windowDidLoad() {
    // The documents are rich text; the build turns them into what the text view reads.
    const auto show = [this](const QString& name, const char* title) {
        window_->setWindowTitle(Bundle::localizedString(
            QLatin1String(title), QStringLiteral("RDShowMessageTextWindowController")));
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

bool RDShowMessageTextWindowController::windowShouldClose() {
    Application::stopModal();
    return true;
}

bool RDShowMessageTextWindowController::eventFilter(QObject* object, QEvent* event) {
    if (object == window_.get() && event->type() == QEvent::Close) {
        return !windowShouldClose();
    }
    return QObject::eventFilter(object, event);
}
