"""C#: the calls as P/Invoke declarations."""

from xml.sax.saxutils import escape

from description import ARRAY_OUTPUTS
from writers.flat import (BUFFER, DOUBLE, DOUBLE_OUT, DOUBLES, HANDLE, INT, INT_OUT, SHORT,
                          SHORT_OUT, TEXT_IN, UNSIGNED, all_calls)
from writers.wording import MADE_FROM, constant_lines, words_of

_TYPES = {INT: "int", SHORT: "short", DOUBLE: "double", UNSIGNED: "uint", HANDLE: "IntPtr",
          TEXT_IN: "string", BUFFER: "char[]", INT_OUT: "out int", SHORT_OUT: "out short",
          DOUBLE_OUT: "out double", DOUBLES: "double[]"}
_RESERVED = {"on"}


def _spelled(constant):
    return f"Constants.{constant}"


def _summary(call):
    lines = [escape(line) for line in words_of(call, "        ///", _spelled)]
    if not lines:
        return []
    return ["        /// <summary>"] + lines + ["        /// </summary>"]


def _parameter(call, p):
    kind = _TYPES[p.type]
    if p.type == BUFFER:
        kind = "[Out] char[]"
    if call.call and call.call.name in ARRAY_OUTPUTS and p.type == DOUBLE_OUT:
        kind = "[Out] double[]"
    return f"{kind} {'@' if p.name in _RESERVED else ''}{p.name}"


def declarations(description):
    lines = [f"// {MADE_FROM}", "// Units, ranges and codes: tavix_c.h.", "using System;",
             "using System.Runtime.InteropServices;", "", "namespace Tavix", "{",
             "    public static class Constants", "    {"]
    lines += constant_lines(description, "//", str,
                            lambda c, _: f"public const {c.type} {c.name} = {c.value};",
                            indent="        ")[1:]
    lines += ["    }", "", "    // The calls of tavix_c.dll, one to one.", "    public static class Calls", "    {"]
    for title, calls in all_calls(description):
        lines += [f"        // ---- {title}", ""]
        for call in calls:
            lines += _summary(call)
            result = "IntPtr" if call.result == HANDLE else "int"
            parameters = ", ".join(_parameter(call, p) for p in call.parameters)
            lines += ['        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,',
                      "                   CharSet = CharSet.Unicode, ExactSpelling = true)]",
                      f"        public static extern {result} {call.name}({parameters});", ""]
    return "\n".join(lines[:-1] + ["    }", "}"]) + "\n"
