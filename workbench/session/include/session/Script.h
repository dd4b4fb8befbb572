#pragma once

// A session as it was read: JSON Lines, where blank lines and lines that begin with '#' say nothing.
//
//   Reading reading = ReadScript("tours/feature.jsonl", vocabulary);
//   if (!reading.script)
//       std::cerr << reading.problem << '\n'; // "tours/feature.jsonl:4: the step 'press' needs the key
//       'at'"

#include "session/Json.h"
#include "session/Vocabulary.h"

#include <filesystem>
#include <istream>
#include <optional>
#include <string>
#include <vector>

namespace session {

struct Step {
    int line = 0; ///< of the file, from 1
    Json json;

    bool IsExpectation() const { return json.contains("expect"); }
    /// The word behind "do" or "expect".
    std::string Word() const { return json.at(IsExpectation() ? "expect" : "do").get<std::string>(); }
};

struct Script {
    std::string file; ///< as it was opened
    std::vector<Step> steps;
};

struct Reading {
    std::optional<Script> script; ///< there exactly when there is no problem
    std::string problem;          ///< "file:line: sentence" of the first fault
};

/// Reads a session whole and checks every line, so that nothing is played of a session that is not in order.
/// UTF-8, with or without byte order mark, lines ending in LF or CRLF.
Reading ReadScript(const std::filesystem::path& file, const Vocabulary& vocabulary);
/// The same from a stream; `name` stands for the file in problems.
Reading ReadScript(std::istream& input, const std::string& name, const Vocabulary& vocabulary);

} // namespace session
