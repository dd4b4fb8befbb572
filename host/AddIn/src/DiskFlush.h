#ifndef DiskFlush_H
#define DiskFlush_H

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace host {

// Makes what was written so far survive a power failure, as far as the system offers it. This is the one
// place where the host goes beyond the standard library; without the system's call the buffer is flushed, no
// more.
std::error_code FlushToDisk(std::FILE& ioFile);
// The same for the names in a folder. A system that cannot do it does nothing.
void FlushFolder(const std::filesystem::path& iFolder);

} // namespace host

#endif
