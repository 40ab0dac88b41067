// Templates, tip texts and controls of the dialog framework's tests.
#pragma once

// Dialogs: a fixed-size one under id 130, a resizable one, one wider than the screen, the
// scheme's showcase, and one made from the name "SETTINGS".
#define IDD_PLAIN 130
#define IDD_RESIZABLE 131
#define IDD_WIDE 132
#define IDD_SCHEME 133
#define IDD_FLEX 134

// Property pages: with and without a "_TIPTEXT" resource.
#define IDD_PAGE 140
#define IDD_PAGE_PLAIN 141

// Dialog bars; the named ones are "TOOLBAR" (no tips) and "TIPBAR".
#define IDD_BAR 150

#define IDC_LABEL 1001
#define IDC_EDIT 1002
#define IDC_OPEN 1003
#define IDC_ORPHAN 1004
#define IDC_OWNED 1005
#define IDC_CHECK 1006
#define IDC_COMBO 1007
#define IDC_COMBO_DISABLED 1008
#define IDC_COMBO_SIMPLE 1009
#define IDC_LIST 1010
// A "_TIPTEXT" record names it; no template has it.
#define IDC_ABSENT 999
