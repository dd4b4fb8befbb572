#ifndef MessageFolder_H
#define MessageFolder_H

#include <string>

// The folder in which the tests write message and resource files: a temporary one, named to the platform by
// the environment before its first look-up and removed at the end of the program. A platform keeps a
// catalogue that it has read, so each test writes one under a name of its own.
class MessageFolder {
  public:
    // Writes iContent to the file iName, with its extension.
    static void Write(const std::string& iName, const std::string& iContent);
};

#endif
