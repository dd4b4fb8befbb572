#include "ResourceFolder.h"

#include "host/MessageCatalogs.h"

namespace support {

ResourceFolder::ResourceFolder() {
    host::MessageCatalogs::AddFolder(Path().string());
}

void UseLibraryResources() {
    host::MessageCatalogs::AddFolder(KELVANE_MESSAGE_DIR);
}

} // namespace support
