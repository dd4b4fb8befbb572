#include "WholeFile.h"

#include "DiskFlush.h"

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <memory>
#include <random>

namespace host {

namespace {

namespace fs = std::filesystem;

constexpr int mostLinks = 40;
constexpr int mostAttempts = 16;

struct Closing {
    void operator()(std::FILE* iFile) const { std::fclose(iFile); }
};
using File = std::unique_ptr<std::FILE, Closing>;

std::error_code LastError() {
    return std::error_code(errno == 0 ? EIO : errno, std::generic_category());
}

std::error_code MakeFolders(const fs::path& iFolder) {
    std::error_code error;
    if (iFolder.empty() || fs::is_directory(iFolder, error))
        return std::error_code();
    if (error = MakeFolders(iFolder.parent_path()); error)
        return error;
    if (fs::create_directory(iFolder, error))
        fs::permissions(iFolder, fs::perms::owner_all, error);
    return error;
}

// A new file beside iFile under a name that nobody has.
File OpenBeside(const fs::path& iFile, fs::path& oName) {
    std::random_device random;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        oName = iFile;
        oName += "." + std::to_string(random()) + ".tmp";
        errno = 0;
        File file(std::fopen(oName.c_str(), "wbx"));
        if (file != nullptr || errno != EEXIST)
            return file;
    }
    return nullptr;
}

std::error_code Fill(File iFile, const fs::path& iName, const std::string& iContent) {
    std::error_code error;
    fs::permissions(iName, fs::perms::owner_read | fs::perms::owner_write, error);
    if (error)
        return error;
    errno = 0;
    if (std::fwrite(iContent.data(), 1, iContent.size(), iFile.get()) != iContent.size())
        return LastError();
    if (error = FlushToDisk(*iFile); error)
        return error;
    errno = 0;
    return std::fclose(iFile.release()) == 0 ? std::error_code() : LastError();
}

} // namespace

std::error_code ReplaceFile(const fs::path& iFile, const std::string& iContent) {
    std::error_code error = MakeFolders(iFile.parent_path());
    if (error)
        return error;
    fs::path temporary;
    File file = OpenBeside(iFile, temporary);
    if (file == nullptr)
        return LastError();
    error = Fill(std::move(file), temporary, iContent);
    if (!error)
        fs::rename(temporary, iFile, error);
    if (!error) {
        FlushFolder(iFile.parent_path());
        return error;
    }
    std::error_code ignored;
    fs::remove(temporary, ignored);
    return error;
}

std::error_code ReadWholeFile(const fs::path& iFile, std::size_t iLimit, std::string& oContent) {
    std::error_code error;
    const fs::file_status status = fs::status(iFile, error);
    if (fs::is_directory(status))
        return std::make_error_code(std::errc::is_a_directory);
    if (error)
        return error;
    if (!fs::is_regular_file(status))
        return std::make_error_code(std::errc::not_supported);
    errno = 0;
    std::ifstream stream(iFile, std::ios::binary);
    if (!stream.is_open())
        return LastError();
    std::string content(iLimit + 1, '\0');
    stream.read(content.data(), static_cast<std::streamsize>(content.size()));
    if (stream.bad())
        return LastError();
    content.resize(static_cast<std::size_t>(stream.gcount()));
    if (content.size() > iLimit)
        return std::make_error_code(std::errc::file_too_large);
    oContent = std::move(content);
    return error;
}

fs::path EndOfLinks(const fs::path& iPath, std::error_code& oError) {
    fs::path path = iPath;
    for (int link = 0; link < mostLinks; ++link) {
        if (!fs::is_symlink(fs::symlink_status(path, oError))) {
            oError.clear();
            return path;
        }
        const fs::path target = fs::read_symlink(path, oError);
        if (oError)
            return path;
        path = path.parent_path() / target; // an absolute target stands for itself
    }
    oError = std::make_error_code(std::errc::too_many_symbolic_link_levels);
    return path;
}

} // namespace host
