#include "DrawingBook.h"

#include "pictures/PictureFile.h"

namespace workbench {

namespace {

std::unique_ptr<CATPixelImage> Blank() {
    return std::make_unique<CATPixelImage>(1, 1);
}

} // namespace

const DrawingBook::Page& DrawingBook::Of(const std::string& typeKey) {
    const auto found = _pages.find(typeKey);
    return found != _pages.end() ? found->second : _pages.emplace(typeKey, Read(typeKey)).first->second;
}

DrawingBook::Page DrawingBook::Read(const std::string& typeKey) const {
    const std::filesystem::path file =
        typeKey.empty() || !_finder ? std::filesystem::path() : _finder(typeKey);
    Page page;
    if (!file.empty()) {
        pictures::PictureResult read = pictures::ReadPicture(file);
        page.image = std::move(read.picture);
        page.problem = std::move(read.error);
    }
    if (!page.image)
        page.image = Blank();
    return page;
}

} // namespace workbench
