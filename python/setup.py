"""The package's version is the library's, set once in include/vela/vela.h."""

import pathlib
import re

from setuptools import setup

HEADER = pathlib.Path(__file__).resolve().parent.parent / "include" / "vela" / "vela.h"


def version():
    text = HEADER.read_text(encoding="utf-8")
    return ".".join(re.search(rf"^#define VELA_VERSION_{part} +(\d+)", text, re.M).group(1)
                    for part in ("MAJOR", "MINOR", "PATCH"))


setup(version=version())
