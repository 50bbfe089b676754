#include "ini_file.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <fstream>
#include <functional>
#include <iterator>
#include <string_view>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool meansOn(std::string_view value) {
    std::string lower(value);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    const bool number =
        !lower.empty() && std::all_of(lower.begin(), lower.end(),
                                      [](unsigned char c) { return std::isdigit(c) != 0; });
    return number ? lower.find_first_not_of('0') != std::string::npos
                  : lower == "true" || lower == "yes" || lower == "on";
}

std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Calls the visitor with the value of each line of that key, as a part of the content.
void forEachValue(std::string_view content, const std::string& section, const std::string& key,
                  const std::function<void(std::string_view)>& visit) {
    bool inside = false;
    while (!content.empty()) {
        const auto line = content.substr(0, content.find('\n'));
        content.remove_prefix(std::min(line.size() + 1, content.size()));
        const auto text = trimmed(line);
        if (text.starts_with('[')) {
            inside = text == "[" + section + "]";
            continue;
        }
        const auto sign = line.find('=');
        if (inside && sign != std::string_view::npos && trimmed(line.substr(0, sign)) == key)
            visit(trimmed(line.substr(sign + 1)));
    }
}

[[noreturn]] void fail(const std::filesystem::path& file) {
    throw std::system_error(errno, std::generic_category(), file.string());
}

/// A file that is removed again unless it was renamed into place.
class Replacement final {
public:
    explicit Replacement(const std::filesystem::path& target)
        : target_(std::filesystem::canonical(target)), name_(target_.string() + ".XXXXXX") {
        descriptor_ = mkostemp(name_.data(), O_CLOEXEC);
        if (descriptor_ < 0)
            fail(target_);
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;
    ~Replacement() {
        close(descriptor_);
        if (!done_)
            unlink(name_.c_str());
    }

    void commit(std::string_view content) {
        struct stat old {};
        if (stat(target_.c_str(), &old) != 0 || fchmod(descriptor_, old.st_mode & 07777) != 0)
            fail(target_);
        // Only root can keep another owner; anyone else owns the file anyway or may not.
        if (old.st_uid != geteuid() && fchown(descriptor_, old.st_uid, old.st_gid) != 0)
            fail(target_);
        while (!content.empty()) {
            const auto count = write(descriptor_, content.data(), content.size());
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0)
                fail(target_);
            content.remove_prefix(static_cast<size_t>(count));
        }
        if (fsync(descriptor_) != 0 || rename(name_.c_str(), target_.c_str()) != 0)
            fail(target_);
        done_ = true;
    }

private:
    std::filesystem::path target_;
    std::string name_;
    int descriptor_ = -1;
    bool done_ = false;
};

}  // namespace

IniSwitch readIniSwitch(const std::filesystem::path& file, const std::string& section,
                        const std::string& key) {
    auto found = IniSwitch::Absent;
    forEachValue(contentOf(file), section, key, [&found](std::string_view value) {
        found = meansOn(value) ? IniSwitch::On : IniSwitch::Off;
    });
    return found;
}

void turnIniSwitchOff(const std::filesystem::path& file, const std::string& section,
                      const std::string& key) {
    const std::string content = contentOf(file);
    std::string changed;
    const char* kept = content.data();
    forEachValue(content, section, key, [&](std::string_view value) {
        if (!meansOn(value))
            return;
        changed.append(kept, value.data());
        changed += std::isdigit(static_cast<unsigned char>(value.front())) != 0 ? "0" : "false";
        kept = value.data() + value.size();
    });
    changed.append(kept, content.data() + content.size());
    Replacement(file).commit(changed);
}
