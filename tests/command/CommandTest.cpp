#include "CommandTest.h"

#include "CATDlgCombo.h"
#include "CATDlgDialog.h"
#include "CATDlgEditor.h"
#include "engineering/CatalogueLoader.h"
#include "host/DialogPath.h"
#include "host/DialogUser.h"
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

bool CommandTest::Start(FeatureCommand::Mode iMode, const engineering::FeatureCatalogue& iCatalogue) {
    _application.reset();
    _recorder.reset();
    _command.emplace(iCatalogue, iMode);
    _recorder.emplace(&*_command, &_reader);
    _application.emplace();
    host::Application::SetActiveCommand(&*_recorder);
    return _command->Start();
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

std::string CommandTest::Acknowledgement() {
    return Find<CATDlgEditor>("ParametersEdt").GetText().ConvertToUTF8();
}

std::string CommandTest::Acknowledged(int iLine) {
    CATUnicodeString text;
    Find<CATDlgEditor>("ParametersEdt").GetLine(text, iLine);
    return text.ConvertToUTF8();
}

std::vector<HeardNotification> CommandTest::TakeHeard() {
    std::vector<HeardNotification> heard = _recorder->Heard();
    _recorder->Forget();
    return heard;
}

} // namespace command
