#include "CommandTest.h"

#include "CATDlgCombo.h"
#include "CATDlgDialog.h"
#include "CATDlgEditor.h"
#include "CATDlgMultiList.h"
#include "CATDlgPushButton.h"
#include "engineering/CatalogueLoader.h"
#include "engineering/PartLoader.h"
#include "host/DialogPath.h"
#include "host/DialogUser.h"
#include "host/EventScope.h"
#include "host/MessageCatalogs.h"

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
}

CommandTest::~CommandTest() {
    host::Application::SetActiveCommand(nullptr);
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

host::Outcome CommandTest::ChooseGroup(int iLine) {
    return Choose("GroupCmb", iLine);
}

host::Outcome CommandTest::ChooseType(int iLine) {
    return Choose("TypeSelectCombo", iLine);
}

host::Outcome CommandTest::ChooseSet(int iLine) {
    return Choose("ParameterSetCmb", iLine);
}

host::Outcome CommandTest::SelectSet(int iRow) {
    return host::DialogUser::Select(List("ParameterSetMul"), {iRow});
}

host::Outcome CommandTest::PressPushButton(const std::string& iName) {
    return host::DialogUser::Press(Find<CATDlgPushButton>(iName));
}

host::Outcome CommandTest::PressButton(CATULong iButton) {
    return host::DialogUser::PressStandardButton(Find<CATDlgDialog>("FeatureDialog"), iButton);
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

std::vector<HeardNotification> CommandTest::TakeHeard() {
    std::vector<HeardNotification> heard = _recorder->Heard();
    _recorder->Forget();
    return heard;
}

} // namespace command
