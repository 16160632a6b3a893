"""The Python module, run against the library built next to it (VELA_LIBRARY)."""

import os
import subprocess
import sys

import pytest

import vela


@pytest.mark.parametrize(
    "tag, text, transliterated, names",
    [
        ("ru", "21руб", False, ["двадцать", "один", "рубль"]),
        ("ru", "12.50rub", True, ["dvenadcat", "rublei", "pyatdesyat", "kopeek"]),
        ("RUSSIAN", "21", True, ["dvadcat", "odin"]),
        ("en", "1.05usd", False, ["one", "dollar", "and", "five", "cents"]),
        ("en", "1.05usd", True, ["one", "dollar", "and", "five", "cents"]),  # only Russian has two modes
        ("uk", "2", False, ["dva"]),
        ("xx", "5", False, ["five"]),  # an unknown tag speaks English
        ("ru", "  ab  ", False, ["ab"]),  # not a token: the text comes back
        ("ru", "", False, []),
        ("ru", "ё", False, ["ё"]),  # in the code page, though no token
    ],
)
def test_speak(tag, text, transliterated, names):
    assert vela.speak(tag, text, transliterated=transliterated) == names


@pytest.mark.parametrize(
    "tag, text",
    [("ru", "漢"), ("ru", "21₽"), ("日本", "5"), ("ru", "a\0b")],
)
def test_characters_the_code_page_lacks_are_value_errors(tag, text):
    with pytest.raises(ValueError):
        vela.speak(tag, text)


def test_text_must_be_str():
    with pytest.raises(TypeError):
        vela.speak("ru", b"21")


def test_loads_the_library_named_by_the_environment():
    assert os.path.samefile(vela.library_path, os.environ["VELA_LIBRARY"])
    # Without the variable, a fresh interpreter still finds the build tree's library.
    tree_library = os.path.join(os.path.dirname(vela.__file__), "..", "..", "build", "libvela.so")
    if not os.path.exists(tree_library):
        pytest.skip("no build/ directory beside the sources")
    env = {k: v for k, v in os.environ.items() if k != "VELA_LIBRARY"}
    out = subprocess.run(
        [sys.executable, "-c", "import vela; print(vela.speak('ru', '5'))"],
        env=env, capture_output=True, text=True, check=False)
    assert out.returncode == 0 and out.stdout.strip() == "['пять']", out.stderr
