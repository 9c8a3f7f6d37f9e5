// Pages of the New Device Wizard about what is sent to the machine: end of block, prefix, suffix, line
// removal, filters, trigger.

#include "ndw/AnswerText.h"
#include "ndw/NdwPages.h"
#include "wizard/frmWizard.h"

#include <span>

namespace {

constexpr std::size_t kCodesPrompt = 0; // the lines that show the codes
constexpr int kCodesLines = 2;

using CodesOf = std::wstring (*)(const NdwAnswers&);
using Choice = std::int16_t NdwAnswers::*;

void ShowCodes(frmWizard& form, CodesOf codesOf) {
    const std::wstring codes = codesOf(ndwSession.answers);
    std::wstring text = L"Codes stored: " + (codes.empty() ? L"none" : StoredCodes(codes));
    if (!CodesFit(codes))
        text += L"\r\nOnly 10 characters fit: the last code, " + CutCode(codes) + L", is cut in half.";
    form.pool.lblUserPrompt[kCodesPrompt].Text(text);
}

// Check boxes, below them the codes that they make, kept up to date, and the help link.
void BuildCodesPage(frmWizard& form, std::span<const std::wstring_view> captions, Choice choice,
                    CodesOf codesOf) {
    InputColumn column(form);
    column.Checks(captions, ndwSession.answers.*choice);
    for (std::size_t i = 0; i < captions.size(); ++i)
        // Stored at the click, not only when the page is left: the line below shows what the answer makes.
        form.pool.chkUserInput[i].onClick = [&form, captions, choice, codesOf] {
            ndwSession.answers.*choice = CheckedBits(form.pool, captions.size());
            ShowCodes(form, codesOf);
        };
    column.Gap(layout::kGapAfterPrompt);
    column.Width(layout::kTextWidth);
    column.Prompt(kCodesPrompt, L"", kCodesLines);
    ShowCodes(form, codesOf);
    column.Links(kNdwLinks, form.PageNo);
}

} // namespace

void PageNdwEOB(frmWizard& form) {
    form.WriteHeading(L"End of Block");
    // clang-format off
    form.WriteInfo(
        L"Choose the characters that end each block (line) of a program sent to the CNC.\r\n\r\n"
        L"CR is carriage return, LF is line feed. <b>CR + LF</b> suits many CNCs; if the CNC shows an empty block after every block, try <b>LF Only</b>.");
    // clang-format on
    InputColumn(form).Options(kEndOfBlocks, ndwSession.answers.endOfBlockIndex);
}

void LeaveNdwEOB(frmWizard& form, Move) {
    ndwSession.answers.endOfBlockIndex = SelectedOption(form.pool, kEndOfBlocks.size());
}

void PageNdwPrefix(frmWizard& form) {
    form.WriteHeading(L"Transmit Prefix");
    // clang-format off
    form.WriteInfo(
        L"Choose the codes that Varnel DNC sends before a program, in the order shown.\r\n\r\n"
        L"Most CNCs expect <b>%</b> with an end of block before or after it. The CNC's manual shows what it needs. (^M stands for CR, ^J for LF.)");
    // clang-format on
    BuildCodesPage(form, kPrefixChoices, &NdwAnswers::prefixChoice, PrefixCodes);
}

void LeaveNdwPrefix(frmWizard& form, Move) {
    ndwSession.answers.prefixChoice = CheckedBits(form.pool, kPrefixChoices.size());
}

void PageNdwSuffix(frmWizard& form) {
    form.WriteHeading(L"Transmit Suffix");
    // clang-format off
    form.WriteInfo(
        L"Choose the codes that Varnel DNC sends after a program, in the order shown.\r\n\r\n"
        L"Many CNCs take <b>%</b> as the end of the program. (^M stands for CR, ^J for LF.)");
    // clang-format on
    BuildCodesPage(form, kSuffixChoices, &NdwAnswers::suffixChoice, SuffixCodes);
}

void LeaveNdwSuffix(frmWizard& form, Move) {
    ndwSession.answers.suffixChoice = CheckedBits(form.pool, kSuffixChoices.size());
}

void PageNdwFiltLines(frmWizard& form) {
    form.WriteHeading(L"Line Removal");
    // clang-format off
    form.WriteInfo(
        L"Varnel DNC can leave out certain lines when it sends a program to the CNC.\r\n\r\n"
        L"Type the character or text (up to 10 characters) that marks these lines. Leave the box empty to send every line.");
    // clang-format on
    InputColumn column(form);
    column.Prompt(0, L"&Remove lines marked with");
    column.TextBox(0, ndwSession.answers.removedLines, static_cast<int>(kCodesLength)).Focus();
}

void LeaveNdwFiltLines(frmWizard& form, Move move) {
    StoreFileText(form, form.pool.txtUserInput[0], move, ndwSession.answers.removedLines);
}

void PageNdwFiltOpts(frmWizard& form) {
    form.WriteHeading(L"Filter Options");
    // clang-format off
    form.WriteInfo(
        L"Choose what Varnel DNC removes or changes while it sends a program.\r\n\r\n"
        L"If you are not sure, leave all options off. Try a new setting with a short program first, and check what arrives at the CNC.");
    // clang-format on
    InputColumn(form).Checks(kFilterOptions, ndwSession.answers.filterOptions);
}

void LeaveNdwFiltOpts(frmWizard& form, Move) {
    ndwSession.answers.filterOptions = CheckedBits(form.pool, kFilterOptions.size());
}

void PageNdwTxTrigger(frmWizard& form) {
    form.WriteHeading(L"Transmit Trigger");
    // clang-format off
    form.WriteInfo(
        L"Choose what starts the transmission after you tell Varnel DNC to send a program.\r\n\r\n"
        L"With software flow control the CNC usually sends XON (DC1) when it is ready to receive.");
    // clang-format on
    InputColumn(form).Options(kTransmitTriggers, ndwSession.answers.transmitTriggerIndex);
}

void LeaveNdwTxTrigger(frmWizard& form, Move) {
    ndwSession.answers.transmitTriggerIndex = SelectedOption(form.pool, kTransmitTriggers.size());
}
