"""The exceptions of this package."""

from __future__ import annotations

from typing import Optional


class Error(Exception):
    """Whatever this package raises for what it is given."""


class _ContentError(Error):
    """What is wrong with the content of a file, and where.

    Attributes:
        code: for programs, such as "truncated", "damaged", "wrong-type" or "unknown-class"; empty where none applies.
        pointer: JSON pointer of the value; None in a binary file.
        offset: in bytes from the start of the file.
        line: counted from 1; None in a binary file.
        column: in bytes, counted from 1; None in a binary file.
        file: the file; None for content that came from none.
    """

    def __init__(self, message: str, *, code: str = "", pointer: Optional[str] = None, offset: Optional[int] = None,
                 line: Optional[int] = None, column: Optional[int] = None, file: Optional[str] = None) -> None:
        super().__init__(message)
        self.code = code
        self.pointer = pointer
        self.offset = offset
        self.line = line
        self.column = column
        self.file = file

    def __str__(self) -> str:
        return Exception.__str__(self)  # a KeyError shows its message in quotes


class ArchiveError(_ContentError, ValueError):
    """An archive that cannot be read, or an effect that cannot be written in the form that is asked for."""


class UnknownClass(_ContentError, KeyError):
    """A class that this version does not have, in a file or as an argument."""


class UnknownParameter(Error, AttributeError, KeyError):
    """A parameter that the class of the effect does not have."""

    def __str__(self) -> str:
        return Exception.__str__(self)


class ParameterError(Error, ValueError):
    """A value that a parameter does not take. The effect is unchanged."""


class FileError(Error, OSError):
    """A file that cannot be read or written. One that cannot be read has the `errno` and `filename` of an OSError."""


class MissingFileError(FileError, FileNotFoundError):
    """A file that does not exist."""


class LutError(Error, ValueError):
    """A lookup table that cannot be read."""
