#include "state/store_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "platform/file_attributes.h"

namespace {

class FileDescriptor final {
public:
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    ~FileDescriptor() { close(); }
    Q_DISABLE_COPY_MOVE(FileDescriptor)

    bool isOpen() const { return descriptor_ >= 0; }
    int get() const { return descriptor_; }
    /// Some file systems tell only here that the data did not fit.
    bool close() {
        const int descriptor = std::exchange(descriptor_, -1);
        return descriptor < 0 || ::close(descriptor) == 0;
    }

private:
    int descriptor_;
};

const QLatin1StringView temporaryInfix(".new-");

QString folderOf(const QString& file) {
    return QFileInfo(file).absolutePath();
}

QString lastError() {
    return qt_error_string(errno);
}

/// write() may take less than it was given, at the latest when the disk is about to be full.
bool writeAll(int descriptor, const char* bytes, std::size_t count) {
    while (count > 0) {
        const ssize_t written = ::write(descriptor, bytes, count);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written == 0) {
            errno = ENOSPC;  // which no error was told for
        }
        if (written <= 0) {
            return false;
        }
        bytes += written;
        count -= static_cast<std::size_t>(written);
    }
    return true;
}

bool writeContents(FileDescriptor& output, const StoreContents& contents) {
    const auto sink = [&output](const char* bytes, std::size_t count) {
        return writeAll(output.get(), bytes, count);
    };
    return encodeStore(contents, sink) && ::fsync(output.get()) == 0 && output.close();
}

/// Makes a rename in the folder last through a power failure, where the file system can.
void syncFolder(const QString& folder) {
    const FileDescriptor descriptor(
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.isOpen()) {
        ::fsync(descriptor.get());
    }
}

// Whether a link on the way to the file, or the file's own, leads to a folder that is not there.
bool leadsNowhere(const QString& file) {
    const int error = errno;
    QString place = folderOf(linkTarget(file));
    bool nowhere = QFileInfo(file).isSymLink() && !QFileInfo(place).isDir();
    while (!nowhere && !QFileInfo::exists(place) && place != folderOf(place)) {
        nowhere = QFileInfo(place).isSymLink();
        place = folderOf(place);
    }
    errno = error;
    return nowhere;
}

}  // namespace

QString linkTarget(const QString& file) {
    constexpr int mostLinks = 40;
    QString target = file;
    for (int i = 0; i < mostLinks && QFileInfo(target).isSymLink(); ++i) {
        target = QFileInfo(target).symLinkTarget();
    }
    return target;
}

StoreReading readStore(const QString& file) {
    using State = StoreReading::State;
    const auto outOfReach = [] { return StoreReading{State::OutOfReach, {}, lastError()}; };
    struct stat status {};
    if (::stat(QFile::encodeName(file).constData(), &status) != 0) {
        if (errno == ENOENT && leadsNowhere(file)) {
            return outOfReach();
        }
        return errno == ENOENT || errno == ENOTDIR ? StoreReading() : outOfReach();
    }
    // Opening a pipe would wait for its other end.
    if (!S_ISREG(status.st_mode)) {
        return {State::Damaged, {}};
    }
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly)) {
        return outOfReach();
    }
    QByteArray json = input.readAll();
    if (input.error() != QFileDevice::NoError) {
        return outOfReach();
    }
    std::optional<StoreContents> contents = decodeStore(std::move(json));
    if (!contents) {
        return {State::Damaged, {}};
    }
    return {State::Good, *std::move(contents)};
}

std::optional<QString> setAside(const QString& file) {
    const QString target = linkTarget(file);
    if (!QFileInfo(target).isFile()) {
        return std::nullopt;
    }
    const QString dated =
        target + u'.' + QDateTime::currentDateTime().toString(u"yyyy-MM-ddTHHmmss");
    constexpr int mostAttempts = 100;
    for (int i = 1; i <= mostAttempts; ++i) {
        const QString aside = i == 1 ? dated : dated + u'-' + QString::number(i);
        // As a second link or a copy the content is there under both names, should the program
        // end here. Neither that nor the rename, for a file of somebody else, replaces anything.
        if (::link(QFile::encodeName(target).constData(), QFile::encodeName(aside).constData()) ==
            0) {
            return aside;
        }
        if (errno != EEXIST && (QFile::copy(target, aside) || QFile::rename(target, aside))) {
            return aside;
        }
    }
    return std::nullopt;
}

void removeStaleTemporaries(const QString& file) {
    const QFileInfo info(linkTarget(file));
    const QDir folder = info.absoluteDir();
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        if (!name.startsWith(info.fileName() + temporaryInfix)) {
            continue;
        }
        const QByteArray path = QFile::encodeName(folder.filePath(name));
        const FileDescriptor descriptor(
            ::open(path.constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
        // A save holds the lock as long as it lives.
        if (descriptor.isOpen() && ::flock(descriptor.get(), LOCK_EX | LOCK_NB) == 0) {
            ::unlink(path.constData());
        }
    }
}

QString replaceStore(const QString& file, const StoreContents& contents) {
    const QByteArray target = QFile::encodeName(linkTarget(file));
    if (QString reason = makeFolderOf(file); !reason.isNull()) {
        return reason;
    }
    // A link whose target could not be found out must not be replaced by a file.
    struct stat status {};
    errno = ELOOP;
    if (::lstat(target.constData(), &status) == 0 ? S_ISLNK(status.st_mode) : errno != ENOENT) {
        return lastError();
    }
    makePrivate(folderOf(file));
    QByteArray temporary = target + temporaryInfix.latin1() + "XXXXXX";
    FileDescriptor output(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!output.isOpen()) {
        return lastError();
    }
    ::flock(output.get(), LOCK_EX | LOCK_NB);
    if (!writeContents(output, contents) ||
        ::rename(temporary.constData(), target.constData()) != 0) {
        QString reason = lastError();
        ::unlink(temporary.constData());
        return reason;
    }
    syncFolder(folderOf(QFile::decodeName(target)));
    return {};
}

QString makeFolderOf(const QString& file) {
    return makePrivateFolder(folderOf(linkTarget(file)));
}
