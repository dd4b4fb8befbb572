#pragma once

// A problem of a catalogue, with the place where a person finds and mends it.
//
//   Problem problem{"catalogue/types.csv", 3, "group", "unknown group 'Screws'"};
//   ToText(problem) == "catalogue/types.csv:3: column 'group': unknown group 'Screws'";

#include <string>

namespace engineering {

struct Problem {
    std::string file;    ///< path of the file or folder, as it was opened
    int line = 0;        ///< counted from 1; 0 when the problem concerns the whole file
    std::string column;  ///< header text of the column; empty when the problem concerns the whole line
    std::string message; ///< what is wrong, in English, without a full stop

    bool operator==(const Problem&) const = default;
};

/// One line "file:line: column 'X': message"; a place that is not known is left out.
std::string ToText(const Problem& problem);

} // namespace engineering
