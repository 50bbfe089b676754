#include <QProcess>

#include "platform/workspace.h"

void Workspace::selectFile(const QString& path) {
    QProcess::startDetached(QStringLiteral("/usr/bin/open"), {QStringLiteral("-R"), path});
}
