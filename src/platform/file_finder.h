#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <QString>

/// Answers for many paths what fileExists() answers for one. Of a folder that is asked about often
/// the names are read once, which is quicker than a look at each path; the reading altogether is
/// never much more than the looks that it can save.
class FileFinder final {
public:
    /// `paths`: about how many will be asked for.
    explicit FileFinder(qsizetype paths);

    bool exists(const QString& path);

private:
    struct Folder {
        int questions = 0;
        std::string names;  // one after the other
        std::unordered_set<std::string_view> known;
    };

    void read(Folder& folder, const std::string& path);

    std::unordered_map<std::string, Folder> folders_;
    std::pair<const std::string, Folder>* last_ = nullptr;  // one of them
    qsizetype mostNames_;
};
