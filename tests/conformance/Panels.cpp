#include "Panels.h"

#include "CATApplicationFrame.h"

RecordingPanel::RecordingPanel(CATDialog* iParent, const char* iName, Journal& ioJournal, CATDlgStyle iStyle)
    : CATDlgDialog(iParent, iName, iStyle), _journal(ioJournal) {}

void RecordingPanel::Hear(CATDialog& ioWidget, CATNotification* iNotification, const char* iText) {
    AddAnalyseNotificationCB(&ioWidget, iNotification,
                             static_cast<CATCommandMethod>(&RecordingPanel::OnEvent),
                             const_cast<char*>(iText));
}

void RecordingPanel::OnEvent(CATCommand*, CATNotification*, CATCommandClientData iText) {
    _journal.push_back(static_cast<const char*>(iText));
}

DialogTest::DialogTest()
    : panel(new RecordingPanel(CATApplicationFrame::GetFrame()->GetMainWindow(), "Panel", journal)) {}

DialogTest::~DialogTest() {
    delete panel;
}

void DialogTest::Send(CATDialog& ioWidget, CATNotification* iNotification) {
    iNotification->AddRef();
    ioWidget.SendNotification(ioWidget.GetFather(), iNotification);
}
