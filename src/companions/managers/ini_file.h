#pragma once

#include <filesystem>
#include <string>

/// The keyed text files in which several file managers keep their settings: `[Section]` lines
/// and `Key=value` lines. Only the one value asked for is understood; everything else in the file,
/// comments and order included, is left as it is.
enum class IniSwitch { Absent, Off, On };

/// Whether the key says true ("true", "yes", "on" or a number but 0); of several, the last counts.
/// Absent also when the file cannot be read.
IniSwitch readIniSwitch(const std::filesystem::path& file, const std::string& section,
                        const std::string& key);

/// Turns the key off wherever it stands in the section, in the spelling it has there (0 or
/// false). The file is replaced in one step and keeps its mode; a symbolic link stays one.
/// Throws std::system_error or std::filesystem::filesystem_error when it cannot be done.
void turnIniSwitchOff(const std::filesystem::path& file, const std::string& section,
                      const std::string& key);
