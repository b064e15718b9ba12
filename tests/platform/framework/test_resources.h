// Numbers of the test resources.
#pragma once

#define IDB_UP 101
#define IDB_SELECTED 102
#define IDB_FOCUSED 103
#define IDB_DISABLED 104
#define IDB_ONLY_IN_EXTENSION 105
#define IDS_BOTH 200
#define IDS_ONLY_IN_EXTENSION 201
#define IDS_NOWHERE 203
#define IDM_MAIN 300
#define IDD_MODAL 400
#define IDD_OWNER_DRAWN 401
#define IDC_NAME 1001
#define IDC_COUNT 1002
#define IDC_FLAG 1003
#define IDC_BUTTON 1004
#define IDC_FIRST_RADIO 1005
#define IDC_SECOND_RADIO 1006
#define IDC_COMBO 1007
#define ID_FILE_OPEN_TEST 32771
