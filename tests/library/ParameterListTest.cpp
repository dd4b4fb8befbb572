#include "ParameterListTest.h"

#include "CATDlgDocument.h"
#include "CATDlgMultiList.h"
#include "OrvKvModifiedParameterInMultiListNotification.h"
#include "OrvKvParameterListDoubleClickedNotification.h"
#include "host/CommandInspection.h"
#include "host/DialogUser.h"
#include "host/FeatureParameters.h"
#include "host/Inspector.h"
#include "host/Parameters.h"

namespace support {

namespace {

std::string Told(OrvKvModifiedParameterInMultiListNotification& iNotification) {
    CATString name;
    iNotification.GetParameterName(name);
    return std::string("changed ") + name.ConvertToChar();
}

std::string Told(OrvKvParameterListDoubleClickedNotification& iNotification) {
    CATString name;
    int row = 0;
    unsigned char editsValue = 0;
    unsigned char editsTolerance = 0;
    iNotification.GetParameterName(&name, &row);
    iNotification.GetEditParameterFlag(editsValue);
    iNotification.GetEditToleranceOrFittingFlag(editsTolerance);
    return std::string("double click on ") + name.ConvertToChar() + " at " + std::to_string(row) +
           ", value " + std::to_string(editsValue) + ", tolerance " + std::to_string(editsTolerance);
}

std::string Told(const HeardNotification& iHeard) {
    if (auto* changed = dynamic_cast<OrvKvModifiedParameterInMultiListNotification*>(iHeard.notification))
        return Told(*changed);
    if (auto* clicked = dynamic_cast<OrvKvParameterListDoubleClickedNotification*>(iHeard.notification))
        return Told(*clicked);
    return iHeard.className;
}

} // namespace

ParameterLists ParameterLists::Of(const std::vector<Listed>& iListed) {
    ParameterLists lists;
    for (const Listed& each : iListed) {
        lists.parameters.Append(each.parameter);
        lists.names.Append(each.name.c_str());
        lists.tolerances.Append(each.tolerance.c_str());
        lists.valueShown.Append(each.valueShown);
        lists.valueEditable.Append(each.valueEditable);
        lists.toleranceShown.Append(each.toleranceShown);
        lists.toleranceEditable.Append(each.toleranceEditable);
    }
    return lists;
}

long ParameterLists::HandTo(OrvKvParameterListSub& ioPanel) const {
    return ioPanel.SetParameters(parameters, names, tolerances, valueShown, valueEditable, toleranceShown,
                                 toleranceEditable);
}

CATICkeParm_var Length(const char* iName, double iMillimetres) {
    return host::Parameters::NewLength(iName, iMillimetres);
}

CATICkeParm_var Length(const char* iName, double iMillimetres, double iMaximum, double iMinimum) {
    const CATICkeParm_var length = Length(iName, iMillimetres);
    SetTolerance(length, iMaximum, iMinimum);
    return length;
}

void SetTolerance(const CATBaseUnknown_var& iParameter, double iMaximum, double iMinimum) {
    const CATIParmTolerance_var tolerance(iParameter);
    tolerance->SetMaxTolerance(iMaximum);
    tolerance->SetMinTolerance(iMinimum);
}

void Change(const CATICkeParm_var& iParameter, double iMillimetres) {
    ASSERT_EQ(iParameter->Valuate(iMillimetres / 1000.0), S_OK);
}

void RaiseToleranceChange(const CATBaseUnknown_var& iParameter) {
    CATIParmEvents_var(iParameter)->RaiseToleranceChange();
}

int SubscriptionsOn(const CATBaseUnknown_var& iParameter) {
    return host::CommandInspection::SubscriptionsOn(*CATIParmEvents_var(iParameter)->GetPublisher());
}

ParameterListTest::ParameterListTest() {
    _resources.Write("OrvKvParametersDescription.CATNls", "D = \"Diameter\";\n"
                                                          "T = \"Depth\";\n"
                                                          "Unlucky = \"*resource error\";\n"
                                                          "Blank = \"\";\n");
}

void ParameterListTest::Make(int iNoToleranceColumn) {
    delete _panel;
    _panel = new OrvKvParameterListSub(MainWindow(), static_cast<unsigned char>(iNoToleranceColumn));
}

void ParameterListTest::MakeBuilt(int iNoToleranceColumn) {
    Make(iNoToleranceColumn);
    _panel->Build();
}

void ParameterListTest::Destroy() {
    delete _panel;
    _panel = nullptr;
}

CATDlgMultiList& ParameterListTest::List() {
    return dynamic_cast<CATDlgMultiList&>(*host::Inspector::FirstChild(*_panel));
}

Report ParameterListTest::SetParameters(const std::vector<Listed>& iListed) {
    const ParameterLists lists = ParameterLists::Of(iListed);
    return Observe([&] { return lists.HandTo(*_panel); });
}

Report ParameterListTest::SetFittingInfo(const char* iName, const char* iFitting) {
    return Observe([&] { return _panel->SetFittingInfo(iName, iFitting); });
}

OrvIKvFeatureParameters_var ParameterListTest::FeatureWith(std::initializer_list<const char*> iModified) {
    OrvIKvFeatureParameters_var feature = host::NewFeatureParameters();
    for (const char* name : iModified)
        feature->SetTemporarilyModified(name, 1);
    return feature;
}

Rows ParameterListTest::ShownRows() {
    Rows rows;
    for (int row = 1; row <= List().GetLineCount(); ++row) {
        std::string cells = Cell(row, 0);
        for (int column = 1; column < List().GetColumnCount(); ++column)
            cells += "|" + Cell(row, column);
        rows.push_back(cells);
    }
    return rows;
}

std::string ParameterListTest::Cell(int iRow, int iColumn) {
    CATUnicodeString text;
    List().GetColumnItem(iColumn, text, iRow - 1);
    return text.ConvertToChar();
}

Reported ParameterListTest::TakeReported() {
    Reported reports;
    for (const HeardNotification& heard : Command().Heard())
        if (heard.className.rfind("OrvKv", 0) == 0)
            reports.push_back(Told(heard));
    Command().Forget();
    return reports;
}

void ParameterListTest::DoubleClick(int iRow) {
    const host::Outcome outcome = host::DialogUser::Activate(List(), iRow - 1, 1);
    ASSERT_TRUE(outcome) << outcome.reason;
}

} // namespace support
