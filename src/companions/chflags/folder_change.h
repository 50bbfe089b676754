#pragma once

#include <span>
#include <string>
#include <string_view>

/// One argument of the command.
struct Item {
    std::string_view path;          // as given
    std::string_view folder;        // the part before the name; empty for the working folder
    std::string name;               // the last component; empty when the path ends in none
    const char* problem = nullptr;  // why it could not be done, for the user
};

/// Hides or shows items of one folder: the list is read and written once for all of them. An item
/// that could not be done gets its problem; one that is already as wanted needs no rights.
void changeItems(std::span<Item* const> items, bool hidden);
