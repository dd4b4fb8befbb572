// The shipped tours, played with mouse and keyboard in real windows.

#include "Hand.h"
#include "PartPicking.h"
#include "command/CommandTest.h"
#include "desktop/Desktop.h"
#include "host/Messages.h"
#include "session/Player.h"
#include "workbench/CommandSteps.h"

#include <QtWidgets/QApplication>

#include <memory>

namespace {

struct Tour {
    const char* file;
    command::FeatureCommand::Mode mode;
};

void PrintTo(const Tour& iTour, std::ostream* ioStream) {
    *ioStream << iTour.file;
}

class TourTest : public command::CommandTest, public testing::WithParamInterface<Tour> {};

TEST_P(TourTest, HoldsWhenMouseAndKeyboardPlayIt) {
    Prepare(GetParam().mode);
    session::Player player(Recorder(), session::Journal::WithoutChanges);
    workbench::SetStep typedValue(Command());
    player.AddHandler(typedValue);
    ASSERT_TRUE(StartPrepared());
    const auto windows = std::make_unique<desktop::Desktop>();
    app::PartPicking picking(SamplePart(), Command());
    desktop_test::Hand hand(*windows, picking.Window());
    hand.TakeOver(player);
    QApplication::processEvents();

    const session::Reading reading =
        session::ReadScript(std::string(KELVANE_TOURS_DIR "/") + GetParam().file, player.Words());
    ASSERT_TRUE(reading.script) << reading.problem;
    const session::PlayResult result = player.Play(*reading.script);
    for (const session::Failure& failure : result.failures)
        ADD_FAILURE() << ToText(failure, reading.script->file);
    EXPECT_GT(result.steps, 5U);
    host::Messages::ClearJournal(); // the tour expects each of its messages
}

INSTANTIATE_TEST_SUITE_P(Shipped, TourTest,
                         testing::Values(Tour{"feature.jsonl", command::FeatureCommand::Mode::Parameters},
                                         Tour{"tolerances.jsonl", command::FeatureCommand::Mode::Parameters},
                                         Tour{"edit-panel.jsonl", command::FeatureCommand::Mode::Parameters},
                                         Tour{"sets.jsonl", command::FeatureCommand::Mode::Sets},
                                         Tour{"pages.jsonl", command::FeatureCommand::Mode::Parameters},
                                         Tour{"pages.jsonl", command::FeatureCommand::Mode::Sets}));

} // namespace
