#include "session/Json.h"

namespace session {

std::string ToLine(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

} // namespace session
