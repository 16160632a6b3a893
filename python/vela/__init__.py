"""vela from Python: the prompt names that speak a short text.

    >>> import vela
    >>> vela.speak("ru", "21руб")
    ['двадцать', 'один', 'рубль']
    >>> vela.read("ru", "-5xyz")
    Reading(names=['минус'], status=<Status.PARTLY_SPOKEN: 1>, diagnostics=[], unknown_tag=False)

Standard library only (ctypes). Texts and names are str; they travel to and
from the library as Windows-1251. The library is found at $VELA_LIBRARY, then
where `cmake --install` put it beside this package, then in a build tree next
to this source tree (build/libvela.so), then by the dynamic loader.
"""

import ctypes
import ctypes.util
import enum
import os
from typing import List, NamedTuple

__all__ = ["speak", "read", "Reading", "Status", "library_path", "__version__"]

_ENCODING = "cp1251"
_LATIN, _STRICT_TAG = 1, 2


def _candidates():
    here = os.path.dirname(os.path.realpath(__file__))
    if os.environ.get("VELA_LIBRARY"):
        yield os.environ["VELA_LIBRARY"]
        return
    try:
        from . import _installed  # written by `cmake --install`
        yield os.path.normpath(os.path.join(here, _installed.LIBRARY))
    except ImportError:
        pass
    yield os.path.normpath(os.path.join(here, "..", "..", "build", "libvela.so"))
    found = ctypes.util.find_library("vela")
    if found:
        yield found
    yield "libvela.so.0"


def _load():
    errors = []
    for path in _candidates():
        try:
            return path, ctypes.CDLL(path)
        except OSError as error:
            errors.append(str(error))
    raise ImportError("vela: cannot load libvela.so (set VELA_LIBRARY): " + "; ".join(errors))


library_path, _lib = _load()


class _Reading(ctypes.Structure):
    _fields_ = [("names", ctypes.c_void_p), ("diagnostics", ctypes.c_void_p),
                ("status", ctypes.c_int), ("unknown_tag", ctypes.c_int)]


_lib.vela_read.argtypes = [ctypes.c_char_p, ctypes.c_char_p, ctypes.c_uint, ctypes.POINTER(_Reading)]
_lib.vela_read.restype = ctypes.c_int
_lib.vela_reading_free.argtypes = [ctypes.POINTER(_Reading)]
_lib.vela_reading_free.restype = None
_lib.vela_version.argtypes = []
_lib.vela_version.restype = ctypes.c_char_p

__version__ = _lib.vela_version().decode("ascii")


class Status(enum.IntEnum):
    """How much of the text a reading speaks."""
    SPOKEN = 0          # the whole text
    PARTLY_SPOKEN = 1   # names, but part of the text was left unsaid or changed
    NOT_SPOKEN = 2      # no name at all
    FILE_NAMES = 3      # the text holds ".wav": passed through as names


class Reading(NamedTuple):
    names: List[str]        # prompt names, in order
    status: Status
    diagnostics: List[str]  # the library's complaints about the text, one a line
    unknown_tag: bool       # the tag was unknown and English was used


def _encode(what, text):
    if not isinstance(text, str):
        raise TypeError(f"vela: {what} must be str, not {type(text).__name__}")
    if "\0" in text:
        raise ValueError(f"vela: {what} holds a zero character")
    try:
        return text.encode(_ENCODING)
    except UnicodeEncodeError as error:
        bad = text[error.start:error.end]
        raise ValueError(f"vela: {what} {text!r} holds {bad!r}, which Windows-1251 cannot write") from None


def _read(tag, text, options):
    raw = _Reading()
    result = _lib.vela_read(_encode("tag", tag), _encode("text", text), options, ctypes.byref(raw))
    if result == -3:
        raise ValueError(f"vela: unknown language tag {tag!r}")
    if result != 0:
        raise MemoryError("vela: out of memory")
    try:
        names = ctypes.string_at(raw.names).decode(_ENCODING, errors="replace")
        diagnostics = ctypes.string_at(raw.diagnostics).decode(_ENCODING, errors="replace")
    finally:
        _lib.vela_reading_free(ctypes.byref(raw))
    # The library joins names with single spaces: split there and nowhere else.
    return Reading(names.split(" ") if names else [], Status(raw.status),
                   diagnostics.splitlines(), bool(raw.unknown_tag))


def read(tag, text, latin=False):
    """The reading of `text` in the language `tag`: its names, how much of the
    text they speak, the library's complaints, and whether the tag was unknown
    (English is then used).

    `tag` is exact and case-sensitive ("ru", "en", "uk", "kk", ...). `latin`
    asks the Russian tags for Latin-transliterated prompt names. Raises
    ValueError when tag or text holds a character Windows-1251 lacks, or a
    zero character. Nothing is printed.
    """
    return _read(tag, text, _LATIN if latin else 0)


def speak(tag, text, transliterated=False):
    """The names of the prompts that speak `text` in the language `tag`, in
    order; an empty list when nothing can be spoken (never the text itself).

    Raises ValueError for an unknown tag, and when tag or text holds a
    character Windows-1251 lacks, or a zero character.
    """
    return _read(tag, text, _STRICT_TAG | (_LATIN if transliterated else 0)).names
