#pragma once

#include "TemporaryFolder.h"

namespace support {

// A folder of message and resource files of a test's own. It is searched from its making on, after the
// folders that were added before.
//
//     ResourceFolder resources;
//     resources.Write("OrvKvProgressDlg.CATNls", "Title = \"Progress\";\n");
class ResourceFolder : public TemporaryFolder {
  public:
    ResourceFolder();
};

// Lets the texts and icons of the library be found.
void UseLibraryResources();

} // namespace support
