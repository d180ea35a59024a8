"""The module's interface as its docstrings tell it."""

import functools
import re
from collections import namedtuple
from types import ModuleType

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


def members(space=gravelox, path=""):
    """(qualified name, docstring) of every class and callable, in the order of registration."""
    for name, value in vars(space).items():
        if isinstance(value, ModuleType):
            yield from members(value, f"{path}{name}.")
        elif not name.startswith("__"):
            yield path + name, value.__doc__
            for member, made in vars(value).items() if isinstance(value, type) else ():
                doc = getattr(made, "__func__", made).__doc__ or ""
                is_constant = isinstance(made, (int, str)) or "state__" in member
                if SIGNATURE.search(doc) and not is_constant:
                    yield f"{path}{name}.{member}", doc


def look_up(name):
    return functools.reduce(getattr, name.split("."), gravelox)


CLASSES = [name for name, _ in members() if isinstance(look_up(name), type)]
FUNCTIONS = {name: list(overloads(name, doc)) for name, doc in members() if name not in CLASSES}
OVERLOADS = [overload for found in FUNCTIONS.values() for overload in found]
