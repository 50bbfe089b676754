#pragma once

#include <filesystem>
#include <set>
#include <string>

/// A folder with items that have changed, and how to recognise the windows that show it.
class Folder final {
public:
    explicit Folder(std::filesystem::path path);

    void addItem(const std::filesystem::path& item);

    const std::string& uri() const { return uri_; }
    /// Whether a window of that title may show it. File managers put the folder's name there,
    /// except for some folders (home, the root of a disk) that have names of their own.
    bool mayBeIn(const std::string& title) const;
    /// Whether a window with that content shows the items that are visible and no others.
    bool isShownRightBy(const std::set<std::string>& names) const;

private:
    std::filesystem::path path_;
    std::string uri_;
    std::string name_;
    bool hasOtherNames_ = false;
    std::set<std::string> items_;  // the names alone, as they are on the disk
};
