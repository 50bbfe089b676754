#include <QFileInfo>
#include <QProcess>

#include "platform/item_visibility.h"
#include "platform/shell.h"

void ItemVisibility::check(const QString& path, bool askedVisible) {
    const int number = ++checks_;
    // The desktop's file library remembers for seconds what it has read: a fresh process asks it.
    auto* process = new QProcess(this);
    connect(process, &QProcess::finished, this, [=, this](int status, QProcess::ExitStatus exit) {
        process->deleteLater();
        if (number == checks_) {
            const bool told = exit == QProcess::NormalExit && status == 0;
            // An item that cannot be looked up is as little visible as hidden.
            const bool hidden =
                told ? process->readAllStandardOutput().startsWith("hidden") : askedVisible;
            answer(path, askedVisible, hidden);
        }
    });
    connect(process, &QProcess::errorOccurred, process, [process](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            process->deleteLater();
        }
    });
    process->start(Shell::defaultCompanionsFolder() + QStringLiteral("/visibility"), {path});
}
