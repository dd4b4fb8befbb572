#pragma once

#include <filesystem>
#include <string>

namespace support {

// An empty folder that goes with the object.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return _path; }

    // Writes a file, with the folders above it.
    void Write(const std::string& iName, const std::string& iContent) const;
    // The content of a file; empty when there is none.
    std::string Read(const std::string& iName) const;
    bool Has(const std::string& iName) const;

  private:
    std::filesystem::path _path;
};

// The content of a file; empty when it cannot be read.
std::string ReadFile(const std::filesystem::path& iPath);

} // namespace support
