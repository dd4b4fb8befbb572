#ifndef CAT2DViewer_H
#define CAT2DViewer_H

#include "CATViewer.h"

class CAT2DRep;

// Shows one two-dimensional representation.
class CAT2DViewer : public CATViewer {
    CATDeclareClass;

  public:
    // Width and height are the natural size in pixels; a negative one counts as 0.
    CAT2DViewer(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle, int iWidth, int iHeight,
                CATULong iViewerStyle);
    ~CAT2DViewer() override;

    // Not owned; null for none. To be seen at the next Draw. A representation that goes is shown no longer,
    // at once.
    void SetMainRep(CAT2DRep* iRep);
    CAT2DRep* GetMainRep() const { return _mainRep; }

  private:
    friend class CAT2DRep;

    void Leave();
    void LoseMainRep();

    CAT2DRep* _mainRep = nullptr;
};

#endif
