"""The module against its committed stubs, which are sorted by name, and the order of families."""

import ast
import re
from pathlib import Path

import gravelox
from module_walk import SIGNATURE, look_up, members

STUBS = Path(__file__).parents[2] / "stubs" / "gravelox-stubs"
FAMILIES = """set_fft_n_threads compute_angular_distance Kernel CartesianGrid SimulatorFactory FIM
    TBSIM RNG Estimator ExperimentalVariogram create_folds LocalCovariances fft
    create_random_rotation jet algebra ast ceres transiogram markov_chain GMMParams grid_detector"""
SEARCH = "n_rays=600, n_scales=5, n_iterations=2000, n_iterations_without_upgrade=100"
SEARCH = f"EllipsoidOptimizationParameters({SEARCH}, regularization_const=0.001)"
OBJECTS = {SEARCH, "Ellipsoid(1, 1, 1, 0, 0, 0)", "IsomorphismParameters()"}  # ... in stubs
WIDER = r"(?<=self): .*|: (?!.*(Real|Jet)).*([|\[].*|Any|Like|object)$| \|.*|list\[|]|[a-z]\w*\."


def signature(args):
    names = [re.sub(WIDER, "", ast.unparse(a)) for a in args.args]
    defaults = [*[""] * (len(names) - len(args.defaults)), *map(ast.unparse, args.defaults)]
    return [(name, "..." if d in OBJECTS else d) for name, d in zip(names, defaults)]


def stub_table(body, path):
    table, classes = {}, {n.name: n for n in body if isinstance(n, ast.ClassDef)}
    classes |= {n.targets[0].id: classes[n.value.id] for n in body if isinstance(n, ast.Assign)}
    for name, node in classes.items():
        table |= {path + name: [], **stub_table(node.body, f"{path}{name}.")}
    for node in body:
        if isinstance(node, ast.FunctionDef) and "state__" not in node.name:
            accessor = re.findall("property|setter", str([*map(ast.unparse, node.decorator_list)]))
            table.setdefault(path + node.name, []).extend(accessor or [signature(node.args)])
        elif isinstance(node, ast.AnnAssign) and node.target.id != "__all__":
            table[path + node.target.id] = ["property"]
    return table


def test_the_module_is_that_of_its_stubs():
    live, stubs = {}, {}
    for name, doc in members():
        found = [m[2] for m in SIGNATURE.finditer(doc) if m[1] == name.split(".")[-1]]
        codes = [f"def f({text}): ...".replace("(lambda:", "(__lambda:") for text in found]
        live.setdefault(name, [signature(ast.parse(code).body[0].args) for code in codes])
        for key, made in getattr(look_up(name), "__dict__", {}).items():
            if isinstance(made, (property, int)):
                live[f"{name}.{key}"] = ["property", "setter"][: 1 + bool(getattr(made, "fset", 0))]
    for file in STUBS.rglob("*.pyi"):
        path = re.sub(r"(__init__\.)?pyi$", "", ".".join(file.relative_to(STUBS).parts))
        stubs |= stub_table(ast.parse(file.read_text()).body, path)
    assert live == stubs
    families = [name for name in vars(gravelox) if name in FAMILIES.split()]
    assert families == [name for name in FAMILIES.split() if hasattr(gravelox, name)]
