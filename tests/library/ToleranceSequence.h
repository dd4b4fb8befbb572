#pragma once

#include "ToleranceActs.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tolerance {

// One thing that somebody does, with the words for it.
struct Step {
    std::string words;
    std::function<std::string(Acts&)> act; // gives the answer
};

// A step whose operation gives nothing.
template<class Act>
Step Silent(const std::string& iWords, Act iAct) {
    return {iWords, [iAct](Acts& ioPanel) {
                iAct(ioPanel);
                return std::string();
            }};
}

// A parameter and what happens to it.
struct Story {
    Start start;
    std::vector<Step> steps;

    // One step a line.
    std::string InWords() const;
};

using Maker = std::function<std::unique_ptr<Acts>(const Start&)>;

// Plays a story with one panel of each kind and compares after each step. The first difference, expected and
// actual side by side; none when they agree.
std::optional<std::string> Play(const Story& iStory, const Maker& iExpected, const Maker& iActual);

// The story without everything that it fails without: no step can go, nor can two of them, and the start is
// as plain as it can be. The given story has to fail. Equal stories become equal ones.
Story Shrunk(Story iStory, const std::function<bool(const Story&)>& iFails);

} // namespace tolerance
