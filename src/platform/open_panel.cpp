#include "platform/open_panel.h"

#include <QFileDialog>

std::optional<QStringList> runOpenPanel(QWidget* parent, const OpenPanelRequest& request) {
    QFileDialog panel(parent, request.message);
    panel.setAcceptMode(QFileDialog::AcceptOpen);
    if (request.canChooseDirectories && !request.canChooseFiles) {
        panel.setFileMode(QFileDialog::Directory);
    } else {
        panel.setFileMode(request.allowsMultipleSelection ? QFileDialog::ExistingFiles
                                                          : QFileDialog::ExistingFile);
    }
    panel.setOption(QFileDialog::ReadOnly, !request.canCreateDirectories);
    panel.setLabelText(QFileDialog::Accept, request.prompt);
    if (panel.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return panel.selectedFiles();
}
