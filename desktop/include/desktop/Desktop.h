#ifndef desktop_Desktop_H
#define desktop_Desktop_H

#include "host/DialogObserver.h"
#include "host/Messages.h"

#include <QtGui/QImage>

#include <memory>
#include <string>

class CATDialog;
class CATDlgWindow;
class QObject;
class QWidget;

namespace desktop {

class PeerTree;

// Real windows for the dialogs of the host, for as long as this object lives.
//
//     QApplication qt(argc, argv);
//     host::Application application;
//     desktop::Desktop desktop;
//     ...
//     return qt.exec();
//
// Made after the QApplication and the host's application, and destroyed before them. Dialogs that are there
// already are shown too. What a person does reaches the program through host::DialogUser alone; what the
// program changes is shown at the end of the event in which it does; what it destroys goes at once.
class Desktop final : public host::DialogObserver, public host::MessageFrontEnd {
  public:
    Desktop();
    ~Desktop() override;

    // The Qt widget that shows a host widget; null when there is none. Both belong to the desktop and go with
    // the host widget.
    QWidget* WindowOf(const CATDlgWindow& iWindow) const;
    QWidget* WidgetOf(const CATDialog& iWidget) const;

    // A picture of a dialog as it is now, shown or hidden; a null image when the dialog has no window here.
    QImage Picture(const CATDlgWindow& iWindow);
    // Writes that picture; the suffix of iPath tells the format. False, and no file, when it cannot.
    [[nodiscard]] bool SavePicture(const CATDlgWindow& iWindow, const std::string& iPath);

    // Reads every text again, after a change of language.
    void RefreshTexts();

    // host::DialogObserver
    void OnChanges(const host::DialogChanges& iChanges) override;
    void OnDestroyed(const CATDialog& iWidget) override;
    void OnIdleNeeded() override;

    // host::MessageFrontEnd: waits in an event loop of its own until the person has answered.
    int Show(const host::Message& iMessage) override;

  private:
    std::unique_ptr<PeerTree> _tree;
    std::unique_ptr<QObject> _idle;                   // receives the event that runs the idle step
    host::MessageFrontEnd* _frontEndBefore = nullptr; // not owned
};

} // namespace desktop

#endif
