"""Evaluation screens for continuous emissions monitoring data, driven from Python.

A program creates a control, hands it its data, acts on the widgets as an operator would, and reads
what stands on them. Names are those of the C++ library.
"""

from . import _core
from ._core import *  # noqa: F403
from ._values import DI1Params, Empty, EmptyType, Error, NoDate, Single

__all__ = ["DI1Params", "Empty", "EmptyType", "Error", "NoDate", "Single"]
__all__ += [name for name in dir(_core) if not name.startswith("_")]

for _member in vars(_core).values():
    if isinstance(_member, type):
        _member.__module__ = "k7deval"
del _member
