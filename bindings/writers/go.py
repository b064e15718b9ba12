"""Go: the calls through the system's loader, without cgo, for windows/amd64."""

from writers.flat import (BUFFER, DOUBLE, DOUBLE_OUT, DOUBLES, HANDLE, INT, INT_OUT, SHORT,
                          SHORT_OUT, TEXT_IN, UNSIGNED, all_calls)
from writers.wording import MADE_FROM, constant_lines, words_of

_TYPES = {INT: "int32", SHORT: "int16", DOUBLE: "float64", UNSIGNED: "uint32", HANDLE: "uintptr",
          TEXT_IN: "*uint16", BUFFER: "*uint16", INT_OUT: "*int32", SHORT_OUT: "*int16",
          DOUBLE_OUT: "*float64", DOUBLES: "*float64"}
_RESERVED = {"range", "type"}


def _word(p):
    """The parameter as the word that the loader passes on."""
    if p.type == DOUBLE:
        return f"uintptr(math.Float64bits({p.name}))"
    if p.type in (INT, SHORT, UNSIGNED, HANDLE):
        return f"uintptr({p.name})"
    return f"uintptr(unsafe.Pointer({p.name}))"


def declarations(description):
    lines = [f"// {MADE_FROM}", "// Units, ranges and codes: tavix_c.h.", "", "package tavix", "",
             "import (", '\t"math"', '\t"syscall"', '\t"unsafe"', ")", "",
             "const ("]
    lines += constant_lines(description, "//", str,
                            lambda c, longest: f"{c.name.ljust(longest)} = {c.value}",
                            indent="\t", gap=" ")[1:]
    lines += [")", "", 'var library = syscall.NewLazyDLL("tavix_c.dll")', "", "var ("]
    calls = [call for _, family in all_calls(description) for call in family]
    width = max(len(call.name) for call in calls)
    lines += [f'\tproc{call.name.removeprefix("TavixC_").ljust(width - 7)} = '
              f'library.NewProc("{call.name}")' for call in calls]
    lines.append(")")
    for call in calls:
        name = call.name.removeprefix("TavixC_")
        result = _TYPES[call.result]
        parameters = ", ".join(f"{p.name} {_TYPES[p.type]}" for p in call.parameters)
        words = ", ".join(_word(p) for p in call.parameters)
        lines.append("")
        lines += words_of(call, "//", str) or []
        lines += [f"func c{name}({parameters}) {result} {{",
                  f"\tr, _, _ := proc{name}.Call({words})",
                  f"\treturn {result}(r)", "}"]
    return "\n".join(lines) + "\n"
