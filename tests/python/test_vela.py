"""The Python module, run against the library built next to it (VELA_LIBRARY)."""

import os
import re
import subprocess
import sys

import pytest

import vela

HEADER = os.path.join(os.path.dirname(__file__), "..", "..", "include", "vela", "vela.h")


@pytest.mark.parametrize("tag, text, transliterated, names", [
    ("ru", "21руб", False, ["двадцать", "один", "рубль"]),
    ("ru", "12.50rub", True, ["dvenadcat", "rublei", "pyatdesyat", "kopeek"]),
    ("en", "1.05usd", True, ["one", "dollar", "and", "five", "cents"]),  # only Russian has two modes
    ("ru", "  ab  ", False, []),  # no rule takes it: nothing, never the text
    ("ru", "a.wav\tb.wav", False, ["a.wav\tb.wav"]),  # file names pass through, split only at spaces
])
def test_speak(tag, text, transliterated, names):
    assert vela.speak(tag, text, transliterated=transliterated) == names


@pytest.mark.parametrize("tag, text, latin, names, status, diagnostics, unknown_tag", [
    ("ru", "1.234", False, ["одна", "целая", "двадцать", "три", "сотых"], vela.Status.PARTLY_SPOKEN, [], False),
    ("ru", "7:75", False, [], vela.Status.NOT_SPOKEN, ["wrong time (minutes) 7"], False),
    ("xx", "5", False, ["five"], vela.Status.SPOKEN, [], True),
    ("ru", "5", True, ["pyat"], vela.Status.SPOKEN, [], False),
])
def test_read(tag, text, latin, names, status, diagnostics, unknown_tag, capfd):
    assert vela.read(tag, text, latin=latin) == vela.Reading(names, status, diagnostics, unknown_tag)
    assert capfd.readouterr() == ("", "")  # complaints stay in the reading


@pytest.mark.parametrize("tag, text, error", [
    ("ru", "漢", ValueError), ("ru", "21₽", ValueError), ("日本", "5", ValueError), ("ru", "a\0b", ValueError),
    ("xx", "5", ValueError), ("ru", b"21", TypeError)])
def test_bad_tags_and_texts_are_refused(tag, text, error):
    with pytest.raises(error):
        vela.speak(tag, text)


def test_version_is_the_headers():
    macros = dict(re.findall(r"#define VELA_VERSION_(MAJOR|MINOR|PATCH) (\d+)", open(HEADER).read()))
    assert vela.__version__ == "{MAJOR}.{MINOR}.{PATCH}".format(**macros)


def test_loads_the_library_named_by_the_environment():
    assert os.path.samefile(vela.library_path, os.environ["VELA_LIBRARY"])
    # Without the variable, a fresh interpreter still finds the build tree's library.
    tree_library = os.path.join(os.path.dirname(vela.__file__), "..", "..", "build", "libvela.so")
    if not os.path.exists(tree_library):
        pytest.skip("no build/ directory beside the sources")
    out = subprocess.run([sys.executable, "-c", "import vela; print(vela.speak('ru', '5'))"], capture_output=True,
                         env={k: v for k, v in os.environ.items() if k != "VELA_LIBRARY"}, text=True, check=False)
    assert (out.returncode, out.stdout) == (0, "['пять']\n"), out.stderr
