// Plays stories with the tolerance panel and with a small model of it, and compares the two after every step.
// Stories that fail are printed shortest first, each without the steps that do not matter.
//
//     KELVANE_TOLERANCE_SEEDS=20   plays twenty times as many stories, with further seeds

#include "ToleranceModel.h"
#include "ToleranceSequence.h"
#include "ToleranceStage.h"
#include "ToleranceTeller.h"

#include "support/ApplicationTest.h"

#include <algorithm>
#include <cstdlib>

using namespace tolerance;

namespace {

constexpr unsigned firstSeed = 20240715;
constexpr int storiesOfSeed = 3000;
constexpr int shortestStory = 3;
constexpr int longestStory = 40;
constexpr std::size_t mostFailures = 5; // more would hardly say more

unsigned Seeds() {
    const char* const text = std::getenv("KELVANE_TOLERANCE_SEEDS");
    return text == nullptr ? 1U : static_cast<unsigned>(std::max(1, std::atoi(text)));
}

// The stories of a seed, shorter ones first.
template<class Tell>
void ForEachStory(unsigned iSeed, Tell iTell) {
    std::mt19937 random(iSeed);
    for (int number = 0; number < storiesOfSeed; ++number)
        iTell(RandomStory(random, shortestStory + number * (longestStory - shortestStory) / storiesOfSeed));
}

std::unique_ptr<Acts> MakeModel(const Start& iStart) {
    return std::make_unique<Model>(iStart);
}

// Does not hear of a nominal value while the panel is hidden.
class DeafModel : public Model {
  public:
    using Model::Model;

    void ShowPanel(bool iIsShown) override {
        _isDeaf = !iIsShown;
        Model::ShowPanel(iIsShown);
    }
    void SetNominal(double iValue, bool iRaises) override {
        if (!_isDeaf)
            Model::SetNominal(iValue, iRaises);
    }

  private:
    bool _isDeaf = false;
};

std::unique_ptr<Acts> MakeDeafModel(const Start& iStart) {
    return std::make_unique<DeafModel>(iStart);
}

// A story whose steps are called by one letter each and do nothing, and the letters of one.
Story StoryOf(const std::string& iLetters) {
    Story story;
    for (const char letter : iLetters)
        story.steps.push_back(Silent(std::string(1, letter), [](Acts&) {}));
    return story;
}

std::string WordsOf(const Story& iStory) {
    std::string words;
    for (const Step& step : iStory.steps)
        words += step.words;
    return words;
}

// The shrunk stories of a seed in which the two differ, shortest first, none of them twice.
std::vector<Story> FailuresOf(unsigned iSeed, const Maker& iExpected, const Maker& iActual) {
    const auto fails = [&](const Story& iStory) { return Play(iStory, iExpected, iActual).has_value(); };
    std::vector<Story> failures;
    std::size_t failed = 0;
    ForEachStory(iSeed, [&](const Story& iStory) {
        if (failed == mostFailures || !fails(iStory))
            return;
        ++failed;
        Story shrunk = Shrunk(iStory, fails);
        if (std::none_of(failures.begin(), failures.end(),
                         [&](const Story& iOther) { return iOther.InWords() == shrunk.InWords(); }))
            failures.push_back(std::move(shrunk));
    });
    std::stable_sort(failures.begin(), failures.end(), [](const Story& iLeft, const Story& iRight) {
        return iLeft.steps.size() < iRight.steps.size();
    });
    return failures;
}

std::string Printed(const Story& iStory, const Maker& iExpected, const Maker& iActual) {
    const std::optional<std::string> difference = Play(iStory, iExpected, iActual);
    return iStory.InWords() + (difference ? *difference : "differed once, and not again\n");
}

class OrvKvToleranceSubSequencesTest : public support::ApplicationTest {
  protected:
    Maker MakeStage() const {
        return [this](const Start& iStart) { return std::make_unique<Stage>(*MainWindow(), iStart); };
    }
};

TEST_F(OrvKvToleranceSubSequencesTest, DoesWhatTheModelDoesInEveryStory) {
    for (unsigned seed = firstSeed; seed < firstSeed + Seeds(); ++seed)
        for (const Story& story : FailuresOf(seed, MakeModel, MakeStage()))
            ADD_FAILURE() << Printed(story, MakeModel, MakeStage());
}

// The minimum is mirrored twice on the way to the symmetric mode. Where that leads back to the old value it
// shows only in a refused text, which gives way to the value.
TEST_F(OrvKvToleranceSubSequencesTest, DoesWhatTheModelDoesInAStoryThatChanceHardlyTells) {
    Story story;
    story.start = {false, 20.0, true, 0.1, -0.1};
    story.steps = {{"type a maximum", [](Acts& ioPanel) { return ioPanel.Type(Limit::Maximum, "0.2"); }},
                   {"type no minimum", [](Acts& ioPanel) { return ioPanel.Type(Limit::Minimum, "abc"); }},
                   {"symmetric", [](Acts& ioPanel) { return ioPanel.Check(Mode::Symmetric); }}};
    EXPECT_FALSE(Play(story, MakeModel, MakeStage())) << Printed(story, MakeModel, MakeStage());
}

TEST_F(OrvKvToleranceSubSequencesTest, APlantedDifferenceIsFoundAndShrunkToItsTwoSteps) {
    const std::vector<Story> failures = FailuresOf(firstSeed, MakeDeafModel, MakeStage());
    ASSERT_FALSE(failures.empty());
    for (const Story& story : failures) {
        EXPECT_EQ(story.start, Start()) << story.InWords();
        ASSERT_EQ(story.steps.size(), 2U) << story.InWords();
        EXPECT_EQ(story.steps[0].words, "the panel is hidden");
        EXPECT_TRUE(story.steps[1].words.starts_with("a program sets the nominal value ")) << story.InWords();
    }
}

TEST_F(OrvKvToleranceSubSequencesTest, AFailureIsPrintedStepByStepWithExpectedAndActualSideBySide) {
    Story story;
    story.start = {true, 30.0, true, 0.2, -0.1};
    story.steps = {Silent("hide", [](Acts& ioPanel) { ioPanel.ShowPanel(false); }),
                   Silent("value 500", [](Acts& ioPanel) { ioPanel.SetNominal(500.0, true); })};
    EXPECT_EQ(Printed(story, MakeDeafModel, MakeStage()), "an angle of 30 deg with the tolerance 0.2 -0.1\n"
                                                          "1. hide\n"
                                                          "2. value 500\n"
                                                          "                    expected  actual\n"
                                                          "nominal             '30deg'   '500deg'\n"
                                                          "value               30        500\n"
                                                          "event               -         value of D\n");
}

TEST(ToleranceSequenceTest, EventsAreComparedOneByOne) {
    Sight expected;
    expected.notifications = {"a", "b"};
    Sight actual;
    actual.notifications = {"a"};
    actual.traces = {"c"};
    EXPECT_EQ(SideBySide(expected, actual), "                    expected  actual\n"
                                            "notification        b         -\n"
                                            "trace               -         c\n");
}

TEST(ToleranceSequenceTest, ShrinkingLeavesTheStepsThatMatterInTheirOrder) {
    const auto fails = [](const Story& iStory) {
        const std::string words = WordsOf(iStory);
        const std::size_t first = words.find('c');
        return first != std::string::npos && words.find('h', first) != std::string::npos;
    };
    EXPECT_EQ(WordsOf(Shrunk(StoryOf("abcdefghij"), fails)), "ch");
    EXPECT_EQ(WordsOf(Shrunk(StoryOf("hhhccchhhccc"), fails)), "ch");
    EXPECT_EQ(WordsOf(Shrunk(StoryOf("ch"), fails)), "ch");
}

TEST(ToleranceSequenceTest, ShrinkingTakesTwoStepsAwayThatNeedOneAnother) {
    const auto fails = [](const Story& iStory) {
        const std::string words = WordsOf(iStory);
        const bool isBalanced = std::count(words.begin(), words.end(), 'x') % 2 == 0;
        return isBalanced && words.find('a') != std::string::npos;
    };
    EXPECT_EQ(WordsOf(Shrunk(StoryOf("bxcadx"), fails)), "a");
}

TEST(ToleranceSequenceTest, ShrinkingMakesTheStartAsPlainAsItCanBe) {
    Story story = StoryOf("ab");
    story.start = {true, 700.0, true, 0.2, -0.1};
    const auto failsForAngles = [](const Story& iStory) { return iStory.start.isAngle; };
    const Story shrunk = Shrunk(story, failsForAngles);
    Start plainAngle;
    plainAngle.isAngle = true;
    EXPECT_EQ(shrunk.start, plainAngle);
    EXPECT_EQ(WordsOf(shrunk), "");
    const auto failsForTolerances = [](const Story& iStory) { return iStory.start.hasTolerance; };
    EXPECT_EQ(Shrunk(story, failsForTolerances).start, (Start{false, 20.0, true, 0.2, -0.1}));
}

TEST_F(OrvKvToleranceSubSequencesTest, TheStoriesEnterAndOvertakeEachModeFromEachOther) {
    Passages entries;
    Passages overtaken;
    ForEachStory(firstSeed, [&](const Story& iStory) {
        Model model(iStory.start);
        for (const Step& step : iStory.steps)
            step.act(model);
        entries.insert(model.Entries().begin(), model.Entries().end());
        overtaken.insert(model.OvertakenEntries().begin(), model.OvertakenEntries().end());
    });
    Passages all;
    for (const Mode from : {Mode::None, Mode::PlusMinus, Mode::Symmetric, Mode::Fit})
        for (const Mode to : {Mode::PlusMinus, Mode::Symmetric, Mode::Fit})
            all.emplace(from, to);
    EXPECT_EQ(entries, all);
    const Passages canBeOvertaken = {{Mode::None, Mode::PlusMinus},
                                     {Mode::Fit, Mode::PlusMinus},
                                     {Mode::None, Mode::Fit},
                                     {Mode::PlusMinus, Mode::Fit},
                                     {Mode::Symmetric, Mode::Fit}};
    EXPECT_EQ(overtaken, canBeOvertaken);
}

} // namespace
