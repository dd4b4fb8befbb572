#include "host/ViewerInspector.h"

#include "CAT2DImagePixelRep.h"
#include "CAT2DViewer.h"

#include <cmath>
#include <cstdio>

namespace host {

namespace {

std::string Extent(int iWidth, int iHeight) {
    return std::to_string(iWidth) + 'x' + std::to_string(iHeight);
}

unsigned InBytes(float iIntensity) {
    return static_cast<unsigned>(std::lround(iIntensity * 255.0F));
}

std::string Hexadecimal(const SceneColor& iColor) {
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", InBytes(iColor.red), InBytes(iColor.green),
                  InBytes(iColor.blue));
    return text;
}

} // namespace

SceneColor ViewerInspector::Background(const CATViewer& iViewer) {
    return SceneColor{iViewer._background[0], iViewer._background[1], iViewer._background[2]};
}

CATULong ViewerInspector::ViewerStyle(const CATViewer& iViewer) {
    return iViewer._viewerStyle;
}

int ViewerInspector::NaturalWidth(const CATViewer& iViewer) {
    return iViewer._naturalWidth;
}

int ViewerInspector::NaturalHeight(const CATViewer& iViewer) {
    return iViewer._naturalHeight;
}

bool ViewerInspector::ShowsAll(const CATViewer& iViewer) {
    return iViewer._showsAll;
}

Picture ViewerInspector::PictureOf(const CATViewer& iViewer) {
    const auto* const viewer = dynamic_cast<const CAT2DViewer*>(&iViewer);
    const auto* const rep =
        viewer == nullptr ? nullptr : dynamic_cast<const CAT2DImagePixelRep*>(viewer->GetMainRep());
    if (rep == nullptr || rep->_image == nullptr)
        return Picture();
    const CATPixelImage& image = *rep->_image;
    return Picture{rep->_position[0], rep->_position[1], image.GetWidth(),
                   image.GetHeight(), image.GetFormat(), image.GetPixels()};
}

int ViewerInspector::Draws(const CATViewer& iViewer) {
    return iViewer._draws;
}

unsigned ViewerInspector::Revision(const CATViewer& iViewer) {
    return iViewer._revision;
}

std::string ViewerInspector::Describe(const CATDialog& iWidget) {
    const auto* const viewer = dynamic_cast<const CATViewer*>(&iWidget);
    if (viewer == nullptr)
        return std::string();
    std::string text = "size=" + Extent(NaturalWidth(*viewer), NaturalHeight(*viewer)) +
                       " background=" + Hexadecimal(Background(*viewer));
    const Picture picture = PictureOf(*viewer);
    if (picture)
        text += " picture=" + Extent(picture.width, picture.height);
    return text;
}

} // namespace host
