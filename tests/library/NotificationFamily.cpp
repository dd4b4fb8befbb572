#include "NotificationFamily.h"

#include "OrvKvDeleteParameterSetNotification.h"
#include "OrvKvGroupChangedNotification.h"
#include "OrvKvInsertionSketchProvidedNotification.h"
#include "OrvKvInvertFeatureNotification.h"
#include "OrvKvLimitingSketchProvidedNotification.h"
#include "OrvKvModifiedParameterInMultiListNotification.h"
#include "OrvKvNewParameterSetNotification.h"
#include "OrvKvParameterEditISOFittingFieldSelectNotification.h"
#include "OrvKvParameterEditISOFittingGroupSelectNotification.h"
#include "OrvKvParameterEditISOFittingNotification.h"
#include "OrvKvParameterEditUpdateISOFittingValuesNotification.h"
#include "OrvKvParameterListDoubleClickedNotification.h"
#include "OrvKvParameterSetSelectedNotification.h"
#include "OrvKvParmSetRenameNotif.h"
#include "OrvKvRemoveInsertionPointNotification.h"
#include "OrvKvSetInputGeometryNotification.h"
#include "OrvKvThreadDiameterNotification.h"
#include "OrvKvThreadInitNotification.h"
#include "OrvKvThreadPitchNotification.h"
#include "OrvKvThreadTakeNotification.h"
#include "OrvKvThreadTypeNotification.h"
#include "OrvKvTriggerStateChangeToInvalidNotification.h"
#include "OrvKvTriggerStateChangeToValidNotification.h"
#include "OrvKvTypeSelectedNotification.h"
#include "OrvKvUpdateParameterEditNotification.h"

#include <cstring>
#include <type_traits>

namespace {

constexpr unsigned char on = 1;

template<class Class>
constexpr bool IsCopiedFrom(bool iConstant, bool iModifiable) {
    return std::is_constructible<Class, const Class&>::value == iConstant &&
           std::is_assignable<Class&, const Class&>::value == iConstant &&
           std::is_constructible<Class, Class&>::value == iModifiable &&
           std::is_assignable<Class&, Class&>::value == iModifiable;
}

template<class Class>
constexpr CopyRule CopyRuleOf() {
    if (IsCopiedFrom<Class>(true, true))
        return CopyRule::FromConstant;
    if (IsCopiedFrom<Class>(false, true))
        return CopyRule::FromModifiable;
    static_assert(IsCopiedFrom<Class>(true, true) || IsCopiedFrom<Class>(false, true) ||
                      IsCopiedFrom<Class>(false, false),
                  "construction and assignment follow one rule");
    return CopyRule::Refused;
}

template<class Function, class Owner>
constexpr bool BelongsTo(Function Owner::*) {
    return std::is_same<Owner, CATBaseUnknown>::value;
}

template<class Class, class Function, class Owner>
constexpr bool IsOverriddenBy(Function Owner::*) {
    return std::is_same<Owner, Class>::value;
}

// The type of a member pointer names the class that declares the operation last.
template<class Class>
constexpr bool OverridesNothingElse() {
    return IsOverriddenBy<Class>(&Class::GetMetaObject) && IsOverriddenBy<Class>(&Class::IsA) &&
           IsOverriddenBy<Class>(&Class::IsAKindOf) && BelongsTo(&Class::AddRef) &&
           BelongsTo(&Class::Release) && BelongsTo(&Class::GetTypeInfoCount) &&
           BelongsTo(&Class::GetTypeInfo) && BelongsTo(&Class::GetIDsOfNames) && BelongsTo(&Class::Invoke) &&
           BelongsTo(&Class::GetImpl) && BelongsTo(&Class::SetImpl) && BelongsTo(&Class::IsNull) &&
           BelongsTo(&Class::IsEqual) && BelongsTo(&Class::ChangeComponentState) &&
           BelongsTo<HRESULT(const IID&, void**)>(&Class::QueryInterface) &&
           BelongsTo<CATBaseUnknown*(const char*)>(&Class::QueryInterface);
}

// The place of a virtual operation in the table of its class. A pointer to it holds the distance in bytes
// from the start of the table, and one more on some processors.
template<class Method>
int EntryOf(Method iMethod) {
    std::ptrdiff_t distance = 0;
    std::memcpy(&distance, &iMethod, sizeof distance);
    return static_cast<int>(distance / static_cast<std::ptrdiff_t>(sizeof(void*)));
}

// An operation that a class after Class would add.
template<class Class>
struct Follower : Class {
    virtual void Follow() {}
};

template<class Class>
std::vector<int> VirtualEntries() {
    HRESULT (Class::*const queryByIdentifier)(const IID&, void**) = &Class::QueryInterface;
    CATBaseUnknown* (Class::*const queryByName)(const char*) = &Class::QueryInterface;
    return {EntryOf(queryByIdentifier),       EntryOf(&Class::AddRef),
            EntryOf(&Class::Release),         EntryOf(&Class::GetTypeInfoCount),
            EntryOf(&Class::GetTypeInfo),     EntryOf(&Class::GetIDsOfNames),
            EntryOf(&Class::Invoke),          EntryOf(queryByName),
            EntryOf(&Class::GetMetaObject),   EntryOf(&Class::IsA),
            EntryOf(&Class::IsAKindOf),       EntryOf(&Class::GetImpl),
            EntryOf(&Class::SetImpl),         EntryOf(&Class::IsNull),
            EntryOf(&Class::IsEqual),         EntryOf(&Class::ChangeComponentState),
            EntryOf(&Follower<Class>::Follow)};
}

template<class Class, class... Arguments>
FamilyMember Member(const char* iName, CopyRule iDeclaredCopy, Arguments... iArguments) {
    static_assert(std::is_base_of<CATNotification, Class>::value, "a notification");
    static_assert(std::is_convertible<Class*, CATNotification*>::value, "and openly so");
    static_assert(std::has_virtual_destructor<Class>::value, "released through its base");
    static_assert(std::is_default_constructible<Class>::value == (sizeof...(iArguments) == 0),
                  "made without values only where there is nothing to give");
    FamilyMember member;
    member.name = iName;
    member.declaredCopy = iDeclaredCopy;
    member.observedCopy = CopyRuleOf<Class>();
    member.isMarker =
        sizeof...(iArguments) == 0 && !std::is_same<Class, OrvKvTypeSelectedNotification>::value;
    member.size = sizeof(Class);
    member.overridesNothingElse = OverridesNothingElse<Class>();
    member.virtualEntries = VirtualEntries<Class>();
    member.make = [iArguments...]() mutable { return new Class(iArguments...); };
    member.metaObject = &Class::MetaObject;
    member.metaSlot = &Class::meta_object;
    member.classId = &Class::ClassId;
    member.className = &Class::ClassName;
    member.createItself = &Class::CreateItself;
    return member;
}

std::vector<FamilyMember> MakeFamily() {
    const CopyRule refused = CopyRule::Refused;
    const CopyRule constant = CopyRule::FromConstant;
    const CopyRule modifiable = CopyRule::FromModifiable;
    const CATString key("DIAMETER");
    const CATUnicodeString text("text");
    const double value = 12.5;
    return {
        Member<OrvKvDeleteParameterSetNotification>("OrvKvDeleteParameterSetNotification", refused),
        Member<OrvKvGroupChangedNotification>("OrvKvGroupChangedNotification", constant, 3),
        Member<OrvKvInsertionSketchProvidedNotification>("OrvKvInsertionSketchProvidedNotification",
                                                         constant),
        Member<OrvKvInvertFeatureNotification>("OrvKvInvertFeatureNotification", refused),
        Member<OrvKvLimitingSketchProvidedNotification>("OrvKvLimitingSketchProvidedNotification", constant),
        Member<OrvKvModifiedParameterInMultiListNotification>("OrvKvModifiedParameterInMultiListNotification",
                                                              constant, key),
        Member<OrvKvNewParameterSetNotification>("OrvKvNewParameterSetNotification", refused),
        Member<OrvKvParameterEditISOFittingFieldSelectNotification>(
            "OrvKvParameterEditISOFittingFieldSelectNotification", refused, text, text, value),
        Member<OrvKvParameterEditISOFittingGroupSelectNotification>(
            "OrvKvParameterEditISOFittingGroupSelectNotification", refused, text, value),
        Member<OrvKvParameterEditISOFittingNotification>("OrvKvParameterEditISOFittingNotification", refused,
                                                         CATICkeParm_var(), key, key),
        Member<OrvKvParameterEditUpdateISOFittingValuesNotification>(
            "OrvKvParameterEditUpdateISOFittingValuesNotification", refused, text, text, value),
        Member<OrvKvParameterListDoubleClickedNotification>("OrvKvParameterListDoubleClickedNotification",
                                                            constant, key, 4, on, on),
        Member<OrvKvParameterSetSelectedNotification>("OrvKvParameterSetSelectedNotification", refused, text),
        Member<OrvKvParmSetRenameNotif>("OrvKvParmSetRenameNotif", refused),
        Member<OrvKvRemoveInsertionPointNotification>("OrvKvRemoveInsertionPointNotification", modifiable, 2),
        Member<OrvKvSetInputGeometryNotification>("OrvKvSetInputGeometryNotification", refused, 1),
        Member<OrvKvThreadDiameterNotification>("OrvKvThreadDiameterNotification", refused, on, text, text),
        Member<OrvKvThreadInitNotification>("OrvKvThreadInitNotification", refused, on),
        Member<OrvKvThreadPitchNotification>("OrvKvThreadPitchNotification", refused, on, text, text, value),
        Member<OrvKvThreadTakeNotification>("OrvKvThreadTakeNotification", refused, text, value, value, value,
                                            text, text),
        Member<OrvKvThreadTypeNotification>("OrvKvThreadTypeNotification", refused, on, text),
        Member<OrvKvTriggerStateChangeToInvalidNotification>("OrvKvTriggerStateChangeToInvalidNotification",
                                                             modifiable),
        Member<OrvKvTriggerStateChangeToValidNotification>("OrvKvTriggerStateChangeToValidNotification",
                                                           refused),
        Member<OrvKvTypeSelectedNotification>("OrvKvTypeSelectedNotification", constant),
        Member<OrvKvUpdateParameterEditNotification>("OrvKvUpdateParameterEditNotification", modifiable)};
}

} // namespace

const std::vector<FamilyMember>& NotificationFamily() {
    static const std::vector<FamilyMember> family = MakeFamily();
    return family;
}
