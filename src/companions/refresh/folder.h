#pragma once

#include <filesystem>
#include <string>

/// A folder as the windows that show it name it.
class Folder final {
public:
    explicit Folder(std::filesystem::path path);

    const std::string& uri() const { return uri_; }
    /// Whether a window of that title may show it. File managers put the folder's name there,
    /// except for some folders (home, the root of a disk) that have names of their own.
    bool mayBeIn(const std::string& title) const;

private:
    std::string uri_;
    std::string name_;
    bool hasOtherNames_ = false;
};
