#include "hidden_lines.h"

#include <cerrno>
#include <cstring>
#include <unordered_map>

#include <unistd.h>

namespace {

constexpr std::size_t kLargestFile = std::size_t{256} << 20;

struct ListedLine {
    std::size_t begin;
    std::size_t end;
    std::size_t nameIndex;
};

using NameIndex = std::unordered_map<std::string_view, std::size_t>;

NameIndex indexOf(std::span<const std::string_view> names) {
    NameIndex index;
    index.reserve(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        index.emplace(names[i], i);
    }
    return index;
}

std::vector<ListedLine> findName(std::string_view lines, std::string_view name) {
    std::string wanted;
    wanted.reserve(name.size() + 2);
    wanted.append("\n").append(name).append("\n");

    std::vector<ListedLine> found;
    std::size_t position = 0;
    while (const void* match = memmem(lines.data() + position, lines.size() - position,
                                      wanted.data(), wanted.size())) {
        const auto begin =
            static_cast<std::size_t>(static_cast<const char*>(match) - lines.data()) + 1;
        const std::size_t end = begin + name.size() + 1;
        found.push_back({begin, end, 0});
        position = end - 1;  // this line's end is the next one's beginning
    }
    return found;
}

std::vector<ListedLine> findNames(std::string_view lines, const NameIndex& index) {
    std::vector<ListedLine> found;
    std::size_t begin = 1;
    while (begin < lines.size()) {
        const std::size_t lineBreak = lines.find('\n', begin);
        const auto name = index.find(lines.substr(begin, lineBreak - begin));
        if (name != index.end()) {
            found.push_back({begin, lineBreak + 1, name->second});
        }
        begin = lineBreak + 1;
    }
    return found;
}

}  // namespace

int HiddenLines::read(int file, std::size_t sizeHint) {
    if (sizeHint > kLargestFile) {
        return EFBIG;
    }
    std::size_t used = lines_.size();
    lines_.resize(used + sizeHint + 1);
    for (;;) {
        const ssize_t count = ::read(file, lines_.data() + used, lines_.size() - used);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return errno;
        }
        if (count == 0) {
            break;
        }
        used += static_cast<std::size_t>(count);
        if (used > kLargestFile) {
            return EFBIG;
        }
        if (used == lines_.size()) {
            lines_.resize(used * 2);
        }
    }
    lines_.resize(used);
    lastLineIsOpen_ = lines_.back() != '\n';
    if (lastLineIsOpen_) {
        lines_ += '\n';
    }
    return 0;
}

std::vector<bool> HiddenLines::add(std::span<const std::string_view> names) {
    std::vector<bool> added(names.size(), true);
    if (names.size() == 1) {
        added[0] = findName(lines_, names[0]).empty();
    } else {
        const NameIndex index = indexOf(names);
        for (std::size_t i = 0; i < names.size(); ++i) {
            added[i] = index.find(names[i])->second == i;
        }
        for (const ListedLine& line : findNames(lines_, index)) {
            added[line.nameIndex] = false;
        }
    }

    std::size_t size = lines_.size();
    for (const std::string_view& name : names) {
        size += name.size() + 1;
    }
    lines_.reserve(size);
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (added[i]) {
            lines_.append(names[i]).append("\n");
        }
    }
    return added;
}

std::vector<bool> HiddenLines::remove(std::span<const std::string_view> names) {
    const std::vector<ListedLine> found =
        names.size() == 1 ? findName(lines_, names[0]) : findNames(lines_, indexOf(names));
    std::vector<bool> removed(names.size());
    if (found.empty()) {
        return removed;
    }

    const bool lastLineStays = found.back().end != lines_.size();
    std::size_t kept = found.front().begin;
    for (std::size_t i = 0; i < found.size(); ++i) {
        removed[found[i].nameIndex] = true;
        const std::size_t next = i + 1 < found.size() ? found[i + 1].begin : lines_.size();
        const std::size_t length = next - found[i].end;
        std::memmove(lines_.data() + kept, lines_.data() + found[i].end, length);
        kept += length;
    }
    lines_.resize(kept);
    if (lastLineIsOpen_ && lastLineStays) {
        lines_.pop_back();
    }
    return removed;
}
