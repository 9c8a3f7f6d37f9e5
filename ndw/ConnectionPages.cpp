// Pages of the New Device Wizard about the line to the machine: port, baud rate, data format, character
// format, flow control.

#include "ndw/NdwPages.h"
#include "ndw/PortUse.h"
#include "wizard/frmWizard.h"

namespace {

constexpr std::size_t kUsePrompt = 1; // the lines below the list of ports
constexpr int kUseLines = 5;

// Names may hold "&", which a label would take for the mark of an access key.
std::wstring WithoutAccessKeys(std::wstring text) {
    for (std::size_t i = 0; (i = text.find(L'&', i)) != std::wstring::npos; i += 2)
        text.insert(i, 1, L'&');
    return text;
}

void ShowPortUse(frmWizard& form) {
    const int index = IndexOrZero(form.pool.cmbUserInput.Index());
    const PortNote& note = ndwSession.ports.at(static_cast<std::size_t>(index));
    form.pool.lblUserPrompt[kUsePrompt].Text(WithoutAccessKeys(PortUseText(index + 1, note)));
}

} // namespace

// Anew each time: an adapter may have been plugged in.
void PrepareNdwPort(frmWizard&) { ndwSession.ports = LookUpPorts(); }

void PageNdwPort(frmWizard& form) {
    form.WriteHeading(L"COM Port");
    // clang-format off
    form.WriteInfo(
        L"Choose the serial (COM) port that the CNC is connected to.\r\n\r\n"
        L"<b>On this computer</b>: Windows has the port now. That of a USB adapter is there only while the adapter is plugged in.\r\n"
        L"<b>In use</b>: another configuration uses the port already.\r\n"
        L"See also <b>Ports (COM & LPT)</b> in Windows Device Manager.");
    // clang-format on
    InputColumn column(form);
    column.Prompt(0, L"&COM port");
    auto& ports = column.DropDown();
    ports.Clear();
    int number = 0;
    for (const PortNote& note : ndwSession.ports)
        ports.Add(PortCaption(++number, note));
    // The list is in the order of the numbers, without gaps: an index is a port.
    ports.Index(ndwSession.answers.portIndex);
    column.Width(layout::kTextWidth);
    // Room for the longest text from the start: the page does not move when another port is selected.
    column.Prompt(kUsePrompt, L"", kUseLines);
    ShowPortUse(form);
    // Set last: filling the list is no change of the user's.
    ports.onChange = [&form] { ShowPortUse(form); };
}

void LeaveNdwPort(frmWizard& form, Move) {
    ndwSession.answers.portIndex = IndexOrZero(form.pool.cmbUserInput.Index());
}

void PageNdwBaud(frmWizard& form) {
    form.WriteHeading(L"Baud Rate");
    // clang-format off
    form.WriteInfo(
        L"Choose the baud rate that is set in the CNC.\r\n\r\n"
        L"The CNC and this computer must use the same rate. If characters are lost or garbled, use a lower rate here and in the CNC.");
    // clang-format on
    InputColumn column(form);
    column.Prompt(0, L"&Baud rate");
    column.DropDown(kBaudRates, ndwSession.answers.baudIndex);
}

void LeaveNdwBaud(frmWizard& form, Move) {
    ndwSession.answers.baudIndex = IndexOrZero(form.pool.cmbUserInput.Index());
}

void PageNdwDataFmt(frmWizard& form) {
    form.WriteHeading(L"Data Format");
    // clang-format off
    form.WriteInfo(
        L"Choose the code that the CNC uses for programs.\r\n\r\n"
        L"<b>ISO</b>: 7 data bits with even parity, used by most CNCs.\r\n"
        L"<b>EIA-244</b>: EIA punched-tape code, used by some older CNCs.\r\n"
        L"<b>ASCII</b>: you choose data bits and parity on the next page.");
    // clang-format on
    InputColumn(form).Options(kDataFormats, ndwSession.answers.dataFormatIndex);
}

void LeaveNdwDataFmt(frmWizard& form, Move) {
    ndwSession.answers.dataFormatIndex = SelectedOption(form.pool, kDataFormats.size());
}

void PageNdwComFmt(frmWizard& form) {
    form.WriteHeading(L"ASCII Character Format");
    // clang-format off
    form.WriteInfo(
        L"Choose the number of data bits and the parity that are set in the CNC.\r\n\r\n"
        L"The CNC and this computer must use the same settings. 7 data bits with even parity is the most common setting.");
    // clang-format on
    InputColumn(form).Options(kCharacterFormats, ndwSession.answers.characterFormatIndex);
}

// Kept also while the data format leaves the page out: who comes back to ASCII finds it again.
void LeaveNdwComFmt(frmWizard& form, Move) {
    ndwSession.answers.characterFormatIndex = SelectedOption(form.pool, kCharacterFormats.size());
}

void PageNdwFlow(frmWizard& form) {
    form.WriteHeading(L"Flow Control");
    // clang-format off
    form.WriteInfo(
        L"Flow control lets the CNC pause the computer while the CNC is busy, so that no characters are lost.\r\n\r\n"
        L"<b>Software</b> uses the characters XON and XOFF (DC1 and DC3). <b>Hardware</b> uses the RTS and CTS wires and needs a cable that connects them.");
    // clang-format on
    InputColumn(form).Options(kFlowControls, ndwSession.answers.flowControlIndex);
}

void LeaveNdwFlow(frmWizard& form, Move) {
    ndwSession.answers.flowControlIndex = SelectedOption(form.pool, kFlowControls.size());
}
