#pragma once

// The one pool of input controls that all pages share, and the column in which a page places the ones it
// needs. Between two pages the pool is put back into its neutral state; texts, list contents and checked
// states stay, so a builder sets all of what it shows.

#include "win/Control.h"
#include "win/RichText.h"
#include "wizard/FormLayout.h"
#include "wizard/Links.h"

#include <array>
#include <span>
#include <string_view>

class frmWizard;

struct InputPool {
    std::array<win::OptionButton, 6> optUserInput; // option buttons, one group
    std::array<win::CheckBox, 5> chkUserInput;
    std::array<win::TextBox, 2> txtUserInput;
    std::array<win::ListBox, 2> lstUserInput; // 0: several may be selected, unsorted; 1: one
    std::array<win::Label, 5> lblUserPrompt;
    std::array<win::Link, 3> lblHyperlink;
    win::ComboBox cmbUserInput; // drop-down list
    win::Label fraContainer;    // frame of the inputs: a place only, no page shows it

    void Bind(win::Form& form);

    // Every element hidden, at the left of the text column, 4000 twips wide, without tool tip; the page
    // text back to its usual height.
    void ClearPage(win::RichText& txtInfo);

    // true: "MS Sans Serif", false: "Verdana"; on prompts 0 to 4, text boxes 0 and 1 and list 1 only.
    void SetInputFont(bool oldStyle);
};

// The neutral state for each element of one group.
template <class Group> void HideGroup(Group& group) {
    for (auto& element : group) {
        element.Visible(false);
        element.Place(layout::kTextLeft, element.Top(), layout::kInputWidth, element.Height());
        element.ToolTip(L"");
    }
}

// Places inputs of the pool from the page text downwards and shows them. The order of the calls is the
// tab order and the order in which a screen reader walks the page. Heights and gaps are those of
// FormLayout.h.
class InputColumn {
  public:
    // Starts below the page text.
    explicit InputColumn(frmWizard& form);

    win::Label& Prompt(std::size_t index, std::wstring_view text, int lines = 1);
    win::Button& Option(std::size_t index, std::wstring_view caption, bool selected);
    win::Button& Check(std::size_t index, std::wstring_view caption, bool checked);
    win::TextBox& TextBox(std::size_t index, std::wstring_view text, int limit); // limit in characters
    win::ListBox& List(std::size_t index, win::Twips height);                    // as many whole lines as fit
    win::ComboBox& DropDown();
    win::Link& Link(std::size_t index, std::wstring_view caption);
    // The rows of `links` that have a caption and belong to `page`.
    void Links(std::span<const LinkRow> links, std::int16_t page);

    // All options, the one at `selected` chosen; likewise all boxes by the bits of `checked`, and the
    // drop-down list filled with `items`.
    void Options(std::span<const std::wstring_view> captions, std::int16_t selected);
    void Checks(std::span<const std::wstring_view> captions, std::int16_t checked);
    void DropDown(std::span<const std::wstring_view> items, std::int16_t selected);

    void Gap(win::Twips height) { top_ += height; }
    void Left(win::Twips left) { left_ = left; }
    void Width(win::Twips width) { width_ = width; } // of prompts, boxes and lists to come
    win::Twips Top() const { return top_; }
    void Top(win::Twips top) { top_ = top; }

  private:
    void Put(win::Control& control, win::Twips width, win::Twips height, win::Twips gap);

    frmWizard& form_;
    win::Control* previous_;
    win::Twips left_ = layout::kTextLeft;
    win::Twips width_ = layout::kInputWidth;
    win::Twips top_{};
};

// Reading back. The first selected option among the first `count`, the set bits of the first `count`
// boxes, the selection of a list (none counts as 0).
std::int16_t SelectedOption(InputPool& pool, std::size_t count);
std::int16_t CheckedBits(InputPool& pool, std::size_t count);
std::int16_t IndexOrZero(int index);
