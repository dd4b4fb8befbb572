#pragma once

// The JSON of sessions, transcripts and dumps: keys keep the order in which they were written.

#include <nlohmann/json.hpp>

#include <string>

namespace session {

using Json = nlohmann::ordered_json;

/// One line of JSON. A text that is not UTF-8 shows replacement characters.
std::string ToLine(const Json& json);

} // namespace session
