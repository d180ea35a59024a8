"""Docstrings, and the examples in them and in the docs; the linter compares names with stubs/."""

import doctest
import re
from pathlib import Path

import pytest
from module_walk import CLASSES, OVERLOADS, members


def documented(text):
    """The names in the Parameters section."""
    section = re.search(r"^Parameters\n-{10}\n(.*?)(?=^\w+\n---|\Z)", text, re.S | re.M)
    heads = re.findall(r"^(\w[\w, ]*) : \S.*\n    \S", section[1] if section else "", re.M)
    return [name for head in heads for name in head.split(", ")]


@pytest.mark.parametrize("overload", OVERLOADS, ids=lambda o: o.name)
def test_every_overload_is_documented(overload):
    first_line = overload.text.strip().partition("\n")[0]
    assert re.match(r"[A-Z].{8,98}[.:]$", first_line)
    assert documented(overload.text) == [name for name, _ in overload.arguments]


EXAMPLES = [(name, doc) for name, doc in members() if name in CLASSES or ">>>" in doc]


@pytest.mark.parametrize(("name", "doc"), EXAMPLES, ids=[name for name, _ in EXAMPLES])
def test_examples_in_docstrings(name, doc):
    example = doctest.DocTestParser().get_doctest(doc, {}, name, None, None)
    assert len(example.examples) > 1
    failures = []
    doctest.DocTestRunner().run(example, out=failures.append)
    assert not failures, "".join(failures)


ROOT = Path(__file__).parents[2]
BLOCK = re.compile(r"^```python\n(.*?)^```$", re.DOTALL | re.MULTILINE)
BLOCKS = [
    (path, path.read_text().count("\n", 0, match.start()) + 1, match[1])
    for path in (ROOT / "README.md", *sorted((ROOT / "docs").glob("*.md")))
    for match in BLOCK.finditer(path.read_text())
]
assert {path.name for path, *_ in BLOCKS} >= {"README.md", "conventions.md", "estimation.md"}


@pytest.mark.parametrize(("path", "line", "code"), BLOCKS, ids=lambda v: getattr(v, "stem", ""))
def test_blocks_of_the_pages_run(path, line, code, tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    exec(compile("\n" * line + code, str(path), "exec"), {"__name__": "__main__"})
