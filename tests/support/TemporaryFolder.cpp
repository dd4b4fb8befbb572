#include "TemporaryFolder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace support {

TemporaryFolder::TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "kelvane-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        throw std::runtime_error("no folder for the test in " + pattern);
    _path = pattern;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(_path, ignored);
}

void TemporaryFolder::Write(const std::string& iName, const std::string& iContent) const {
    std::filesystem::create_directories((_path / iName).parent_path());
    std::ofstream(_path / iName, std::ios::binary) << iContent;
}

std::string TemporaryFolder::Read(const std::string& iName) const {
    return ReadFile(_path / iName);
}

bool TemporaryFolder::Has(const std::string& iName) const {
    return std::filesystem::exists(_path / iName);
}

std::string ReadFile(const std::filesystem::path& iPath) {
    std::ifstream stream(iPath, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

} // namespace support
