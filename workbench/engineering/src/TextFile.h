#pragma once

// Reads a whole UTF-8 text file without its byte order mark.

#include "FileReport.h"

#include <filesystem>
#include <optional>
#include <string>

namespace engineering {

/// The text of the file, or none after reporting why: missing, a folder or another thing that is no file,
/// unreadable, larger than 64 MiB, or lines that are not UTF-8 text (each such line is named).
std::optional<std::string> ReadTextFile(const std::filesystem::path& file, FileReport& report);

} // namespace engineering
