#ifndef host_Application_H
#define host_Application_H

class CATCommand;
class CATDlgDocument;

namespace host {

// The running application: its frame and its main window, for as long as this object lives.
//
//     host::Application application;
//     application.SetActiveCommand(&command);
//
// One at a time. Its end destroys the main window with every dialog that is left, drains delayed destruction
// and forgets messages, misuses and the last error. Without one, CATApplicationFrame::GetFrame() makes an
// application of its own that lasts until another one is made.
class Application {
  public:
    Application();
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    CATDlgDocument& MainWindow() const;

    // The command that hears the notifications nobody below has answered. Not owned; null for none.
    static void SetActiveCommand(CATCommand* iCommand);
    static CATCommand* ActiveCommand();
};

} // namespace host

#endif
