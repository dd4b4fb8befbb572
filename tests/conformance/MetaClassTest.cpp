// Class macros and meta classes.

#include "CATMacForIUnknown.h"

#include "Samples.h"

#include <string>

namespace {

class MetaClasses : public PlatformTest {};

} // namespace

CERTAIN(MetaClasses, AnObjectTellsTheNameOfItsClass) {
    const Owned<CATNotification> notification(new SpecialNotification);
    EXPECT_STREQ("SpecialNotification", notification->IsA());
    EXPECT_STREQ("SpecialNotification", SpecialNotification::ClassName());
    EXPECT_STREQ("CATNotification", CATNotification::ClassName());
    EXPECT_STREQ("CATBaseUnknown", CATBaseUnknown::ClassName());
}

CERTAIN(MetaClasses, AnObjectIsAKindOfItsClassAndEachMetaBase) {
    const Owned<CATNotification> notification(new SpecialNotification);
    for (const char* name :
         {"SpecialNotification", "SampleNotification", "CATNotification", "CATBaseUnknown"})
        EXPECT_NE(0, notification->IsAKindOf(name)) << name;
    for (const char* name : {"OtherNotification", "CATCommand", "Special", ""})
        EXPECT_EQ(0, notification->IsAKindOf(name)) << name;
}

ASSUMED(MetaClasses, NoObjectIsAKindOfANullName, "open: refused rather than crashed on") {
    const Owned<SampleObject> object(new SampleObject);
    EXPECT_EQ(0, object->IsAKindOf(nullptr));
}

CERTAIN(MetaClasses, AClassCannotCreateItself) {
    EXPECT_EQ(nullptr, SpecialNotification::CreateItself());
    EXPECT_EQ(nullptr, CATNotification::CreateItself());
    EXPECT_EQ(nullptr, CATBaseUnknown::CreateItself());
}

CERTAIN(MetaClasses, AnObjectAndItsClassShareOneMetaObject) {
    const Owned<CATNotification> notification(new SpecialNotification);
    ASSERT_NE(nullptr, SpecialNotification::MetaObject());
    EXPECT_EQ(SpecialNotification::MetaObject(), notification->GetMetaObject());
    EXPECT_EQ(SpecialNotification::MetaObject(), SpecialNotification::MetaObject());
    EXPECT_NE(SpecialNotification::MetaObject(), SampleNotification::MetaObject());
    EXPECT_EQ(SpecialNotification::MetaObject(), SpecialNotification::meta_object);
}

CERTAIN(MetaClasses, TheTypeOfAnImplementationIsOne) {
    EXPECT_EQ(1, static_cast<int>(Implementation));
    EXPECT_EQ(Implementation, SampleObject::MetaObject()->GetTypeOfClass());
}

CERTAIN(MetaClasses, TheThirdArgumentOfTheMacroIsTheMetaBase) {
    EXPECT_EQ(CATNotification::MetaObject(), SampleNotification::MetaObject()->GetBase());
    EXPECT_EQ(CATBaseUnknown::MetaObject(), SampleObject::MetaObject()->GetBase());
}

ASSUMED(MetaClasses, TheBaseObjectIsTheRoot, "recalled: nothing stands above the base of all objects") {
    EXPECT_EQ(nullptr, CATBaseUnknown::MetaObject()->GetBase());
}

CERTAIN(MetaClasses, TheEventAndCommandClassesFormOneBranch) {
    EXPECT_NE(0, CATCommand::MetaObject()->IsAKindOf("CATEventSubscriber"));
    EXPECT_NE(0, CATCommand::MetaObject()->IsAKindOf("CATBaseUnknown"));
    EXPECT_EQ(0, CATEventSubscriber::MetaObject()->IsAKindOf("CATCommand"));
}

ASSUMED(MetaClasses, AMetaObjectTellsNameAndIdentifier,
        "recalled: the class identifier is the one of the meta object") {
    EXPECT_STREQ("SampleObject", SampleObject::MetaObject()->GetName());
    EXPECT_TRUE(SampleObject::ClassId() == SampleObject::MetaObject()->GetClassId());
}
