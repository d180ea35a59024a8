"""The module's interface as its docstrings tell it."""

import re
from collections import namedtuple

import gravelox

Overload = namedtuple("Overload", "name is_method arguments text")
SIGNATURE = re.compile(r"^(?:\d+\. )?(\w+)\(((?!\*args).*)\) -> .+$", re.MULTILINE)


def arguments(text):
    """(name, type) of each argument of a signature's text, self left out."""
    parts = [part.partition(" = ")[0] for part in re.split(r", (?=\w+: )", text) if part]
    return [tuple(part.split(": ")) for part in parts if not part.startswith("self: ")]


def overloads(name, doc):
    """A record of each overload of a function."""
    found = [match for match in SIGNATURE.finditer(doc) if match[1] == name.split(".")[-1]]
    for match, end in zip(found, [*[later.start() for later in found[1:]], len(doc)]):
        text, is_method = doc[match.end() : end], match[2].startswith("self:")
        yield Overload(name, is_method, arguments(match[2]), text)


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
