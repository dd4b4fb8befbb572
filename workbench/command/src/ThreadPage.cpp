#include "ThreadPage.h"

#include "CATCallbackManager.h"
#include "CATIParmAsStored.h"
#include "CATIParmEvents.h"
#include "OrvKvMainPanel.h"
#include "OrvKvThreadDiameterNotification.h"
#include "OrvKvThreadTakeNotification.h"
#include "OrvKvThreadTypeNotification.h"
#include "host/Parameters.h"

#include <cmath>

namespace workbench {

CATImplementClass(ThreadPage, Implementation, CATEventSubscriber, CATNull);

namespace {

using engineering::FoundThread;
using engineering::Thread;
using engineering::ThreadStandard;

constexpr unsigned char usable = 1;
constexpr unsigned char unusable = 0;
constexpr unsigned char reporting = 1;
constexpr int noStandard = -1;
constexpr int keepDiameters = -1;

/// The length of engagement that a thread starts with, in diameters; a designer changes it at will.
constexpr double usualLength = 1.5;

double Stored(const CATICkeParm_var& parameter) {
    const CATIParmAsStored_var stored(parameter);
    return !stored ? 0.0 : stored->GetValue();
}

void Store(const CATICkeParm_var& parameter, double value) {
    const CATIParmAsStored_var stored(parameter);
    if (!!stored)
        stored->SetValue(value);
}

CATRawColldouble ListOf(double value) {
    CATRawColldouble list;
    list.Append(value);
    return list;
}

/// The thread whose diameter comes nearest; 0 for a standard without threads.
int NearestTo(const ThreadStandard& standard, double diameter) {
    int nearest = 0;
    for (int i = 1; i < static_cast<int>(standard.threads.size()); ++i) {
        const auto distance = [&](int position) {
            return std::abs(standard.threads[static_cast<std::size_t>(position)].majorDiameter - diameter);
        };
        if (distance(i) < distance(nearest))
            nearest = i;
    }
    return nearest;
}

} // namespace

ThreadPage::ThreadPage(const engineering::ThreadTables& tables, std::function<void()> changed)
    : _tables(tables), _changed(std::move(changed)),
      _diameter(host::Parameters::NewLength("THREAD_DIAMETER", 0.0)),
      _internalDiameter(host::Parameters::NewLength("THREAD_INTERNAL_DIAMETER", 0.0)),
      _length(host::Parameters::NewLength("THREAD_LENGTH", 0.0)),
      _pitch(host::Parameters::NewLength("THREAD_PITCH", 0.0)) {
    for (const CATICkeParm_var& parameter : {_diameter, _internalDiameter, _length, _pitch})
        Subscribe(parameter);
}

ThreadPage::~ThreadPage() = default;

void ThreadPage::Subscribe(const CATICkeParm_var& parameter) {
    const CATIParmEvents_var events(parameter);
    if (!!events)
        AddCallback(this, events->GetPublisher(), events->GetValueChangedEvent(),
                    static_cast<CATSubscriberMethod>(&ThreadPage::OnChanged), nullptr);
}

void ThreadPage::OnChanged(CATCallbackEvent, void*, CATNotification*, CATSubscriberData, CATCallback) {
    if (!_isShowing)
        _changed();
}

// Without a type there are free values, and those need their parameters first.
void ThreadPage::Attach(OrvKvMainPanel* panel) {
    _panel = panel;
    if (_panel == nullptr)
        return;
    _panel->SetThreadTypes(TypeNames(), noStandard, 0);
    BindParameters();
    ShowNone();
}

void ThreadPage::BindParameters() {
    _panel->SetThreadPanelParameters(_internalDiameter, _diameter, _length, _pitch);
}

CATListValCATUnicodeString ThreadPage::TypeNames() const {
    CATListValCATUnicodeString names;
    for (const ThreadStandard& standard : _tables.Standards())
        names.Append(standard.name.c_str());
    return names;
}

int ThreadPage::PositionOf(const ThreadStandard& standard) const {
    return static_cast<int>(&standard - _tables.Standards().data());
}

void ThreadPage::Show(const std::string& designation) {
    if (_panel == nullptr)
        return;
    _hasThread = true;
    _isShowing = true;
    _panel->SetThread(usable, 0);
    const FoundThread found = _tables.Find(designation);
    if (found.thread == nullptr) {
        ShowFreeValues();
    } else {
        Store(_length, usualLength * found.thread->majorDiameter);
        ShowStandard(*found.standard, found.standard->PositionOf(found.thread->designation));
    }
    _panel->SetThreadDirection("RH");
    _isShowing = false;
    _changed();
}

void ThreadPage::ShowNone() {
    if (_panel == nullptr)
        return;
    _hasThread = false;
    _isShowing = true;
    for (const CATICkeParm_var& parameter : {_diameter, _internalDiameter, _length, _pitch})
        Store(parameter, 0.0);
    ShowFreeValues();
    _panel->SetThread(unusable, 0);
    _taken = TakenThread();
    _isShowing = false;
}

// The page reports the chosen diameter unless it is the one that was chosen before; its values are then
// missing all the same.
void ThreadPage::ShowStandard(const ThreadStandard& standard, int thread) {
    CATListValCATUnicodeString designations;
    for (const Thread& each : standard.threads)
        designations.Append(each.designation.c_str());
    _panel->RebuildThreadPanel(TypeNames(), PositionOf(standard), designations, keepDiameters);
    BindParameters();
    _panel->SetThreadDims(designations, thread, reporting);
    if (standard.threads.empty())
        return;
    const Thread& shown = standard.threads[static_cast<std::size_t>(thread)];
    if (Stored(_diameter) != shown.majorDiameter || Stored(_pitch) != shown.pitch)
        ShowValues(shown);
}

void ThreadPage::ShowFreeValues() {
    _panel->RebuildThreadPanel(TypeNames(), noStandard, CATListValCATUnicodeString(), keepDiameters);
    BindParameters();
}

void ThreadPage::ShowValues(const Thread& thread) {
    _panel->SetThreadValues(ListOf(thread.pitch), ListOf(thread.minorDiameter), ListOf(thread.majorDiameter));
}

void ThreadPage::OnType(const OrvKvThreadTypeNotification& notification) {
    CATUnicodeString type;
    if (_panel == nullptr || FAILED(notification.GetThreadInfo(&type)))
        return;
    const ThreadStandard* const standard = _tables.Standard(type.ConvertToUTF8());
    if (standard == nullptr)
        return ShowFreeValues();
    ShowStandard(*standard, NearestTo(*standard, Stored(_diameter)));
}

void ThreadPage::OnDiameter(const OrvKvThreadDiameterNotification& notification) {
    CATUnicodeString type;
    CATUnicodeString designation;
    if (_panel == nullptr || FAILED(notification.GetThreadInfo(&type, &designation)))
        return;
    const ThreadStandard* const standard = _tables.Standard(type.ConvertToUTF8());
    const int position = standard == nullptr ? -1 : standard->PositionOf(designation.ConvertToUTF8());
    if (position >= 0)
        ShowValues(standard->threads[static_cast<std::size_t>(position)]);
}

void ThreadPage::OnTake(OrvKvThreadTakeNotification& notification) {
    CATUnicodeString designation;
    CATUnicodeString direction;
    CATUnicodeString type;
    TakenThread taken;
    if (FAILED(notification.GetThreadInfo(&designation, &taken.pitch, &taken.internalDiameter,
                                          &taken.diameter, &direction, &type)))
        return;
    taken.designation = designation.ConvertToUTF8();
    taken.direction = direction.ConvertToUTF8();
    taken.type = type.ConvertToUTF8();
    _taken = std::move(taken);
    if (!_isShowing)
        _changed();
}

void ThreadPage::AddTo(std::map<std::string, double, std::less<>>& values) const {
    if (!_hasThread)
        return;
    values["THREAD_DIAMETER"] = Stored(_diameter);
    values["THREAD_INTERNAL_DIAMETER"] = Stored(_internalDiameter);
    values["THREAD_LENGTH"] = Stored(_length);
    values["THREAD_PITCH"] = Stored(_pitch);
}

} // namespace workbench
