#pragma once

#define IDD_SHEET_PAGE 900
