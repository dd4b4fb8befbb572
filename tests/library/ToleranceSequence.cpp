#include "ToleranceSequence.h"

#include <algorithm>
#include <utility>

namespace tolerance {

namespace {

using Fails = std::function<bool(const Story&)>;

Story Without(const Story& iStory, std::size_t iFirst, std::size_t iCount) {
    Story shorter = iStory;
    const auto first = shorter.steps.begin() + static_cast<std::ptrdiff_t>(iFirst);
    const std::size_t count = std::min(iCount, shorter.steps.size() - iFirst);
    shorter.steps.erase(first, first + static_cast<std::ptrdiff_t>(count));
    return shorter;
}

// Takes pieces of that many steps away wherever the story fails without them.
bool RemovePieces(Story& ioStory, std::size_t iLength, const Fails& iFails) {
    bool isShorter = false;
    std::size_t first = 0;
    while (first < ioStory.steps.size()) {
        Story shorter = Without(ioStory, first, iLength);
        if (iFails(shorter)) {
            ioStory = std::move(shorter);
            isShorter = true;
        } else {
            first += iLength;
        }
    }
    return isShorter;
}

// Takes the first two steps away that need one another but not the story.
bool RemovePair(Story& ioStory, const Fails& iFails) {
    for (std::size_t second = 1; second < ioStory.steps.size(); ++second)
        for (std::size_t first = 0; first < second; ++first) {
            Story shorter = Without(Without(ioStory, second, 1), first, 1);
            if (iFails(shorter)) {
                ioStory = std::move(shorter);
                return true;
            }
        }
    return false;
}

void RemoveSteps(Story& ioStory, const Fails& iFails) {
    for (std::size_t length = ioStory.steps.size() / 2; length > 1; length /= 2)
        RemovePieces(ioStory, length, iFails);
    while (RemovePieces(ioStory, 1, iFails) || RemovePair(ioStory, iFails)) {
    }
}

template<class Change>
bool Simplify(Story& ioStory, const Fails& iFails, Change iChange) {
    Story plainer = ioStory;
    iChange(plainer.start);
    if (plainer.start == ioStory.start || !iFails(plainer))
        return false;
    ioStory = std::move(plainer);
    return true;
}

bool SimplifyStart(Story& ioStory, const Fails& iFails) {
    const Start plain;
    const bool magnitude =
        Simplify(ioStory, iFails, [&](Start& ioStart) { ioStart.isAngle = plain.isAngle; });
    const bool nominal = Simplify(ioStory, iFails, [&](Start& ioStart) { ioStart.nominal = plain.nominal; });
    const bool tolerance = Simplify(ioStory, iFails, [&](Start& ioStart) {
        ioStart.hasTolerance = plain.hasTolerance;
        ioStart.maximum = plain.maximum;
        ioStart.minimum = plain.minimum;
    });
    return magnitude || nominal || tolerance;
}

} // namespace

std::string Story::InWords() const {
    std::string words = std::string(start.isAngle ? "an angle of " : "a length of ") + InFull(start.nominal) +
                        (start.isAngle ? " deg" : " mm");
    if (start.hasTolerance)
        words += " with the tolerance " + InFull(start.maximum) + " " + InFull(start.minimum);
    words += "\n";
    int number = 0;
    for (const Step& step : steps)
        words += std::to_string(++number) + ". " + step.words + "\n";
    return words;
}

std::optional<std::string> Play(const Story& iStory, const Maker& iExpected, const Maker& iActual) {
    const std::unique_ptr<Acts> expected = iExpected(iStory.start);
    const std::unique_ptr<Acts> actual = iActual(iStory.start);
    Sight expectedSight = expected->Look();
    Sight actualSight = actual->Look();
    for (const Step& step : iStory.steps) {
        if (expectedSight != actualSight)
            break;
        const std::string expectedAnswer = step.act(*expected);
        const std::string actualAnswer = step.act(*actual);
        expectedSight = expected->Look();
        actualSight = actual->Look();
        expectedSight.answer = expectedAnswer;
        actualSight.answer = actualAnswer;
    }
    if (expectedSight == actualSight)
        return std::nullopt;
    return SideBySide(expectedSight, actualSight);
}

Story Shrunk(Story iStory, const Fails& iFails) {
    do
        RemoveSteps(iStory, iFails);
    while (SimplifyStart(iStory, iFails));
    return iStory;
}

} // namespace tolerance
