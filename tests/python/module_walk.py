"""The module's interface as its docstrings tell it."""

import re
from types import SimpleNamespace

import gravelox

SIGNATURE = re.compile(r"^(?:\d+\. )?(\w+)\(((?!\*args).*)\) -> .+$", re.MULTILINE)
ARGUMENT = re.compile(r"(\w+): (.+?)(?: = (.+))?")


def arguments(text):
    """(name, type, default or None) of each argument of a signature's text, self left out."""
    parts, depth = [""], 0
    for letter in text:
        depth += (letter in "([") - (letter in ")]")
        if letter == "," and depth == 0:
            parts.append("")
        else:
            parts[-1] += letter
    found = [ARGUMENT.fullmatch(part.strip()).groups() for part in parts if part.strip()]
    return [row for row in found if row[0] != "self"]


def overloads(name, doc):
    """A record of each overload of a function."""
    found = [match for match in SIGNATURE.finditer(doc) if match[1] == name.split(".")[-1]]
    for match, end in zip(found, [*[later.start() for later in found[1:]], len(doc)]):
        yield SimpleNamespace(
            name=name,
            is_method=match[2].startswith("self:"),
            arguments=arguments(match[2]),
            text=doc[match.end() : end],
        )


def members():
    """(qualified name, docstring) of every class and callable, in the order of registration."""
    for name, value in vars(gravelox).items():
        if not name.startswith("__"):
            yield name, value.__doc__
            for member, made in vars(value).items() if isinstance(value, type) else ():
                doc = getattr(made, "__func__", made).__doc__ or ""
                if not isinstance(made, str) and SIGNATURE.search(doc):
                    yield f"{name}.{member}", doc


CLASSES = {name: value for name, value in vars(gravelox).items() if isinstance(value, type)}
FUNCTIONS = {name: list(overloads(name, doc)) for name, doc in members() if name not in CLASSES}
OVERLOADS = [overload for found in FUNCTIONS.values() for overload in found]


def function(name):
    owner, _, member = name.rpartition(".")
    return getattr(CLASSES.get(owner, gravelox), member)
