"""`vela serve` over real sockets: framing, limits, timeouts, shutdown, load."""
import json
import os
import re
import shutil
import signal
import socket
import subprocess
import threading
import time

import pytest

from conftest import SANITIZED, wait_until

HEALTH = b"GET /healthz HTTP/1.1\r\nHost: x\r\n\r\n"
READ = b"GET /v1/read?lang=ru&text=21%D1%80%D1%83%D0%B1 HTTP/1.1\r\nHost: x\r\n\r\n"


def read_response(sock):
    """(status, headers, body), or None when the server closed first.
    Raises AssertionError when the connection ends inside a response."""
    data = b""
    while b"\r\n\r\n" not in data:
        chunk = sock.recv(65536)
        if not chunk:
            assert data == b"", "connection closed inside a response header: %r" % data[:200]
            return None
        data += chunk
    head, body = data.split(b"\r\n\r\n", 1)
    lines = head.decode("latin-1").split("\r\n")
    headers = {k.strip().lower(): v.strip() for k, v in (l.split(":", 1) for l in lines[1:])}
    while len(body) < int(headers.get("content-length", "0")):
        chunk = sock.recv(65536)
        assert chunk, "connection closed inside a response body"
        body += chunk
    return int(lines[0].split()[1]), headers, body


def connect(server, timeout=60):  # the first look at a language's prompts is slow under ASan
    return socket.create_connection(("127.0.0.1", server.port), timeout=timeout)


def exchange(server, raw=HEALTH):
    with connect(server) as sock:
        sock.sendall(raw)
        return read_response(sock)


def closed_by_peer(sock, within):
    sock.settimeout(within)
    try:
        return sock.recv(1) == b""
    except ConnectionResetError:
        return True
    except socket.timeout:
        return False


def test_answers_pipelined_requests_in_order(start_server):
    with connect(start_server()) as sock:  # a HEAD (headers only, with the GET's length), then a GET
        sock.sendall(HEALTH.replace(b"GET", b"HEAD") + HEALTH)
        data = b""
        while not data.endswith(b"}\n"):
            data += sock.recv(65536)
        head, rest = data.split(b"\r\n\r\n", 1)
        assert b"Content-Length: " in head and rest.startswith(b"HTTP/1.1 200")


MALFORMED = [
    ("oversized header", HEALTH[:-2] + b"X-Big: " + b"a" * 70000 + b"\r\n\r\n", 431),
    ("oversized body", HEALTH[:-2] + b"Content-Length: 100000\r\n\r\n", 413),
    ("unknown method", HEALTH.replace(b"GET", b"BREW"), 405),
    ("header without colon", HEALTH.replace(b"Host:", b"Host"), 400),
    ("NUL in the target", b"GET /v1/re\x00ad HTTP/1.1\r\nHost: x\r\n\r\n", 400),
]


@pytest.mark.parametrize("raw,status", [m[1:] for m in MALFORMED], ids=[m[0] for m in MALFORMED])
def test_malformed_requests_get_their_4xx(start_server, raw, status):
    server = start_server()
    answer = exchange(server, raw)
    assert answer is not None and answer[0] == status, answer
    if answer[1].get("content-type") == "application/json":
        assert "error" in json.loads(answer[2])
    assert exchange(server)[0] == 200  # and the server is still well


# Ways a recording URL could try to leave the voice folder (secret.txt lies beside it).
TRAVERSALS = ["/v1/recordings/ru/../secret.txt", "/v1/recordings/ru/..%2Fsecret.txt",
              "/v1/recordings/ru/%252e%252e%252fsecret.txt", "/v1/recordings/ru/..%5csecret.txt",
              "/v1/recordings/..%2F..%2Fetc/passwd", "/v1/recordings/ru/%00.wav",
              "/v1/recordings/ru/notes.wav",  # in the folder, but no prompt of the language
              "/v1/recordings/ru/%D0%B4%D0%B2%D0%B0.wav%00.txt", "/v1/recordings/ru/%"]


def test_no_path_leaves_the_voice_folder(start_server, voice_root):
    server = start_server("--voice", "ru=%s" % (voice_root / "ru"))
    for path in TRAVERSALS:
        answer = exchange(server, b"GET %s HTTP/1.1\r\nHost: x\r\n\r\n" % path.encode())
        assert answer is not None and answer[0] in (400, 404), (path, answer)
        assert b"not for the web" not in answer[2] and b"root:" not in answer[2], path


def test_slow_and_idle_clients_are_cut_off(start_server):
    server = start_server("--timeout", "1.5", "--idle-timeout", "1")
    with connect(server) as sock:
        started, sent = time.monotonic(), 0
        try:
            for byte in HEALTH:  # one byte every 0.25 s: 9 s for the whole request
                sock.sendall(bytes([byte]))
                sent += 1
                if closed_by_peer(sock, 0.25):
                    break
        except (BrokenPipeError, ConnectionResetError):
            pass
        assert sent < len(HEALTH) and 1.0 < time.monotonic() - started < 4.0
    with connect(server) as sock:
        sock.sendall(HEALTH)
        assert read_response(sock)[0] == 200
        assert closed_by_peer(sock, 3.0), "an idle keep-alive connection stayed open"


def test_connections_over_the_cap_get_503(start_server):
    server = start_server("--max-connections", "2")
    held = [connect(server) for _ in range(2)]
    for sock in held:  # each answered, so each is counted open
        sock.sendall(HEALTH)
        assert read_response(sock)[0] == 200
    assert exchange(server)[0] == 503
    for sock in held:
        sock.close()
    assert wait_until(lambda: exchange(server)[0] == 200, timeout=5)


def test_sigterm_finishes_the_request_in_flight(start_server):
    server = start_server()
    with connect(server) as idle, connect(server) as busy:
        idle.sendall(HEALTH)
        assert read_response(idle)[0] == 200
        busy.sendall(READ[:READ.index(b"Host")])  # half a request
        time.sleep(0.2)
        server.proc.send_signal(signal.SIGTERM)
        assert closed_by_peer(idle, 5.0), "the idle connection was not closed"
        busy.sendall(READ[READ.index(b"Host"):])
        status, headers, body = read_response(busy)
        assert status == 200 and headers["connection"] == "close"
        assert json.loads(body)["names"] == ["двадцать", "один", "рубль"]
        assert server.proc.wait(timeout=10) == 0


def client_loop(port, tally):
    """Keep-alive requests until the server stops listening; every answer that starts must end whole."""
    while True:
        try:
            with socket.create_connection(("127.0.0.1", port), timeout=10) as sock:
                answer = None
                while answer is None or answer[1].get("connection") != "close":
                    sock.sendall(READ)
                    answer = read_response(sock)
                    if answer is None:
                        break
                    tally.append(answer[0] if b'"names":["' in answer[2] else answer[2][:100])
        except AssertionError as torn:
            tally.append(str(torn))
        except OSError:  # refused, or closed between two requests: nothing was answered
            return


def test_sigterm_under_load_loses_no_answered_request(start_server):
    server = start_server()
    tally = []
    clients = [threading.Thread(target=client_loop, args=(server.port, tally)) for _ in range(16)]
    for client in clients:
        client.start()
    time.sleep(1.0)
    server.proc.send_signal(signal.SIGTERM)
    assert server.proc.wait(timeout=20) == 0
    for client in clients:
        client.join(timeout=20)
    assert len(tally) > 100 and set(tally) == {200}, [t for t in tally if t != 200][:5]


@pytest.mark.skipif(shutil.which("wrk") is None, reason="wrk is installed by scripts/setup.sh")
def test_load_without_errors_and_steady_memory(start_server):
    """256 connections for VELA_LOAD_SECONDS (default 5), twice: no error, no
    non-2xx answer, and memory after the second run close to the first."""
    server = start_server()
    rss = []
    for _ in range(2):
        out = subprocess.run(["wrk", "-t2", "-c256", "-d%ss" % os.environ.get("VELA_LOAD_SECONDS", "5"),
                              "--timeout", "10s", server.url("/v1/read?lang=ru&text=12.50%D1%80%D1%83%D0%B1")],
                             check=True, capture_output=True, text=True).stdout
        assert int(re.search(r"(\d+) requests in", out).group(1)) > 0, out
        assert "Socket errors" not in out and "Non-2xx" not in out, out
        rss.append(int(re.search(r"VmRSS:\s+(\d+)", open("/proc/%d/status" % server.proc.pid).read()).group(1)))
    if not SANITIZED:  # ASan holds freed memory back in its quarantine on purpose
        assert rss[1] - rss[0] < 8 * 1024 + rss[0] // 10, rss
