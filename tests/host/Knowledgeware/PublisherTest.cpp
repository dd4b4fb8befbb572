// Publishers of parameters.

#include "CATIParmPublisher.h"

#include "CATIParmTolerance.h"
#include "host/LiveObjects.h"
#include "host/Parameters.h"
#include "support/AuditedTest.h"
#include "support/ParameterWatcher.h"

using host::LiveObjects;
using host::Parameters;

namespace {

typedef std::vector<std::string> Names;

class PublisherTest : public support::AuditedTest {
  protected:
    static Names Published(const CATIParmPublisher_var& iPublisher) {
        CATListValCATBaseUnknown_var parameters;
        EXPECT_EQ(iPublisher->GetParameters(parameters), S_OK);
        Names names;
        for (int position = 1; position <= parameters.Size(); ++position)
            names.push_back(CATICkeParm_var(parameters[position])->Name().ConvertToChar());
        return names;
    }
    static std::string Relative(const CATICkeParm_var& iParameter, const CATIParmPublisher_var& iPublisher) {
        return iParameter->RelativeName(iPublisher).ConvertToChar();
    }

    CATIParmPublisher_var hole = Parameters::NewPublisher("Hole.1");
    CATIParmPublisher_var slot = Parameters::NewPublisher("Slot.2");
    CATICkeParm_var depth = Parameters::NewLength("DEPTH", 5.0);
    CATICkeParm_var angle = Parameters::NewAngle("ANGLE", 5.0);
};

TEST_F(PublisherTest, HasANameAndNoParametersAtFirst) {
    EXPECT_STREQ(hole->Name().ConvertToChar(), "Hole.1");
    EXPECT_EQ(Published(hole), Names());
}

TEST_F(PublisherTest, GivesItsParametersInTheirOrder) {
    EXPECT_EQ(hole->Append(angle), S_OK);
    EXPECT_EQ(hole->Append(depth), S_OK);
    EXPECT_EQ(Published(hole), Names({"ANGLE", "DEPTH"}));
    EXPECT_EQ(hole->Remove(angle), S_OK);
    EXPECT_EQ(hole->Append(angle), S_OK);
    EXPECT_EQ(Published(hole), Names({"DEPTH", "ANGLE"}));
}

TEST_F(PublisherTest, ReplacesWhatTheListHeld) {
    CATListValCATBaseUnknown_var list;
    list.Append(depth);
    list.Append(CATBaseUnknown_var());
    EXPECT_EQ(hole->Append(angle), S_OK);
    EXPECT_EQ(hole->GetParameters(list), S_OK);
    ASSERT_EQ(list.Size(), 1);
    EXPECT_TRUE(list[1] == angle);
}

TEST_F(PublisherTest, TakesAParameterByAnyOfItsInterfaces) {
    EXPECT_EQ(hole->Append(CATIParmTolerance_var(depth)), S_OK);
    EXPECT_TRUE(FAILED(hole->Append(depth)));
    EXPECT_EQ(Published(hole), Names({"DEPTH"}));
    EXPECT_EQ(hole->Remove(CATIParmTolerance_var(depth)), S_OK);
    EXPECT_EQ(Published(hole), Names());
}

TEST_F(PublisherTest, RefusesTheSameParameterASecondTime) {
    EXPECT_EQ(hole->Append(depth), S_OK);
    EXPECT_EQ(hole->Append(depth), E_FAIL);
    EXPECT_EQ(Published(hole), Names({"DEPTH"}));
}

TEST_F(PublisherTest, RefusesWhatIsNoParameter) {
    EXPECT_EQ(hole->Append(slot), E_FAIL);
    EXPECT_EQ(hole->Append(NULL_var), E_FAIL);
    EXPECT_EQ(hole->Remove(slot), E_FAIL);
    EXPECT_EQ(hole->Remove(NULL_var), E_FAIL);
    EXPECT_EQ(Published(hole), Names());
}

TEST_F(PublisherTest, RefusesToRemoveWhatIsNotPublishedThere) {
    EXPECT_EQ(slot->Append(depth), S_OK);
    EXPECT_EQ(hole->Remove(depth), E_FAIL);
    EXPECT_EQ(hole->Remove(angle), E_FAIL);
    EXPECT_EQ(Published(slot), Names({"DEPTH"}));
    EXPECT_EQ(slot->Remove(depth), S_OK);
    EXPECT_EQ(slot->Remove(depth), E_FAIL);
}

TEST_F(PublisherTest, TakesAParameterAwayFromTheOneThatHadIt) {
    EXPECT_EQ(hole->Append(angle), S_OK);
    EXPECT_EQ(hole->Append(depth), S_OK);
    EXPECT_EQ(slot->Append(depth), S_OK);
    EXPECT_EQ(Published(hole), Names({"ANGLE"}));
    EXPECT_EQ(Published(slot), Names({"DEPTH"}));
    EXPECT_EQ(Relative(depth, hole), "Slot.2\\DEPTH");
}

TEST_F(PublisherTest, DecidesWhatAParameterIsCalledFromElsewhere) {
    EXPECT_EQ(Relative(depth, hole), "DEPTH");
    EXPECT_EQ(hole->Append(depth), S_OK);
    EXPECT_EQ(Relative(depth, hole), "DEPTH");
    EXPECT_EQ(Relative(depth, slot), "Hole.1\\DEPTH");
    EXPECT_EQ(Relative(depth, CATIParmPublisher_var()), "DEPTH");
    EXPECT_STREQ(depth->Name().ConvertToChar(), "DEPTH");
    EXPECT_EQ(hole->Remove(depth), S_OK);
    EXPECT_EQ(Relative(depth, slot), "DEPTH");
}

TEST_F(PublisherTest, KeepsItsParametersAlive) {
    EXPECT_EQ(hole->Append(Parameters::NewLength("OTHER", 1.0)), S_OK);
    EXPECT_EQ(LiveObjects::Count("Parameter"), 3);
    EXPECT_EQ(Published(hole), Names({"OTHER"}));
    hole = CATIParmPublisher_var();
    EXPECT_EQ(LiveObjects::Count("Parameter"), 2);
}

TEST_F(PublisherTest, LeavesParametersThatOutliveItWithoutPublisher) {
    EXPECT_EQ(hole->Append(depth), S_OK);
    EXPECT_EQ(hole->Append(angle), S_OK);
    hole = CATIParmPublisher_var();
    EXPECT_EQ(LiveObjects::Count("Publisher"), 1);
    EXPECT_EQ(Relative(depth, slot), "DEPTH");
    EXPECT_EQ(slot->Append(depth), S_OK);
    EXPECT_EQ(Published(slot), Names({"DEPTH"}));
}

TEST_F(PublisherTest, IsNotKeptAliveByItsParameters) {
    EXPECT_EQ(hole->Append(depth), S_OK);
    EXPECT_EQ((hole->AddRef(), hole->Release()), 1UL);
}

TEST_F(PublisherTest, IsChangedByACallbackOfItsParameter) {
    EXPECT_EQ(hole->Append(depth), S_OK);
    support::ParameterWatcher watcher(depth);
    CATICkeParm* const plain = depth;
    depth = CATICkeParm_var();
    watcher.onEvent = [&] { hole = CATIParmPublisher_var(); };
    EXPECT_EQ(plain->Valuate(0.002), S_OK);
    EXPECT_EQ(LiveObjects::Count("Parameter"), 1) << "the angle alone";
    EXPECT_EQ(watcher.Take(), support::Events({"value of DEPTH"}));
}

} // namespace
