#include "wizard/InputPool.h"

#include "win/Fonts.h"
#include "win/Screen.h"
#include "wizard/frmWizard.h"

#include <algorithm>

namespace {

// Control ids of element 0 of each group.
enum PoolIds {
    kOptionId = 200,
    kCheckId = 220,
    kTextId = 240,
    kListId = 260,
    kPromptId = 280,
    kLinkId = 300,
    kComboId = 320,
    kFrameId = 330
};

template <class Group> void BindGroup(Group& group, win::Form& form, int firstId) {
    for (auto& element : group) {
        element.Bind(form, firstId++);
        element.Place(layout::kTextLeft, layout::kTextTop, layout::kInputWidth, layout::kOptionHeight);
    }
}

} // namespace

void InputPool::Bind(win::Form& form) {
    // The others belong to the group of the first one: the arrow keys go round in it.
    optUserInput[0].Bind(form, kOptionId, WS_GROUP | WS_TABSTOP);
    for (std::size_t i = 1; i < optUserInput.size(); ++i)
        optUserInput[i].Bind(form, kOptionId + static_cast<int>(i));
    BindGroup(chkUserInput, form, kCheckId);
    BindGroup(txtUserInput, form, kTextId);
    lstUserInput[0].Bind(form, kListId, LBS_EXTENDEDSEL | WS_GROUP);
    lstUserInput[1].Bind(form, kListId + 1);
    for (std::size_t i = 0; i < lblUserPrompt.size(); ++i)
        lblUserPrompt[i].Bind(form, kPromptId + static_cast<int>(i), SS_LEFT | SS_NOTIFY | WS_GROUP);
    BindGroup(lblHyperlink, form, kLinkId);
    cmbUserInput.Bind(form, kComboId);
    fraContainer.Bind(form, kFrameId);
    for (auto& link : lblHyperlink)
        link.Font(win::FontFor(win::FontUse::Link));
}

void InputPool::ClearPage(win::RichText& txtInfo) {
    txtInfo.Height(layout::kTextHeight);
    HideGroup(lblHyperlink);
    HideGroup(optUserInput);
    HideGroup(chkUserInput);
    HideGroup(lstUserInput);
    HideGroup(lblUserPrompt);
    HideGroup(txtUserInput);
    cmbUserInput.Visible(false);
    cmbUserInput.Left(layout::kTextLeft);
    fraContainer.Visible(false);
}

void InputPool::SetInputFont(bool oldStyle) {
    const HFONT font = win::FontFor(oldStyle ? win::FontUse::OldStyle : win::FontUse::Body);
    for (auto& prompt : lblUserPrompt)
        prompt.Font(font);
    for (auto& box : txtUserInput)
        box.Font(font);
    lstUserInput[1].Font(font);
}

InputColumn::InputColumn(frmWizard& form)
    : form_(form), previous_(&form.txtInfo), top_(form.txtInfo.Bottom() + layout::kGapAfterText) {}

// Order counts as much as place: Tab, screen readers and the prompts' access keys all go by it.
void InputColumn::Put(win::Control& control, win::Twips width, win::Twips height, win::Twips gap) {
    control.Place(left_, top_, width, height);
    control.Follows(*previous_);
    control.Visible(true);
    previous_ = &control;
    top_ += height + gap;
}

win::Label& InputColumn::Prompt(std::size_t index, std::wstring_view text, int lines) {
    auto& prompt = form_.pool.lblUserPrompt[index];
    prompt.Text(text); // with its access key: that leads to the input behind it
    Put(prompt, width_, layout::kPromptHeight * lines, layout::kGapAfterPrompt);
    return prompt;
}

win::Button& InputColumn::Option(std::size_t index, std::wstring_view caption, bool selected) {
    auto& option = form_.pool.optUserInput[index];
    option.Text(caption);
    option.Checked(selected);
    Put(option, layout::kTextWidth, layout::kOptionHeight, layout::kGapBetween);
    return option;
}

win::Button& InputColumn::Check(std::size_t index, std::wstring_view caption, bool checked) {
    auto& box = form_.pool.chkUserInput[index];
    box.onClick = nullptr; // what another page left would store into that page's answer
    box.Text(caption);
    box.Checked(checked);
    Put(box, layout::kTextWidth, layout::kOptionHeight, layout::kGapBetween);
    return box;
}

win::TextBox& InputColumn::TextBox(std::size_t index, std::wstring_view text, int limit) {
    auto& box = form_.pool.txtUserInput[index];
    box.Limit(limit);
    box.Text(text);
    // As high as its line: the control puts that at its top, however high it is itself.
    constexpr int kMargins = 3; // pixels, above and below the line
    const int height = win::LineHeight(box.Font()) + GetSystemMetrics(SM_CYEDGE) * 2 + kMargins;
    Put(box, width_, win::Tw(height), layout::kGapBetweenGroups);
    return box;
}

// Half a line at the lower edge would look like a list that goes on.
win::ListBox& InputColumn::List(std::size_t index, win::Twips height) {
    auto& list = form_.pool.lstUserInput[index];
    const int edges = GetSystemMetrics(SM_CYEDGE) * 2;
    const int line = static_cast<int>(list.Send(LB_GETITEMHEIGHT));
    const int lines = (win::Px(height) - edges) / line;
    Put(list, width_, win::Tw(lines * line + edges), layout::kGapBetweenGroups);
    return list;
}

win::ComboBox& InputColumn::DropDown() {
    auto& combo = form_.pool.cmbUserInput;
    combo.onChange = nullptr; // of another page
    const win::Twips top = top_;
    Put(combo, width_, layout::kDropDownHeight,
        win::Twips{}); // the height of a combo box is that of its open list
    top_ = top + layout::kTextBoxHeight + layout::kGapBetweenGroups; // closed, it is one line high
    return combo;
}

win::Link& InputColumn::Link(std::size_t index, std::wstring_view caption) {
    auto& link = form_.pool.lblHyperlink[index];
    link.Text(caption);
    // Only as wide as its text: the hand and the click end where the words do.
    const win::WindowDc dc(link.Handle());
    const win::SelectedObject font(dc.Get(), link.Font());
    SIZE size{};
    GetTextExtentPoint32W(dc.Get(), caption.data(), static_cast<int>(caption.size()), &size);
    constexpr int kFocusMargin = 4; // pixels
    Put(link, std::min(win::Tw(size.cx + kFocusMargin), layout::kTextWidth), layout::kLinkHeight,
        layout::kGapBetween);
    return link;
}

void InputColumn::Links(std::span<const LinkRow> links, std::int16_t page) {
    for (const LinkRow& link : links)
        if (link.page == page && link.caption)
            Link(static_cast<std::size_t>(std::max<int>(0, link.index)), link.caption);
}

void InputColumn::Options(std::span<const std::wstring_view> captions, std::int16_t selected) {
    for (std::size_t i = 0; i < captions.size(); ++i)
        Option(i, captions[i], static_cast<std::int16_t>(i) == selected);
}

void InputColumn::Checks(std::span<const std::wstring_view> captions, std::int16_t checked) {
    for (std::size_t i = 0; i < captions.size(); ++i)
        Check(i, captions[i], (checked >> i & 1) != 0);
}

void InputColumn::DropDown(std::span<const std::wstring_view> items, std::int16_t selected) {
    auto& combo = DropDown();
    combo.Clear();
    for (const std::wstring_view item : items)
        combo.Add(item);
    combo.Index(selected);
}

// A group without a mark counts as the first one, which the page then shows marked.
std::int16_t SelectedOption(InputPool& pool, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        if (pool.optUserInput[i].Checked()) return static_cast<std::int16_t>(i);
    return 0;
}

std::int16_t CheckedBits(InputPool& pool, std::size_t count) {
    int bits = 0;
    for (std::size_t i = 0; i < count; ++i)
        if (pool.chkUserInput[i].Checked()) bits |= 1 << i;
    return static_cast<std::int16_t>(bits);
}

std::int16_t IndexOrZero(int index) { return static_cast<std::int16_t>(std::max(0, index)); }
