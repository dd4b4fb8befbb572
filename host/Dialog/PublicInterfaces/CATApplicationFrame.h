#ifndef CATApplicationFrame_H
#define CATApplicationFrame_H

class CATDialog;

namespace host {
class Application;
}

// The running application.
class CATApplicationFrame {
  public:
    // Never null; not owned by the caller.
    static CATApplicationFrame* GetFrame();
    // The main window, which is the parent of the dialogs. Not owned by the caller; null once it is
    // destroyed.
    CATDialog* GetMainWindow() const;

  private:
    friend class host::Application;
    CATApplicationFrame() = default;
};

#endif
