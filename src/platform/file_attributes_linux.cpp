#include <fcntl.h>
#include <sys/stat.h>

#include <QFile>

#include "platform/file_attributes.h"

namespace {

QDateTime dateTime(const struct statx_timestamp& time) {
    return QDateTime::fromMSecsSinceEpoch(time.tv_sec * 1000 + time.tv_nsec / 1'000'000);
}

}  // namespace

std::optional<FileAttributes> attributesOfItem(const QString& path) {
    struct statx status {};
    const QByteArray name = QFile::encodeName(path);
    if (name.isEmpty() || statx(AT_FDCWD, name.constData(), AT_SYMLINK_NOFOLLOW,
                                STATX_SIZE | STATX_MTIME | STATX_BTIME, &status) != 0) {
        return std::nullopt;
    }
    FileAttributes attributes;
    attributes.size = static_cast<qint64>(status.stx_size);
    attributes.modified = dateTime(status.stx_mtime);
    if ((status.stx_mask & STATX_BTIME) != 0) {
        attributes.created = dateTime(status.stx_btime);
    }
    return attributes;
}
