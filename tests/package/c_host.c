/* A host in plain C that knows the installed package and nothing else: it shows a point, taps it and
   ends with 0 when the answer comes. ./test builds it with the compiler alone, and with CMake, and
   runs it. */
#if __has_include(<afxwin.h>) || __has_include(<tdialog.h>) || __has_include(<windbase.h>)
#error "A header of the framework would stand before another framework's of the same name."
#endif

#include <windows.h>

#include <tavix/tavix_c.h>

enum { kTapped = 100, kTimeOut = 10000 };

static int g_answer = 1;

static LRESULT CALLBACK Answer(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_COMMAND && LOWORD(w) == kTapped) {
    wchar_t name[16];
    int number, length;
    const int code = TavixC_GetPntNoNam(0, (int)l, &number, name, 16, &length);
    g_answer = code == 0 && number == 101 && length == 3 && lstrcmpW(name, L"T-1") == 0 ? 0 : 2;
    PostQuitMessage(0);
  }
  if (message == WM_TIMER) PostQuitMessage(0);
  return DefWindowProcA(window, message, w, l);
}

int main(void) {
  WNDCLASSA type = {0};
  HWND window, plot;
  RECT client;
  LPARAM middle;
  MSG message;
  type.lpfnWndProc = Answer;
  type.lpszClassName = "Host";
  RegisterClassA(&type);
  window = CreateWindowA("Host", "Tap the point", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 300, 300,
                         0, 0, 0, 0);
  TavixC_Crt(0);
  TavixC_SelPntHan(0, 2);
  TavixC_EntPnt(0, 1, 101, L"T-1", -35123.456, 12345.678);
  TavixC_SetBtn(0, 0);
  if (TavixC_LnkRct(0, window, 0, 0, 280, 260, kTapped) != 0) return 3;
  TavixC_Drw(0, 0);
  TavixC_Dsp(0, 1);
  plot = (HWND)TavixC_Wnd(0);
  GetClientRect(plot, &client);
  middle = MAKELPARAM(client.right / 2, client.bottom / 2);
  PostMessageA(plot, WM_LBUTTONDOWN, MK_LBUTTON, middle);
  PostMessageA(plot, WM_LBUTTONUP, 0, middle);
  SetTimer(window, 1, kTimeOut, NULL);
  while (GetMessageA(&message, NULL, 0, 0) > 0) {
    if (!TavixC_PreTranslate(&message)) DispatchMessageA(&message);
  }
  TavixC_Del(0);
  return g_answer;
}
