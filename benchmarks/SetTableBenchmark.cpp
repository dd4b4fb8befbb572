// The table of parameter sets: filled with sets of twenty parameters, and one set shown as the current one.
// The floor keeps vectors of strings and finds names by hashing.

#include "HostParameters.h"
#include "SetTableMeasure.h"
#include "Sizes.h"

#include "CATDlgDialog.h"
#include "CATDlgDocument.h"
#include "CATDlgMultiList.h"
#include "OrvKvParameterSetListSub.h"
#include "host/Application.h"
#include "host/Inspector.h"

namespace {

struct HostSet {
    CATListValCATBaseUnknown_var parameters;
    CATListValCATUnicodeString tolerances;
};

// The distinct sets, made once.
const std::vector<HostSet>& HostSets() {
    static const std::vector<HostSet> all = [] {
        std::vector<HostSet> sets(distinctSets);
        for (int set = 0; set < distinctSets; ++set)
            for (int parameter = 0; parameter < parametersOfSet; ++parameter) {
                const ParameterFacts facts = FactsInSet(set, parameter);
                sets[static_cast<std::size_t>(set)].parameters.Append(NewHostParameter(facts));
                sets[static_cast<std::size_t>(set)].tolerances.Append(facts.tolerance.c_str());
            }
        return sets;
    }();
    return all;
}

template<class Set>
const Set& SetAt(const std::vector<Set>& iSets, int iSet) {
    return iSets[static_cast<std::size_t>(iSet % distinctSets)];
}

SetLine LineIn(const CATDlgMultiList& iList, int iLine) {
    SetLine line;
    CATUnicodeString text;
    for (int column = 0; column < iList.GetColumnCount(); ++column) {
        iList.GetColumnItem(column, text, iLine);
        line.push_back(text.ConvertToUTF8());
    }
    return line;
}

class HostTables {
  public:
    HostTables() {
        HostSets();
        auto* const dialog = new CATDlgDialog(&_application.MainWindow(), "FeatureDlg");
        _panel = new OrvKvParameterSetListSub(dialog);
        _panel->Build();
        for (int parameter = 0; parameter < parametersOfSet; ++parameter) {
            const SetColumnFacts facts = ColumnFactsOf(parameter);
            _names.Append(facts.name.c_str());
            _isValueShown.Append(1);
            _isValueEditable.Append(facts.isValueEditable ? 1 : 0);
            _isToleranceShown.Append(facts.isToleranceShown ? 1 : 0);
            _isToleranceEditable.Append(facts.isToleranceEditable ? 1 : 0);
        }
    }

    void Fill(int iSets) {
        _panel->SetParameterNames(HostSets().front().parameters, _names, _isValueShown, _isValueEditable,
                                  _isToleranceShown, _isToleranceEditable);
        for (int set = 0; set < iSets; ++set) {
            const HostSet& given = SetAt(HostSets(), set);
            _panel->SetParameterSet(NameOfSet(set).c_str(), _names, given.parameters, given.tolerances);
        }
    }

    void SetCurrent(int iSet) {
        const HostSet& given = SetAt(HostSets(), iSet);
        _panel->SetCurrentParameters(NameOfSet(iSet).c_str(), _names, given.parameters, given.tolerances);
    }

    int Lines() const { return Table(0).GetLineCount(); }
    SetLine Line(int iLine) const { return LineIn(Table(0), iLine); }
    SetLine Current() const { return LineIn(Table(1), 0); }
    std::string SelectedName() const { return _panel->GetSelectedParameterSetName().ConvertToUTF8(); }

  private:
    // The upper and the lower table, each alone in a frame of the panel.
    const CATDlgMultiList& Table(std::size_t iFrame) const {
        const CATDialog* const frame = host::Inspector::Children(*_panel).at(iFrame);
        return static_cast<const CATDlgMultiList&>(*host::Inspector::FirstChild(*frame));
    }

    host::Application _application;
    OrvKvParameterSetListSub* _panel = nullptr; // belongs to the dialog
    CATListValCATString _names;
    CATRawCollint _isValueShown;
    CATRawCollint _isValueEditable;
    CATRawCollint _isToleranceShown;
    CATRawCollint _isToleranceEditable;
};

class PlainTables {
  public:
    PlainTables() { PlainSets(); }

    void Fill(int iSets) {
        _table.SetParameterNames(_columns);
        for (int set = 0; set < iSets; ++set)
            _table.SetParameterSet(NameOfSet(set), SetAt(PlainSets(), set));
    }

    void SetCurrent(int iSet) { _table.SetCurrentParameters(NameOfSet(iSet), SetAt(PlainSets(), iSet)); }

    int Lines() const { return _table.Lines(); }
    SetLine Line(int iLine) const { return _table.Line(iLine); }
    SetLine Current() const { return _table.Current(); }
    std::string SelectedName() const { return _table.SelectedName(); }

  private:
    const std::vector<SetColumnFacts> _columns = AllColumnFacts();
    PlainSetTable _table;
};

BENCHMARK(MeasureSetFill<HostTables>)->Name("SetTable/Ours")->Apply(SetTableSizes);
BENCHMARK(MeasureSetFill<PlainTables>)->Name("SetTable/Floor")->Apply(SetTableSizes);
BENCHMARK(MeasureSetCurrent<HostTables>)->Name("SetCurrent/Ours")->Apply(SetCurrentSizes);
BENCHMARK(MeasureSetCurrent<PlainTables>)->Name("SetCurrent/Floor")->Apply(SetCurrentSizes);

} // namespace
