#ifndef host_Preferences_H
#define host_Preferences_H

#include <string>

namespace host {

// Where the add-in's preferences are kept. In memory at the start; what is stored there ends with the
// process.
class Preferences {
  public:
    // In memory, and nothing stored yet.
    static void KeepInMemory();
    // In a file, which is read at every use, so that what another process has stored counts, and written at
    // every change: to a temporary file beside it, flushed and renamed, so that the old or the new one is
    // there, whole. Missing folders are made; file and folders are for the user alone. A symbolic link stays
    // one, and the file to which it leads is written. A file that cannot be read, is damaged or comes from a
    // newer version counts as empty and is never written over.
    static void KeepInFile(const std::string& iPath);
    // There is no preferences service until one of the Keep operations is called.
    static void Withdraw();

    // "memory", or the path of the file; empty when the service is withdrawn.
    static std::string Place();
    // Why the last reading or writing failed, in one sentence with the path; empty when it did not.
    static std::string Problem();
};

} // namespace host

#endif
