#pragma once

// Labels that show a picture of the program's resources. Decoded at the first painting, kept to the end.

#include "win/Control.h"
#include "win/Picture.h"

#include <optional>

namespace win {

class PictureArea : public Label {
  public:
    explicit PictureArea(int resource) : resource_(resource) {}
    void Draw(const DRAWITEMSTRUCT& item);

  private:
    int resource_;
    std::optional<Picture> picture_;
};

// An icon as large as the area, on the window's background.
class IconArea : public Label {
  public:
    void Icon(int resource) { resource_ = resource; }
    void Draw(const DRAWITEMSTRUCT& item);

  private:
    int resource_ = 0;
    std::optional<IconPicture> icon_;
};

} // namespace win
