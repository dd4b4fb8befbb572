// The list of a feature's parameters: filled anew while it is full, and one value changed. The floor does the
// same with vectors of strings and functions, and finds names by hashing.

#include "HostCatalogue.h"
#include "HostParameters.h"
#include "ParameterListMeasure.h"
#include "Sizes.h"

#include "CATDlgDialog.h"
#include "CATDlgDocument.h"
#include "CATDlgMultiList.h"
#include "OrvKvModifiedParameterInMultiListNotification.h"
#include "OrvKvParameterListSub.h"
#include "host/Application.h"
#include "host/FeatureParameters.h"
#include "host/Inspector.h"

#include <cstring>

namespace {

// Hears of changed parameters.
class FeatureCommand : public CATCommand {
  public:
    FeatureCommand() : CATCommand(nullptr, "FeatureCommand") {}

    CATNotifPropagationMode AnalyseNotification(CATCommand*, CATNotification* iNotification) override {
        if (iNotification->IsAKindOf(OrvKvModifiedParameterInMultiListNotification::ClassName()) == 0)
            return CATNotifTransmitToFather;
        static_cast<OrvKvModifiedParameterInMultiListNotification*>(iNotification)->GetParameterName(_last);
        ++_heard;
        return CATNotifDontTransmitToFather;
    }

    int Heard() const { return _heard; }
    std::string LastHeard() const { return _last.ConvertToChar(); }

  private:
    int _heard = 0;
    CATString _last;
};

class HostPanel {
  public:
    explicit HostPanel(int iRows) {
        UseDescriptions();
        host::Application::SetActiveCommand(&_command);
        auto* const dialog = new CATDlgDialog(&_application.MainWindow(), "FeatureDlg");
        _panel = new OrvKvParameterListSub(dialog, 0);
        _panel->Build();
        _list = static_cast<CATDlgMultiList*>(host::Inspector::FirstChild(*_panel));
        const OrvIKvFeatureParameters_var feature = host::NewFeatureParameters();
        for (int row = 0; row < iRows; ++row) {
            const ParameterFacts facts = FactsOf(row);
            AddParameter(facts);
            if (facts.isModified)
                feature->SetTemporarilyModified(facts.name.c_str(), 1);
        }
        _panel->SetFeatureParameters(feature);
        Refill();
    }

    void Refill() {
        _panel->SetParameters(_parameters, _names, _tolerances, _isValueShown, _isValueEditable,
                              _isToleranceShown, _isToleranceEditable);
    }

    void Change(int iRow, double iMillimetres) {
        _handles[static_cast<std::size_t>(iRow)]->Valuate(iMillimetres / millimetresOfMetre);
    }

    ParameterRow Row(int iRow) const {
        ParameterRow row;
        CATUnicodeString text;
        for (std::size_t column = 0; column < row.size(); ++column) {
            _list->GetColumnItem(static_cast<int>(column), text, iRow);
            row[column] = text.ConvertToUTF8();
        }
        return row;
    }

    int Heard() const { return _command.Heard(); }
    std::string LastHeard() const { return _command.LastHeard(); }

  private:
    void AddParameter(const ParameterFacts& iFacts) {
        const CATICkeParm_var parameter = NewHostParameter(iFacts);
        _handles.push_back(parameter);
        _parameters.Append(parameter);
        _names.Append(iFacts.name.c_str());
        _tolerances.Append(iFacts.tolerance.c_str());
        _isValueShown.Append(1);
        _isValueEditable.Append(iFacts.isValueEditable ? 1 : 0);
        _isToleranceShown.Append(1);
        _isToleranceEditable.Append(iFacts.isToleranceEditable ? 1 : 0);
    }

    host::Application _application;
    FeatureCommand _command;
    OrvKvParameterListSub* _panel = nullptr; // belongs to the dialog, as does its list
    CATDlgMultiList* _list = nullptr;
    std::vector<CATICkeParm_var> _handles; // of the parameters below
    CATListValCATBaseUnknown_var _parameters;
    CATListValCATString _names;
    CATListValCATUnicodeString _tolerances;
    CATRawCollint _isValueShown;
    CATRawCollint _isValueEditable;
    CATRawCollint _isToleranceShown;
    CATRawCollint _isToleranceEditable;
};

class PlainCommand : public PlainNode {
  public:
    PlainCommand() : PlainNode(nullptr) {}

    bool Handle(const PlainEvent& iEvent) override {
        if (std::strcmp(iEvent.Name(), "ModifiedEvent") != 0)
            return false;
        _last = static_cast<const PlainModifiedEvent&>(iEvent).parameter;
        ++_heard;
        return true;
    }

    int Heard() const { return _heard; }
    std::string LastHeard() const { return _last; }

  private:
    int _heard = 0;
    std::string _last;
};

// Dialog and main window stand between the list and the command.
class PlainPanel {
  public:
    explicit PlainPanel(int iRows) : _between(MakeChain(_command, 2)), _list(_between.back().get(), _names) {
        for (int row = 0; row < iRows; ++row) {
            const ParameterFacts facts = FactsOf(row);
            if (facts.isModified)
                _names.modified.insert(facts.name);
            _parameters.push_back(std::make_unique<PlainParameter>(facts));
            _content.Add(*_parameters.back(), facts);
        }
        Refill();
    }

    void Refill() { _list.SetParameters(_content); }
    void Change(int iRow, double iMillimetres) {
        _parameters[static_cast<std::size_t>(iRow)]->SetValue(iMillimetres);
    }
    ParameterRow Row(int iRow) const { return _list.Row(iRow); }
    int Heard() const { return _command.Heard(); }
    std::string LastHeard() const { return _command.LastHeard(); }

  private:
    PlainCommand _command;
    std::vector<std::unique_ptr<PlainNode>> _between;
    PlainNames _names = {AllPlainDescriptions(), {}};
    std::vector<std::unique_ptr<PlainParameter>> _parameters;
    PlainParameterList::Content _content;
    PlainParameterList _list;
};

BENCHMARK(MeasureRefill<HostPanel>)->Name("ParameterRefill/Ours")->Apply(ParameterListSizes);
BENCHMARK(MeasureRefill<PlainPanel>)->Name("ParameterRefill/Floor")->Apply(ParameterListSizes);
BENCHMARK(MeasureChange<HostPanel>)->Name("ParameterChange/Ours")->Apply(ParameterChangeSizes);
BENCHMARK(MeasureChange<HostPanel>)->Name("ParameterChange/Ours")->Apply(MillionRows);
BENCHMARK(MeasureChange<PlainPanel>)->Name("ParameterChange/Floor")->Apply(ParameterChangeSizes);
BENCHMARK(MeasureChange<PlainPanel>)->Name("ParameterChange/Floor")->Apply(MillionRows);

} // namespace
