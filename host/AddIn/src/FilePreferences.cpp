#include "FilePreferences.h"

#include "PreferencesText.h"
#include "WholeFile.h"

namespace host {

namespace {

constexpr std::size_t largestFile = 4096; // bytes; a sound file has fewer than 100

std::filesystem::path Absolute(const std::string& iPath) {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::absolute(iPath, error);
    return error ? std::filesystem::path(iPath) : path;
}

} // namespace

FilePreferences::FilePreferences(const std::string& iPath) : _path(Absolute(iPath)) {}

std::optional<PanelRectangle> FilePreferences::Rectangle() {
    std::optional<PanelRectangle> rectangle;
    Read(rectangle);
    return rectangle;
}

bool FilePreferences::Store(const PanelRectangle& iRectangle) {
    std::optional<PanelRectangle> stored;
    if (!Read(stored))
        return false;
    if (stored == iRectangle)
        return true;
    std::error_code error;
    const std::filesystem::path file = EndOfLinks(_path, error);
    if (!error)
        error = ReplaceFile(file, PreferencesText(iRectangle));
    return !error || Fail("cannot be written: " + error.message());
}

std::string FilePreferences::Place() const {
    return _path.string();
}

bool FilePreferences::Read(std::optional<PanelRectangle>& oRectangle) {
    _problem.clear();
    std::string text;
    const std::error_code error = ReadWholeFile(_path, largestFile, text);
    if (error == std::errc::no_such_file_or_directory)
        return true;
    if (error)
        return Fail("cannot be read: " + error.message());
    const PreferencesContent content = ReadPreferencesText(text);
    if (!content.problem.empty())
        return Fail(content.problem);
    oRectangle = content.rectangle;
    return true;
}

bool FilePreferences::Fail(const std::string& iWhat) {
    _problem = "The preferences file '" + _path.string() + "' " + iWhat + ".";
    return false;
}

} // namespace host
