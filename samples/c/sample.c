/* A host in plain C: a window with a plot that fills it, ten points, two lines and a clothoid, a
   new plot for each new size, and a title that says which point was tapped. */
#ifndef UNICODE
#define UNICODE
#endif
#include <windows.h>
#include <wchar.h>

#include <tavix/tavix_c.h>

enum { kPlot = 0, kTapped = 100, kSolid = 101 };

struct SurveyPoint {
  const wchar_t* name;
  double north; /* metres */
  double east;
};

static const struct SurveyPoint kPoints[] = {
    {L"基準点1", -35123.456, 12345.678}, {L"基準点2", -35098.112, 12391.040},
    {L"境1", -35110.250, 12360.500},     {L"境2", -35104.900, 12378.250},
    {L"境3", -35119.300, 12383.775},     {L"境4", -35121.750, 12368.400},
    {L"街灯", -35101.300, 12362.900},    {L"マンホール", -35113.825, 12372.150},
    {L"電柱", -35107.560, 12388.300},    {L"水準点", -35125.200, 12379.640},
};

static int g_has_view = 0;

static void EnterSurvey(void) {
  short circles = 0;
  int i;
  TavixC_AddPntHan(kPlot, 2, 1, RGB(0, 0, 192), 10, 14, 0, &circles);
  TavixC_SelPntHan(kPlot, circles);
  for (i = 0; i < 10; ++i) { /* keys 1 to 10 */
    TavixC_EntPnt(kPlot, i + 1, i + 1, kPoints[i].name, kPoints[i].north, kPoints[i].east);
  }
  TavixC_SelLinHan(kPlot, kSolid);
  TavixC_EntLin(kPlot, 3, 4);
  TavixC_EntLin(kPlot, 4, 5);
  TavixC_FigStt(kPlot, 1, kSolid);
  TavixC_FigMdlClo(kPlot, -35122.0, 12350.0, -35110.0, 12369.0, 0.0, 30.0, 40.0);
  TavixC_FigEnd(kPlot);
}

/* A plot window keeps its size: another size takes another one. */
static void ShowPlot(HWND window) {
  RECT client;
  GetClientRect(window, &client);
  if (TavixC_LnkRct(kPlot, window, 0, 0, client.right, client.bottom, kTapped) != 0) return;
  TavixC_Drw(kPlot, g_has_view);
  TavixC_Dsp(kPlot, 1);
  g_has_view = 1;
}

static void SayPoint(HWND window, int key) {
  wchar_t name[64], title[160];
  int number, length;
  double north, east;
  if (TavixC_GetPntNoNam(kPlot, key, &number, name, 64, &length) != 0 ||
      TavixC_GetPntCrd(kPlot, key, &north, &east) != 0) {
    return;
  }
  swprintf(title, 160, L"%ls  X %.3f  Y %.3f", name, north, east);
  SetWindowTextW(window, title);
}

static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SIZE:
      if (wParam != SIZE_MINIMIZED) ShowPlot(window);
      return 0;
    case WM_COMMAND:
      if (LOWORD(wParam) == kTapped) SayPoint(window, (int)lParam);
      return 0;
    case WM_DESTROY:
      TavixC_Del(kPlot);
      PostQuitMessage(0);
      return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE before, LPWSTR line, int show) {
  WNDCLASSW type = {0};
  MSG message;
  HWND window;
  (void)before;
  (void)line;
  type.lpfnWndProc = Procedure;
  type.hInstance = instance;
  type.hCursor = LoadCursor(NULL, IDC_ARROW);
  type.lpszClassName = L"TavixSample";
  RegisterClassW(&type);
  if (TavixC_Crt(kPlot) != 0) return 1;
  EnterSurvey();
  window = CreateWindowW(L"TavixSample", L"Tap a point", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 20,
                         20, 480, 400, NULL, NULL, instance, NULL);
  ShowWindow(window, show);
  while (GetMessageW(&message, NULL, 0, 0) > 0) {
    if (TavixC_PreTranslate(&message)) continue; /* the arrow keys */
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}
