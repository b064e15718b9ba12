// Numbers of the test resources.
#pragma once

#define IDD_ROOM 500
#define IDD_FULL 501
#define IDD_HAS_OK 502
#define IDD_PLAIN_STYLE 503
#define IDD_NO_STYLE 504
#define IDD_CHILD 505
#define IDC_NUMBER 1001
#define IDC_OTHER 1002
