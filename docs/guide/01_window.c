/* Step 1: a window with an empty plot in it. */
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
