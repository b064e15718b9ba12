"""Python: the calls as prototypes of ctypes."""

from writers.flat import (BUFFER, DOUBLE, DOUBLE_OUT, DOUBLES, HANDLE, INT, INT_OUT, SHORT,
                          SHORT_OUT, TEXT_IN, UNSIGNED, all_calls)
from writers.wording import MADE_FROM, constant_lines, upper_case

_TYPES = {INT: "c_int", SHORT: "c_short", DOUBLE: "c_double", UNSIGNED: "c_uint",
          HANDLE: "c_void_p", TEXT_IN: "c_wchar_p", BUFFER: "c_wchar_p",
          INT_OUT: "POINTER(c_int)", SHORT_OUT: "POINTER(c_short)",
          DOUBLE_OUT: "POINTER(c_double)", DOUBLES: "POINTER(c_double)"}


def declarations(description):
    lines = [f'"""The calls of tavix_c.dll for ctypes, one to one.', "", MADE_FROM,
             'Units, ranges and codes: tavix_c.h.', '"""', "",
             "from ctypes import POINTER, c_double, c_int, c_short, c_uint, c_void_p, c_wchar_p",
]
    lines += constant_lines(description, "#", upper_case,
                            lambda c, _: f"{upper_case(c.name)} = {c.value}")
    lines += ["", "# Name, result, arguments.", "CALLS = ["]
    for title, calls in all_calls(description):
        lines.append(f"    # {title}")
        for call in calls:
            arguments = ", ".join(_TYPES[p.type] for p in call.parameters)
            comma = "," if len(call.parameters) == 1 else ""
            names = " ".join(p.name for p in call.parameters)
            lines.append(f'    ("{call.name}", {_TYPES[call.result]}, ({arguments}{comma}),')
            lines.append(f'     "{names}"),')
    lines += ["]", "", "", "def declare(library):",
              '    """Gives every call of a loaded library its types."""',
              "    for name, result, arguments, _ in CALLS:",
              "        call = getattr(library, name)",
              "        call.restype = result", "        call.argtypes = arguments"]
    return "\n".join(lines) + "\n"
