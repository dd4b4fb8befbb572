#pragma once

// The drawings of the feature types: reads each picture when it is shown first.

#include "CATPixelImage.h"

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace workbench {

class DrawingBook {
  public:
    /// Gives the picture of a type, or an empty path where there is none.
    using Finder = std::function<std::filesystem::path(const std::string& typeKey)>;

    explicit DrawingBook(Finder finder) : _finder(std::move(finder)) {}

    /// A drawing, and why it is blank: empty where it is not, or where the type has no drawing.
    struct Page {
        std::unique_ptr<CATPixelImage> image;
        std::string problem;
    };
    /// The page of a type; an empty key gives a blank one. It lives as long as the book.
    const Page& Of(const std::string& typeKey);

  private:
    Page Read(const std::string& typeKey) const;

    Finder _finder; ///< may be empty: no type has a drawing then
    std::map<std::string, Page> _pages;
};

} // namespace workbench
