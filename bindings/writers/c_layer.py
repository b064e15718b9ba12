"""The plain C layer: its header, and the calls behind it."""

from description import ARRAY_OUTPUTS, TEXT, TEXT_OUTPUT, WINDOW
from writers.flat import HANDLE, INT, PREFIX, all_calls, flat_parameters
from writers.wording import as_comment, comment_of, constant_lines, reworded, upper_case


def _spelled(constant):
    return f"TAVIX_C_{upper_case(constant)}"


def _c_parameters(call):
    return [f"{p.type} {p.name}" for p in flat_parameters(call)] or ["void"]


def _c_result(call):
    return HANDLE if call.result == "window" else INT


def _folded(head, items, tail, width=100):
    """`head(items)tail` on as many lines as it takes."""
    lines, line = [], head
    for i, item in enumerate(items):
        text = item + ("," if i + 1 < len(items) else tail)
        if len(line) + len(text) + (i > 0) > width:
            lines.append(line)
            line = " " * len(head) + text
        else:
            line += (" " if i > 0 else "") + text
    return lines + [line]


def _declaration(call):
    head = f"TAVIX_C_CALL {_c_result(call)} TAVIX_C_CDECL {PREFIX}{call.name}("
    return _folded(head, _c_parameters(call), ");")


def header(description, template):
    """The text of tavix_c.h: the template with version, constants and calls filled in."""
    lines = []
    for family in description.families:
        lines += [f"// ---- {family.title} ".ljust(100, "-"), ""]
        if family.comment:
            lines += as_comment(reworded(family.comment, PREFIX, _spelled), "//")
            lines.append("")
        for call in family.calls:
            lines += as_comment(comment_of(call, PREFIX, _spelled), "//")
            lines += _declaration(call)
            lines.append("")
    calls = "\n".join(lines).strip("\n")
    for part, number in zip(("MAJOR", "MINOR", "PATCH"), description.version):
        template = template.replace(f"@{part}@", str(number))
    # In brackets where an operator could take the sign for its own.
    constants = constant_lines(
        description, "//", _spelled,
        lambda c, _: f"#define {_spelled(c.name)} "
                  + (f"({c.value})" if c.value.startswith("-") else c.value))
    return (template.replace("@CONSTANTS@", "\n".join(constants).strip("\n"))
            .replace("@CALLS@", calls))


def _argument(p):
    if p.kind == TEXT:
        return f"CString({p.name})"
    if p.kind == TEXT_OUTPUT:
        return "&text"
    if p.kind == WINDOW:
        return f"CWnd::FromHandle(static_cast<HWND>({p.name}))"
    if p.type == "flag":
        return f"{p.name} != 0"
    return p.name


def _null_check(call):
    pointers = []
    for p in call.outputs:
        if call.name in ARRAY_OUTPUTS:
            continue
        if p.kind == TEXT_OUTPUT:
            pointers.append("output.IsGiven()")
        else:
            pointers.append(f"{p.name} != nullptr")
    return " && ".join(pointers) or "true"


def _definition(call):
    name = f"{PREFIX}{call.name}"
    arguments = ", ".join(_argument(p) for p in call.parameters)
    inner = f"Tavix_{call.name}({arguments})"
    text = next((p for p in call.parameters if p.kind == TEXT_OUTPUT), None)
    if call.result == "window":
        body = [f"CWnd* const window = {inner};",
                "return window ? static_cast<void*>(window->m_hWnd) : nullptr;"]
    elif call.result == "void":
        body = [f"{inner};", "return 0;"]
    elif text:
        body = ["CString text;", f"const int code = {inner};",
                "if (code == 0) output.Write({text, static_cast<std::size_t>(text.GetLength())});",
                "return code;"]
    else:
        body = [f"return {inner};"]
    instance = {"SetIdx": "index", "GetIdx": "std::nullopt"}.get(call.name, "instance")
    keeps = "false" if call.name == "SetIdx" else "true"
    asked = "OnWindowOf" if call.result == "window" else "On"
    lines = _folded(f"{_c_result(call)} TAVIX_C_CDECL {name}(", _c_parameters(call),
                    ") {")
    if text:
        lines.append(f"  const TextOutput output{{{text.name}, capacity, length}};")
    lines.append(f'  return {asked}({{"{name}", {instance}, {keeps}}}, {_null_check(call)}, [&] {{')
    lines += [f"    {line}" for line in body]
    return lines + ["  });", "}"]


def definitions(description):
    """The text of the source that defines every call."""
    lines = ["// Made from tavix.h by bindings/make_bindings.py: every call of the C layer.",
             "#include <tavix/tavix.h>", "#include <tavix/tavix_c.h>", "",
             '#include "bindings/c/guarded_call.h"', '#include "bindings/c/text_output.h"', "",
             "using tavix_c::On;", "using tavix_c::OnWindowOf;",
             "using tavix_c::TextOutput;"]
    for call in description.calls:
        lines += [""] + _definition(call)
    return "\n".join(lines) + "\n"


def module(description):
    """The text of tavix_c.def."""
    names = sorted(call.name for _, calls in all_calls(description) for call in calls)
    return "\n".join(["LIBRARY tavix_c", "EXPORTS"] + [f"  {name}" for name in names]) + "\n"
