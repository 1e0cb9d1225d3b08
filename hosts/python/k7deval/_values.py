"""The values of the module that are plain Python."""

from __future__ import annotations

import struct
from datetime import datetime
from typing import Union

NoDate = datetime(1899, 12, 30)
"""The zero date, which stands for a date that is not set."""


class Error(Exception):
    """A failure that a control passes to its host: a number and a description.

    When it began as an exception of the host's own code, that exception is its ``__cause__``.
    """

    def __init__(self, number: int, description: str = "") -> None:
        super().__init__(number, description)
        self.number = number
        self.description = description

    def __str__(self) -> str:
        return self.description


class EmptyType:
    """The type of ``Empty``. It has one value."""

    _value: EmptyType | None = None

    def __new__(cls) -> EmptyType:
        if cls._value is None:
            cls._value = super().__new__(cls)
        return cls._value

    def __bool__(self) -> bool:
        return False

    def __repr__(self) -> str:
        return "k7deval.Empty"

    def __reduce__(self) -> str:
        return "Empty"


Empty = EmptyType()
"""A value that was never given. It counts as false."""

Value = Union[None, bool, int, float, str, datetime, EmptyType]
"""What the data interface hands out: None is a value that is known to be missing."""


class Single(float):
    """A number of 32-bit precision. ``Single(x)`` is the nearest one.

    Raises Error 6 for a number out of a single's range.
    """

    def __new__(cls, value: float = 0.0) -> Single:
        number = float(value)
        try:
            return super().__new__(cls, struct.unpack("<f", struct.pack("<f", number))[0])
        except OverflowError:
            raise Error(6, "Overflow") from None


class DI1Params(list):
    """A collection of parameters, as a site hands it out and ``SetParamList`` takes it."""


for _type in (Error, EmptyType, Single, DI1Params):
    _type.__module__ = "k7deval"
