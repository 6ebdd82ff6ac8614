"""Effects of a video editor: reading, changing and writing their files, and what they mean.

An effect gives its parameters, by the keys that they have in the archives, as attributes and as items:

>>> import editoreffects
>>> blur = editoreffects.create("Effect::TiltShift", smns=0.4)
>>> blur.smns
0.4
>>> blur["intensity"] = 0.5
>>> blur
editoreffects.create('Effect::TiltShift', intensity=0.5, smns=0.4)

Files keep what this version does not know when an effect is changed and saved. Whatever is wrong is raised as an `Error`.
"""

from __future__ import annotations

import dataclasses
import os
from typing import Any, Callable, Dict, Iterator, List, Optional, Sequence, Tuple, Union, overload

from . import _editoreffects
from ._editoreffects import Curve, Effect, Lut
from .errors import (ArchiveError, Error, FileError, LutError, MissingFileError, ParameterError, UnknownClass,
                     UnknownParameter)

__all__ = [
    "ArchiveError", "Catalogue", "Curve", "Effect", "Error", "FileError", "Item", "Lut", "LutError", "MissingFileError",
    "ParameterError", "UnknownClass", "UnknownParameter", "check", "classes", "convert", "create", "describe", "diff",
    "from_binary", "from_json", "load", "lut", "save", "schema"
]

Path = Union[str, "os.PathLike[str]"]
Document = Dict[str, Any]  # a JSON object

_LARGEST_FILE = 256 << 20  # bytes, as in the other tools of the library


def _file_error(error: OSError) -> FileError:
    kind = MissingFileError if isinstance(error, FileNotFoundError) else FileError
    return kind(error.errno, error.strerror, error.filename)


def _content_of(path: Path) -> bytes:
    try:
        with open(path, "rb") as file:
            content = file.read(_LARGEST_FILE + 1)
    except OSError as error:
        raise _file_error(error) from error
    if len(content) > _LARGEST_FILE:
        raise Error(f"{os.fsdecode(path)}: larger than 256 MiB")
    return content


def load(source: Union[Path, bytes, bytearray, memoryview]) -> Effect:
    """Reads an effect: an archive in either form, or an item of the catalogue.

    Args:
        source: the path of a file, as `str` or `os.PathLike`, or the content of one, as `bytes` or the like.

    Raises:
        FileError: the file cannot be read; `MissingFileError` if there is none.
        ArchiveError: the content is damaged, or no effect.
        UnknownClass: the effect is of a class that this version does not have. Effects of such classes in a holder are
            `None` there and stay in the file.

    >>> load(b'{"$meta": {"class": "Effect::Blur"}}')
    editoreffects.create('Effect::Blur')
    """
    if isinstance(source, (bytes, bytearray, memoryview)):
        return _editoreffects.read(bytes(source))
    return _editoreffects.read(_content_of(source), os.fsencode(source))


def _restored(content: bytes, file: bytes) -> Effect:
    """What a pickled effect is read with."""
    return _editoreffects.read(content, file)


def save(effect: Effect, path: Path) -> None:
    """Writes an effect to a file, whole or not at all.

    Args:
        path: ends in ".json" or ".bin", which says the form.

    Raises:
        ValueError: the path ends otherwise.
        ArchiveError: the binary form would lose something that was read from a JSON file: see `Effect.to_binary`.
        FileError: the file cannot be written.
    """
    suffix = os.path.splitext(os.fspath(path))[1]
    if suffix == ".json":
        content = effect.to_json().encode()
    elif suffix == ".bin":
        content = effect.to_binary()
    else:
        raise ParameterError(f"{os.fspath(path)}: the name ends neither in .json nor in .bin")
    _editoreffects.write_file(os.fsencode(path), content)


def from_json(text: Union[str, bytes]) -> Effect:
    """The effect in a JSON archive. Raises like `load`.

    >>> from_json('{"$meta": {"class": "Effect::Blur"}}').class_name
    'Effect::Blur'
    """
    content = text.encode("utf-8", "surrogatepass") if isinstance(text, str) else bytes(text)
    return _editoreffects.read_form(content, False)


def from_binary(content: bytes) -> Effect:
    """The effect in a binary archive. Raises like `load`.

    >>> from_binary(create("Effect::Blur").to_binary()).class_name
    'Effect::Blur'
    """
    return _editoreffects.read_form(bytes(content), True)


def create(name: str, **parameters: Any) -> Effect:
    """A new effect.

    Args:
        name: of the class in the archives, such as "Effect::Blur".
        parameters: values by key; the others are the class's defaults.

    Raises:
        UnknownClass: there is no class of effects of that name.
        UnknownParameter: the class has no such parameter.
        ParameterError: the parameter does not take the value.

    >>> create("Effect::WhiteBalance", color="#00c800").color
    '#00c800'
    >>> create("Effect::Blurr")
    Traceback (most recent call last):
    editoreffects.errors.UnknownClass: there is no class "Effect::Blurr"; did you mean "Effect::Blur"?
    """
    effect = _editoreffects.create(name)
    for key, value in parameters.items():
        effect[key] = value
    return effect


def classes() -> List[Document]:
    """The description of every archived class, sorted by name, as `effectctl describe --json` prints them.

    >>> [described["class"] for described in classes()][:2]
    ['Effect::AddNoize', 'Effect::AlphaInserter']
    """
    return _editoreffects.classes()


def describe(name: str) -> Document:
    """The description of a class, as in `classes`. Raises `UnknownClass`.

    >>> describe("Effect::TiltShift")["parameters"][-1]["label"]
    'Softness'
    """
    return _editoreffects.describe(name)


def schema(name: Optional[str] = None) -> Document:
    """The JSON Schema (draft-07) of the archive documents of a class, or of any effect. Raises `UnknownClass`.

    >>> schema("Effect::Blur")["$schema"]
    'http://json-schema.org/draft-07/schema#'
    """
    return _editoreffects.schema(name or "")


def convert(effect: Effect, width: int = 0, height: int = 0, duration: int = 0, sample_rate: int = 48000) -> Document:
    """The settings record that the render engine gets, as `effectctl convert --json` prints it.

    Args:
        width: of the picture, in pixels.
        height: of the picture, in pixels.
        duration: of the clip, in microseconds.
        sample_rate: in hertz.

    What the factory logs is under "log", a resource that is missing or broken under "warnings". Conversions of several
    threads take turns.

    >>> record = convert(create("Effect::Blur", intensity=20))
    >>> record["settings"][0]["calls"]
    [['SetScale', 1.0]]
    """
    return _editoreffects.convert(effect, width, height, duration, sample_rate)


def check(path: Path) -> List[Document]:
    """Everything that is wrong with a file of an effect, or with those in a folder or that match a pattern.

    Returns:
        A dictionary for each finding, in the order of the files, with "severity" ("error", "warning" or "note"), "code",
        "pointer", "offset", "line", "column", "message" and "suggestion" as `effectctl check --json` prints them, and
        "file". A file that cannot be read is a finding with the code "unreadable".
    """
    name = os.fsencode(path)
    findings = _editoreffects.check(b"./-" if name == b"-" else name)
    for finding in findings:
        finding["file"] = os.fsdecode(finding["file"])
    return findings


def diff(a: Union[Effect, Path, bytes], b: Union[Effect, Path, bytes]) -> List[Document]:
    """How two effects differ: a patch (RFC 6902) from the document of one to that of the other; empty if they do not.

    Args:
        a: an effect, or what `load` takes. Raises like that.
        b: the same.

    >>> diff(create("Effect::Blur"), create("Effect::Blur", intensity=0.5))
    [{'op': 'replace', 'path': '/Effect::VideoEffect/Effect::Object/intensity', 'value': 0.5}]
    """
    left, right = (source if isinstance(source, Effect) else load(source) for source in (a, b))
    return _editoreffects.diff(left, right)


def lut(path: Path) -> Lut:
    """Reads a lookup table in any format that the editor reads.

    Raises:
        FileError: the file cannot be read.
        LutError: it is no table, or a broken one.
    """
    return _editoreffects.read_lut(_content_of(path), os.fsencode(path))


@dataclasses.dataclass(frozen=True)
class Item:
    """An item of the catalogue.

    Attributes:
        effect: with absolute paths; a copy, which leaves the file as it is.
        collection: the name of its collection, such as "Luts".
        file: the path of its file.
        categories: the names of the categories that it is filed under, sorted.
        user: whether it is the user's own.
    """
    effect: Effect
    collection: str
    file: str
    categories: Tuple[str, ...]
    user: bool


def _folder(path: Optional[Path]) -> bytes:
    """The absolute path of a folder that exists; empty for None."""
    if path is None:
        return b""
    try:
        os.scandir(path).close()
    except OSError as error:
        raise _file_error(error) from error
    return os.fsencode(os.path.abspath(path))


class Catalogue(Sequence[Item]):
    """The items of the stock and the user's folders, read when the catalogue is made.

    Conversions use the stock folder of the catalogue that was made last, for the pictures that come with it.

    Attributes:
        problems: a line for each file that could not be read.
    """

    problems: List[str]

    def __init__(self, stock: Optional[Path] = None, user: Optional[Path] = None,
                 progress: Optional[Callable[[int, int], object]] = None) -> None:
        """
        Args:
            stock: the stock folder; by default that of the environment's EDITOR_STOCK_DIR, else the installed one.
            user: the user's folder; by default that of EDITOR_USER_DIR, else the user's data folder.
            progress: called now and then with the number of files that were read and the number that were found so
                far. What it raises ends the reading.

        Raises:
            FileError: one of the folders cannot be read.
            Error: the default stock folder does not exist.
        """
        items, self.problems = _editoreffects.catalogue(_folder(stock), _folder(user), progress)
        self._items = [Item(file=os.fsdecode(item.pop("file")), **item) for item in items]

    def __len__(self) -> int:
        return len(self._items)

    @overload
    def __getitem__(self, index: int) -> Item: ...

    @overload
    def __getitem__(self, index: slice) -> List[Item]: ...

    def __getitem__(self, index: Union[int, slice]) -> Union[Item, List[Item]]:
        return self._items[index]

    def __iter__(self) -> Iterator[Item]:
        return iter(self._items)
