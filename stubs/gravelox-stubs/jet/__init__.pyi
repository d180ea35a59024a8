from __future__ import annotations
from . import ast
__all__: list[str] = ['ast']
