#include "wizard/PermissionPage.h"

#include "wizard/frmWizard.h"

void PageConfigDisabled(frmWizard& form) {
    form.WriteHeading(L"Permission denied!");
    form.WriteInfo(
        L"Permission to modify Varnel DNC configuration settings is denied.\r\n\r\n"
        L"To use this Wizard, log in to a user account with permission to modify Varnel DNC "
        L"configuration files.\r\n\r\n"
        L"For more information about permissions, open the \"Security\" tab in Varnel DNC Configuration "
        L"(VConfig), and then click <b>Help</b>.");
    form.cmdCancel.Text(L"&Close");
    // Enter has to press the one button that is left.
    form.cmdCancel.Focus();
    form.DefaultButton(form.cmdCancel);
    form.cmdBack.Visible(false);
    form.cmdSkip.Visible(false);
    form.cmdNext.Visible(false);
    form.ConfirmExit = false; // there is nothing to lose: close without asking
}
