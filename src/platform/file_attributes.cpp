#include "platform/file_attributes.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include <QDir>
#include <QFile>
#include <QFileInfo>

bool isAbsolutePath(const QString& path) {
    return path.startsWith(u'/') && !path.contains(QChar::Null);
}

bool fileExists(const QString& path) {
    return isAbsolutePath(path) && access(QFile::encodeName(path).constData(), F_OK) == 0;
}

QString makePrivateFolder(const QString& folder) {
    if (QFileInfo(folder).isDir()) {
        return {};
    }
    QDir().mkpath(QFileInfo(folder).absolutePath());
    const bool made = mkdir(QFile::encodeName(folder).constData(), S_IRWXU) == 0;
    return made ? QString() : qt_error_string(errno);
}

void makePrivate(const QString& path) {
    struct stat status {};
    const QByteArray name = QFile::encodeName(path);
    if (stat(name.constData(), &status) == 0 && status.st_uid == geteuid() &&
        (status.st_mode & (S_IRWXG | S_IRWXO)) != 0) {
        chmod(name.constData(), status.st_mode & S_IRWXU);
    }
}
