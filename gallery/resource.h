// Resource ids of the gallery. A dialog's template id is the translation section of its texts
// and each control id the key of its text, both in decimal, so every id is unique in its dialog.
#pragma once

// The frame: title, menu and the string map of the windows the gallery can open.
#define IDR_MAINFRAME 128
#define IDR_WINDOWS 129

#define IDD_BAR 150
#define IDD_MAIN 200
#define IDD_PAGE_DISPLAY 300
#define IDD_PAGE_FILES 310
#define IDD_DETAILS 400

// Menu commands; the View commands are also the names of the tour's windows (IDR_WINDOWS).
#define ID_FILE_EXIT 32800
#define ID_VIEW_MAIN 32801
#define ID_VIEW_SETTINGS 32802
#define ID_VIEW_DETAILS 32803
#define ID_VIEW_MESSAGE 32804
#define ID_HELP_ABOUT 32805
#define ID_VIEW_RULERS 32806

// String table.
#define IDS_FRAME_HINT 101
#define IDS_SAVED 102
#define IDS_ABOUT 103
#define IDS_SHEET_TITLE 104
#define IDS_PAGE_DISPLAY 105
#define IDS_PAGE_FILES 106
#define IDS_LIST_NAME 107
#define IDS_LIST_SIZE 108

// Controls with texts of the program, translated by the dialogs' walk: 1000 to 1499.
#define IDC_PICTURE_GROUP 1000
#define IDC_FILE_LABEL 1001
#define IDC_FOLDER_LABEL 1002
#define IDC_SCALE_LABEL 1003
#define IDC_OPTIONS_GROUP 1004
#define IDC_SHOW_GRID 1005
#define IDC_SNAP 1006
#define IDC_METRIC 1007
#define IDC_IMPERIAL 1008
#define IDC_PROFILE_LABEL 1009
#define IDC_PROFILE 1010
#define IDC_UNITS_LABEL 1011
#define IDC_UNITS 1012
#define IDC_PICTURES 1013
#define IDC_COLOR_TABS 1014
#define IDC_PERIOD_TABS 1015
#define IDC_TRACKER_VIEW 1016
#define IDC_PREVIOUS 1017
#define IDC_NEXT 1018
#define IDC_ZOOM_IN 1019
#define IDC_ZOOM_OUT 1020
#define IDC_ACTUAL_SIZE 1021
#define IDC_DETAILS 1022
#define IDC_SETTINGS 1023
#define IDC_MESSAGE 1024
#define IDC_ZOOM_LABEL 1030
#define IDC_ZOOM 1031
#define IDC_RULERS 1032
#define IDC_OPEN_MAIN 1033
#define IDC_PREVIEW_GROUP 1040
#define IDC_SHOW_PREVIEWS 1041
#define IDC_SMOOTH 1042
#define IDC_BACKGROUND_LABEL 1043
#define IDC_BACKGROUND 1044
#define IDC_SMALL 1045
#define IDC_LARGE 1046
#define IDC_FOLDER_PROMPT 1050
#define IDC_FOLDER 1051
#define IDC_KEEP_BACKUPS 1052
#define IDC_BACKUP_LABEL 1053
#define IDC_PLATFORM_LABEL 1060
#define IDC_NAME_LABEL 1061
#define IDC_EXT_LABEL 1062
#define IDC_BACKUP_NAME_LABEL 1063
#define IDC_NUMBER_LABEL 1064
#define IDC_COMMAND_LABEL 1065
#define IDC_DETAILS_NOTE 1066

// Controls that show values, not texts of the program: 1500 and up, never translated.
#define IDC_VALUE_FIRST 1500
#define IDC_FILE_VALUE 1500
#define IDC_FOLDER_VALUE 1501
#define IDC_SCALE_VALUE 1502
#define IDC_BACKUP_VALUE 1503
#define IDC_PLATFORM_VALUE 1504
#define IDC_NAME_VALUE 1505
#define IDC_EXT_VALUE 1506
#define IDC_BACKUP_NAME_VALUE 1507
#define IDC_NUMBER_VALUE 1508
#define IDC_COMMAND_VALUE 1509
