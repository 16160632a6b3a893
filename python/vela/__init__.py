"""vela from Python: the prompt names that speak a short text.

    >>> import vela
    >>> vela.speak("ru", "21руб")
    ['двадцать', 'один', 'рубль']

Standard library only (ctypes). Texts and names are str; they travel to and
from the library as Windows-1251. The library is found at $VELA_LIBRARY, then
where `cmake --install` put it beside this package, then in a build tree next
to this source tree (build/libvela.so), then by the dynamic loader.
"""

import ctypes
import ctypes.util
import os

__all__ = ["speak", "library_path"]

_ENCODING = "cp1251"
_JNI_ENTRY = "Java_com_talvik_ostra_macrosynthesis_vela_VelaMacroSynthesis_getSpaceDelimitedFilesWindows1251Encoded"


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
_lib.decodeBuffer.argtypes = [ctypes.c_char_p, ctypes.c_char_p, ctypes.POINTER(ctypes.c_void_p)]
_lib.decodeBuffer.restype = ctypes.c_int
_lib.decodeReleaseBuffer.argtypes = [ctypes.c_void_p]
_lib.decodeReleaseBuffer.restype = None


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


def _names(answer):
    return answer.decode(_ENCODING, errors="replace").split()


def _decode_cyrillic(tag, text):
    out = ctypes.c_void_p()
    if _lib.decodeBuffer(tag, text, ctypes.byref(out)) != 0:
        raise MemoryError("vela: out of memory")
    try:
        return ctypes.string_at(out.value)
    finally:
        _lib.decodeReleaseBuffer(out)


class _ByteArrays:
    """The few byte-array functions of a JNI environment that the library's
    Java entry uses, over Python byte strings: it lets this module ask for the
    transliterated Russian names, which only that entry offers."""

    # Positions in the JNI function table.
    GET_ARRAY_LENGTH, NEW_BYTE_ARRAY, GET_ELEMENTS, RELEASE_ELEMENTS, SET_REGION = 171, 176, 184, 192, 208
    TABLE_SIZE = 234

    def __init__(self):
        self.arrays = {}
        p, i32 = ctypes.c_void_p, ctypes.c_int32
        self.callbacks = {
            self.GET_ARRAY_LENGTH: ctypes.CFUNCTYPE(i32, p, p)(lambda env, a: len(self.arrays[a]) - 1),
            self.NEW_BYTE_ARRAY: ctypes.CFUNCTYPE(p, p, i32)(self._new),
            self.GET_ELEMENTS: ctypes.CFUNCTYPE(p, p, p, p)(lambda env, a, copy: ctypes.addressof(self.arrays[a])),
            self.RELEASE_ELEMENTS: ctypes.CFUNCTYPE(None, p, p, p, i32)(lambda env, a, e, mode: None),
            self.SET_REGION: ctypes.CFUNCTYPE(None, p, p, i32, i32, p)(self._set),
        }
        self.table = (ctypes.c_void_p * self.TABLE_SIZE)()
        for index, callback in self.callbacks.items():
            self.table[index] = ctypes.cast(callback, ctypes.c_void_p)
        self.env = ctypes.c_void_p(ctypes.addressof(self.table))

    def add(self, data):
        handle = len(self.arrays) + 1
        self.arrays[handle] = ctypes.create_string_buffer(data, len(data) + 1)
        return handle

    def _new(self, env, length):
        return self.add(bytes(length))

    def _set(self, env, a, start, length, source):
        ctypes.memmove(ctypes.addressof(self.arrays[a]) + start, source, length)

    def value(self, handle):
        return self.arrays[handle].raw[:-1]


_java_entry = getattr(_lib, _JNI_ENTRY)
_java_entry.argtypes = [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_void_p, ctypes.c_void_p, ctypes.c_uint8]
_java_entry.restype = ctypes.c_void_p


def _decode_transliterated(tag, text):
    arrays = _ByteArrays()
    handle = _java_entry(ctypes.byref(arrays.env), None, arrays.add(text), arrays.add(tag), 1)
    if not handle:
        raise MemoryError("vela: out of memory")
    return arrays.value(handle)


def speak(tag, text, transliterated=False):
    """The names of the prompts that speak `text` in the language `tag`.

    `tag` is exact and case-sensitive ("ru", "en", "uk", "kk", ...); an unknown
    tag is spoken in English. `transliterated` asks the Russian tags for Latin
    prompt names. A text the library cannot speak comes back as it is, split at
    spaces, as from the C function decodeBuffer. Raises ValueError when tag or
    text holds a character Windows-1251 lacks, or a zero character.
    """
    tag_bytes, text_bytes = _encode("tag", tag), _encode("text", text)
    if transliterated:
        return _names(_decode_transliterated(tag_bytes, text_bytes))
    return _names(_decode_cyrillic(tag_bytes, text_bytes))
