/* Identifiers of the library's dialog; read by the resource compiler too. Those of the buttons are
   in buttons/button_table.h. */
#pragma once

/* The settings dialog and its controls. */
#define IDD_SETTINGS 457
#define IDC_ENTRY 1000
#define IDC_SHOW_NUMBER 1007
#define IDC_SHOW_NAME 1008
#define IDC_COPY_TO_ALL 1009
#define IDC_MARK_SIZE 1010
#define IDC_TEXT_SIZE 1011
#define IDC_DRAW_LINES 1012
#define IDC_STEP 1013
#define IDC_STEP_SPIN 1014
#define IDC_COLOR 1015
#define IDC_VERTICAL_LABEL 1016
#define IDC_VERTICAL 1017
#define IDC_HORIZONTAL_LABEL 1018
#define IDC_HORIZONTAL 1019
#define IDC_RATIO_GROUP 1020
#define IDC_LINE_GROUP 1021
#define IDC_STEP_GROUP 1022
