#include "fat_attributes.h"

#include <cstdint>

#include <fcntl.h>
#include <linux/msdos_fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <sys/xattr.h>

#include "file_descriptor.h"

namespace {

constexpr std::uint32_t kFat = 0x4d44;
constexpr std::uint32_t kExFat = 0x2011bab0;
constexpr std::uint32_t kNtfs = 0x7366746e;
constexpr std::uint32_t kFuse = 0x65735546;  // among others ntfs-3g

constexpr unsigned char kHiddenBit = 2;
constexpr char kNtfsAttributes[] = "system.ntfs_attrib_be";  // four bytes, the highest first

void setByIoctl(int file, bool hidden) {
    std::uint32_t attributes = 0;
    if (ioctl(file, FAT_IOCTL_GET_ATTRIBUTES, &attributes) != 0) {
        return;
    }
    const std::uint32_t wanted = hidden ? attributes | kHiddenBit : attributes & ~kHiddenBit;
    if (wanted != attributes) {
        static_cast<void>(ioctl(file, FAT_IOCTL_SET_ATTRIBUTES, &wanted));
    }
}

void setByExtendedAttribute(int file, bool hidden) {
    unsigned char bytes[4] = {};
    if (fgetxattr(file, kNtfsAttributes, bytes, sizeof bytes) != sizeof bytes) {
        return;
    }
    if (hidden == ((bytes[3] & kHiddenBit) != 0)) {
        return;
    }
    bytes[3] ^= kHiddenBit;
    fsetxattr(file, kNtfsAttributes, bytes, sizeof bytes, XATTR_REPLACE);
}

}  // namespace

FatAttributes::FatAttributes(int folder) : folder_(folder) {
    struct statfs status {};
    if (fstatfs(folder, &status) != 0) {
        return;
    }
    const auto type = static_cast<std::uint32_t>(status.f_type);
    if (type == kFat || type == kExFat) {
        way_ = Way::Ioctl;
    } else if (type == kNtfs || type == kFuse) {
        way_ = Way::ExtendedAttribute;
    }
}

void FatAttributes::setHidden(const char* name, mode_t mode, bool hidden) const {
    if (way_ == Way::None || !(S_ISREG(mode) || S_ISDIR(mode))) {
        return;  // opening a device could do something
    }
    const FileDescriptor file(
        openat(folder_, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file) {
        return;
    }
    if (way_ == Way::Ioctl) {
        setByIoctl(file.get(), hidden);
    } else {
        setByExtendedAttribute(file.get(), hidden);
    }
}
