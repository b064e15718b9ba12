"""A host in Python: a window with a plot that fills it, ten points, two lines and a clothoid, a new
plot for each new size, and a title that says which point was tapped.

    python sample.py FOLDER      the folder that holds tavix_c.dll
"""

import ctypes
import os
import sys
from ctypes import wintypes
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent.parent / "bindings/python"))
from tavix import Library, Plot, TavixError  # noqa: E402

TAPPED = 100
SOLID = 101
POINTS = [  # north and east in metres
    ("基準点1", -35123.456, 12345.678), ("基準点2", -35098.112, 12391.040),
    ("境1", -35110.250, 12360.500), ("境2", -35104.900, 12378.250),
    ("境3", -35119.300, 12383.775), ("境4", -35121.750, 12368.400),
    ("街灯", -35101.300, 12362.900), ("マンホール", -35113.825, 12372.150),
    ("電柱", -35107.560, 12388.300), ("水準点", -35125.200, 12379.640),
]

WM_DESTROY, WM_SIZE, WM_COMMAND = 0x0002, 0x0005, 0x0111
WS_OVERLAPPEDWINDOW, WS_CLIPCHILDREN = 0x00CF0000, 0x02000000
SIZE_MINIMIZED, IDC_ARROW, SW_SHOW = 1, 32512, 5

LRESULT = ctypes.c_ssize_t
PROCEDURE = ctypes.CFUNCTYPE(LRESULT, wintypes.HWND, wintypes.UINT, wintypes.WPARAM,
                             wintypes.LPARAM)


class WindowClass(ctypes.Structure):
    _fields_ = [("style", wintypes.UINT), ("procedure", PROCEDURE), ("class_extra", ctypes.c_int),
                ("window_extra", ctypes.c_int), ("instance", wintypes.HANDLE),
                ("icon", wintypes.HANDLE), ("cursor", wintypes.HANDLE),
                ("brush", wintypes.HANDLE), ("menu_name", wintypes.LPCWSTR),
                ("class_name", wintypes.LPCWSTR)]


class SampleWindow:
    def __init__(self, library, plot):
        self.library, self.plot, self.has_view = library, plot, False
        self.user32 = ctypes.WinDLL("user32")
        self.user32.DefWindowProcW.restype = LRESULT
        self.user32.DefWindowProcW.argtypes = [wintypes.HWND, wintypes.UINT, wintypes.WPARAM,
                                               wintypes.LPARAM]
        self.user32.CreateWindowExW.restype = wintypes.HWND
        self.user32.LoadCursorW.restype = wintypes.HANDLE
        self.procedure = PROCEDURE(self.answer)
        kind = WindowClass(procedure=self.procedure, class_name="TavixSample",
                           cursor=self.user32.LoadCursorW(None, IDC_ARROW))
        self.user32.RegisterClassW(ctypes.byref(kind))
        window = self.user32.CreateWindowExW(
            0, "TavixSample", "Tap a point", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 20, 20, 480,
            400, None, None, None, None)
        self.user32.ShowWindow(wintypes.HWND(window), SW_SHOW)

    def answer(self, window, message, w, l):
        if message == WM_SIZE:
            if w != SIZE_MINIMIZED:
                self.show_plot(window, l & 0xFFFF, l >> 16 & 0xFFFF)
            return 0
        if message == WM_COMMAND:
            if w & 0xFFFF == TAPPED:
                self.say_point(window, l)
            return 0
        if message == WM_DESTROY:
            self.user32.PostQuitMessage(0)
            return 0
        return self.user32.DefWindowProcW(window, message, w, l)

    def show_plot(self, window, width, height):
        """A plot window keeps its size: another size takes another one."""
        self.plot.link(window, 0, 0, width, height, TAPPED)
        self.plot.draw(self.has_view)
        self.plot.show()
        self.has_view = True

    def say_point(self, window, key):
        try:
            point = self.plot.point(key)
        except TavixError:
            return  # deleted since
        title = f"{point.name}  X {point.north:.3f}  Y {point.east:.3f}"
        self.user32.SetWindowTextW(wintypes.HWND(window), title)

    def run(self):
        message = wintypes.MSG()
        while self.user32.GetMessageW(ctypes.byref(message), None, 0, 0) > 0:
            if self.library.pre_translate(message):  # the arrow keys
                continue
            self.user32.TranslateMessage(ctypes.byref(message))
            self.user32.DispatchMessageW(ctypes.byref(message))


def enter_survey(plot):
    plot.select_point_legend(plot.add_point_legend(2, 1, 0xC00000, 10, 14))
    for key, (name, north, east) in enumerate(POINTS, 1):
        plot.enter_point(key, key, name, north, east)
    plot.select_line_legend(SOLID)
    plot.enter_line(3, 4)
    plot.enter_line(4, 5)
    plot.clothoid(1, SOLID, (-35122.0, 12350.0), (-35110.0, 12369.0), 0.0, 30.0, 40.0)


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else "."
    os.add_dll_directory(os.path.abspath(folder))
    library = Library.load(os.path.join(folder, "tavix_c.dll"))
    with Plot(library) as plot:
        enter_survey(plot)
        SampleWindow(library, plot).run()


if __name__ == "__main__":
    main()
