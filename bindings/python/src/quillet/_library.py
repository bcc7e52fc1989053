"""The shared library: which one it is, its structures and its calls."""

import ctypes
import os
from pathlib import Path

FILE_NAME = "libquillet.so.1"
VARIABLE = "QUILLET_LIBRARY"


class DiagnosticRecord(ctypes.Structure):
    _fields_ = [
        ("severity", ctypes.c_int32),
        ("code", ctypes.c_int32),
        ("id", ctypes.c_char_p),
        ("message", ctypes.c_char_p),
        ("hint", ctypes.c_char_p),
        ("offset", ctypes.c_size_t),
        ("length", ctypes.c_size_t),
        ("line", ctypes.c_int32),
        ("column", ctypes.c_int32),
    ]


class TranslationRecord(ctypes.Structure):
    _fields_ = [
        ("code", ctypes.c_int32),
        ("text", ctypes.c_char_p),
        ("text_length", ctypes.c_size_t),
        ("diagnostic_count", ctypes.c_size_t),
        ("diagnostics", ctypes.POINTER(DiagnosticRecord)),
    ]


class OptionsRecord(ctypes.Structure):
    _fields_ = [
        ("size", ctypes.c_size_t),
        ("text_limit", ctypes.c_size_t),
        ("tree_limit", ctypes.c_size_t),
        ("least_severity", ctypes.c_int32),
    ]


class BuilderRecord(ctypes.Structure):
    _fields_ = [("name", ctypes.c_char_p)]  # and more, which nobody here looks at


def _path() -> str:
    """The library that the user names, the one that a wheel carries, or the system's."""
    carried = Path(__file__).with_name(FILE_NAME)
    return os.environ.get(VARIABLE) or (str(carried) if carried.exists() else FILE_NAME)


def _declare(library: ctypes.CDLL) -> None:
    library.quillet_translate.restype = ctypes.POINTER(TranslationRecord)
    library.quillet_translate.argtypes = [
        ctypes.c_char_p,
        ctypes.c_size_t,
        ctypes.c_int,
        ctypes.POINTER(OptionsRecord),
    ]
    library.quillet_translation_free.restype = None
    library.quillet_translation_free.argtypes = [ctypes.POINTER(TranslationRecord)]
    library.quillet_init.restype = None
    library.quillet_get_builder_info.restype = ctypes.POINTER(BuilderRecord)
    library.quillet_get_builder_info.argtypes = [ctypes.c_int]


def _load() -> ctypes.CDLL:
    path = _path()
    try:
        library = ctypes.CDLL(path)
        _declare(library)
    except (OSError, AttributeError) as reason:
        raise ImportError(
            f"Quillet's shared library {path} cannot be used: {reason}. Install the package "
            f"libquillet1, or set {VARIABLE} to the path of {FILE_NAME}.",
            name="quillet",
            path=path,
        ) from reason
    library.quillet_init()
    return library


library = _load()
translate = library.quillet_translate
free = library.quillet_translation_free


def builder_names() -> list[str]:
    """The names by the ids."""
    records = map(library.quillet_get_builder_info, range(library.quillet_get_builder_count()))
    return [record.contents.name.decode() for record in records]
