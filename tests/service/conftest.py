"""Starts `vela serve` on a free loopback port for the HTTP and browser tests.

VELA_TOOL names the built `vela`; VELA_SANITIZED=1 says it runs under ASan +
UBSan (slower; memory is then held back by the sanitizer on purpose).
"""
import os
import shutil
import signal
import subprocess
import threading
import time

import pytest

VELA = os.environ.get("VELA_TOOL", "build/vela")
SANITIZED = os.environ.get("VELA_SANITIZED") == "1"

# The prompts the tests speak, and a text that needs each.
VOICE_PROMPTS = {"ru": ["двадцать", "один", "рубль", "рубля", "два"], "en": ["one", "two"]}
ESPEAK_VOICE = {"ru": "ru", "en": "en"}


class Server:
    def __init__(self, *args):
        self.proc = subprocess.Popen(
            [VELA, "serve", "--listen", "127.0.0.1:0", *args],
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        first = self.proc.stderr.readline().decode()
        if "listening on" not in first:
            self.proc.kill()
            raise RuntimeError("vela serve did not start: " + first + self.proc.stderr.read().decode())
        self.port = int(first.rsplit(":", 1)[1])
        self.stderr = []
        threading.Thread(target=self._drain, daemon=True).start()

    def _drain(self):
        for line in self.proc.stderr:
            self.stderr.append(line.decode(errors="replace"))

    def url(self, path):
        return "http://127.0.0.1:%d%s" % (self.port, path)

    def stop(self, timeout=30):
        """SIGTERM; the exit status (0 expected, and no sanitizer report)."""
        if self.proc.poll() is None:
            self.proc.send_signal(signal.SIGTERM)
        try:
            self.proc.wait(timeout=timeout)
        except subprocess.TimeoutExpired:
            self.proc.kill()
            self.proc.wait()
            raise AssertionError("vela serve did not stop within %d s of SIGTERM" % timeout)
        return self.proc.returncode

    def rss_kb(self):
        with open("/proc/%d/status" % self.proc.pid) as status:
            for line in status:
                if line.startswith("VmRSS:"):
                    return int(line.split()[1])
        return 0


@pytest.fixture
def start_server():
    """start_server(*args) -> Server; every server is stopped and must exit 0."""
    servers = []

    def start(*args):
        server = Server(*args)
        servers.append(server)
        return server

    yield start
    for server in servers:
        code = server.stop()
        assert code == 0, "exit %s\n%s" % (code, "".join(server.stderr[-40:]))


def write_voice(folder, lang, names):
    """One espeak-ng recording per prompt name, named as voice folders name them."""
    os.makedirs(folder, exist_ok=True)
    for name in names:
        path = os.path.join(folder, name + ".wav")
        subprocess.run(["espeak-ng", "-v", ESPEAK_VOICE[lang], "-s", "220", "-w", path, name],
                       check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


@pytest.fixture(scope="session")
def voice_root(tmp_path_factory):
    """A small voice per language; beside the voice folders, a file no URL may reach."""
    if shutil.which("espeak-ng") is None:
        pytest.fail("espeak-ng is needed (scripts/setup.sh installs it)")
    root = tmp_path_factory.mktemp("voices")
    for lang, names in VOICE_PROMPTS.items():
        write_voice(str(root / lang), lang, names)
    (root / "secret.txt").write_text("not for the web\n")
    (root / "ru" / "notes.wav").write_bytes((root / "ru" / "два.wav").read_bytes())
    return root


def wait_until(predicate, timeout=10.0, step=0.05):
    deadline = time.monotonic() + timeout
    while time.monotonic() < deadline:
        if predicate():
            return True
        time.sleep(step)
    return False
