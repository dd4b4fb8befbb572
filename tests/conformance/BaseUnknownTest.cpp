// The base object: reference counting, interfaces, and what an object says of itself.

#include "CATBaseUnknown.h"

#include "Samples.h"

namespace {

class BaseObjects : public PlatformTest {};

} // namespace

CERTAIN(BaseObjects, TheLastReleaseDestroysTheObject) {
    auto* object = new SampleObject;
    object->AddRef();
    object->Release();
    EXPECT_EQ(1, SampleObject::living);
    object->Release();
    EXPECT_EQ(0, SampleObject::living);
}

ASSUMED(BaseObjects, AddRefAndReleaseGiveTheReferencesThatRemain,
        "recalled: as in the component model; nothing but tests reads it") {
    auto* object = new SampleObject;
    EXPECT_EQ(2UL, object->AddRef());
    EXPECT_EQ(3UL, object->AddRef());
    EXPECT_EQ(2UL, object->Release());
    EXPECT_EQ(1UL, object->Release());
    EXPECT_EQ(0UL, object->Release());
}

ASSUMED(BaseObjects, ACopyHasReferencesOfItsOwn,
        "open: a copy is an object by itself, so the references on the first one cannot count for it") {
    auto* object = new SampleObject;
    object->AddRef();
    auto* copy = new SampleObject(*object);
    EXPECT_EQ(2, SampleObject::living);
    EXPECT_EQ(0UL, copy->Release());
    EXPECT_EQ(1, SampleObject::living);
    *object = SampleObject(); // neither does an assignment touch them
    EXPECT_EQ(1UL, object->Release());
    EXPECT_EQ(0UL, object->Release());
}

CERTAIN(BaseObjects, AFoundInterfaceComesWithAReference) {
    Owned<SampleComponent> component(new SampleComponent);
    void* found = nullptr;
    ASSERT_EQ(S_OK, component->QueryInterface(IID_SampleInterface, &found));
    auto* answering = static_cast<SampleInterface*>(found);
    EXPECT_EQ(42, answering->Answer());
    component.reset();
    EXPECT_EQ(1, SampleComponent::living);
    answering->Release();
    EXPECT_EQ(0, SampleComponent::living);
}

CERTAIN(BaseObjects, AMissingInterfaceFailsAndAddsNoReference) {
    const Owned<SampleObject> object(new SampleObject);
    void* found = object.get();
    EXPECT_TRUE(FAILED(object->QueryInterface(IID_SampleInterface, &found)));
    EXPECT_EQ(nullptr, found);
    EXPECT_EQ(2UL, object->AddRef());
    EXPECT_EQ(1UL, object->Release());
}

ASSUMED(BaseObjects, AMissingInterfaceAnswersNoInterface,
        "recalled: the code of the component model for this case") {
    const Owned<SampleObject> object(new SampleObject);
    void* found = nullptr;
    EXPECT_EQ(E_NOINTERFACE, object->QueryInterface(IID_SampleInterface, &found));
}

CERTAIN(BaseObjects, EachObjectHasTheBaseInterface) {
    const Owned<SampleObject> object(new SampleObject);
    void* found = nullptr;
    ASSERT_EQ(S_OK, object->QueryInterface(IID_CATBaseUnknown, &found));
    EXPECT_EQ(static_cast<CATBaseUnknown*>(object.get()), found);
    EXPECT_EQ(1UL, object->Release());
}

ASSUMED(BaseObjects, ANullPlaceForTheInterfaceFails, "open: refused rather than crashed on") {
    const Owned<SampleObject> object(new SampleObject);
    EXPECT_TRUE(FAILED(object->QueryInterface(IID_CATBaseUnknown, nullptr)));
    EXPECT_EQ(2UL, object->AddRef());
    EXPECT_EQ(1UL, object->Release());
}

ASSUMED(BaseObjects, AnInterfaceIsFoundByItsName,
        "the operation is given, its meaning is not: the interface of that name, with a reference") {
    const Owned<SampleComponent> component(new SampleComponent);
    CATBaseUnknown* const found = component->QueryInterface("SampleInterface");
    EXPECT_EQ(static_cast<CATBaseUnknown*>(component.get()), found);
    EXPECT_EQ(1UL, component->Release());
    EXPECT_EQ(nullptr, component->QueryInterface("CATINobodyHasThis"));
}

ASSUMED(BaseObjects, AutomationIsNotOffered,
        "the operations are given, their work is not: no panel uses automation, so they refuse") {
    const Owned<SampleObject> object(new SampleObject);
    EXPECT_TRUE(FAILED(object->GetTypeInfoCount(nullptr)));
    EXPECT_TRUE(FAILED(object->GetTypeInfo(0, 0, nullptr)));
    EXPECT_TRUE(FAILED(object->GetIDsOfNames(IID_CATBaseUnknown, nullptr, 0, 0, nullptr)));
    EXPECT_TRUE(FAILED(object->Invoke(0, IID_CATBaseUnknown, 0, 0, nullptr, nullptr)));
    EXPECT_TRUE(FAILED(object->ChangeComponentState(0, 1, nullptr)));
}

ASSUMED(BaseObjects, AnObjectIsItsOwnImplementation,
        "the operation is given, its meaning is not: an object without extensions stands for itself") {
    const Owned<SampleObject> object(new SampleObject);
    const Owned<SampleObject> other(new SampleObject);
    EXPECT_EQ(static_cast<CATBaseUnknown*>(object.get()), object->GetImpl());
    object->SetImpl(other.get());
    EXPECT_EQ(static_cast<CATBaseUnknown*>(object.get()), object->GetImpl());
    EXPECT_EQ(0, object->IsNull());
}

ASSUMED(BaseObjects, OneObjectEqualsItselfAlone, "the operation is given: identity of the object behind it") {
    const Owned<SampleObject> object(new SampleObject);
    const Owned<SampleObject> other(new SampleObject);
    EXPECT_NE(0, object->IsEqual(object.get()));
    EXPECT_EQ(0, object->IsEqual(other.get()));
    EXPECT_EQ(0, object->IsEqual(nullptr));
}

ASSUMED(BaseObjects, TwoNamesGiveTwoIdentifiers, "recalled: each interface has an identifier of its own") {
    EXPECT_TRUE(IID_SampleInterface != IID_CATBaseUnknown);
    EXPECT_TRUE(SampleInterface::ClassId() == IID_SampleInterface);
    EXPECT_TRUE(SampleObject::ClassId() != SampleNotification::ClassId());
}
