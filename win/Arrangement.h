#pragma once

// A form being rearranged, as at a change of pages: half of it is never seen.

#include "win/Form.h"

namespace win {

// While one lives, places, order and visibility of the form's controls and the focus are only noted, and no
// control paints. At the end of the outermost one the controls get them all, and `area` (pixels) is painted
// anew. The form itself stays a visible window all the time: clicks never reach what lies behind it.
class Arrangement {
  public:
    Arrangement(Form& form, const RECT& area) : form_(form) { form_.BeginArrangement(area); }
    Arrangement(const Arrangement&) = delete;
    Arrangement& operator=(const Arrangement&) = delete;
    ~Arrangement() { form_.EndArrangement(); }

  private:
    Form& form_;
};

// The pointer says "wait" while the program looks something up that may take its time.
class Hourglass {
  public:
    Hourglass() : before_(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {}
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
    ~Hourglass() { SetCursor(before_); }

  private:
    HCURSOR before_;
};

} // namespace win
