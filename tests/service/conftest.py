"""Starts `vela serve` on a free loopback port for the HTTP and browser tests.
VELA_TOOL names the built `vela`; VELA_SANITIZED=1 says it runs under ASan + UBSan."""
import os
import shutil
import signal
import subprocess
import threading
import time

import pytest

VELA = os.environ.get("VELA_TOOL", "build/vela")
SANITIZED = os.environ.get("VELA_SANITIZED") == "1"


class Server:
    def __init__(self, *args):
        self.proc = subprocess.Popen([VELA, "serve", "--listen", "127.0.0.1:0", *args],
                                     stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
        first = self.proc.stderr.readline().decode()
        if "listening on" not in first:
            self.proc.kill()
            raise RuntimeError("vela serve did not start: " + first + self.proc.stderr.read().decode())
        self.port = int(first.rsplit(":", 1)[1])
        self.stderr = []
        threading.Thread(target=lambda: self.stderr.extend(l.decode(errors="replace") for l in self.proc.stderr),
                         daemon=True).start()

    def url(self, path):
        return "http://127.0.0.1:%d%s" % (self.port, path)


@pytest.fixture
def start_server():
    """start_server(*args) -> Server; at the end each gets SIGTERM and must exit 0 within 30 s."""
    servers = []

    def start(*args):
        servers.append(Server(*args))
        return servers[-1]

    yield start
    for server in servers:
        server.proc.send_signal(signal.SIGTERM)  # unless it has ended
        try:
            code = server.proc.wait(timeout=30)
        except subprocess.TimeoutExpired:
            server.proc.kill()
            code = "none: still running 30 s after SIGTERM"
        assert code == 0, "exit %s\n%s" % (code, "".join(server.stderr[-40:]))


@pytest.fixture(scope="session")
def voice_root(tmp_path_factory):
    """A Russian espeak-ng voice in root/ru; beside it, a file no URL may reach."""
    if shutil.which("espeak-ng") is None:
        pytest.fail("espeak-ng is needed (scripts/setup.sh installs it)")
    root = tmp_path_factory.mktemp("voices")
    os.makedirs(root / "ru")
    for name in ["двадцать", "один", "рубль", "два"]:  # 21руб and 2
        subprocess.run(["espeak-ng", "-v", "ru", "-s", "220", "-w", str(root / "ru" / (name + ".wav")), name],
                       check=True, capture_output=True)
    (root / "secret.txt").write_text("not for the web\n")
    (root / "ru" / "notes.wav").write_bytes((root / "ru" / "два.wav").read_bytes())
    return root


@pytest.fixture
def voice(tmp_path, voice_root):
    """A private copy of the Russian test voice, free to change, with secret.txt beside it."""
    shutil.copytree(voice_root, tmp_path / "voices")
    return tmp_path / "voices" / "ru"


def wait_until(predicate, timeout=10.0):
    deadline = time.monotonic() + timeout
    while time.monotonic() < deadline:
        if predicate():
            return True
        time.sleep(0.05)
    return False
