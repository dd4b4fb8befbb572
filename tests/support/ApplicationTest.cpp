#include "ApplicationTest.h"

#include "CATDlgDocument.h"
#include "ResourceFolder.h"
#include "host/EventScope.h"

#include <ostream>
#include <tuple>

namespace host {

namespace {

auto AsTuple(const Message& iMessage) {
    return std::tie(iMessage.style, iMessage.name, iMessage.text, iMessage.title, iMessage.answer);
}

} // namespace

bool operator==(const Message& iLeft, const Message& iRight) {
    return AsTuple(iLeft) == AsTuple(iRight);
}

void PrintTo(const Message& iMessage, std::ostream* ioStream) {
    *ioStream << testing::PrintToString(AsTuple(iMessage));
}

} // namespace host

namespace support {

ApplicationTest::ApplicationTest() {
    UseLibraryResources();
    host::Application::SetActiveCommand(&_command);
}

ApplicationTest::~ApplicationTest() {
    host::Application::SetActiveCommand(nullptr);
}

ShownMessages ApplicationTest::TakeMessages() {
    ShownMessages messages = host::Messages::Journal();
    host::Messages::ClearJournal();
    return messages;
}

void ApplicationTest::RunIdle() {
    host::EventScope::RunIdle();
}

} // namespace support
