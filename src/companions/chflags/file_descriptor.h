#pragma once

#include <cerrno>
#include <utility>

#include <unistd.h>

/// Owns an open file.
class FileDescriptor final {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept
        : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    ~FileDescriptor() { close(); }

    explicit operator bool() const { return descriptor_ >= 0; }
    int get() const { return descriptor_; }

    /// 0, or the errno of a write that the file system reports as failed only now.
    int close() {
        const int descriptor = std::exchange(descriptor_, -1);
        return descriptor >= 0 && ::close(descriptor) != 0 ? errno : 0;
    }

private:
    int descriptor_ = -1;
};
