#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The text of a `.hidden` file: one bare file name a line, raw bytes.
///
/// Lines that are not asked about are kept byte for byte and in their order. The work is linear in
/// the text and the names, and a single name is searched for without looking at each line.
class HiddenLines final {
public:
    /// Reads the rest of the file; `sizeHint` is the size that it seems to have. 0 or an errno.
    int read(int file, std::size_t sizeHint);

    /// Lists the names that are not listed yet, at the end. Answers for each name whether that
    /// changed anything; of equal names the first one counts.
    std::vector<bool> add(std::span<const std::string_view> names);
    /// Takes out every line that equals one of the names. Answers as add() does.
    std::vector<bool> remove(std::span<const std::string_view> names);

    std::string_view text() const { return std::string_view(lines_).substr(1); }

private:
    /// A line break, then the text: every line then has a line break on both sides.
    std::string lines_ = "\n";
    bool lastLineIsOpen_ = false;
};
