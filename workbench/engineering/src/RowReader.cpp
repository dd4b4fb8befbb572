#include "RowReader.h"

#include "CellText.h"
#include "ElementName.h"

namespace engineering {

std::string RowReader::NewName(const char* column, std::set<std::string>& known) {
    Parsed<std::string> name = ParseElementName(Text(column));
    if (!name.value) {
        Fail(column, std::move(name.error));
        return {};
    }
    if (!known.insert(*name.value).second) {
        Fail(column, "duplicate name " + Quoted(*name.value));
    }
    return std::move(*name.value);
}

} // namespace engineering
