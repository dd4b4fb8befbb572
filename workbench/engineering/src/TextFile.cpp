#include "TextFile.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string_view>
#include <system_error>
#include <unicode/ustring.h>

namespace engineering {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::uintmax_t largestFile = std::uintmax_t{64} * 1024 * 1024;

bool IsUtf8(std::string_view line) {
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t length = 0;
    u_strFromUTF8(nullptr, 0, &length, line.data(), static_cast<std::int32_t>(line.size()), &status);
    return status != U_INVALID_CHAR_FOUND;
}

bool CheckLines(std::string_view text, FileReport& report) {
    bool sound = true;
    int number = 1;
    for (std::size_t start = 0; start <= text.size(); ++number) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        const std::string_view line = text.substr(start, end - start);
        if (!IsUtf8(line)) {
            report.Add(number, {}, "is not UTF-8 text");
            sound = false;
        } else if (line.find('\0') != std::string_view::npos) {
            report.Add(number, {}, "has a zero byte");
            sound = false;
        }
        start = end + 1;
    }
    return sound;
}

bool IsReadableFile(const fs::path& file, FileReport& report) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (status.type() == fs::file_type::not_found) {
        report.Add(0, {}, "the file does not exist");
        return false;
    }
    if (status.type() == fs::file_type::none || status.type() == fs::file_type::unknown) {
        report.Add(0, {}, "cannot be read: " + error.message());
        return false;
    }
    if (status.type() != fs::file_type::regular) {
        report.Add(0, {}, fs::is_directory(status) ? "is a folder, not a file" : "is not a regular file");
        return false;
    }
    const std::uintmax_t size = fs::file_size(file, error);
    if (!error && size > largestFile) {
        report.Add(0, {}, "is larger than 64 MiB");
        return false;
    }
    return true;
}

} // namespace

std::optional<std::string> ReadTextFile(const fs::path& file, FileReport& report) {
    if (!IsReadableFile(file, report)) {
        return std::nullopt;
    }
    std::ifstream stream(file, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (!stream) {
        report.Add(0, {}, "cannot be read");
        return std::nullopt;
    }
    if (text.starts_with(byteOrderMark)) {
        text.erase(0, byteOrderMark.size());
    }
    if (!CheckLines(text, report)) {
        return std::nullopt;
    }
    return text;
}

} // namespace engineering
