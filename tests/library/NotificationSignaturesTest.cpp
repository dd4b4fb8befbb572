// The operations of the notifications exactly as the command calls them: results, arguments, constancy. Every
// check is made by the compiler.

#include "OrvKvGroupChangedNotification.h"
#include "OrvKvModifiedParameterInMultiListNotification.h"
#include "OrvKvParameterEditISOFittingFieldSelectNotification.h"
#include "OrvKvParameterEditISOFittingGroupSelectNotification.h"
#include "OrvKvParameterEditISOFittingNotification.h"
#include "OrvKvParameterEditUpdateISOFittingValuesNotification.h"
#include "OrvKvParameterListDoubleClickedNotification.h"
#include "OrvKvParameterSetSelectedNotification.h"
#include "OrvKvRemoveInsertionPointNotification.h"
#include "OrvKvSetInputGeometryNotification.h"
#include "OrvKvThreadDiameterNotification.h"
#include "OrvKvThreadInitNotification.h"
#include "OrvKvThreadPitchNotification.h"
#include "OrvKvThreadTakeNotification.h"
#include "OrvKvThreadTypeNotification.h"
#include "OrvKvTypeSelectedNotification.h"

#include <type_traits>

namespace {

static_assert(std::is_same<HRESULT, long>::value, "results are of the language's long");

// Compiles for an operation of that very type alone; picks it among operations of one name.
template<class Class, class Operation>
constexpr bool Offers(Operation Class::*) {
    return true;
}

using Text = CATUnicodeString;

static_assert(Offers<OrvKvGroupChangedNotification, HRESULT(int*)>(&OrvKvGroupChangedNotification::GetGroup));
static_assert(Offers<OrvKvModifiedParameterInMultiListNotification, HRESULT(CATString&)>(
    &OrvKvModifiedParameterInMultiListNotification::GetParameterName));
static_assert(Offers<OrvKvParameterEditISOFittingFieldSelectNotification, HRESULT(Text*, Text*, double*)>(
    &OrvKvParameterEditISOFittingFieldSelectNotification::GetSelectedFittingValues));
static_assert(Offers<OrvKvParameterEditISOFittingGroupSelectNotification, HRESULT(Text*, double*)>(
    &OrvKvParameterEditISOFittingGroupSelectNotification::GetSelectedToleranceGroup));
static_assert(
    Offers<OrvKvParameterEditISOFittingNotification, HRESULT(CATICkeParm_var*, CATString*, CATString*)>(
        &OrvKvParameterEditISOFittingNotification::GetFittingInfo));
static_assert(Offers<OrvKvParameterEditUpdateISOFittingValuesNotification, HRESULT(Text*, Text*, double*)>(
    &OrvKvParameterEditUpdateISOFittingValuesNotification::GetFittingInfo));

using DoubleClicked = OrvKvParameterListDoubleClickedNotification;
static_assert(Offers<DoubleClicked, HRESULT(CATString*, int*)>(&DoubleClicked::GetParameterName));
static_assert(Offers<DoubleClicked, HRESULT(unsigned char&)>(&DoubleClicked::GetEditParameterFlag));
static_assert(Offers<DoubleClicked, HRESULT(unsigned char&)>(&DoubleClicked::GetEditToleranceOrFittingFlag));

static_assert(Offers<OrvKvParameterSetSelectedNotification, HRESULT(Text*)>(
    &OrvKvParameterSetSelectedNotification::GetParameterSetName));
static_assert(Offers<OrvKvRemoveInsertionPointNotification, int()>(
    &OrvKvRemoveInsertionPointNotification::GetPointCountToRemove));
static_assert(
    Offers<OrvKvSetInputGeometryNotification, int()>(&OrvKvSetInputGeometryNotification::GetInputGeometryNo));

// The command reads the four thread notifications in one way.
template<class Thread>
constexpr bool IsReadAsAThread() {
    return Offers<Thread, unsigned char() const>(&Thread::IsInitMode) &&
           Offers<Thread, HRESULT(Text*, Text*, double*) const>(&Thread::GetThreadInfo);
}

static_assert(IsReadAsAThread<OrvKvThreadDiameterNotification>());
static_assert(IsReadAsAThread<OrvKvThreadInitNotification>());
static_assert(IsReadAsAThread<OrvKvThreadPitchNotification>());
static_assert(IsReadAsAThread<OrvKvThreadTypeNotification>());
static_assert(
    Offers<OrvKvThreadInitNotification, unsigned char() const>(&OrvKvThreadInitNotification::IsActivateMode));
static_assert(
    Offers<OrvKvThreadTypeNotification, HRESULT(Text*) const>(&OrvKvThreadTypeNotification::GetThreadInfo));
static_assert(Offers<OrvKvThreadDiameterNotification, HRESULT(Text*, Text*) const>(
    &OrvKvThreadDiameterNotification::GetThreadInfo));
static_assert(Offers<OrvKvThreadTakeNotification, HRESULT(Text*, double*, double*, double*, Text*, Text*)>(
    &OrvKvThreadTakeNotification::GetThreadInfo));

static_assert(Offers<OrvKvTypeSelectedNotification, HRESULT(int, int, CATString, Text)>(
    &OrvKvTypeSelectedNotification::SetFeatureInformation));
static_assert(Offers<OrvKvTypeSelectedNotification, HRESULT(int*, int*, CATString*, Text*)>(
    &OrvKvTypeSelectedNotification::GetFeatureInformation));

} // namespace
