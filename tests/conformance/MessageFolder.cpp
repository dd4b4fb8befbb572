#include "MessageFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace {

class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "messages-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("no temporary folder can be made from " + pattern);
        _path = pattern;
        setenv("CATMsgCatalogPath", pattern.c_str(), 1);
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return _path; }

  private:
    std::filesystem::path _path;
};

} // namespace

void MessageFolder::Write(const std::string& iName, const std::string& iContent) {
    static const TemporaryFolder folder;
    std::ofstream file(folder.Path() / iName, std::ios::binary);
    file << iContent;
    file.close();
    ASSERT_FALSE(file.fail()) << iName;
}
