"""Quillet's library from Python: the structures of quillet.h and one call."""

import ctypes
from collections import namedtuple

SEVERITIES = ("note", "warning", "refusal", "error")

Translation = namedtuple("Translation", "code text says")
Diagnostic = namedtuple("Diagnostic", "severity id")


class _Diagnostic(ctypes.Structure):
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


class _Translation(ctypes.Structure):
    _fields_ = [
        ("code", ctypes.c_int32),
        ("text", ctypes.c_char_p),
        ("text_length", ctypes.c_size_t),
        ("diagnostic_count", ctypes.c_size_t),
        ("diagnostics", ctypes.POINTER(_Diagnostic)),
    ]


class Library:
    def __init__(self, path):
        self._library = ctypes.CDLL(path)
        self._library.quillet_translate.restype = ctypes.POINTER(_Translation)
        self._library.quillet_translate.argtypes = [
            ctypes.c_char_p,
            ctypes.c_size_t,
            ctypes.c_int,
            ctypes.c_void_p,
        ]
        self._library.quillet_translation_free.argtypes = [ctypes.POINTER(_Translation)]
        self._library.quillet_translation_free.restype = None
        self._library.quillet_init()

    def translate(self, statement, builder):
        """The text (None without one), the code, and what is said of the statement, each once."""
        written = statement.encode()
        builder_id = self._library.quillet_get_builder_id(builder.encode())
        made = self._library.quillet_translate(written, len(written), builder_id, None)
        try:
            record = made.contents
            text = record.text.decode() if record.text is not None else None
            says = [record.diagnostics[i] for i in range(record.diagnostic_count)]
            said = {Diagnostic(SEVERITIES[d.severity], d.id.decode()) for d in says}
            return Translation(record.code, text, sorted(said))
        finally:
            self._library.quillet_translation_free(made)
