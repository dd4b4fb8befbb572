#ifndef Panels_H
#define Panels_H

#include "CATDlgDialog.h"
#include "CATDlgNotifications.h"

#include "Recorders.h"

// A panel as an add-in writes one: a dialog that hears its own widgets and writes down what it hears.
class RecordingPanel : public CATDlgDialog {
  public:
    RecordingPanel(CATDialog* iParent, const char* iName, Journal& ioJournal, CATDlgStyle iStyle = 0);

    // Writes iText into the journal whenever ioWidget sends iNotification.
    void Hear(CATDialog& ioWidget, CATNotification* iNotification, const char* iText);
    void OnEvent(CATCommand* iFrom, CATNotification* iNotification, CATCommandClientData iText);

  private:
    Journal& _journal;
};

// The fixture of the dialog facts: a panel in the application's main window.
class DialogTest : public PlatformTest {
  protected:
    DialogTest();
    ~DialogTest() override;

    void Hear(CATDialog& ioWidget, CATNotification* iNotification, const char* iText) {
        panel->Hear(ioWidget, iNotification, iText);
    }
    // Sends one of the widget's own notifications, as when a person has used it.
    static void Send(CATDialog& ioWidget, CATNotification* iNotification);

    Journal journal;
    RecordingPanel* panel; // deleted at the end, with its widgets
};

#endif
