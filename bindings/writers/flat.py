"""The calls as they cross a plain C border: what every language has to declare."""

from dataclasses import dataclass

from description import ARRAY, OUTPUT, TEXT, TEXT_OUTPUT, WINDOW

PREFIX = "TavixC_"
# These say in a parameter of their own which instance they mean.
ON_NO_INSTANCE = {"SetIdx", "GetIdx"}

# The types of C that occur.
INT, SHORT, DOUBLE, UNSIGNED = "int", "short", "double", "unsigned"
INT_OUT, SHORT_OUT, DOUBLE_OUT, DOUBLES = "int*", "short*", "double*", "const double*"
TEXT_IN, BUFFER, HANDLE = "const wchar_t*", "wchar_t*", "void*"

_OUT = {"int": INT_OUT, "short": SHORT_OUT, "double": DOUBLE_OUT}


@dataclass
class FlatParameter:
    name: str
    type: str


@dataclass
class FlatCall:
    name: str  # with the prefix
    result: str
    parameters: list[FlatParameter]
    call: object  # of the description; None for a call of the layer itself


def flat_parameters(call):
    flat = [] if call.name in ON_NO_INSTANCE else [FlatParameter("instance", INT)]
    for p in call.parameters:
        if p.kind == TEXT_OUTPUT:
            flat += [FlatParameter(p.name, BUFFER), FlatParameter("capacity", INT),
                     FlatParameter("length", INT_OUT)]
            continue
        if p.kind == TEXT:
            kind = TEXT_IN
        elif p.kind == WINDOW:
            kind = HANDLE
        elif p.kind == OUTPUT:
            kind = _OUT[p.type]
        elif p.kind == ARRAY:
            kind = DOUBLES
        else:
            kind = INT if p.type == "flag" else p.type
        flat.append(FlatParameter(p.name, kind))
    return flat


def flat_call(call):
    result = HANDLE if call.result == "window" else INT
    return FlatCall(PREFIX + call.name, result, flat_parameters(call), call)


LAYER = [
    FlatCall(PREFIX + "Version", INT, [], None),
    FlatCall(PREFIX + "LastError", INT,
             [FlatParameter("text", BUFFER), FlatParameter("capacity", INT),
              FlatParameter("length", INT_OUT)], None),
    FlatCall(PREFIX + "PreTranslate", INT, [FlatParameter("message", HANDLE)], None),
]


def all_calls(description):
    """The layer's own calls, then the families in their order: title, calls."""
    yield "The layer", LAYER
    for family in description.families:
        yield family.title, [flat_call(call) for call in family.calls]
