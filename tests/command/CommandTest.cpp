#include "CommandTest.h"

#include "CATDlgCombo.h"
#include "CATDlgDialog.h"
#include "CATDlgEditor.h"
#include "CATDlgMultiList.h"
#include "CATDlgPushButton.h"
#include "CATDlgRadioButton.h"
#include "CATDlgTabPage.h"
#include "engineering/CatalogueLoader.h"
#include "engineering/PartLoader.h"
#include "host/DialogPath.h"
#include "host/DialogUser.h"
#include "host/EventScope.h"
#include "host/Inspector.h"
#include "host/MessageCatalogs.h"
#include "host/Messages.h"
#include "host/Preferences.h"
#include "host/ValueFrame.h"

#include <ostream>
#include <stdexcept>

namespace session {

void PrintTo(const HeardNotification& iHeard, std::ostream* ioStream) {
    *ioStream << iHeard.className << ' ' << ToLine(iHeard.values);
}

} // namespace session

namespace command {

namespace {

template<class Widget>
Widget& Find(const std::string& iPath) {
    const host::Found found = host::DialogPath::Find(iPath);
    auto* const widget = dynamic_cast<Widget*>(found.widget);
    if (widget == nullptr)
        throw std::runtime_error(iPath + ": " + found.reason);
    return *widget;
}

host::Outcome Choose(const char* iCombo, int iLine) {
    const host::Found found = host::DialogPath::Find(iCombo);
    auto* const combo = dynamic_cast<CATDlgCombo*>(found.widget);
    return combo == nullptr ? host::Outcome::Refused(found.reason) : host::DialogUser::Choose(*combo, iLine);
}

} // namespace

CommandTest::CommandTest() {
    for (const char* folder :
         {KELVANE_LIBRARY_MESSAGES, KELVANE_WORKBENCH_MESSAGES, KELVANE_CATALOGUE_MESSAGES})
        host::MessageCatalogs::AddFolder(folder);
    host::Preferences::KeepInMemory();
}

CommandTest::~CommandTest() {
    host::Application::SetActiveCommand(nullptr);
    host::Preferences::Withdraw();
}

const engineering::FeatureCatalogue& CommandTest::Shipped() {
    static const engineering::LoadResult loaded = engineering::CatalogueLoader::Load(KELVANE_CATALOGUE_DIR);
    if (!loaded.catalogue)
        throw std::runtime_error("the shipped catalogue has problems: " + ToText(loaded.problems.front()));
    return *loaded.catalogue;
}

const engineering::Part& CommandTest::SamplePart() {
    static const engineering::PartResult loaded = engineering::LoadPart(KELVANE_PART);
    if (!loaded.part)
        throw std::runtime_error("the shipped part has problems: " + ToText(loaded.problems.front()));
    return *loaded.part;
}

bool CommandTest::Start(FeatureCommand::Mode iMode, const engineering::FeatureCatalogue& iCatalogue) {
    Prepare(iMode, iCatalogue);
    return StartPrepared();
}

void CommandTest::Prepare(FeatureCommand::Mode iMode, const engineering::FeatureCatalogue& iCatalogue) {
    _application.reset();
    _recorder.reset();
    _command.emplace(iCatalogue, SamplePart(), iMode);
    _recorder.emplace(&*_command, &_reader);
    _application.emplace();
    host::Application::SetActiveCommand(&*_recorder);
}

bool CommandTest::StartPrepared() {
    const bool isStarted = _command->Start();
    host::EventScope::RunIdle();
    return isStarted;
}

void CommandTest::EndCommand() {
    _recorder.reset();
    _command.reset();
}

host::Outcome CommandTest::ChooseGroup(int iLine) {
    return Choose("GroupCmb", iLine);
}

host::Outcome CommandTest::ChooseType(int iLine) {
    return Choose("TypeSelectCombo", iLine);
}

host::Outcome CommandTest::ChooseSet(int iLine) {
    return Choose("ParameterSetCmb", iLine);
}

host::Outcome CommandTest::ChooseText(const std::string& iCombo, const std::string& iText) {
    return host::DialogUser::ChooseText(Combo(iCombo), iText);
}

host::Outcome CommandTest::SelectSet(int iRow) {
    return host::DialogUser::Select(List("ParameterSetMul"), {iRow});
}

host::Outcome CommandTest::PressPushButton(const std::string& iName) {
    return host::DialogUser::Press(Find<CATDlgPushButton>(iName));
}

host::Outcome CommandTest::PressButton(CATULong iButton) {
    return host::DialogUser::PressStandardButton(Find<CATDlgDialog>("MainPanel"), iButton);
}

CATDlgCombo& CommandTest::Combo(const std::string& iName) {
    return Find<CATDlgCombo>(iName);
}

Texts CommandTest::LinesOf(const std::string& iCombo) {
    const CATDlgCombo& combo = Combo(iCombo);
    Texts lines;
    for (int line = 0; line < combo.GetLineCount(); ++line) {
        CATUnicodeString text;
        combo.GetLine(text, line);
        lines.emplace_back(text.ConvertToUTF8());
    }
    return lines;
}

CATDlgMultiList& CommandTest::List(const std::string& iName) {
    return Find<CATDlgMultiList>(iName);
}

Texts CommandTest::Rows(const std::string& iList) {
    Texts rows;
    for (int row = 0; row < List(iList).GetLineCount(); ++row)
        rows.push_back(Row(iList, row));
    return rows;
}

std::string CommandTest::Row(const std::string& iList, int iRow) {
    const CATDlgMultiList& list = List(iList);
    std::string cells;
    for (int column = 0; column < list.GetColumnCount(); ++column) {
        CATUnicodeString text;
        list.GetColumnItem(column, text, iRow);
        cells += std::string(column == 0 ? "" : "|") + text.ConvertToUTF8();
    }
    return cells;
}

std::string CommandTest::Columns(const std::string& iList) {
    const CATDlgMultiList& list = List(iList);
    std::string titles;
    for (int column = 0; column < list.GetColumnCount(); ++column) {
        CATUnicodeString title;
        list.GetColumnTitle(column, title);
        titles += std::string(column == 0 ? "" : "|") + title.ConvertToUTF8();
    }
    return titles;
}

std::string CommandTest::RowOf(const std::string& iParameter) {
    for (const std::string& row : Rows("ParameterMul"))
        if (row.find("|" + iParameter + "|") != std::string::npos)
            return row;
    return {};
}

std::string CommandTest::Input(int iNumber) {
    const auto& editor = Find<CATDlgEditor>("Input" + std::to_string(iNumber) + "Edt");
    return host::DialogUser::CanSee(editor) ? editor.GetText().ConvertToUTF8() : "hidden";
}

host::Outcome CommandTest::ShowPage(const std::string& iPage) {
    return host::DialogUser::ShowPage(Find<CATDlgTabPage>(iPage));
}

host::ValueFrame& CommandTest::Field(const std::string& iFrame) {
    for (CATDialog* child : host::Inspector::Children(Find<CATDlgFrame>(iFrame)))
        if (auto* const field = dynamic_cast<host::ValueFrame*>(child))
            return *field;
    throw std::runtime_error(iFrame + " has no field");
}

std::string CommandTest::Thread() {
    const auto chosen = [](const std::string& iCombo) {
        const int line = Combo(iCombo).GetSelect();
        return line < 0 ? "none" : LinesOf(iCombo)[static_cast<std::size_t>(line)];
    };
    const bool isStandard = host::DialogPath::Find("DiameterCmb").widget != nullptr;
    const bool isRight = Find<CATDlgRadioButton>("RightHandedRdb").GetState() == CATDlgCheck;
    const bool isLeft = Find<CATDlgRadioButton>("LeftHandedRdb").GetState() == CATDlgCheck;
    std::string shown = chosen("ThreadTypeCmb");
    for (const std::string& text :
         {isStandard ? chosen("DiameterCmb") : Field("ThreadDiaFrm").Text(), Field("InternalDiaFrm").Text(),
          Field("ThreadLengthFrm").Text(), Field("PitchFrm").Text(),
          std::string(isRight  ? "right"
                      : isLeft ? "left"
                               : "none")})
        shown += "|" + text;
    return shown;
}

Texts CommandTest::RuleMessages() {
    const auto& editor = Find<CATDlgEditor>("KelvaneRules");
    Texts messages;
    for (int line = 0; line < editor.GetLineCount(); ++line) {
        CATUnicodeString text;
        editor.GetLine(text, line);
        messages.emplace_back(text.ConvertToUTF8());
    }
    return messages;
}

Texts CommandTest::TakeMessages() {
    Texts texts;
    for (const host::Message& message : host::Messages::Journal())
        texts.push_back(message.text);
    host::Messages::ClearJournal();
    return texts;
}

std::string CommandTest::Light() {
    return host::Inspector::Icons(Find<CATDialog>("Label003")).normal;
}

Texts CommandTest::TakeHeardClasses() {
    const std::string suffix = "Notification";
    Texts classes;
    for (const HeardNotification& heard : TakeHeard()) {
        std::string name = heard.className;
        if (name.starts_with("OrvKv"))
            name.erase(0, 5);
        if (name.ends_with(suffix))
            name.resize(name.size() - suffix.size());
        classes.push_back(name);
    }
    return classes;
}

std::vector<HeardNotification> CommandTest::TakeHeard() {
    std::vector<HeardNotification> heard = _recorder->Heard();
    _recorder->Forget();
    return heard;
}

} // namespace command
