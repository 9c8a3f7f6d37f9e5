// Pages of the New Device Wizard about what the machine sends: file name and end of reception.

#include "app/FileNames.h"
#include "ndw/AnswerText.h"
#include "ndw/NdwPages.h"
#include "wizard/frmWizard.h"

namespace {

using namespace win::literals;

constexpr int kExtensionLimit = 1 + static_cast<int>(kExtensionLength); // it may be typed with its dot
constexpr win::Twips kNamingListHeight = 1080_tw;
constexpr win::Twips kExtensionLeft = layout::kTextLeft + 2400_tw;
constexpr win::Twips kShortBoxWidth = 2100_tw;

} // namespace

void PageNdwRxName(frmWizard& form) {
    form.pool.SetInputFont(true); // until the page is left
    form.WriteHeading(L"Receive File Name");
    // clang-format off
    form.WriteInfo(
        L"Choose how Varnel DNC names a file that the CNC sends.\r\n\r\n"
        L"A beginning of your own is put in front of that name. The extension is only checked here: set it in Varnel DNC Configuration (VConfig), which stores it.");
    // clang-format on
    InputColumn column(form);
    column.Width(layout::kTextWidth);
    column.Prompt(0, L"&Take the name from");
    auto& formats = column.List(1, kNamingListHeight);
    formats.Fill({std::begin(kReceiveNamings), std::end(kReceiveNamings)});
    formats.Index(ndwSession.answers.receiveNamingIndex);

    // Two boxes side by side.
    const win::Twips row = column.Top();
    column.Width(kShortBoxWidth);
    column.Prompt(1, L"Name &begins with");
    column.TextBox(0, ndwSession.answers.receivePrefix, static_cast<int>(kCodesLength));
    column.Top(row);
    column.Left(kExtensionLeft);
    column.Prompt(2, L"File &extension");
    column.TextBox(1, ndwSession.answers.receiveExtension, kExtensionLimit);
}

void LeaveNdwRxName(frmWizard& form, Move move) {
    auto& answers = ndwSession.answers;
    answers.receiveNamingIndex = IndexOrZero(form.pool.lstUserInput[1].Index());
    StoreFileText(form, form.pool.txtUserInput[0], move, answers.receivePrefix);
    auto& box = form.pool.txtUserInput[1];
    // Like a text that cannot be stored, one that is not valid is dropped on the way back.
    if (const auto extension = CheckedExtension(box.Text()))
        answers.receiveExtension = *extension;
    else if (move == Move::Next && !form.StayOnPage)
        RefuseText(form, box,
                   L"The file extension you specified is not valid.\r\n\r\n"
                   L"Type up to 3 letters (A to Z) or digits, without blanks and other signs.");
    // A page that stays keeps its looks.
    if (!form.StayOnPage) form.pool.SetInputFont(false);
}

void PageNdwRxTerm(frmWizard& form) {
    form.WriteHeading(L"End of Reception");
    // clang-format off
    form.WriteInfo(
        L"Choose how Varnel DNC knows that the CNC has finished sending.\r\n\r\n"
        L"With a time-out, the file is closed when no character has arrived for the time shown. Use 30 seconds for a CNC that pauses while it sends.");
    // clang-format on
    InputColumn(form).Options(kReceiveTerminations, ndwSession.answers.receiveTerminationIndex);
}

void LeaveNdwRxTerm(frmWizard& form, Move) {
    ndwSession.answers.receiveTerminationIndex = SelectedOption(form.pool, kReceiveTerminations.size());
}
