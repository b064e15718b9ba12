/* Step 3: stations, boundary points and details, each with a symbol of its own. */
#ifndef UNICODE
#define UNICODE
#endif
#include <windows.h>

#include <tavix/tavix_c.h>

enum { kPlan = 0 };     /* the plot instance, 0 to 4 */
enum { kTapped = 100 }; /* the command id under which its window reports */

/* A plot window that fills the client area. */
static void LinkPlots(HWND window) {
  RECT client;
  GetClientRect(window, &client);
  TavixC_LnkRct(kPlan, window, 0, 0, client.right, client.bottom, kTapped);
  TavixC_Drw(kPlan, 0); /* fits the view to the data and draws it */
  TavixC_Dsp(kPlan, 1); /* a plot window is hidden at first */
}

enum Kind { kStation, kBoundary, kDetail, kKindCount };

/* How each kind is drawn. */
static const struct {
  int mark;       /* 9 filled triangle, 2 circle, 10 filled square */
  COLORREF color; /* of the mark; labels are black */
  int size;       /* of the mark in pixels */
} kSymbols[kKindCount] = {
    {9, RGB(192, 0, 0), 13},
    {2, RGB(0, 0, 192), 9},
    {10, RGB(0, 112, 0), 9},
};

struct SurveyPoint {
  int key;    /* names the point in every call */
  int number; /* may be shown beside it */
  const wchar_t* name;
  double north; /* metres */
  double east;
  enum Kind kind;
};

static const struct SurveyPoint kPoints[] = {
    {1, 101, L"T-1", -35165.000, 12310.000, kStation},
    {2, 102, L"T-2", -35075.000, 12390.000, kStation},
    {3, 201, L"境1", -35098.200, 12318.400, kBoundary},
    {4, 202, L"境2", -35092.100, 12361.700, kBoundary},
    {5, 203, L"境3", -35126.500, 12366.800, kBoundary},
    {6, 204, L"境4", -35131.400, 12323.600, kBoundary},
    {7, 301, L"電柱", -35137.250, 12379.500, kDetail},
};
enum { kPointCount = sizeof kPoints / sizeof kPoints[0] };

/* Enters the survey into an instance. */
static void EnterSurvey(int plot) {
  short legend[kKindCount];
  int i;
  for (i = 0; i < kKindCount; ++i) { /* pen of 1 pixel, label of 14 pixels with the name (0) */
    TavixC_AddPntHan(plot, kSymbols[i].mark, 1, (int)kSymbols[i].color, kSymbols[i].size, 14, 0,
                     &legend[i]);
  }
  for (i = 0; i < kPointCount; ++i) {
    const struct SurveyPoint* point = &kPoints[i];
    TavixC_SelPntHan(plot, legend[point->kind]);
    TavixC_EntPnt(plot, point->key, point->number, point->name, point->north, point->east);
  }
}

static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

/* A window whose client area has this size in pixels. */
static HWND MakeWindow(int width, int height) {
  const DWORD style = WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
  RECT frame = {0, 0, width, height};
  WNDCLASSW type = {0};
  type.lpfnWndProc = OnMessage;
  type.hCursor = LoadCursorW(NULL, (LPCWSTR)IDC_ARROW);
  type.lpszClassName = L"GuideHost";
  RegisterClassW(&type);
  AdjustWindowRect(&frame, style, FALSE);
  return CreateWindowW(L"GuideHost", L"Survey", style, 40, 40, frame.right - frame.left,
                       frame.bottom - frame.top, NULL, NULL, NULL, NULL);
}

int main(void) {
  HWND window;
  MSG message;
  if (TavixC_Crt(kPlan) != 0) return 1;
  EnterSurvey(kPlan);
  window = MakeWindow(466, 386);
  LinkPlots(window);
  ShowWindow(window, SW_SHOW);
  while (GetMessageW(&message, NULL, 0, 0) > 0) {
    if (TavixC_PreTranslate(&message)) continue; /* the arrow keys move the view */
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}
