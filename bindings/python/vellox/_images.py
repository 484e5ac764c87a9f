"""Images of other libraries, such as the figures of matplotlib, as the bytes of a file. The module vellox.ppt calls this."""
from __future__ import annotations

import io
from typing import Any


def read_image(source: Any) -> bytes | None:
    """The bytes of an image that is held or can be made; None for what is no image."""
    if isinstance(source, (bytes, bytearray, memoryview)):
        return bytes(source)
    if hasattr(source, "__fspath__"):
        return None
    if hasattr(source, "savefig"):
        return _save(source.savefig, format="png")
    if isinstance(source, io.BytesIO):
        return source.getvalue()
    if hasattr(source, "read"):
        return _demand_bytes(source.read())
    if hasattr(source, "_repr_png_"):
        return _demand_bytes(source._repr_png_())
    if hasattr(source, "save"):
        return _save(source.save, format="PNG")
    return None


def _save(save: Any, **options: str) -> bytes:
    stream = io.BytesIO()
    save(stream, **options)
    return stream.getvalue()


def _demand_bytes(image: Any) -> bytes:
    if not isinstance(image, (bytes, bytearray, memoryview)):
        raise TypeError(f"an image is bytes, not {type(image).__name__}")
    return bytes(image)
