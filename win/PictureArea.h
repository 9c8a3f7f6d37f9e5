#pragma once

// Labels that show a picture of the program's resources. Their names are for screen readers.

#include "win/Control.h"
#include "win/Picture.h"

#include <optional>

namespace win {

class NamedPicture : public Label {
  public:
    void Name(const wchar_t* name) { name_ = name; } // a literal

  protected:
    void Made() override { InterceptMessages(); }
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;

  private:
    const wchar_t* name_ = L"";
};

class PictureArea : public NamedPicture {
  public:
    explicit PictureArea(int resource) : resource_(resource) {}
    void Draw(const DRAWITEMSTRUCT& item);

  private:
    int resource_;
};

// An icon as large as the area, on the window's background.
class IconArea : public NamedPicture {
  public:
    void Icon(int resource) { resource_ = resource; }
    void Draw(const DRAWITEMSTRUCT& item);

  private:
    int resource_ = 0;
    std::optional<IconPicture> icon_;
};

} // namespace win
