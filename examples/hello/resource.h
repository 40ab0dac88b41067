// Resource ids of the hello host. The dialog's template id is the translation section of its
// texts and each control id is the key of its text, both in decimal.
#pragma once

#define IDD_HELLO 100

#define IDC_GREETING 1000
#define IDC_REMEMBER 1001
#define IDC_SHOW_TIPS 1002
#define IDC_NEWS 1003
#define IDC_SMALL 1004
#define IDC_LARGE 1005
#define IDC_PREVIEWS 1006

#define IDS_WELCOME 101
#define IDS_NEWS 102
