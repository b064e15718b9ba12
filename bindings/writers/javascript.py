"""JavaScript: the calls as prototypes of the FFI package koffi, for Node on Windows."""

from writers.flat import (BUFFER, DOUBLE, DOUBLE_OUT, DOUBLES, HANDLE, INT, INT_OUT, SHORT,
                          SHORT_OUT, TEXT_IN, UNSIGNED, all_calls)
from writers.wording import MADE_FROM, constant_lines, upper_case

# An output is an array of one number that the call fills.
_TYPES = {INT: "int", SHORT: "short", DOUBLE: "double", UNSIGNED: "uint", HANDLE: "void*",
          TEXT_IN: "str16", BUFFER: "_Out_ uint16_t*", INT_OUT: "_Out_ int*",
          SHORT_OUT: "_Out_ short*", DOUBLE_OUT: "_Out_ double*", DOUBLES: "const double*"}


def declarations(description):
    lines = [f"// {MADE_FROM}", "// Units, ranges and codes: tavix_c.h.", "'use strict';", "",
             "const constants = {"]
    lines += constant_lines(description, "//", upper_case,
                            lambda c, _: f"{upper_case(c.name)}: {c.value},", indent="  ")[1:]
    lines += ["};", "", "// Each call of tavix_c.dll, one to one, by its name without TavixC_.",
             "const prototypes = ["]
    for title, calls in all_calls(description):
        lines.append(f"  // {title}")
        for call in calls:
            parameters = ", ".join(f"{_TYPES[p.type]} {p.name}" for p in call.parameters)
            lines.append(f"  '{_TYPES[call.result]} __cdecl {call.name}({parameters})',")
    lines += ["];", "", "// Loads the library: an object of functions.",
              "function load(koffi, file) {", "  const library = koffi.load(file);",
              "  const calls = {};", "  for (const prototype of prototypes) {",
              "    const name = /TavixC_(\\w+)/.exec(prototype)[1];",
              "    calls[name] = library.func(prototype);", "  }", "  return calls;", "}", "",
              "module.exports = { constants, load };"]
    return "\n".join(lines) + "\n"
