/* Step 8: a menu command that saves the sheet as a picture of black and white. */
#ifndef UNICODE
#define UNICODE
#endif
#include <windows.h>
#include <stdio.h>
#include <wchar.h>

#include <tavix/tavix_c.h>

enum { kPlan = 0 };     /* the plot instance, 0 to 4 */
enum { kTapped = 100 }; /* the command id under which its window reports */
enum { kSave = 200 };   /* the command id of the menu */

/* The outline of a sheet of A4, and the view at 1:500 with the sheet's corner on round numbers. */
static void PlaceSheet(int plot) {
  enum { kPerInch = 254, kHeight = 2100, kWidth = 2970 }; /* tenths of a millimetre */
  TavixC_SetWak(plot, 1, kPerInch, kHeight, kPerInch, kWidth);
  TavixC_WakDsp(plot, 1);
  TavixC_SclBarDsp(plot, 1);
  TavixC_SetWakScl(plot, 500);
  TavixC_Drw(plot, 1); /* keeps the view */
  TavixC_SetWakGen(plot, -35170.0, 12275.0);
  TavixC_Drw(plot, 1);
}

/* A plot window that fills the client area. */
static void LinkPlots(HWND window) {
  RECT client;
  GetClientRect(window, &client);
  TavixC_LnkRct(kPlan, window, 0, 0, client.right, client.bottom, kTapped);
  TavixC_Drw(kPlan, 0); /* fits the view to the data and draws it */
  PlaceSheet(kPlan);
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

/* The sides of the parcel and the sight between the stations: lines between points. */
static void EnterLines(int plot) {
  short dashed;
  TavixC_SelLinHan(plot, 101); /* the built-in solid line */
  TavixC_EntLin(plot, 3, 4);
  TavixC_EntLin(plot, 4, 5);
  TavixC_EntLin(plot, 5, 6);
  TavixC_EntLin(plot, 6, 3);
  /* dashes of 8 pixels, gaps of 5; a pen of 1 pixel */
  TavixC_AddLinHan(plot, 102, 8, 5, 0, 1, (int)RGB(192, 0, 0), &dashed);
  TavixC_SelLinHan(plot, dashed);
  TavixC_EntLin(plot, 1, 2);
}

/* The building and the road: figures, which need no points. */
static void EnterFigures(int plot) {
  static const double north[] = {-35105.0, -35102.1, -35113.9, -35116.8, -35105.0};
  static const double east[] = {12331.0, 12351.8, 12353.4, 12332.7, 12331.0};
  short thick;
  TavixC_FigStt(plot, 1, 101);
  TavixC_FigMdlPly(plot, 5, north, east);
  TavixC_FigEnd(plot);
  TavixC_AddLinHan(plot, 101, 0, 0, 0, 2, (int)RGB(128, 96, 0), &thick);
  TavixC_FigStt(plot, 2, thick);
  TavixC_FigMdlLin(plot, -35150.000, 12312.000, -35146.180, 12333.666);
  TavixC_FigMdlClo(plot, -35146.180, 12333.666, -35141.270, 12353.009, 0.0, 30.0, -45.0);
  TavixC_FigMdlArc(plot, -35141.270, 12353.009, -35121.630, 12374.950, -45.0);
  TavixC_FigEnd(plot);
}

/* A text for some of the points. */
static void EnterMemos(int plot) {
  TavixC_EntPntMem(plot, 1, L"鋲");
  TavixC_EntPntMem(plot, 3, L"コンクリート杭");
}

/* The window's title becomes the name, the coordinates and the memo of a point. */
static void SayPoint(HWND window, int plot, int key) {
  wchar_t name[64], memo[200], title[400];
  int number, length;
  double north, east;
  if (TavixC_GetPntNoNam(plot, key, &number, name, 64, &length) != 0) return;
  if (TavixC_GetPntCrd(plot, key, &north, &east) != 0) return;
  TavixC_GetPntMem(plot, key, memo, 200, &length);
  swprintf(title, 400, L"%ls  X %.3f  Y %.3f  %ls", name, north, east, memo);
  SetWindowTextW(window, title);
}

/* Saves the sheet as a bitmap file of one bit a pixel, the bottom row first. */
static void SavePicture(int plot, const wchar_t* path) {
  enum { kHeight = 595, kWidth = 842, kStride = 108 }; /* A4 at 72 dots an inch */
  const BITMAPINFOHEADER info = {sizeof info, kWidth, kHeight, 1, 1, BI_RGB, 0, 0, 0, 2, 0};
  const COLORREF colors[2] = {RGB(255, 255, 255), RGB(0, 0, 0)};
  const DWORD start = 14 + sizeof info + sizeof colors; /* 14 bytes: the file's own header */
  const DWORD size = start + kHeight * kStride;
  const WORD head[7] = {0x4D42, LOWORD(size), HIWORD(size), 0, 0, LOWORD(start), HIWORD(start)};
  unsigned char bits[kStride];
  int row, column, ink;
  FILE* file;
  if (TavixC_GrpStt(plot, kHeight, kWidth) != 0) return;
  file = _wfopen(path, L"wb");
  if (file) {
    fwrite(head, sizeof head, 1, file);
    fwrite(&info, sizeof info, 1, file);
    fwrite(colors, sizeof colors, 1, file);
    for (row = kHeight - 1; row >= 0; --row) {
      ZeroMemory(bits, sizeof bits);
      for (column = 0; column < kWidth; ++column) {
        TavixC_GrpGet(plot, row, column, &ink);
        if (ink) bits[column / 8] |= (unsigned char)(0x80 >> column % 8);
      }
      fwrite(bits, sizeof bits, 1, file);
    }
    fclose(file);
  }
  TavixC_GrpEnd(plot);
}

static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      if (LOWORD(wParam) == kTapped) SayPoint(window, kPlan, (int)lParam);
      if (LOWORD(wParam) == kSave) SavePicture(kPlan, L"sheet.bmp");
      return 0;
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
  HMENU menu = CreateMenu();
  AppendMenuW(menu, MF_STRING, kSave, L"Save sheet.bmp");
  type.lpfnWndProc = OnMessage;
  type.hCursor = LoadCursorW(NULL, (LPCWSTR)IDC_ARROW);
  type.lpszClassName = L"GuideHost";
  RegisterClassW(&type);
  AdjustWindowRect(&frame, style, TRUE); /* with a menu */
  return CreateWindowW(L"GuideHost", L"Survey", style, 40, 40, frame.right - frame.left,
                       frame.bottom - frame.top, NULL, menu, NULL, NULL);
}

int main(void) {
  HWND window;
  MSG message;
  if (TavixC_Crt(kPlan) != 0) return 1;
  EnterSurvey(kPlan);
  EnterLines(kPlan);
  EnterFigures(kPlan);
  EnterMemos(kPlan);
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
