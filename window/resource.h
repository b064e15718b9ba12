/* Identifiers of the library's resources; read by the resource compiler too. */
#pragma once

/* Button k (0..10) has the control id IDC_SCROLL_UP + 4 k and the four bitmaps from the same number
   on: up, down, focused, disabled. 445..448 do not exist. */
#define IDC_SCROLL_UP 401
#define IDC_BAND_ZOOM 405
#define IDC_ZOOM_IN 409
#define IDC_ZOOM_OUT 413
#define IDC_WHOLE 417
#define IDC_PAN 421
#define IDC_REFRESH 425
#define IDC_SETTINGS 429
#define IDC_ROTATE 433
#define IDC_ROTATE_BACK 437
#define IDC_SCROLL_DOWN 441

/* The focused and disabled faces of the two toggle buttons while they are pressed in. */
#define IDB_PAN_ON_FOCUSED 449
#define IDB_PAN_ON_DISABLED 450
#define IDB_BAND_ZOOM_ON_FOCUSED 451
#define IDB_BAND_ZOOM_ON_DISABLED 452

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
