#!/usr/bin/env python3
"""Asterisk AGI: speaks one text with vela's prompts from the sounds folder.

    exten => 100,1,Answer()
     same => n,AGI(vela-agi.py,12.50руб,ru)      ; text, then the tag (default: the channel's language)
     same => n,Verbose(1,vela: ${VELA_STATUS})

The prompts are those `vela voice export --layout asterisk` writes
(sounds/<lang>/vela/NAME.wav ...). Each is played with STREAM FILE, so a key
the caller presses stops the reading. A text that is not fully spoken plays
nothing; VELA_STATUS says why (spoken, partly_spoken, not_spoken, file_names,
error) and the complaints go to the Asterisk log through VERBOSE.

Standard output is the AGI channel: this script writes nothing there but AGI
commands, one a line, and reads one answer line for each. vela.read keeps the
library's complaints off standard output.
"""
import sys

import vela

# Bytes a file system dislikes are written as %XX of their Windows-1251 value,
# as voice folders and the export name recordings.
_DISLIKED = set(range(0x20)) | {0x7F, 0x98} | set(b'/\\:*?"<>|%')


def file_stem(name):
    """The file name of a prompt, without extension."""
    stem = []
    for i, byte in enumerate(name.encode("cp1251", errors="strict")):
        if byte in _DISLIKED or (i == 0 and byte == ord(".")):
            stem.append("%%%02X" % byte)
        else:
            stem.append(bytes([byte]).decode("cp1251"))
    return "".join(stem)


class Agi:
    def __init__(self, stdin, stdout):
        self.stdin, self.stdout = stdin, stdout
        self.env = {}
        for line in stdin:
            line = line.rstrip("\n")
            if not line:
                break
            key, _, value = line.partition(":")
            self.env[key.strip()] = value.strip()

    def command(self, text):
        """Sends one command; the result code of its answer (None when Asterisk hung up)."""
        self.stdout.write(text + "\n")
        self.stdout.flush()
        answer = self.stdin.readline()
        if not answer.startswith("200"):
            return None
        for word in answer.split():
            if word.startswith("result="):
                return int(word[len("result="):])
        return 0


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def main():
    agi = Agi(sys.stdin, sys.stdout)
    text = agi.env.get("agi_arg_1", "")
    tag = agi.env.get("agi_arg_2") or agi.env.get("agi_language") or "ru"
    try:
        reading = vela.read(tag, text)
    except (ValueError, UnicodeError) as error:
        agi.command("VERBOSE %s 1" % quoted("vela: %s" % error))
        agi.command("SET VARIABLE VELA_STATUS error")
        return 0
    for complaint in reading.diagnostics:
        agi.command("VERBOSE %s 3" % quoted("vela: " + complaint))
    status = reading.status.name.lower()
    agi.command("SET VARIABLE VELA_STATUS %s" % status)
    if status != "spoken":
        return 0
    for name in reading.names:
        result = agi.command('STREAM FILE vela/%s "0123456789*#"' % file_stem(name))
        if result is None or result != 0:  # hung up, or a key stopped the reading
            break
    return 0


if __name__ == "__main__":
    sys.exit(main())
