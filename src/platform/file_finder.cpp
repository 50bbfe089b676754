#include "platform/file_finder.h"

#include <climits>
#include <memory>
#include <vector>

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
    const std::string_view whole(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    const std::size_t slash = whole.rfind('/');
    // The system takes no longer ones, whatever is there.
    if (slash == std::string_view::npos || whole.size() >= PATH_MAX) {
        return fileExists(path);
    }
    // The next question is mostly about the same folder.
    const std::string_view place = whole.substr(0, slash + 1);
    if (last_ == nullptr || last_->first != place) {
        last_ = &*folders_.try_emplace(std::string(place)).first;
    }
    auto& [name, folder] = *last_;
    if (++folder.questions == questionsWorthReading) {
        read(folder, name);
    }
    return folder.known.contains(whole.substr(slash + 1)) || fileExists(path);
}

void FileFinder::read(Folder& folder, const std::string& path) {
    // Names that may be read are of no use in a folder that may not be entered.
    if (access((path + '.').c_str(), F_OK) != 0) {
        return;
    }
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(opendir(path.c_str()), &closedir);
    std::vector<std::size_t> ends;
    while (entries && mostNames_ > 0) {
        const dirent* entry = readdir(entries.get());
        if (entry == nullptr) {
            break;
        }
        --mostNames_;
        // A link may lead nowhere.
        if (entry->d_type != DT_LNK && entry->d_type != DT_UNKNOWN) {
            folder.names.append(static_cast<const char*>(entry->d_name));
            ends.push_back(folder.names.size());
        }
    }
    folder.known.reserve(ends.size());
    std::size_t begin = 0;
    for (const std::size_t end : ends) {
        folder.known.insert(std::string_view(folder.names).substr(begin, end - begin));
        begin = end;
    }
}
