#pragma once

#include <string>

namespace win {
class RichText;
}

// What a rich-text control shows, read back from it character by character. Lines end in "\n"; a line that
// is bulleted and indented by 150 twips on both sides begins with "• ", one with any other paragraph format
// with that format in braces. Text that is bold stands in [ ], bold and red in { }, any other look than
// plain black in < >.
std::wstring LookOf(win::RichText& text);
