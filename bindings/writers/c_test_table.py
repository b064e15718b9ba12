"""Every call of the C layer beside its twin in tavix.dll, as a table for the tests."""

from description import ARRAY, OUTPUT, TEXT, TEXT_OUTPUT, VALUE, WINDOW
from writers.flat import ON_NO_INSTANCE, PREFIX


def _arguments(call, null=None):
    """The C arguments of a harmless call; `null` names the output that is left out."""
    given = [] if call.name in ON_NO_INSTANCE else ["instance"]
    for i, p in enumerate(call.parameters):
        if p.kind == OUTPUT:
            given.append("nullptr" if p.name == null else f"&places.{p.type}s[{i}]")
        elif p.kind == TEXT_OUTPUT:
            given += ["nullptr" if p.name == null else "places.text", "8",
                      "nullptr" if null == "length" else "&places.length"]
        elif p.kind in (ARRAY, TEXT, WINDOW):
            given.append("nullptr")
        elif call.name == "SetIdx":
            given.append("instance")
        else:
            given.append("1" if p.kind == VALUE and p.type != "flag" else "0")
    return ", ".join(given)


def _twin_arguments(call):
    given = []
    for i, p in enumerate(call.parameters):
        if p.kind == OUTPUT:
            given.append(f"&places.{p.type}s[{i}]")
        elif p.kind == TEXT_OUTPUT:
            given.append("&places.string")
        elif p.kind == TEXT:
            given.append("CString()")
        elif p.kind in (ARRAY, WINDOW):
            given.append("nullptr")
        elif call.name == "SetIdx":
            given.append("instance")
        else:
            given.append("1" if p.kind == VALUE and p.type != "flag" else "0")
    return ", ".join(given)


def _twin(call):
    plain = f"Tavix_{call.name}({_twin_arguments(call)})"
    if call.result == "int":
        return f"return {plain};"
    if call.result == "window":
        return f"CWnd* const window = {plain}; return window && window->m_hWnd ? 1 : 0;"
    return f"{plain}; return 0;"


def _run(call, null=None):
    run = f"{PREFIX}{call.name}({_arguments(call, null)})"
    return f"return {run} ? 1 : 0;" if call.result == "window" else f"return {run};"


def table(description):
    lines = ["// Made from tavix.h by bindings/make_bindings.py.", "#pragma once", "",
             '#include "tests/bindings/twin_calls.h"', "", "namespace tavix::test {", "",
             "inline const TwinCall kTwinCalls[] = {"]
    for call in description.calls:
        lines.append(f'    {{"{PREFIX}{call.name}", {str(call.result == "window").lower()},')
        lines.append(f"     [](Places& places, int instance) -> int "
                     f"{{ (void)places; (void)instance; {_run(call)} }},")
        lines.append(f"     [](Places& places, int instance) -> int "
                     f"{{ (void)places; (void)instance; {_twin(call)} }}}},")
    lines += ["};", "", "inline const NullCall kNullCalls[] = {"]
    for call in description.calls:
        names = [p.name for p in call.outputs]
        if any(p.kind == TEXT_OUTPUT for p in call.parameters):
            names.append("length")
        for name in names:
            lines.append(f'    {{"{PREFIX}{call.name}", "{name}",')
            lines.append(f"     [](Places& places, int instance) -> int "
                         f"{{ (void)places; (void)instance; {_run(call, name)} }}}},")
    return "\n".join(lines + ["};", "", "}  // namespace tavix::test"]) + "\n"
