#include "platform/file_finder.h"

#include <climits>
#include <memory>

#include <dirent.h>
#include <unistd.h>

#include <QFile>

#include "platform/file_attributes.h"

namespace {

constexpr int questionsWorthReading = 16;
constexpr qsizetype namesForOneLook = 8;

}  // namespace

FileFinder::FileFinder(qsizetype paths) : mostNames_(namesForOneLook * paths) {}

bool FileFinder::exists(const QString& path) {
    const QByteArray bytes = QFile::encodeName(path);
    const qsizetype nameStart = bytes.lastIndexOf('/') + 1;
    // The system refuses longer paths, even to what exists.
    if (nameStart == 0 || bytes.size() >= PATH_MAX) {
        return fileExists(path);
    }
    const QByteArray place = bytes.first(nameStart);
    Folder& folder = folders_[place];
    if (++folder.questions == questionsWorthReading) {
        folder.names = readNames(place);
    }
    return folder.names.contains(bytes.sliced(nameStart)) || fileExists(path);
}

QSet<QByteArray> FileFinder::readNames(const QByteArray& folder) {
    QSet<QByteArray> names;
    // Nothing can be reached in a folder that may be read but not entered.
    if (access((folder + '.').constData(), F_OK) != 0) {
        return names;
    }
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(opendir(folder.constData()), &closedir);
    while (entries && mostNames_-- > 0) {
        const dirent* entry = readdir(entries.get());
        if (entry == nullptr) {
            break;
        }
        // A link may lead nowhere.
        if (entry->d_type != DT_LNK && entry->d_type != DT_UNKNOWN) {
            names.insert(QByteArray(static_cast<const char*>(entry->d_name)));
        }
    }
    return names;
}
