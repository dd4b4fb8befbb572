#pragma once

// The thread of the feature and the page that shows it: fills the page from the tables of the catalogue and
// answers what the page reports.
//
//   ThreadPage page(catalogue.Threads(), [] { ... the thread has changed ... });
//   page.Attach(panel);          // after the panel's Build
//   page.Show("M6");             // a feature whose thread starts as M6
//   page.ShowNone();             // a feature without thread

#include "CATEventSubscriber.h"
#include "CATICkeParm.h"
#include "CATListValCATUnicodeString.h"
#include "engineering/ThreadTables.h"
#include "workbench/TakenThread.h"

#include <functional>
#include <map>
#include <string>

class OrvKvMainPanel;
class OrvKvThreadDiameterNotification;
class OrvKvThreadTakeNotification;
class OrvKvThreadTypeNotification;

namespace workbench {

class ThreadPage : public CATEventSubscriber {
    CATDeclareClass;

  public:
    /// The tables are not owned and outlive the page. `changed` is called after each change of the thread.
    ThreadPage(const engineering::ThreadTables& tables, std::function<void()> changed);
    ThreadPage(const ThreadPage&) = delete;
    ThreadPage& operator=(const ThreadPage&) = delete;
    ~ThreadPage() override;

    /// Lets the panel's page show the thread; the panel is not owned. Null ends it.
    void Attach(OrvKvMainPanel* panel);

    /// The feature has a thread that starts as the designation says, right handed, in its usual length. One
    /// that no table has starts with free values.
    void Show(const std::string& designation);
    /// The feature has no thread: the page cannot be used.
    void ShowNone();

    void OnType(const OrvKvThreadTypeNotification& notification);
    void OnDiameter(const OrvKvThreadDiameterNotification& notification);
    void OnTake(OrvKvThreadTakeNotification& notification);

    bool HasThread() const { return _hasThread; }
    /// What the feature has taken last.
    const TakenThread& Taken() const { return _taken; }
    /// The values as rules name them, THREAD_DIAMETER and so on, in mm; none without a thread.
    void AddTo(std::map<std::string, double, std::less<>>& values) const;

  private:
    void Subscribe(const CATICkeParm_var& parameter);
    void OnChanged(CATCallbackEvent event, void* publisher, CATNotification* notification,
                   CATSubscriberData data, CATCallback id);
    void BindParameters();
    CATListValCATUnicodeString TypeNames() const;
    int PositionOf(const engineering::ThreadStandard& standard) const;
    /// Lists the standard's diameters and chooses one of them.
    void ShowStandard(const engineering::ThreadStandard& standard, int thread);
    void ShowFreeValues();
    void ShowValues(const engineering::Thread& thread);

    const engineering::ThreadTables& _tables;
    std::function<void()> _changed;
    OrvKvMainPanel* _panel = nullptr;
    CATICkeParm_var _diameter;
    CATICkeParm_var _internalDiameter;
    CATICkeParm_var _length;
    CATICkeParm_var _pitch;
    TakenThread _taken;
    bool _hasThread = false;
    bool _isShowing = false; ///< a thread is being shown step by step
};

} // namespace workbench
