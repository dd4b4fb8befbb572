// What holds for each of the 25 notification classes: its place in the object model, its copy rule, its way
// to the command.

#include "NotificationFamily.h"

#include "CATICkeParm.h"
#include "host/CommandInspection.h"
#include "host/FaultPoints.h"
#include "host/LiveObjects.h"
#include "support/AuditedTest.h"
#include "support/RecordingCommand.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <array>
#include <memory>
#include <set>
#include <sstream>

using namespace support;

namespace {

struct ReleaseReference {
    void operator()(CATBaseUnknown* iObject) const { iObject->Release(); }
};

// The public and the private part of a header, with single blanks between the words and none behind an
// opening bracket.
struct HeaderParts {
    std::string open;
    std::string hidden;
};

HeaderParts ReadHeader(const std::string& iName) {
    std::istringstream words(ReadFile(KELVANE_LIBRARY_DIR "/PublicInterfaces/" + iName + ".h"));
    HeaderParts parts;
    std::string* part = &parts.open;
    for (std::string word; words >> word;) {
        if (word == "private:")
            part = &parts.hidden;
        *part += word.back() == '(' ? word : word + " ";
    }
    return parts;
}

// The beginnings of a copy constructor and of an assignment.
using CopyDeclarations = std::array<std::string, 2>;

// How many of the two are there.
int Declares(const std::string& iPart, const CopyDeclarations& iDeclarations) {
    return static_cast<int>(
        std::count_if(iDeclarations.begin(), iDeclarations.end(), [&iPart](const std::string& iDeclaration) {
            return iPart.find(iDeclaration) != std::string::npos;
        }));
}

class NotificationFamilyTest : public AuditedTest, public testing::WithParamInterface<FamilyMember> {
  protected:
    static std::unique_ptr<CATNotification, ReleaseReference> Make() {
        return std::unique_ptr<CATNotification, ReleaseReference>(GetParam().make());
    }
    static int LiveObjects() { return host::LiveObjects::Count(GetParam().name.c_str()); }
};

TEST_P(NotificationFamilyTest, KnowsItsClass) {
    const auto notification = Make();
    EXPECT_EQ(notification->IsA(), GetParam().name);
    EXPECT_EQ(GetParam().className(), GetParam().name);
}

TEST_P(NotificationFamilyTest, IsAKindOfItselfAndItsBasesAlone) {
    const auto notification = Make();
    EXPECT_EQ(notification->IsAKindOf(GetParam().name.c_str()), 1);
    EXPECT_EQ(notification->IsAKindOf("CATNotification"), 1);
    EXPECT_EQ(notification->IsAKindOf("CATBaseUnknown"), 1);
    EXPECT_EQ(notification->IsAKindOf("CATCommand"), 0);
    EXPECT_EQ(notification->IsAKindOf(""), 0);
    for (const FamilyMember& other : NotificationFamily())
        EXPECT_EQ(notification->IsAKindOf(other.name.c_str()), other.name == GetParam().name) << other.name;
}

TEST_P(NotificationFamilyTest, IsRegisteredAsAnImplementationOnTheBaseOfAllNotifications) {
    const CATMetaClass* const meta = GetParam().metaObject();
    EXPECT_EQ(meta->GetName(), GetParam().name);
    EXPECT_EQ(static_cast<int>(meta->GetTypeOfClass()), 1);
    EXPECT_EQ(meta->GetBase(), CATNotification::MetaObject());
    EXPECT_STREQ(meta->GetExtendedName(), "CATNull");
}

TEST_P(NotificationFamilyTest, LooksItsMetaClassUpOnceAndKeepsIt) {
    CATMetaClass* const meta = GetParam().metaObject();
    EXPECT_EQ(*GetParam().metaSlot, meta);
    EXPECT_EQ(GetParam().metaObject(), meta);
    EXPECT_EQ(Make()->GetMetaObject(), meta);
    EXPECT_EQ(meta, CATMetaClass::Find(GetParam().name.c_str(), Implementation, nullptr, "CATNull"));
}

TEST_P(NotificationFamilyTest, HasTheIdentifierOfItsName) {
    EXPECT_TRUE(GetParam().classId() == CATIidFromName(GetParam().name.c_str()));
}

TEST_P(NotificationFamilyTest, IsNotMadeByItsMetaClass) {
    EXPECT_EQ(GetParam().createItself(), nullptr);
}

TEST_P(NotificationFamilyTest, OverridesTheOperationsOfItsMetaClassAlone) {
    EXPECT_TRUE(GetParam().overridesNothingElse);
}

// Modules that were built apart call the operations by their place. The destructor has the places 8 and 9.
TEST_P(NotificationFamilyTest, HasTheVirtualOperationsOfItsBaseInTheirOrderAndNoOther) {
    EXPECT_EQ(GetParam().virtualEntries,
              (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 10, 11, 12, 13, 14, 15, 16, 17, 18}));
}

TEST_P(NotificationFamilyTest, OffersNoInterface) {
    const auto notification = Make();
    void* found = notification.get();
    EXPECT_EQ(notification->QueryInterface(IID_CATICkeParm, &found), E_NOINTERFACE);
    EXPECT_EQ(found, nullptr);
}

TEST_P(NotificationFamilyTest, IsCopiedAsItsRuleSays) {
    EXPECT_EQ(GetParam().observedCopy, GetParam().declaredCopy);
}

// What the compiler sees of refused copies does not tell how they are declared; the header does.
TEST_P(NotificationFamilyTest, DeclaresItsCopiesAsItsRuleSays) {
    const std::string& name = GetParam().name;
    const HeaderParts header = ReadHeader(name);
    const auto declared = [&name](const std::string& iArgument) {
        return CopyDeclarations{" " + name + "(" + iArgument, name + "& operator=(" + iArgument};
    };
    const CopyDeclarations fromConstant = declared("const " + name + "& ");
    const CopyDeclarations fromModifiable = declared(name + "& ");
    const bool none = name == "OrvKvModifiedParameterInMultiListNotification";
    const CopyRule rule = GetParam().declaredCopy;
    EXPECT_EQ(Declares(header.open, fromConstant), !none && rule == CopyRule::FromConstant ? 2 : 0);
    EXPECT_EQ(Declares(header.open, fromModifiable), rule == CopyRule::FromModifiable ? 2 : 0);
    EXPECT_EQ(Declares(header.hidden, fromConstant), 0);
    EXPECT_EQ(Declares(header.hidden, fromModifiable), rule == CopyRule::Refused ? 2 : 0);
}

TEST_P(NotificationFamilyTest, DiesWithItsLastReference) {
    CATNotification* const notification = GetParam().make();
    EXPECT_EQ(LiveObjects(), 1);
    EXPECT_EQ(notification->AddRef(), 2U);
    EXPECT_EQ(notification->Release(), 1U);
    EXPECT_EQ(notification->Release(), 0U);
    EXPECT_EQ(LiveObjects(), 0);
}

TEST_P(NotificationFamilyTest, ReachesTheCommandAboveThePanelsAndIsDisposedOf) {
    RecordingCommand command;
    CATCommand panel(&command, "MainPanel");
    CATCommand subPanel(&panel, "SubPanel");
    subPanel.SendNotification(subPanel.GetFather(), GetParam().make());
    EXPECT_EQ(LiveObjects(), 1) << "the command keeps it";
    EXPECT_EQ(command.TakeClasses(), Classes({GetParam().name}));
    EXPECT_EQ(LiveObjects(), 0);
    EXPECT_EQ(host::CommandInspection::UndeliveredNotifications(), 0);
}

TEST_P(NotificationFamilyTest, IsNullWhereMemoryIsShortAndSendingItDoesNothing) {
    RecordingCommand command;
    CATCommand panel(&command, "MainPanel");
    host::FaultPoints::FailCall(1, "notification allocation");
    CATNotification* const missing = GetParam().make();
    EXPECT_EQ(missing, nullptr);
    panel.SendNotification(panel.GetFather(), missing);
    EXPECT_EQ(command.TakeClasses(), Classes());
    panel.SendNotification(panel.GetFather(), GetParam().make());
    host::FaultPoints::Stop();
    EXPECT_EQ(command.TakeClasses(), Classes({GetParam().name})) << "the next one is there again";
}

INSTANTIATE_TEST_SUITE_P(Each, NotificationFamilyTest, testing::ValuesIn(NotificationFamily()),
                         [](const testing::TestParamInfo<FamilyMember>& iMember) {
                             return iMember.param.name;
                         });

TEST(NotificationFamilyAsAWholeTest, Has25ClassesWithNamesAndIdentifiersOfTheirOwn) {
    std::set<std::string> names;
    std::set<std::pair<unsigned long long, unsigned long long>> identifiers;
    for (const FamilyMember& member : NotificationFamily()) {
        names.insert(member.className());
        identifiers.insert({member.classId().high, member.classId().low});
    }
    EXPECT_EQ(names.size(), 25U);
    EXPECT_EQ(identifiers.size(), 25U);
}

TEST(NotificationFamilyAsAWholeTest, Has9ClassesThatCarryNothing) {
    int markers = 0;
    for (const FamilyMember& member : NotificationFamily()) {
        if (!member.isMarker)
            continue;
        ++markers;
        EXPECT_EQ(member.size, sizeof(CATNotification)) << member.name;
    }
    EXPECT_EQ(markers, 9);
}

TEST(NotificationFamilyAsAWholeTest, RefusesCopiesOf16Classes) {
    const std::vector<FamilyMember>& family = NotificationFamily();
    EXPECT_EQ(
        std::count_if(family.begin(), family.end(),
                      [](const FamilyMember& iMember) { return iMember.observedCopy == CopyRule::Refused; }),
        16);
}

} // namespace
