// Handles: counted pointers that ask for their interface.

#include "CATHandle.h"

#include "Samples.h"

namespace {

class Handles : public PlatformTest {
  protected:
    Owned<SampleComponent> component{new SampleComponent};
    Owned<SampleObject> object{new SampleObject};
};

} // namespace

CERTAIN(Handles, AHandleIsMadeFromAnyObjectThatHasTheInterface) {
    CATBaseUnknown* const plain = component.get();
    const SampleInterface_var handle(plain);
    ASSERT_FALSE(!handle);
    EXPECT_EQ(42, handle->Answer());
}

CERTAIN(Handles, AHandleFromAnObjectWithoutTheInterfaceIsNull) {
    const SampleInterface_var handle(static_cast<CATBaseUnknown*>(object.get()));
    EXPECT_TRUE(!handle);
}

CERTAIN(Handles, AHandleHoldsAReferenceAndGivesItBack) {
    {
        const SampleInterface_var handle(component.get());
        component.reset();
        EXPECT_EQ(1, SampleComponent::living);
        const SampleInterface_var second(handle);
        SampleInterface_var third;
        third = handle;
        EXPECT_EQ(42, third->Answer());
    }
    EXPECT_EQ(0, SampleComponent::living);
}

CERTAIN(Handles, AssigningReleasesWhatWasHeld) {
    CATBaseUnknown_var handle(component.get());
    component.reset();
    handle = object.get();
    EXPECT_EQ(0, SampleComponent::living);
    handle = NULL_var;
    EXPECT_TRUE(!handle);
    EXPECT_EQ(1UL, (object->AddRef(), object->Release()));
}

CERTAIN(Handles, AssigningToItselfKeepsTheObject) {
    SampleInterface_var handle(component.get());
    component.reset();
    const SampleInterface_var& same = handle;
    handle = same;
    ASSERT_FALSE(!handle);
    EXPECT_EQ(42, handle->Answer());
}

CERTAIN(Handles, TheNullHandleTestsAsNull) {
    const SampleInterface_var handle;
    EXPECT_TRUE(!NULL_var);
    EXPECT_TRUE(!handle);
    EXPECT_FALSE(!!handle);
    EXPECT_TRUE(handle == NULL_var);
    EXPECT_FALSE(handle != NULL_var);
    const SampleInterface_var filled(component.get());
    EXPECT_FALSE(!filled);
    EXPECT_TRUE(!!filled);
    EXPECT_FALSE(filled == NULL_var);
    EXPECT_TRUE(filled != NULL_var);
}

CERTAIN(Handles, HandlesOnOneObjectAreEqual) {
    const SampleInterface_var handle(component.get());
    const CATBaseUnknown_var base(handle);
    const CATBaseUnknown_var other(object.get());
    EXPECT_TRUE(handle == base);
    EXPECT_TRUE(base == handle);
    EXPECT_FALSE(base == other);
    EXPECT_TRUE(base != other);
}

CERTAIN(Handles, AHandleIsMadeFromAHandleOfAnotherInterface) {
    const CATBaseUnknown_var base(component.get());
    const SampleInterface_var handle(base);
    ASSERT_FALSE(!handle);
    EXPECT_EQ(42, handle->Answer());
    const CATBaseUnknown_var without(object.get());
    const SampleInterface_var null(without);
    EXPECT_TRUE(!null);
}

CERTAIN(Handles, UsingANullHandleRaisesAnError) {
    const SampleInterface_var null;
    const SampleInterface_var filled(component.get());
    EXPECT_EQ(nullptr, ErrorRaisedBy([&] { filled->Answer(); }));
    EXPECT_NE(nullptr, ErrorRaisedBy([&] { null->Answer(); }));
    EXPECT_NE(nullptr, ErrorRaisedBy([&] { static_cast<void>(NULL_var->IsA()); }));
}

ASSUMED(Handles, TheNullHandleErrorIsAnInternalError,
        "open: the class of the error has no name anywhere; the panels catch every error alike") {
    const SampleInterface_var null;
    const Owned<CATError> error = ErrorRaisedBy([&] { null->Answer(); });
    ASSERT_NE(nullptr, error);
    EXPECT_STREQ("CATInternalError", error->IsA());
    EXPECT_STREQ("NullHandle", error->GetMsgId());
}
