"""The Asterisk AGI recipe against recorded AGI conversations: what Asterisk
sends on the script's standard input, and exactly what the script must write
on its standard output (AGI commands and nothing else)."""
import fnmatch
import importlib.util
import os
import subprocess
import sys

import pytest

from conftest import VELA

ROOT = os.path.abspath(os.path.join(os.path.dirname(__file__), "..", ".."))
SCRIPT = os.path.join(ROOT, "recipes", "asterisk", "vela-agi.py")
ENV = "agi_request: vela-agi.py\nagi_channel: PJSIP/100-00000001\nagi_language: %s\n%s\n"
OK = "200 result=0\n"


def play(*names):
    return ['STREAM FILE vela/%s "0123456789[*]#"' % name for name in names]


# text and tag as the dialplan passes them, the channel's language, Asterisk's
# answers, and the commands the script must send (as fnmatch patterns).
SPOKEN = "SET VARIABLE VELA_STATUS spoken"
CONVERSATIONS = [
    ("spoken", "agi_arg_1: 21руб\nagi_arg_2: ru\n", "en", [OK] * 4, [SPOKEN] + play("двадцать", "один", "рубль")),
    ("tag from the channel", "agi_arg_1: 2\n", "en", [OK] * 2, [SPOKEN] + play("two")),
    ("a key stops it", "agi_arg_1: 21руб\n", "ru", [OK, OK, "200 result=50 endpos=1200\n"],
     [SPOKEN] + play("двадцать", "один")),
    ("hung up", "agi_arg_1: 21руб\n", "ru", [OK, "HANGUP\n"], [SPOKEN] + play("двадцать")),
    ("complaint, nothing played", "agi_arg_1: 25:70\n", "ru", [OK] * 2,
     ['VERBOSE "vela: wrong time (hours) 25" 3', "SET VARIABLE VELA_STATUS not_spoken"]),
    ("partly spoken plays nothing", "agi_arg_1: -5xyz\n", "ru", [OK], ["SET VARIABLE VELA_STATUS partly_spoken"]),
    ("text outside the code page", "agi_arg_1: 中\n", "ru", [OK] * 2,
     ['VERBOSE "vela: *" 1', "SET VARIABLE VELA_STATUS error"]),
]


@pytest.mark.parametrize("args,language,answers,commands", [c[1:] for c in CONVERSATIONS],
                         ids=[c[0] for c in CONVERSATIONS])
def test_agi_conversation(args, language, answers, commands):
    env = dict(os.environ, PYTHONPATH=os.path.join(ROOT, "python"))
    run = subprocess.run([sys.executable, SCRIPT], input=ENV % (language, args) + "".join(answers),
                         capture_output=True, text=True, env=env, timeout=60)
    assert run.returncode == 0, run.stderr
    sent = run.stdout.split("\n")  # each command ends its line
    assert len(sent) - 1 == len(commands) and all(map(fnmatch.fnmatchcase, sent, commands)), run.stdout


def test_file_names_agree_with_the_voice_folders():
    """The script names files as `vela prompts --files` does, for every prompt."""
    found = importlib.util.spec_from_file_location("vela_agi", SCRIPT)
    script = importlib.util.module_from_spec(found)
    sys.path.insert(0, os.path.join(ROOT, "python"))
    found.loader.exec_module(script)
    for tag in ["ru", "en", "hy"]:
        for line in subprocess.check_output([VELA, "prompts", "-l", tag, "--files"], text=True).splitlines():
            name, file = line.split("\t")
            assert script.file_stem(name) + ".wav" == file, tag
