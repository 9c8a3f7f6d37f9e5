// Pages of the New Device Wizard about the line to the machine: port, baud rate, data format, character
// format, flow control.

#include "ndw/NdwPages.h"
#include "ndw/PortNotes.h"
#include "wizard/frmWizard.h"

void PageNdwPort(frmWizard& form) {
    form.WriteHeading(L"COM Port");
    form.WriteInfo(L"Choose the serial (COM) port that the CNC is connected to.\r\n\r\n"
                   L"To see the ports of this computer, open Windows Device Manager and look under "
                   L"<b>Ports (COM & LPT)</b>. USB/serial adapters are listed there too.");
    InputColumn column(form);
    column.Prompt(0, L"&COM port");
    column.Width(layout::kTextWidth); // notes stand behind the numbers
    auto& ports = column.DropDown();
    ports.Clear();
    for (const std::wstring& caption : PortCaptions())
        ports.Add(caption);
    ports.Index(ndwSession.answers.portIndex);
}

void LeaveNdwPort(frmWizard& form, Move) {
    ndwSession.answers.portIndex = IndexOrZero(form.pool.cmbUserInput.Index());
}

void PageNdwBaud(frmWizard& form) {
    form.WriteHeading(L"Baud Rate");
    form.WriteInfo(
        L"Choose the baud rate that is set in the CNC.\r\n\r\n"
        L"It must be the same on both sides. If characters are lost or garbled, use a lower rate here "
        L"and in the CNC.");
    InputColumn column(form);
    column.Prompt(0, L"&Baud rate");
    column.DropDown(kBaudRates, ndwSession.answers.baudIndex);
}

void LeaveNdwBaud(frmWizard& form, Move) {
    ndwSession.answers.baudIndex = IndexOrZero(form.pool.cmbUserInput.Index());
}

void PageNdwDataFmt(frmWizard& form) {
    form.WriteHeading(L"Data Format");
    form.WriteInfo(L"Choose the code that the CNC uses for programs.\r\n\r\n"
                   L"<b>ISO</b>: 7 data bits with even parity, used by most CNCs.\r\n"
                   L"<b>EIA-244</b>: EIA punched-tape code, used by some older CNCs.\r\n"
                   L"<b>ASCII</b>: you choose data bits and parity on the next page.");
    InputColumn(form).Options(kDataFormats, ndwSession.answers.dataFormatIndex);
}

void LeaveNdwDataFmt(frmWizard& form, Move) {
    ndwSession.answers.dataFormatIndex = SelectedOption(form.pool, kDataFormats.size());
}

void PageNdwComFmt(frmWizard& form) {
    form.WriteHeading(L"ASCII Character Format");
    form.WriteInfo(
        L"Choose the number of data bits and the parity that are set in the CNC.\r\n\r\n"
        L"Both must be the same on both sides. 7 data bits with even parity is the most common setting.");
    InputColumn(form).Options(kCharacterFormats, ndwSession.answers.characterFormatIndex);
}

void LeaveNdwComFmt(frmWizard& form, Move) {
    ndwSession.answers.characterFormatIndex = SelectedOption(form.pool, kCharacterFormats.size());
}

void PageNdwFlow(frmWizard& form) {
    form.WriteHeading(L"Flow Control");
    form.WriteInfo(
        L"Flow control lets the CNC pause the computer while the CNC is busy, so that no characters are "
        L"lost.\r\n\r\n"
        L"<b>Software</b> uses the characters XON and XOFF (DC1 and DC3). <b>Hardware</b> uses the RTS and "
        L"CTS wires and needs a cable that connects them.");
    InputColumn(form).Options(kFlowControls, ndwSession.answers.flowControlIndex);
}

void LeaveNdwFlow(frmWizard& form, Move) {
    ndwSession.answers.flowControlIndex = SelectedOption(form.pool, kFlowControls.size());
}
