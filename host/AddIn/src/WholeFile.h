#ifndef WholeFile_H
#define WholeFile_H

#include <filesystem>
#include <string>
#include <system_error>

namespace host {

// Gives the file that content: written to a temporary file beside it, flushed to the disk and renamed, so
// that at any time the old or the new one is there, whole. Missing folders are made. File and folders are for
// the user alone. On an error the old file is there and no temporary one.
std::error_code ReplaceFile(const std::filesystem::path& iFile, const std::string& iContent);

// Reads a file of at most iLimit bytes. An error for a longer one, and for what is no regular file.
std::error_code ReadWholeFile(const std::filesystem::path& iFile, std::size_t iLimit, std::string& oContent);

// Where a chain of symbolic links leads, whether or not there is something; the path itself when it is none.
std::filesystem::path EndOfLinks(const std::filesystem::path& iPath, std::error_code& oError);

} // namespace host

#endif
