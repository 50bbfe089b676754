#include "platform/file_manager_refresh.h"

#include <utility>

#include <QFile>
#include <QTemporaryFile>

namespace {

QByteArray inputFor(const QStringList& paths) {
    QByteArray input;
    for (const auto& path : paths) {
        input += QFile::encodeName(path) + '\0';
    }
    return input;
}

/// The process outlives this one, and so must not keep its output open: whoever reads that would
/// wait for both to end.
void startAlone(const QString& program, const QByteArray& input) {
    QTemporaryFile file;
    if (!file.open() || file.write(input) != input.size() || !file.flush()) {
        return;
    }
    QProcess process;
    process.setProgram(program);
    process.setStandardInputFile(file.fileName());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.startDetached();  // returns when the file is open there: it may go then
}

}  // namespace

FileManagerRefresh::FileManagerRefresh(QString program, QObject* parent)
    : QObject(parent), program_(std::move(program)) {
    turn_.setSingleShot(true);
    connect(&turn_, &QTimer::timeout, this, &FileManagerRefresh::startNext);
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(&process_, &QProcess::finished, this, &FileManagerRefresh::readAnswer);
    connect(&process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            startNext();
        }
    });
}

FileManagerRefresh::~FileManagerRefresh() {
    process_.disconnect(this);
    if (process_.state() != QProcess::NotRunning) {
        changed_ += telling_;  // it may not have read them all
        process_.kill();
        process_.waitForFinished();
    }
    if (!changed_.isEmpty()) {
        startAlone(program_, inputFor(changed_));
    }
}

void FileManagerRefresh::itemChanged(const QString& path) {
    changed_.append(path);
    turn_.start(0);
}

void FileManagerRefresh::startNext() {
    if (changed_.isEmpty() || turn_.isActive() || process_.state() != QProcess::NotRunning) {
        return;
    }
    telling_ = std::exchange(changed_, {});
    process_.start(program_, QStringList());
    process_.write(inputFor(telling_));
    process_.closeWriteChannel();
}

void FileManagerRefresh::readAnswer() {
    QList<Unreached> found;
    const auto lines =
        QString::fromUtf8(process_.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    for (const auto& line : lines) {
        found.append({line.section('\t', 0, 0), line.section('\t', 1)});
    }
    if (found != unreached_) {
        unreached_ = found;
        emit unreachedChanged();
    }
    startNext();
}
