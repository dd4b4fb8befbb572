#include "CAT2DImagePixelRep.h"

#include "CATPixelImage.h"
#include "host/Misuse.h"

#include <cstring>

CATImplementClass(CAT2DImagePixelRep, Implementation, CAT2DRep, CATNull);

namespace {

std::unique_ptr<CATPixelImage> CopyOf(const CATPixelImage* iImage) {
    if (iImage == nullptr || iImage->GetPixels() == nullptr)
        return nullptr;
    auto copy = std::make_unique<CATPixelImage>(iImage->GetWidth(), iImage->GetHeight(), iImage->GetFormat());
    if (copy->GetPixels() == nullptr)
        return nullptr;
    std::memcpy(copy->GetPixels(), iImage->GetPixels(), iImage->GetSizeInBytes());
    return copy;
}

} // namespace

CAT2DImagePixelRep::CAT2DImagePixelRep(const CATPixelImage* iImage, const float iPosition[2], int iFirst,
                                       int iSecond, int iThird, int iFourth)
    : _image(CopyOf(iImage)), _position{iPosition[0], iPosition[1]} {
    if (iFirst != 0 || iSecond != 0 || iThird != 0 || iFourth != 0)
        host::Misuse::Record("CAT2DImagePixelRep: numbers other than 0 have no effect");
}

CAT2DImagePixelRep::~CAT2DImagePixelRep() = default;
