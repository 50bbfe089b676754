#include "platform/file_attributes.h"

#include <unistd.h>

#include <QFile>

bool fileExists(const QString& path) {
    return !path.isEmpty() && access(QFile::encodeName(path).constData(), F_OK) == 0;
}
