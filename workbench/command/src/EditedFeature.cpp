#include "EditedFeature.h"

#include "CATCallbackManager.h"
#include "CATIParmAsStored.h"
#include "CATIParmEvents.h"
#include "CATIParmTolerance.h"
#include "host/FeatureParameters.h"

namespace workbench {

CATImplementClass(EditedFeature, Implementation, CATEventSubscriber, CATNull);

namespace {

using engineering::ParameterValue;
using engineering::Tolerance;

// Limits that the parameter itself has; none otherwise.
Tolerance LimitsOf(const CATICkeParm_var& parameter) {
    const CATIParmTolerance_var limits(parameter);
    if (!limits || limits->GetTypeOfTolerance() != 1)
        return {};
    return {Tolerance::Kind::Limits, {}, limits->GetMaxTolerance(), limits->GetMinTolerance()};
}

bool IsClass(const Tolerance& tolerance) {
    return tolerance.kind == Tolerance::Kind::FitClass || tolerance.kind == Tolerance::Kind::ThreadClass;
}

} // namespace

EditedFeature::EditedFeature(const engineering::FeatureType& type, std::function<void()> changed)
    : _type(type), _changed(std::move(changed)), _modifications(host::NewFeatureParameters()) {
    _slots.reserve(type.Parameters().size());
    for (const engineering::Parameter& definition : type.Parameters()) {
        Slot slot;
        slot.definition = &definition;
        slot.parameter = NewParameter(definition);
        _slots.push_back(std::move(slot));
        Subscribe(_slots.size() - 1);
    }
}

EditedFeature::~EditedFeature() = default;

// The feature subscribes before any panel does, so that a panel finds the modification noted already.
void EditedFeature::Subscribe(std::size_t slot) {
    const CATIParmEvents_var events(_slots[slot].parameter);
    if (!events)
        return;
    const auto method = static_cast<CATSubscriberMethod>(&EditedFeature::OnChanged);
    for (const char* event : {events->GetValueChangedEvent(), events->GetToleranceChangedEvent()})
        AddCallback(this, events->GetPublisher(), event, method, &_slots[slot]);
}

void EditedFeature::OnChanged(CATCallbackEvent, void*, CATNotification*, CATSubscriberData slot,
                              CATCallback) {
    NoteModification(*static_cast<const Slot*>(slot));
    if (_changed)
        _changed();
}

void EditedFeature::NoteModification(const Slot& slot) {
    if (!_modifications)
        return;
    const bool isModified = !engineering::SameValue(Now(slot), slot.start);
    _modifications->SetTemporarilyModified(slot.definition->name.c_str(), isModified ? 1 : 0);
}

ParameterValue EditedFeature::Now(const Slot& slot) const {
    if (!slot.isTabulated || !slot.parameter)
        return {};
    const Tolerance limits = LimitsOf(slot.parameter);
    const bool keepsClass = limits.kind == Tolerance::Kind::None && IsClass(slot.tolerance);
    return {ValueOf(slot.parameter, slot.definition->magnitude), keepsClass ? slot.tolerance : limits};
}

void EditedFeature::Take(const engineering::ParameterSet& set) {
    for (std::size_t i = 0; i < _slots.size(); ++i) {
        if (!_hasStarted)
            _slots[i].start = set.values[i];
        Change(_slots[i], set.values[i]);
    }
    _hasStarted = true;
}

// The change event comes last: only then does a panel look again whether the parameter is modified.
void EditedFeature::Change(Slot& ioSlot, const ParameterValue& entry) {
    const ParameterValue before = Now(ioSlot);
    ioSlot.isTabulated = entry.value.has_value();
    ioSlot.tolerance = entry.tolerance;
    const CATIParmEvents_var events(ioSlot.parameter);
    if (engineering::SameValue(before, entry) || !events)
        return NoteModification(ioSlot);
    if (before.tolerance != entry.tolerance) {
        StoreLimits(ioSlot.parameter, entry.tolerance);
        events->RaiseToleranceChange();
    }
    if (entry.value && before.value != entry.value && Write(ioSlot.parameter, *entry.value))
        return;
    events->RaiseChange(1);
}

void EditedFeature::Apply() {
    for (Slot& slot : _slots)
        slot.start = Now(slot);
    if (!!_modifications)
        _modifications->ForgetModifications();
}

std::map<std::string, double, std::less<>> EditedFeature::Numbers() const {
    std::map<std::string, double, std::less<>> numbers;
    for (const Slot& slot : _slots) {
        const CATIParmAsStored_var stored(slot.parameter);
        if (slot.isTabulated && slot.definition->magnitude != engineering::Magnitude::String && !!stored)
            numbers[slot.definition->name] = stored->GetValue();
    }
    return numbers;
}

std::string EditedFeature::TextOf(const std::string& name) const {
    const Slot* const slot = Find(name);
    const bool isText = slot != nullptr && slot->definition->magnitude == engineering::Magnitude::String;
    return isText && !!slot->parameter ? slot->parameter->AsString().ConvertToUTF8() : "";
}

bool EditedFeature::KeepsRowsWith(const engineering::ParameterSet& set) const {
    for (std::size_t i = 0; i < _slots.size(); ++i)
        if (_slots[i].isTabulated != set.values[i].value.has_value())
            return false;
    return true;
}

ParameterLists EditedFeature::Lists() const {
    ParameterLists lists;
    for (const Slot& slot : _slots) {
        const engineering::Parameter& definition = *slot.definition;
        const bool hasTolerance = Now(slot).tolerance.kind != Tolerance::Kind::None;
        const bool showsTolerance = slot.isTabulated && (hasTolerance || definition.toleranceEditable);
        // A text for a tolerance that is not editable would take the place of the value.
        const bool showsFit = definition.toleranceEditable && IsClass(slot.tolerance);
        lists.parameters.Append(slot.parameter);
        lists.names.Append(definition.name.c_str());
        lists.tolerances.Append(showsFit ? FitText(slot.tolerance) : CATUnicodeString());
        lists.valueShown.Append(slot.isTabulated ? 1 : 0);
        lists.valueEditable.Append(definition.valueEditable ? 1 : 0);
        lists.toleranceShown.Append(showsTolerance ? 1 : 0);
        lists.toleranceEditable.Append(definition.toleranceEditable ? 1 : 0);
    }
    return lists;
}

std::vector<ParameterValue> EditedFeature::Values() const {
    std::vector<ParameterValue> values;
    values.reserve(_slots.size());
    for (const Slot& slot : _slots)
        values.push_back(Now(slot));
    return values;
}

const EditedFeature::Slot* EditedFeature::Find(const std::string& name) const {
    for (const Slot& slot : _slots)
        if (slot.definition->name == name)
            return slot.isTabulated ? &slot : nullptr;
    return nullptr;
}

CATICkeParm_var EditedFeature::Parameter(const std::string& name) const {
    const Slot* const slot = Find(name);
    return slot == nullptr ? CATICkeParm_var() : slot->parameter;
}

CATUnicodeString EditedFeature::Fit(const std::string& name) const {
    const Slot* const slot = Find(name);
    if (slot == nullptr || !IsClass(Now(*slot).tolerance))
        return {};
    const CATUnicodeString fit = FitText(slot->tolerance);
    return slot->definition->toleranceEditable ? fit : CATUnicodeString("(") + fit + ")";
}

} // namespace workbench
