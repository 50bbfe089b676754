#include "platform/file_manager_refresh.h"

#include <utility>

#include <QSet>
#include <QTimerEvent>

namespace {

constexpr int repeats = 2;

/// The system limits a program's arguments. Of very many items, one for each folder has to do.
QStringList withinLimits(QStringList paths) {
    constexpr qsizetype limit = 500;
    paths.removeDuplicates();
    if (paths.size() <= limit)
        return paths;
    QSet<QString> folders;
    erase_if(paths, [&folders](const QString& path) {
        const auto count = folders.size();
        folders.insert(path.left(path.lastIndexOf('/')));
        return folders.size() == count;
    });
    return paths.first(qMin(paths.size(), limit));
}

QStringList joined(const QList<QStringList>& batches) {
    QStringList all;
    for (const auto& batch : batches)
        all += batch;
    all.removeAll("-c");
    return withinLimits(all);
}

// Outlives the program, and so must not hold on to its output: whoever reads that waits for its
// end.
void startAlone(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.startDetached();
}

}  // namespace

FileManagerRefresh::FileManagerRefresh(QString program, QObject* parent)
    : QObject(parent), program_(std::move(program)) {
    turn_.setSingleShot(true);
    connect(&turn_, &QTimer::timeout, this, &FileManagerRefresh::tellNew);
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.setStandardInputFile(QProcess::nullDevice());
    connect(&process_, &QProcess::finished, this, &FileManagerRefresh::readAnswer);
    connect(&process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            startNext();
    });
}

FileManagerRefresh::~FileManagerRefresh() {
    process_.disconnect(this);
    QList<QStringList> later{changed_};
    for (const auto& repeat : repeats_)
        later.append(repeat.paths);
    waiting_.append(changed_);
    if (process_.state() != QProcess::NotRunning) {
        waiting_.append(process_.arguments());
        process_.kill();
        process_.waitForFinished();
    }
    if (const auto paths = joined(waiting_); !paths.isEmpty())
        startAlone(program_, paths);
    if (const auto paths = joined(later); !paths.isEmpty()) {
        const auto wait = std::chrono::ceil<std::chrono::seconds>(repeatAfter_ * repeats);
        startAlone(program_, QStringList{"-c", "-w", QString::number(wait.count())} + paths);
    }
}

void FileManagerRefresh::itemChanged(const QString& path) {
    changed_.append(path);
    turn_.start(0);
}

void FileManagerRefresh::tellNew() {
    const auto paths = withinLimits(std::exchange(changed_, {}));
    repeatLater({paths, repeats});
    waiting_.append(paths);
    startNext();
}

void FileManagerRefresh::repeatLater(const Repeat& repeat) {
    repeats_.append(repeat);
    startTimer(repeatAfter_);
}

void FileManagerRefresh::timerEvent(QTimerEvent* event) {
    killTimer(event->timerId());
    const auto [paths, times] = repeats_.takeFirst();
    if (times > 1)
        repeatLater({paths, times - 1});
    waiting_.append(QStringList("-c") + paths);
    startNext();
}

void FileManagerRefresh::startNext() {
    if (!waiting_.isEmpty() && process_.state() == QProcess::NotRunning)
        process_.start(program_, waiting_.takeFirst());
}

void FileManagerRefresh::readAnswer() {
    QList<Unreached> found;
    const auto lines =
        QString::fromUtf8(process_.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    for (const auto& line : lines)
        found.append({line.section('\t', 0, 0), line.section('\t', 1)});
    if (found != unreached_) {
        unreached_ = found;
        emit unreachedChanged();
    }
    startNext();
}
