#include "workbench/PanelNotificationReader.h"

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

#include <map>

namespace workbench {

namespace {

using session::Json;

std::string Text(const CATUnicodeString& text) {
    return text.ConvertToUTF8();
}

std::string Text(const CATString& text) {
    return text.ConvertToChar();
}

Json Values(OrvKvGroupChangedNotification& changed) {
    int group = 0;
    changed.GetGroup(&group);
    return {{"group", group}};
}

Json Values(OrvKvModifiedParameterInMultiListNotification& modified) {
    CATString name;
    modified.GetParameterName(name);
    return {{"parameterName", Text(name)}};
}

Json Fitting(const CATUnicodeString& group, const CATUnicodeString& field, double value) {
    return {{"fittingGroup", Text(group)}, {"fittingField", Text(field)}, {"parameterValue", value}};
}

Json Values(OrvKvParameterEditISOFittingFieldSelectNotification& selected) {
    CATUnicodeString group;
    CATUnicodeString field;
    double value = 0.0;
    selected.GetSelectedFittingValues(&group, &field, &value);
    return Fitting(group, field, value);
}

Json Values(OrvKvParameterEditISOFittingGroupSelectNotification& selected) {
    CATUnicodeString group;
    double value = 0.0;
    selected.GetSelectedToleranceGroup(&group, &value);
    return {{"fittingGroup", Text(group)}, {"parameterValue", value}};
}

Json Values(OrvKvParameterEditISOFittingNotification& fitting) {
    CATICkeParm_var parameter;
    CATString group;
    CATString field;
    fitting.GetFittingInfo(&parameter, &group, &field);
    Json name = parameter == NULL_var ? Json() : Json(Text(parameter->Name()));
    return {{"parameterName", name}, {"fittingGroup", Text(group)}, {"fittingField", Text(field)}};
}

Json Values(OrvKvParameterEditUpdateISOFittingValuesNotification& update) {
    CATUnicodeString group;
    CATUnicodeString field;
    double value = 0.0;
    update.GetFittingInfo(&group, &field, &value);
    return Fitting(group, field, value);
}

Json Values(OrvKvParameterListDoubleClickedNotification& clicked) {
    CATString name;
    int row = 0;
    unsigned char editParameter = 0;
    unsigned char editTolerance = 0;
    clicked.GetParameterName(&name, &row);
    clicked.GetEditParameterFlag(editParameter);
    clicked.GetEditToleranceOrFittingFlag(editTolerance);
    return {{"parameterName", Text(name)},
            {"rowIndex", row},
            {"editParameter", editParameter != 0},
            {"editToleranceOrFitting", editTolerance != 0}};
}

Json Values(OrvKvParameterSetSelectedNotification& selected) {
    CATUnicodeString name;
    selected.GetParameterSetName(&name);
    return {{"parameterSetName", Text(name)}};
}

Json Values(OrvKvRemoveInsertionPointNotification& removed) {
    return {{"position", removed.GetPointCountToRemove()}};
}

Json Values(OrvKvSetInputGeometryNotification& geometry) {
    return {{"inputGeometry", geometry.GetInputGeometryNo()}};
}

template<class ThreadNotification>
Json ThreadValues(const ThreadNotification& thread) {
    CATUnicodeString type;
    CATUnicodeString dimension;
    double pitch = 0.0;
    thread.GetThreadInfo(&type, &dimension, &pitch);
    return {{"initMode", thread.IsInitMode() != 0},
            {"type", Text(type)},
            {"dimension", Text(dimension)},
            {"pitch", pitch}};
}

Json Values(OrvKvThreadDiameterNotification& thread) {
    return ThreadValues(thread);
}

Json Values(OrvKvThreadPitchNotification& thread) {
    return ThreadValues(thread);
}

Json Values(OrvKvThreadTypeNotification& thread) {
    return ThreadValues(thread);
}

Json Values(OrvKvThreadInitNotification& thread) {
    Json values = ThreadValues(thread);
    values["activateMode"] = thread.IsActivateMode() != 0;
    return values;
}

Json Values(OrvKvThreadTakeNotification& thread) {
    CATUnicodeString designation;
    CATUnicodeString direction;
    CATUnicodeString type;
    double p = 0.0;
    double dk = 0.0;
    double dg = 0.0;
    thread.GetThreadInfo(&designation, &p, &dk, &dg, &direction, &type);
    return {{"GB", Text(designation)}, {"P", p}, {"DK", dk}, {"DG", dg}, {"SR", Text(direction)},
            {"ThrType", Text(type)}};
}

Json Values(OrvKvTypeSelectedNotification& selected) {
    int group = 0;
    int number = 0;
    CATString identifier;
    CATUnicodeString name;
    selected.GetFeatureInformation(&group, &number, &identifier, &name);
    return {
        {"group", group}, {"type", number}, {"typeIdentifier", Text(identifier)}, {"typeName", Text(name)}};
}

using Reading = Json (*)(CATNotification&);
using Readings = std::map<std::string, Reading>;

template<class Notification>
Readings::value_type With() {
    return {Notification::ClassName(),
            [](CATNotification& notification) { return Values(static_cast<Notification&>(notification)); }};
}

template<class Marker>
Readings::value_type Without() {
    return {Marker::ClassName(), [](CATNotification&) { return Json::object(); }};
}

const Readings& AllReadings() {
    static const Readings readings{With<OrvKvGroupChangedNotification>(),
                                   With<OrvKvModifiedParameterInMultiListNotification>(),
                                   With<OrvKvParameterEditISOFittingFieldSelectNotification>(),
                                   With<OrvKvParameterEditISOFittingGroupSelectNotification>(),
                                   With<OrvKvParameterEditISOFittingNotification>(),
                                   With<OrvKvParameterEditUpdateISOFittingValuesNotification>(),
                                   With<OrvKvParameterListDoubleClickedNotification>(),
                                   With<OrvKvParameterSetSelectedNotification>(),
                                   With<OrvKvRemoveInsertionPointNotification>(),
                                   With<OrvKvSetInputGeometryNotification>(),
                                   With<OrvKvThreadDiameterNotification>(),
                                   With<OrvKvThreadInitNotification>(),
                                   With<OrvKvThreadPitchNotification>(),
                                   With<OrvKvThreadTakeNotification>(),
                                   With<OrvKvThreadTypeNotification>(),
                                   With<OrvKvTypeSelectedNotification>(),
                                   Without<OrvKvDeleteParameterSetNotification>(),
                                   Without<OrvKvInsertionSketchProvidedNotification>(),
                                   Without<OrvKvInvertFeatureNotification>(),
                                   Without<OrvKvLimitingSketchProvidedNotification>(),
                                   Without<OrvKvNewParameterSetNotification>(),
                                   Without<OrvKvParmSetRenameNotif>(),
                                   Without<OrvKvTriggerStateChangeToInvalidNotification>(),
                                   Without<OrvKvTriggerStateChangeToValidNotification>(),
                                   Without<OrvKvUpdateParameterEditNotification>()};
    return readings;
}

} // namespace

std::vector<std::string> PanelNotificationReader::Classes() {
    std::vector<std::string> classes;
    for (const auto& reading : AllReadings())
        classes.push_back(reading.first);
    return classes;
}

session::Json PanelNotificationReader::Read(CATNotification& notification) const {
    const auto reading = AllReadings().find(notification.IsA());
    return reading == AllReadings().end() ? Json::object() : reading->second(notification);
}

} // namespace workbench
