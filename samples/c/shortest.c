/* The shortest host: one point, and a title that answers a tap on it. */
#include <windows.h>
#include <tavix/tavix_c.h>

static LRESULT CALLBACK Answer(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_COMMAND && LOWORD(w) == 100) SetWindowTextA(window, "T-1 was tapped");
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcA(window, message, w, l);
}

int main(void) {
  WNDCLASSA type = {.lpfnWndProc = Answer, .lpszClassName = "Host"};
  RegisterClassA(&type);
  HWND window = CreateWindowA("Host", "Tap the point", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 300,
                              300, 0, 0, 0, 0);
  TavixC_Crt(0);
  TavixC_SelPntHan(0, 2);                                   /* a circle and the point's number */
  TavixC_EntPnt(0, 1, 101, L"T-1", -35123.456, 12345.678);  /* X is north, and first */
  TavixC_LnkRct(0, window, 0, 0, 280, 260, 100);            /* reports taps as command 100 */
  TavixC_Drw(0, 0);                                         /* fits the view to the data */
  TavixC_Dsp(0, 1);
  for (MSG m; GetMessageA(&m, 0, 0, 0) > 0;) {
    if (!TavixC_PreTranslate(&m)) DispatchMessageA(&m);
  }
}
