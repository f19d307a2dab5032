// The page of a picture: where the plane lies on it, its grid and its scale.
#pragma once

#include <string>

#include "drawing.h"

namespace draft {

/// Maps the plane onto the page, y upwards; page units are pixels at the usual size.
class Page {
  public:
    explicit Page(const Box &extents);

    double width() const { return right() + kMargin; }
    double left() const { return kMargin + tickRoom_; }
    double right() const { return left() + areaWidth_; }
    double top() const { return kHeader; }
    double bottom() const { return top() + areaHeight_; }

    double scale() const { return scale_; }
    double x(double planeX) const { return left() + (planeX - originX_) * scale_; }
    double y(double planeY) const { return bottom() - (planeY - originY_) * scale_; }

    /// The part of the plane that lies on the page.
    Box shown() const {
        return {originX_, originY_, originX_ + areaWidth_ / scale_,
                originY_ + areaHeight_ / scale_};
    }

    /// Lines at round coordinates, with their values beside.
    std::string grid() const;
    /// A bar of a round length, its right end at the right border.
    std::string scaleBar(double atY) const;

  private:
    static constexpr double kMargin = 28.0;
    static constexpr double kHeader = 64.0;

    void makeGrid();

    double areaWidth_ = 0.0, areaHeight_ = 0.0;
    double tickRoom_ = 34.0; ///< for the values beside the grid
    double step_ = 1.0;      ///< of the grid, in the plane
    int decimals_ = 0;       ///< of its values
    int valueEvery_ = 1;     ///< of how many upright lines one has its value below
    double scale_ = 1.0;
    double originX_ = 0.0, originY_ = 0.0; ///< of the plane, at the left bottom of the area
};

/// A length on the page.
std::string pixels(double value);
/// Text inside an element or attribute; what is not UTF-8 becomes a question mark.
std::string xmlText(const std::string &text);

} // namespace draft
