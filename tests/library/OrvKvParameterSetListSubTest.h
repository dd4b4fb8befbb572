#pragma once

#include "OrvKvParameterSetListSub.h"

#include "PanelTest.h"

#include "CATBaseUnknown.h"
#include "CATDlgDocument.h"
#include "CATDlgMultiList.h"
#include "OrvKvModifiedParameterInMultiListNotification.h"
#include "OrvKvParameterListDoubleClickedNotification.h"
#include "OrvKvParameterSetSelectedNotification.h"
#include "host/EventScope.h"
#include "host/Parameters.h"

#include <string>
#include <vector>

// What the tests of the panel with the parameter sets share.

namespace parameterSetList {

using Texts = std::vector<std::string>;
using Parameters = std::vector<CATBaseUnknown_var>;

constexpr char source[] = "OrvKv9SubFrames.m/src/OrvKvParameterSetListSub";

// How a parameter is shown; the flags are those of SetParameterNames.
struct Shown {
    std::string name;
    int value = 1;
    int valueEditable = 1;
    int tolerance = 0;
    int toleranceEditable = 0;
};

inline std::vector<Shown> ValuesOf(const Texts& iNames) {
    std::vector<Shown> parameters;
    for (const std::string& name : iNames)
        parameters.push_back(Shown{name});
    return parameters;
}

inline CATListValCATBaseUnknown_var ListOf(const Parameters& iParameters) {
    CATListValCATBaseUnknown_var list;
    for (const CATBaseUnknown_var& parameter : iParameters)
        list.Append(parameter);
    return list;
}

inline CATListValCATUnicodeString ListOf(const Texts& iTexts) {
    CATListValCATUnicodeString list;
    for (const std::string& text : iTexts)
        list.Append(CATUnicodeString(text.c_str()));
    return list;
}

inline CATRawCollint FlagsOf(const std::vector<Shown>& iParameters, int Shown::*iFlag) {
    CATRawCollint flags;
    for (const Shown& parameter : iParameters)
        flags.Append(parameter.*iFlag);
    return flags;
}

inline CATListValCATString NamesOf(const std::vector<Shown>& iParameters) {
    CATListValCATString names;
    for (const Shown& parameter : iParameters)
        names.Append(parameter.name.c_str());
    return names;
}

inline Texts TitlesOf(const CATDlgMultiList& iTable) {
    Texts titles;
    for (int column = 0; column < iTable.GetColumnCount(); ++column) {
        CATUnicodeString title;
        iTable.GetColumnTitle(column, title);
        titles.emplace_back(title.ConvertToChar());
    }
    return titles;
}

inline Texts LineOf(const CATDlgMultiList& iTable, int iLine) {
    Texts texts;
    for (int column = 0; column < iTable.GetColumnCount(); ++column) {
        CATUnicodeString text;
        iTable.GetColumnItem(column, text, iLine);
        texts.emplace_back(text.ConvertToChar());
    }
    return texts;
}

// The selected line, or -1.
inline int SelectedLineOf(const CATDlgMultiList& iTable) {
    int line = -1;
    iTable.GetSelect(&line, 1);
    return line;
}

// What a notification of the panel says, in words.
inline std::string Told(CATNotification* iNotification) {
    if (auto* const chosen = dynamic_cast<OrvKvParameterSetSelectedNotification*>(iNotification)) {
        CATUnicodeString name;
        chosen->GetParameterSetName(&name);
        return std::string("set '") + name.ConvertToChar() + "'";
    }
    CATString name;
    if (auto* const modified = dynamic_cast<OrvKvModifiedParameterInMultiListNotification*>(iNotification)) {
        modified->GetParameterName(name);
        return std::string("modified '") + name.ConvertToChar() + "'";
    }
    if (auto* const edited = dynamic_cast<OrvKvParameterListDoubleClickedNotification*>(iNotification)) {
        int row = 0;
        unsigned char value = 2;
        unsigned char tolerance = 2;
        edited->GetParameterName(&name, &row);
        edited->GetEditParameterFlag(value);
        edited->GetEditToleranceOrFittingFlag(tolerance);
        return std::string("edit '") + name.ConvertToChar() + "' row " + std::to_string(row) + " value " +
               std::to_string(value) + " tolerance " + std::to_string(tolerance);
    }
    return iNotification->IsA();
}

// What a chosen set is reported with.
inline Texts ChoiceOf(const std::string& iSetName) {
    return {"set '" + iSetName + "'", "modified ''"};
}

// A success of an operation that calls another one with a result of its own.
inline support::Report SuccessAfterRefresh() {
    support::Report report = support::SuccessIn(source);
    report.returns = 2;
    return report;
}

} // namespace parameterSetList

class OrvKvParameterSetListSubTest : public PanelTest {
  protected:
    using Texts = parameterSetList::Texts;
    using Shown = parameterSetList::Shown;
    using Parameters = parameterSetList::Parameters;

    OrvKvParameterSetListSub& Make() {
        _panel = new OrvKvParameterSetListSub(MainWindow());
        return *_panel;
    }
    OrvKvParameterSetListSub& MakeBuilt() {
        Make().Build();
        return *_panel;
    }
    // A panel with columns and sets of one length each, with the values 1mm, 2mm, ...
    OrvKvParameterSetListSub& MakeFilled(const Texts& iSetNames) {
        MakeBuilt();
        SetNames({Shown{"D"}});
        double value = 0.0;
        for (const std::string& name : iSetNames)
            AddSet(name, {Length(value += 1.0)});
        return *_panel;
    }

    static CATBaseUnknown_var Length(double iMillimetres) {
        return host::Parameters::NewLength("D", iMillimetres);
    }

    static CATDlgMultiList& SetTable() { return Widget<CATDlgMultiList>("ParameterSetMul"); }
    static CATDlgMultiList& CurrentTable() { return Widget<CATDlgMultiList>("CurrentParameterMul"); }

    // Each is one event, as a command would set it off.
    support::Report SetNames(const std::vector<Shown>& iParameters) {
        const host::EventScope event;
        return support::Observe([&] { return CallSetNames(iParameters); });
    }
    long CallSetNames(const std::vector<Shown>& iParameters) {
        using namespace parameterSetList;
        return _panel->SetParameterNames(
            CATListValCATBaseUnknown_var(), NamesOf(iParameters), FlagsOf(iParameters, &Shown::value),
            FlagsOf(iParameters, &Shown::valueEditable), FlagsOf(iParameters, &Shown::tolerance),
            FlagsOf(iParameters, &Shown::toleranceEditable));
    }
    support::Report AddSet(const std::string& iName, const Parameters& iParameters = {},
                           const Texts& iTolerances = {}) {
        return support::Observe([&] { return CallAddSet(iName, iParameters, iTolerances); });
    }
    long CallAddSet(const std::string& iName, const Parameters& iParameters, const Texts& iTolerances) {
        using namespace parameterSetList;
        return _panel->SetParameterSet(CATUnicodeString(iName.c_str()), CATListValCATString(),
                                       ListOf(iParameters), ListOf(iTolerances));
    }
    support::Report SetCurrent(const std::string& iName, const Parameters& iParameters = {},
                               const Texts& iTolerances = {}) {
        return support::Observe([&] { return CallSetCurrent(iName, iParameters, iTolerances); });
    }
    long CallSetCurrent(const std::string& iName, const Parameters& iParameters, const Texts& iTolerances) {
        using namespace parameterSetList;
        return _panel->SetCurrentParameters(CATUnicodeString(iName.c_str()), CATListValCATString(),
                                            ListOf(iParameters), ListOf(iTolerances));
    }

    std::string SelectedName() { return _panel->GetSelectedParameterSetName().ConvertToChar(); }

    // What the command heard of the panel since the last call; the tables' own notifications, which the panel
    // lets pass, are left out.
    Texts TakeTold() {
        Texts told;
        for (const support::HeardNotification& heard : Command().Heard())
            if (heard.sender == _panel)
                told.push_back(parameterSetList::Told(heard.notification));
        Command().Forget();
        return told;
    }

    OrvKvParameterSetListSub* _panel = nullptr; // owned by the main window
};
