// Numbers of the program's resources. Read by the resource compiler too: plain definitions only.
#pragma once

// Windows shows the icon with the lowest number as the icon of the program.
#define IDI_DEVICE 1    // imgIconDevice: + 0 First-Time Setup Wizard, + 1 New Device Wizard
#define IDI_APP_ICON 10 // picAppIcon: + 0 .. 4

// A picture has four bitmaps: + 0 for 96 DPI, + 1 for 120, + 2 for 144, + 3 for 192.
#define IDB_SCREEN_LOGO 100
#define IDB_CNC_ICON 110
#define IDB_LOGO 120
#define IDB_VARNEL 130
