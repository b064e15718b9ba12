// What a user does to the plot windows, and what a host does to its own window.
#include <tavix/tavix.h>

#include <array>

#include "tests/storm/storm.h"
#include "tests/support/message_pump.h"
#include "window/buttons/button_table.h"

namespace tavix::storm {
namespace {

HWND PlotWindow() {
  const CWnd* window = Tavix_Wnd();
  return window ? window->m_hWnd : nullptr;
}

LPARAM AnyPlace(Storm& storm) {
  Chance& any = storm.Any();
  const auto along = [&] { return any.OneIn(8) ? any.Short() : any.Between(0, 320); };
  const int x = along();
  return MAKELPARAM(x, along());
}

// A press, some moves, mostly a lift; or any of them alone.
void Stylus(Storm& storm) {
  storm.Note("stylus");
  const HWND plot = PlotWindow();
  if (!plot) return;
  Chance& any = storm.Any();
  if (!any.OneIn(10)) ::SendMessageW(plot, WM_LBUTTONDOWN, MK_LBUTTON, AnyPlace(storm));
  for (int moves = any.Between(0, 4); moves > 0 && ::IsWindow(plot); --moves) {
    ::SendMessageW(plot, WM_MOUSEMOVE, MK_LBUTTON, AnyPlace(storm));
  }
  if (!any.OneIn(10)) ::SendMessageW(plot, WM_LBUTTONUP, 0, AnyPlace(storm));
  if (any.OneIn(10)) ::SendMessageW(plot, WM_LBUTTONDBLCLK, MK_LBUTTON, AnyPlace(storm));
  if (any.OneIn(10)) ::SendMessageW(plot, WM_CANCELMODE, 0, 0);
}

// Any button but the settings.
void Button(Storm& storm) {
  const ButtonRow row = kButtonTable[static_cast<std::size_t>(
      storm.Any().Between(0, static_cast<int>(kButtonTable.size()) - 1))];
  if (row.id == kSettingsButton) return;
  storm.Note("button " + std::to_string(row.id));
  if (const HWND plot = PlotWindow()) {
    ::SendMessageW(plot, WM_COMMAND, MAKEWPARAM(row.id, BN_CLICKED), 0);
  }
}

void Key(Storm& storm) {
  Chance& any = storm.Any();
  const HWND plot = PlotWindow();
  const int key = any.OneIn(5) ? any.Between(0, 255)
                               : any.AnyOf<int>({VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_ESCAPE});
  storm.Note("key " + std::to_string(key));
  if (!plot) return;
  MSG message{plot, WM_KEYDOWN, static_cast<WPARAM>(key), 0, 0, {}};
  if (!AfxPreTranslateMessage(&message)) ::DispatchMessageW(&message);
}

// ---- The settings dialog, worked by a timer in its own message loop

struct DialogHands {
  Storm* storm = nullptr;
  int actions = 0;
};
DialogHands dialog_hands;

BOOL CALLBACK TakeDialog(HWND window, LPARAM found) {
  std::array<wchar_t, 20> name{};
  ::GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  if (std::wstring_view(name.data()) != L"#32770") return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

HWND OpenDialog() {
  HWND dialog = nullptr;
  ::EnumThreadWindows(::GetCurrentThreadId(), TakeDialog, reinterpret_cast<LPARAM>(&dialog));
  return dialog;
}

void WorkDialog(HWND dialog, Storm& storm) {
  Chance& any = storm.Any();
  HWND control = ::GetWindow(dialog, GW_CHILD);
  for (int steps = any.Between(0, 20); steps > 0 && control; --steps) {
    control = ::GetWindow(control, GW_HWNDNEXT);
  }
  if (!control) return;
  switch (any.Between(0, 3)) {
    case 0:
      ::SendMessageW(control, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(any.Name().c_str()));
      break;
    case 1:
      ::SendMessageW(control, CB_SETCURSEL, static_cast<WPARAM>(any.Between(-1, 12)), 0);
      ::SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(control), CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(control));
      break;
    case 2:
      if (::GetDlgCtrlID(control) > IDCANCEL) {
        ::SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(control), BN_CLICKED),
                       reinterpret_cast<LPARAM>(control));
      }
      break;
    default:
      ::SendMessageW(control, WM_CHAR, static_cast<WPARAM>(any.Between(32, 126)), 0);
  }
}

void CALLBACK OnDialogTimer(HWND, UINT, UINT_PTR, DWORD) {
  const HWND dialog = OpenDialog();
  if (!dialog) return;
  if (--dialog_hands.actions > 0) {
    WorkDialog(dialog, *dialog_hands.storm);
    return;
  }
  const bool accepts = dialog_hands.storm->Any().OneIn(2);
  ::PostMessageW(dialog, WM_COMMAND, accepts ? IDOK : IDCANCEL, 0);
}

// The legend after the dialog, as the user may have changed it: the dialog's OK makes the entry it
// shows a point legend, which only the start of a moved point can tell from a line legend.
void ReadLegendAgain(Storm& storm) {
  constexpr int kNoPointLegend = -2;
  for (auto& [number, entry] : storm.Now().legend) {
    entry.is_point = Tavix_MvPntStt(number) != kNoPointLegend;
    auto& [kind, prm1, prm2, prm3, width, color] = entry.values;
    storm.ExpectCode(0, Tavix_GetPntHan(number, &kind, &width, &color, &prm1, &prm2, &prm3));
  }
}

void Settings(Storm& storm) {
  const HWND plot = PlotWindow();
  if (!plot || !storm.Any().OneIn(4)) return;
  storm.Note("settings dialog");
  dialog_hands = {&storm, storm.Any().Between(1, 6)};
  const UINT_PTR timer = ::SetTimer(nullptr, 0, 10, OnDialogTimer);
  ::SendMessageW(plot, WM_COMMAND, MAKEWPARAM(kSettingsButton, BN_CLICKED), 0);
  ::KillTimer(nullptr, timer);
  ReadLegendAgain(storm);
}

// ---- The host's window

void Resize(Storm& storm) {
  const HWND plot = PlotWindow();
  Chance& any = storm.Any();
  const int width = any.OneIn(5) ? any.Between(0, 3) : any.Between(10, 400);
  const int height = any.OneIn(5) ? 0 : any.Between(10, 400);
  storm.Note("plot resized to " + std::to_string(width) + " x " + std::to_string(height));
  if (plot) ::MoveWindow(plot, 0, 0, width, height, TRUE);
}

void DestroyPlot(Storm& storm) {
  const HWND plot = PlotWindow();
  if (!plot || !storm.Any().OneIn(10)) return;
  storm.Note("plot's window destroyed");
  ::DestroyWindow(plot);
}

void DestroyParent(Storm& storm) {
  if (!storm.Any().OneIn(15)) return;
  storm.Note("host's window destroyed");
  storm.DestroyHost();
}

void Paint(Storm& storm) {
  const HWND plot = PlotWindow();
  storm.Note("paint");
  if (!plot) return;
  if (storm.Any().OneIn(2)) ::InvalidateRect(plot, nullptr, TRUE);
  ::UpdateWindow(plot);
}

void Drain(Storm& storm) {
  storm.Note("messages");
  test::DrainMessages();
}

using Hand = void (*)(Storm&);
constexpr std::array<Hand, 14> kHands{Stylus, Stylus,      Stylus,        Button, Button,
                                      Button, Key,         Paint,         Paint,  Settings,
                                      Resize, DestroyPlot, DestroyParent, Drain};

// What the user may have changed.
void ReadViewAgain(Model& model) {
  Tavix_GetAng(&model.angle);
  ModelWindow& window = model.window;
  window.ratio_given = Tavix_GetTatYok(&window.ratio.first, &window.ratio.second) == 0;
  window.ForgetView();
}

}  // namespace

void MoveHands(Storm& storm) {
  const auto chosen =
      static_cast<std::size_t>(storm.Any().Between(0, static_cast<int>(kHands.size()) - 1));
  kHands[chosen](storm);
  ReadViewAgain(storm.Now());
}

}  // namespace tavix::storm
