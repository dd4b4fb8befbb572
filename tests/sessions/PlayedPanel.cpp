#include "PlayedPanel.h"

#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgDocument.h"
#include "CATDlgEditor.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgMultiList.h"
#include "CATDlgNotify.h"
#include "CATDlgPushButton.h"
#include "CATDlgRadioButton.h"
#include "CATDlgSpinner.h"
#include "CATDlgTabContainer.h"
#include "CATDlgTabPage.h"
#include "CATICkeParamFrame.h"
#include "OrvKv9Trace.h"
#include "host/Parameters.h"

#include <algorithm>
#include <cctype>

namespace sessions {

Panel::Panel(CATDialog* iParent)
    : CATDlgDialog(iParent, "Panel", CATDlgWndOK | CATDlgWndCANCEL),
      depth(host::Parameters::NewLength("DEPTH", 12.5)) {
    auto* const top = new CATDlgFrame(this, "TopFrm");
    (new CATDlgLabel(top, "HintLab"))->SetTitle("Choose a type");
    type = new CATDlgCombo(top, "TypeCmb");
    for (const char* line : {"Hole", "Slot", "Groove"})
        type->SetLine(line);
    name = new CATDlgEditor(top, "NameEdt");
    information = new CATDlgEditor(top, "InfoEdt", CATDlgEdtReadOnly | CATDlgEdtMultiline);
    information->SetText("first\nsecond");
    flag = new CATDlgCheckButton(top, "FlagCkb");
    one = new CATDlgRadioButton(top, "OneRdb");
    two = new CATDlgRadioButton(top, "TwoRdb");
    count = new CATDlgSpinner(top, "CountSpn", CATDlgSpnEntry | CATDlgSpnDouble);
    rows = new CATDlgMultiList(top, "RowsMul", CATDlgLstMultisel);
    const CATUnicodeString titles[] = {"Name", "Value"};
    rows->SetColumnTitles(2, titles);
    for (const char* row : {"D", "T"}) {
        rows->SetColumnItem(0, row);
        rows->SetColumnItem(1, "10mm");
    }
    go = new CATDlgPushButton(top, "GoPbt");
    CATICkeParamFrame_var(depth)->BuildFrame(NULL_var, top, CATCkeWithSpinner, "DepthFrm");
    auto* const pages = new CATDlgTabContainer(this, "Pages");
    new CATDlgEditor(new CATDlgTabPage(pages, "FirstPge"), "PlainEdt");
    new CATDlgEditor(new CATDlgTabPage(pages, "SecondPge"), "DeepEdt");
    AddAnalyseNotificationCB(go, go->GetPushBActivateNotification(),
                             static_cast<CATCommandMethod>(&Panel::OnGo), nullptr);
    SetVisibility(CATDlgShow);
}

Panel::~Panel() {
    RemoveAnalyseNotificationCB(go, go->GetPushBActivateNotification(), nullptr);
}

void Panel::OnGo(CATCommand*, CATNotification*, CATCommandClientData) {
    char channel[] = "Channel";
    char text[] = "gone";
    OrvKv9Trace::Print(channel, 2, text);
    auto* const message = new CATDlgNotify(this, "Question");
    const int answer = message->DisplayBlocked("Really go?", "Going");
    information->SetText(answer == static_cast<int>(CATDlgWndOK) ? "gone" : "stayed");
    message->RequestDelayedDestruction();
}

session::Json CountingReader::Read(CATNotification& iNotification) const {
    std::string name = iNotification.IsA();
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char each) { return static_cast<char>(std::tolower(each)); });
    return {{"name", name}, {"number", ++_number}};
}

PlayerTest::PlayerTest()
    : _recorder(&Command(), &_reader), _player(_recorder, session::Journal::WithChanges),
      _panel(new Panel(MainWindow())) {
    host::Application::SetActiveCommand(&_recorder);
}

PlayerTest::~PlayerTest() {
    host::Application::SetActiveCommand(&Command());
}

Texts PlayerTest::Play(const std::string& iSession) {
    std::istringstream input(iSession);
    const session::Reading reading = session::ReadScript(input, "s", _player.Words());
    if (!reading.script)
        return {"not read: " + reading.problem};
    Texts failures;
    for (const session::Failure& failure : _player.Play(*reading.script).failures)
        failures.push_back(ToText(failure, "s"));
    TakeMessages();
    return failures;
}

Texts PlayerTest::Failed(const std::string& iWhere, const std::string& iExpected,
                         const std::string& iActual) {
    return {iWhere + "\n  expected: " + iExpected + "\n  actual:   " + iActual};
}

} // namespace sessions
