#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <sys/stat.h>

#include "file_descriptor.h"
#include "hidden_lines.h"

/// The `.hidden` file of one folder, by which file managers know what not to show.
///
/// The folder stays locked from open() to the end of the object's life, so that runs at the same
/// time lose nothing of each other's. Killed at any moment, the file is the old or the new one.
class HiddenFile final {
public:
    /// Locks the folder and reads the file; it need not exist. 0 or an errno: EISDIR for what is
    /// there and not a file, ELOOP for a link that is not followed, EWOULDBLOCK when another
    /// process keeps the folder locked for two seconds. A link is followed only to an existing file
    /// `.hidden` that belongs to the user. `folder` is a descriptor, which must stay open.
    int open(int folder);

    /// These change the text in memory; see HiddenLines.
    std::vector<bool> add(std::span<const std::string_view> names) { return lines_.add(names); }
    std::vector<bool> remove(std::span<const std::string_view> names) {
        return lines_.remove(names);
    }

    /// Replaces the file with the changed text. Its mode, extended attributes and, where
    /// permitted, owner stay; its modification time gets later. An empty file that was made here,
    /// and is not reached through a link, is removed. 0 or an errno: then the old file is as it
    /// was.
    int save();

private:
    int followLinks();
    int lock();
    int read();
    bool mayRemove() const;
    FileDescriptor createTemporary(std::string& name) const;
    bool isLeftBehind(const std::string& name) const;
    int fillTemporary(int file) const;

    int folder_ = -1;  // where the file is: elsewhere than asked for when `.hidden` is a link
    FileDescriptor linkedFolder_;
    std::string name_ = ".hidden";
    bool linked_ = false;
    bool locked_ = false;
    FileDescriptor file_;
    struct stat status_ = {};  // of file_
    HiddenLines lines_;
};
