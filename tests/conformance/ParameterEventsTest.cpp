// Events of parameters.

#include "CATIParmEvents.h"

#include "ParameterFacts.h"

namespace {

class ParameterEvents : public ParameterFixture {
  protected:
    ParameterEvents() {
        AddCallback(&onValue, events->GetPublisher(), events->GetValueChangedEvent(), firstEvent);
        AddCallback(&onTolerance, events->GetPublisher(), events->GetToleranceChangedEvent(), firstEvent);
    }
    // What the two subscribers write down.
    std::string ValueEvent() const { return std::string("value:first ") + events->GetValueChangedEvent(); }
    std::string ToleranceEvent() const {
        return std::string("tolerance:first ") + events->GetToleranceChangedEvent();
    }

    Journal journal;
    RecordingSubscriber onValue{"value", journal};
    RecordingSubscriber onTolerance{"tolerance", journal};
    const CATIParmEvents_var events{length};
};

} // namespace

CERTAIN(ParameterEvents, TheTwoEventsAreDifferent) {
    EXPECT_STRNE(events->GetValueChangedEvent(), events->GetToleranceChangedEvent());
}

CERTAIN(ParameterEvents, ThePublisherIsTheParameter) {
    EXPECT_TRUE(CATBaseUnknown_var(events->GetPublisher()) == length);
    EXPECT_EQ(events->GetPublisher(), CATIParmEvents_var(CATIParmTolerance_var(length))->GetPublisher());
}

CERTAIN(ParameterEvents, ARaisedChangeIsHeardAtOnce) {
    events->RaiseChange(1);
    EXPECT_EQ(Journal{ValueEvent()}, journal);
}

ASSUMED(ParameterEvents, TheFlagOfARaisedChangeDoesNotMatterToSubscribers, "open: its meaning is not known") {
    events->RaiseChange(0);
    events->RaiseChange(-1);
    EXPECT_EQ((Journal{ValueEvent(), ValueEvent()}), journal);
}

ASSUMED(ParameterEvents, ARaisedToleranceChangeIsHeardUnderItsOwnNameAlone,
        "open: the two events are kept apart") {
    events->RaiseToleranceChange();
    EXPECT_EQ(Journal{ToleranceEvent()}, journal);
}

CERTAIN(ParameterEvents, ANewValueRaisesTheChange) {
    EXPECT_EQ(S_OK, length->Valuate(0.02));
    EXPECT_EQ(Journal{ValueEvent()}, journal);
}

ASSUMED(ParameterEvents, AnEqualValueRaisesTheChangeToo, "open: writing is told, not comparing") {
    EXPECT_EQ(S_OK, length->Valuate(0.01));
    EXPECT_EQ(S_OK, length->Valuate(1));
    EXPECT_EQ((Journal{ValueEvent(), ValueEvent()}), journal);
}

ASSUMED(ParameterEvents, ARefusedValueRaisesNothing, "open") {
    EXPECT_TRUE(FAILED(length->Valuate(CATUnicodeString("1"))));
    EXPECT_TRUE(FAILED(length->Valuate(1e306)));
    EXPECT_EQ(Journal(), journal);
}

CERTAIN(ParameterEvents, AStoredValueIsWrittenSilently) {
    EXPECT_EQ(S_OK, CATIParmAsStored_var(length)->SetValue(20.0));
    EXPECT_EQ(Journal(), journal);
}

CERTAIN(ParameterEvents, AToleranceIsWrittenSilently) {
    const CATIParmTolerance_var tolerance(length);
    EXPECT_EQ(S_OK, tolerance->SetMaxTolerance(0.1));
    EXPECT_EQ(S_OK, tolerance->SetMinTolerance(-0.1));
    EXPECT_EQ(S_OK, tolerance->Unset());
    EXPECT_EQ(Journal(), journal);
}

CERTAIN(ParameterEvents, OnlyTheSubscribersOfThatParameterHear) {
    EXPECT_EQ(S_OK, angle->Valuate(1.0));
    CATIParmEvents_var(angle)->RaiseToleranceChange();
    EXPECT_EQ(Journal(), journal);
}

CERTAIN(ParameterEvents, ASubscriberThatLeftHearsNothing) {
    RemoveSubscriberCallbacks(&onValue, events->GetPublisher());
    events->RaiseChange(1);
    events->RaiseToleranceChange();
    EXPECT_EQ(Journal{ToleranceEvent()}, journal);
}

ASSUMED(ParameterEvents, ASubscriptionKeepsNoParameterAlive, "open: it goes with the parameter") {
    CATICkeParm_var other = factory->CreateLength("DEPTH", 0.01);
    const CATIParmEvents_var ofOther(other);
    const CATCallback id =
        AddCallback(&onValue, ofOther->GetPublisher(), ofOther->GetValueChangedEvent(), firstEvent);
    EXPECT_GE(id, 0);
    EXPECT_EQ(2UL, (other->AddRef(), other->Release())) << "one reference of each handle";
}

CERTAIN(ParameterEvents, EveryMagnitudeHasThem) {
    for (const CATICkeParm_var& parameter : {angle, real, integer, boolean, string}) {
        const CATIParmEvents_var each(parameter);
        ASSERT_FALSE(!each);
        EXPECT_STREQ(events->GetValueChangedEvent(), each->GetValueChangedEvent());
        AddCallback(&onValue, each->GetPublisher(), each->GetValueChangedEvent(), firstEvent);
    }
    EXPECT_EQ(S_OK, integer->Valuate(4));
    EXPECT_EQ(S_OK, boolean->Valuate(0));
    EXPECT_EQ(S_OK, string->Valuate(CATUnicodeString("M12")));
    EXPECT_EQ((Journal{ValueEvent(), ValueEvent(), ValueEvent()}), journal);
}
