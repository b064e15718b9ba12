// Numbers of the program's resources and commands.
#pragma once

#define IDR_MAIN 100

#define ID_SURVEY_OPEN 1001
#define ID_SURVEY_CLOSE_ALL 1002
#define ID_SURVEY_EXIT 1003
#define ID_VIEW_WHOLE 1004
#define ID_VIEW_BUTTONS 1005
#define ID_PLOT_NOTIFY 1006
#define ID_INFO_LINE 1007
#define ID_SURVEY_CAPTURE 1008
#define ID_PLOT_CAPTURE 1009

#define ID_VIEW_TABS 1060
#define ID_VIEW_PLAN 1061
#define ID_VIEW_SIDE 1062
#define ID_SURVEY_MEMO 1063

#define IDD_MEMO 140
#define IDC_MEMO_POINT 1064
#define IDC_MEMO_PLACE 1065
#define IDC_MEMO_TEXT 1066
