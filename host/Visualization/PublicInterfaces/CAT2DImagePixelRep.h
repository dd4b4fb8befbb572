#ifndef CAT2DImagePixelRep_H
#define CAT2DImagePixelRep_H

#include "CAT2DRep.h"

#include <memory>

class CATPixelImage;

namespace host {
class ViewerInspector;
}

// Shows a raster image, one pixel a model unit, from a position on to the right and downwards.
class CAT2DImagePixelRep : public CAT2DRep {
    CATDeclareClass;

  public:
    // The image is read here and stays the caller's; what happens to it afterwards has no effect. A null
    // image and one without pixels show nothing. The four numbers are 0; others have no effect and are
    // recorded as a misuse.
    CAT2DImagePixelRep(const CATPixelImage* iImage, const float iPosition[2], int iFirst, int iSecond,
                       int iThird, int iFourth);
    ~CAT2DImagePixelRep() override;

  private:
    friend class host::ViewerInspector;

    std::unique_ptr<CATPixelImage> _image; // a copy; null for nothing to show
    float _position[2];                    // of the upper left corner, in model units
};

#endif
