#include "EditedFeature.h"

#include "CATCallbackManager.h"
#include "CATIParmAsStored.h"
#include "CATIParmEvents.h"
#include "host/FeatureParameters.h"

#include <algorithm>

namespace workbench {

CATImplementClass(EditedFeature, Implementation, CATEventSubscriber, CATNull);

namespace {

using engineering::ParameterValue;
using engineering::Tolerance;

bool IsClass(const Tolerance& tolerance) {
    return tolerance.kind == Tolerance::Kind::FitClass || tolerance.kind == Tolerance::Kind::ThreadClass;
}

} // namespace

template<class Slots>
auto* EditedFeature::FindIn(Slots& slots, const std::string& name) {
    const auto found = std::ranges::find_if(
        slots, [&name](const Slot& slot) { return slot.isTabulated && slot.definition->name == name; });
    return found == slots.end() ? nullptr : &*found;
}

EditedFeature::EditedFeature(const engineering::FeatureType& type, const engineering::LimitsAndFits& fits,
                             std::function<void()> changed)
    : _type(type), _fits(fits), _changed(std::move(changed)), _modifications(host::NewFeatureParameters()) {
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
    Settle(*static_cast<Slot*>(slot));
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
    return {workbench::ValueOf(slot.parameter, slot.definition->magnitude),
            KeepsFit(slot) ? slot.fit : LimitsOf(slot.parameter)};
}

std::optional<engineering::Deviations> EditedFeature::LimitsOfFit(const Slot& slot) const {
    const auto fitClass = engineering::ParseToleranceClass(slot.fit.fitClass);
    const CATIParmAsStored_var stored(slot.parameter);
    if (slot.fit.kind != Tolerance::Kind::FitClass || !fitClass.value || !stored)
        return std::nullopt;
    return _fits.DeviationsOf(stored->GetValue(), *fitClass.value).value;
}

bool EditedFeature::KeepsFit(const Slot& slot) const {
    if (!IsClass(slot.fit))
        return false;
    const Tolerance limits = LimitsOf(slot.parameter);
    if (limits.kind == Tolerance::Kind::None)
        return !slot.fitLimits;
    return slot.fitLimits == engineering::Deviations{limits.upper, limits.lower};
}

void EditedFeature::StoreTolerance(Slot& ioSlot, const Tolerance& tolerance) {
    ioSlot.fit = IsClass(tolerance) ? tolerance : Tolerance();
    ioSlot.fitLimits = LimitsOfFit(ioSlot);
    if (!IsClass(tolerance))
        return StoreLimits(ioSlot.parameter, tolerance);
    StoreLimits(ioSlot.parameter,
                ioSlot.fitLimits
                    ? Tolerance{Tolerance::Kind::Limits, {}, ioSlot.fitLimits->upper, ioSlot.fitLimits->lower}
                    : Tolerance());
}

void EditedFeature::FollowFit(Slot& ioSlot) {
    if (KeepsFit(ioSlot))
        return StoreTolerance(ioSlot, ioSlot.fit);
    ioSlot.fit = {};
    ioSlot.fitLimits.reset();
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
    const CATIParmEvents_var events(ioSlot.parameter);
    if (engineering::SameValue(before, entry) || !events)
        return NoteModification(ioSlot);
    if (before.tolerance != entry.tolerance) {
        StoreTolerance(ioSlot, entry.tolerance);
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
        const Tolerance tolerance = Now(slot).tolerance;
        const bool hasTolerance = tolerance.kind != Tolerance::Kind::None;
        const bool showsTolerance = slot.isTabulated && (hasTolerance || definition.toleranceEditable);
        // A text for a tolerance that is not editable would take the place of the value.
        const bool showsFit = definition.toleranceEditable && IsClass(tolerance);
        lists.parameters.Append(slot.parameter);
        lists.names.Append(definition.name.c_str());
        lists.tolerances.Append(showsFit ? FitText(tolerance) : CATUnicodeString());
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
    return FindIn(_slots, name);
}

EditedFeature::Slot* EditedFeature::Find(const std::string& name) {
    return FindIn(_slots, name);
}

ParameterValue EditedFeature::ValueOf(const std::string& name) const {
    const Slot* const slot = Find(name);
    return slot == nullptr ? ParameterValue() : Now(*slot);
}

void EditedFeature::Give(const std::string& name, const ParameterValue& entry) {
    Slot* const slot = Find(name);
    if (slot == nullptr)
        return;
    const bool isSame = engineering::SameValue(Now(*slot), entry);
    Change(*slot, entry);
    if (isSame)
        Announce(name);
}

void EditedFeature::UseFit(const std::string& name, const std::string& fitClass) {
    Slot* const slot = Find(name);
    if (slot == nullptr)
        return;
    slot->fit = {Tolerance::Kind::FitClass, fitClass, 0, 0};
    slot->fitLimits = LimitsOfFit(*slot);
}

void EditedFeature::Settle(const std::string& name) {
    if (Slot* const slot = Find(name))
        Settle(*slot);
}

void EditedFeature::Settle(Slot& ioSlot) {
    FollowFit(ioSlot);
    NoteModification(ioSlot);
}

void EditedFeature::Announce(const std::string& name) {
    const CATIParmEvents_var events(Parameter(name));
    if (!!events)
        events->RaiseChange(1);
}

CATICkeParm_var EditedFeature::Parameter(const std::string& name) const {
    const Slot* const slot = Find(name);
    return slot == nullptr ? CATICkeParm_var() : slot->parameter;
}

CATUnicodeString EditedFeature::Fit(const std::string& name) const {
    const Slot* const slot = Find(name);
    const Tolerance tolerance = slot == nullptr ? Tolerance() : Now(*slot).tolerance;
    if (!IsClass(tolerance))
        return {};
    const CATUnicodeString fit = FitText(tolerance);
    return slot->definition->toleranceEditable ? fit : CATUnicodeString("(") + fit + ")";
}

} // namespace workbench
