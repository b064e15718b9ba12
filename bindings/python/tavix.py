"""The plot window for Python programs on Windows, by ctypes alone.

A Plot is one of the five instances. Its methods raise TavixError where the library refuses; what
each call does, with units and ranges, stands with the call of the same name in tavix_c.h. Calls
that have no method here are reached by `plot.call("name without TavixC_", arguments)`.
"""

import ctypes
from dataclasses import dataclass

from tavix_calls import declare


class TavixError(Exception):
    """A refusal: the call's code and the reason in words."""

    def __init__(self, code, reason):
        super().__init__(f"{reason} ({code})")
        self.code = code


@dataclass(frozen=True)
class Point:
    number: int
    name: str
    north: float  # metres
    east: float


class Library:
    """tavix_c.dll, or anything with the same calls."""

    def __init__(self, dll):
        declare(dll)
        self.dll = dll

    @classmethod
    def load(cls, file="tavix_c.dll"):
        return cls(ctypes.CDLL(file))

    @property
    def version(self):
        """(major, minor, patch)."""
        number = self.dll.TavixC_Version()
        return number // 10000, number // 100 % 100, number % 100

    def check(self, code):
        """The code, unless it is a refusal."""
        if code < 0:
            raise TavixError(code, self.read_text(self.dll.TavixC_LastError))
        return code

    def read_text(self, call, *arguments):
        """The text of a call that ends in buffer, capacity and length."""
        length = ctypes.c_int()
        if call(*arguments, None, 0, ctypes.byref(length)) < 0:
            return ""
        text = ctypes.create_unicode_buffer(length.value + 1)
        call(*arguments, text, len(text), ctypes.byref(length))
        return text[:length.value]

    def pre_translate(self, message):
        """Gives a message (wintypes.MSG) to the plot windows; True when it is not to be
        dispatched."""
        return self.dll.TavixC_PreTranslate(ctypes.byref(message)) != 0


class Plot:
    """Exists from construction to delete(), or as long as a with statement lasts."""

    def __init__(self, library, instance=0):
        self._library = library
        self._instance = instance
        self.call("Crt")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.delete()

    def call(self, name, *arguments):
        """Any call by its name, with its instance put first."""
        call = getattr(self._library.dll, "TavixC_" + name)
        return self._library.check(call(self._instance, *arguments))

    def delete(self):
        self.call("Del")

    def link(self, parent, left, top, right, bottom, notify_id):
        """Makes the plot window in a rectangle of the parent window's client area."""
        self.call("LnkRct", parent, left, top, right, bottom, notify_id)

    def show(self, show=True):
        self.call("Dsp", int(show))

    def draw(self, keep_view=False):
        self.call("Drw", int(keep_view))

    def add_point_legend(self, kind, width, color, size, label_height, shows_number=False):
        """The legend number of a new point symbol."""
        number = ctypes.c_short()
        self.call("AddPntHan", kind, width, color, size, label_height, int(shows_number),
                  ctypes.byref(number))
        return number.value

    def select_point_legend(self, number):
        self.call("SelPntHan", number)

    def select_line_legend(self, number):
        self.call("SelLinHan", number)

    def enter_point(self, key, number, name, north, east):
        self.call("EntPnt", key, number, name, north, east)

    def point(self, key):
        north, east, number = ctypes.c_double(), ctypes.c_double(), ctypes.c_int()
        self.call("GetPntCrd", key, ctypes.byref(north), ctypes.byref(east))
        name = self._library.read_text(self._library.dll.TavixC_GetPntNoNam, self._instance, key,
                                       ctypes.byref(number))
        return Point(number.value, name, north.value, east.value)

    def enter_line(self, key_a, key_b):
        self.call("EntLin", key_a, key_b)

    def clothoid(self, figure, legend, start, end, start_radius, a, end_radius):
        """A figure of one clothoid; start and end are (north, east)."""
        self.call("FigStt", figure, legend)
        self.call("FigMdlClo", *start, *end, start_radius, a, end_radius)
        self.call("FigEnd")
