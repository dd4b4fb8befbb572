#ifndef CATViewer_H
#define CATViewer_H

#include "CATDlgFrame.h"

namespace host {
class ViewerInspector;
}

// A window in a dialog on a scene, without border and title. It sends nothing.
class CATViewer : public CATDlgFrame {
    CATDeclareClass;

  public:
    CATViewer(const CATViewer&) = delete;
    CATViewer& operator=(const CATViewer&) = delete;

    // Red, green and blue from 0 to 1; other values are moved to the nearer end, what is no number to 0. The
    // colour holds at once, whatever iApply says.
    void SetBackgroundColor(float iRed, float iGreen, float iBlue, int iApply);
    // Makes the whole scene visible. It stays so when the scene or the size of the viewer changes.
    void Reframe();
    // Shows the scene as it is now.
    void Draw();

  protected:
    // Width and height are the natural size in pixels; a negative one counts as 0.
    CATViewer(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle, int iWidth, int iHeight,
              CATULong iViewerStyle);

    // What is to be seen has changed.
    void NoteScene();

  private:
    friend class host::ViewerInspector;

    CATULong _viewerStyle;
    int _naturalWidth;
    int _naturalHeight;
    float _background[3] = {0.0F, 0.0F, 0.0F};
    bool _showsAll = false;
    int _draws = 0;
    unsigned _revision = 0;
};

#endif
