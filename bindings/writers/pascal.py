"""Delphi and Free Pascal: the calls as a unit of external functions."""

from writers.flat import (BUFFER, DOUBLE, DOUBLE_OUT, DOUBLES, HANDLE, INT, INT_OUT, SHORT,
                          SHORT_OUT, TEXT_IN, UNSIGNED, all_calls)
from writers.wording import MADE_FROM, constant_lines

_TYPES = {INT: "Integer", SHORT: "SmallInt", DOUBLE: "Double", UNSIGNED: "Cardinal",
          HANDLE: "Pointer", TEXT_IN: "PWideChar", BUFFER: "PWideChar", INT_OUT: "PInteger",
          SHORT_OUT: "PSmallInt", DOUBLE_OUT: "PDouble", DOUBLES: "PDouble"}


def _spelled(constant):
    return f"Tavix{constant}"


def declarations(description):
    lines = [f"// {MADE_FROM}", "// Units, ranges and codes: tavix_c.h.", "unit TavixCalls;", "",
             "{$IFDEF FPC}{$MODE DELPHI}{$ENDIF}", "", "interface", "", "const",
             "  TavixLibrary = 'tavix_c.dll';"]
    lines += constant_lines(description, "//", _spelled,
                            lambda c, _: f"{_spelled(c.name)} = {c.value};", indent="  ")
    for title, calls in all_calls(description):
        lines += ["", f"// ---- {title}", ""]
        for call in calls:
            parameters = "; ".join(f"{p.name}: {_TYPES[p.type]}" for p in call.parameters)
            inside = f"({parameters})" if parameters else ""
            lines += [f"function {call.name}{inside}: {_TYPES[call.result]};",
                      f"  cdecl; external TavixLibrary name '{call.name}';"]
    return "\n".join(lines + ["", "implementation", "", "end."]) + "\n"
