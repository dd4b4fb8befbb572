#include "DiskFlush.h"

#include <cerrno>

#if __has_include(<unistd.h>) && __has_include(<fcntl.h>)
#include <fcntl.h>
#include <unistd.h>
#define HAS_FSYNC 1
#else
#define HAS_FSYNC 0
#endif

namespace host {

std::error_code FlushToDisk(std::FILE& ioFile) {
    errno = 0;
    if (std::fflush(&ioFile) != 0)
        return std::error_code(errno, std::generic_category());
#if HAS_FSYNC
    if (::fsync(::fileno(&ioFile)) != 0)
        return std::error_code(errno, std::generic_category());
#endif
    return std::error_code();
}

#if HAS_FSYNC
void FlushFolder(const std::filesystem::path& iFolder) {
    const int folder = ::open(iFolder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    static_cast<void>(::fsync(folder));
    ::close(folder);
}
#else
void FlushFolder(const std::filesystem::path&) {}
#endif

} // namespace host
