#pragma once

#include <sys/types.h>

/// The hidden bit that FAT, exFAT and NTFS keep with each file and folder, by which other systems
/// know what not to show. It is set in addition to the `.hidden` file, so failures are ignored.
class FatAttributes final {
public:
    /// Finds out how the folder's file system stores the bit; on others setHidden() does nothing.
    /// `folder` is its descriptor, which must stay open.
    explicit FatAttributes(int folder);

    /// Sets or clears the bit of an item in the folder; its other bits stay. `mode` is the item's.
    void setHidden(const char* name, mode_t mode, bool hidden) const;

private:
    enum class Way { None, Ioctl, ExtendedAttribute };

    int folder_;
    Way way_ = Way::None;
};
