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
import urllib.parse

import pytest

from conftest import SANITIZED, wait_until


def read_response(sock):
    """(status, headers, body) of one response, or None when the server closed first.
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
    status = int(lines[0].split()[1])
    headers = {k.strip().lower(): v.strip() for k, v in (l.split(":", 1) for l in lines[1:])}
    length = int(headers.get("content-length", "0"))
    while len(body) < length:
        chunk = sock.recv(65536)
        assert chunk, "connection closed after %d of %d body bytes" % (len(body), length)
        body += chunk
    return status, headers, body


def exchange(server, raw, timeout=60):  # the first look at a language's prompts takes a while under ASan
    with socket.create_connection(("127.0.0.1", server.port), timeout=timeout) as sock:
        sock.sendall(raw)
        return read_response(sock)


def get(server, path, headers=None, method="GET"):
    lines = ["%s %s HTTP/1.1" % (method, path), "Host: 127.0.0.1"]
    lines += ["%s: %s" % kv for kv in (headers or {}).items()]
    return exchange(server, ("\r\n".join(lines) + "\r\n\r\n").encode())


def closed_by_peer(sock, within):
    """True when the server closes the connection within `within` seconds."""
    sock.settimeout(within)
    try:
        return sock.recv(1) == b""
    except ConnectionResetError:
        return True
    except socket.timeout:
        return False


def test_keeps_connections_alive_and_answers_head(start_server):
    server = start_server()
    with socket.create_connection(("127.0.0.1", server.port), timeout=10) as sock:
        for text, names in (("21руб", ["двадцать", "один", "рубль"]), ("2", ["два"])):
            target = "/v1/read?" + urllib.parse.urlencode({"lang": "ru", "text": text})
            sock.sendall(("GET %s HTTP/1.1\r\nHost: x\r\n\r\n" % target).encode())
            status, headers, body = read_response(sock)
            assert status == 200 and headers["content-type"] == "application/json"
            assert json.loads(body)["names"] == names
        # Pipelined: a HEAD (headers only, with the GET's length), then a GET.
        sock.sendall(b"HEAD /healthz HTTP/1.1\r\nHost: x\r\n\r\nGET /healthz HTTP/1.1\r\nHost: x\r\n\r\n")
        data = b""
        while not data.endswith(b"}\n"):
            data += sock.recv(65536)
        head, rest = data.split(b"\r\n\r\n", 1)
        assert b"Content-Length: " in head and rest.startswith(b"HTTP/1.1 200")


# Requests the server must refuse, each with the status it owes.
MALFORMED = [
    ("oversized header", b"GET /healthz HTTP/1.1\r\nHost: x\r\nX-Big: " + b"a" * 70000 + b"\r\n\r\n", 431),
    ("oversized target", b"GET /v1/read?text=" + b"1" * 70000 + b" HTTP/1.1\r\nHost: x\r\n\r\n", 431),
    ("oversized body", b"GET /healthz HTTP/1.1\r\nHost: x\r\nContent-Length: 100000\r\n\r\n", 413),
    ("unknown method", b"BREW /healthz HTTP/1.1\r\nHost: x\r\n\r\n", 405),
    ("method not a token", b"G(T /healthz HTTP/1.1\r\nHost: x\r\n\r\n", 400),
    ("NUL in the target", b"GET /v1/re\x00ad HTTP/1.1\r\nHost: x\r\n\r\n", 400),
    ("not HTTP", b"GET /healthz FTP/1.0\r\n\r\n", 400),
    ("header without colon", b"GET /healthz HTTP/1.1\r\nHost x\r\n\r\n", 400),
    ("bad chunk size", b"GET /healthz HTTP/1.1\r\nHost: x\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\n", 400),
    ("absolute-form target", b"GET http://evil/healthz HTTP/1.1\r\nHost: x\r\n\r\n", 400),
]


@pytest.mark.parametrize("raw,status", [m[1:] for m in MALFORMED], ids=[m[0] for m in MALFORMED])
def test_malformed_requests_get_their_4xx(start_server, raw, status):
    server = start_server()
    answer = exchange(server, raw)
    assert answer is not None and answer[0] == status, answer
    if answer[1].get("content-type") == "application/json":
        assert "error" in json.loads(answer[2])
    assert get(server, "/healthz")[0] == 200  # and the server is still well


def test_truncated_request_is_dropped_and_the_server_goes_on(start_server):
    server = start_server("--timeout", "1")
    with socket.create_connection(("127.0.0.1", server.port), timeout=10) as sock:
        sock.sendall(b"GET /v1/read?lang=ru&text=1 HTTP/1.1\r\nHost: x\r\n")  # no blank line
        sock.shutdown(socket.SHUT_WR)
        assert read_response(sock) is None
    assert get(server, "/healthz")[0] == 200


# Every way a recording URL could try to leave the voice folder: each is 404
# (or 400 for bad encoding) and never shows a byte of what lies outside.
TRAVERSALS = [
    "/v1/recordings/ru/../secret.txt",
    "/v1/recordings/ru/..%2Fsecret.txt",
    "/v1/recordings/ru/%2e%2e%2fsecret.txt",
    "/v1/recordings/ru/%2E%2E/secret.txt",
    "/v1/recordings/ru/.%2e/.%2e/secret.txt",
    "/v1/recordings/ru/%252e%252e%252fsecret.txt",
    "/v1/recordings/ru/..%5csecret.txt",
    "/v1/recordings/ru/%c0%ae%c0%ae%c0%afsecret.txt",
    "/v1/recordings/ru/%00.wav",
    "/v1/recordings/ru/%2Fetc%2Fpasswd",
    "/v1/recordings/ru//etc/passwd",
    "/v1/recordings/..%2F..%2Fetc/passwd",
    "/v1/recordings/%2e%2e/secret.txt",
    "/v1/recordings/ru/secret",
    "/v1/recordings/ru/notes.wav",            # a file in the folder, but no prompt of the language
    "/v1/recordings/ru/%2E%2E.wav",
    "/v1/recordings/ru/%D0%B4%D0%B2%D0%B0",   # a prompt without an extension
    "/v1/recordings/ru/%D0%B4%D0%B2%D0%B0.wav%00.txt",
    "/../../etc/passwd",
    "/v1/recordings/ru/%",
]


def test_no_path_leaves_the_voice_folder(start_server, voice_root):
    server = start_server("--voice", "ru=%s" % (voice_root / "ru"))
    for path in TRAVERSALS:
        answer = get(server, path)
        assert answer is not None and answer[0] in (400, 404), (path, answer)
        assert b"not for the web" not in answer[2] and b"root:" not in answer[2], path
        assert answer[1]["content-type"] == "application/json", path


def test_slow_and_idle_clients_are_cut_off(start_server):
    server = start_server("--timeout", "1.5", "--idle-timeout", "1")
    request = b"GET /healthz HTTP/1.1\r\nHost: x\r\n\r\n"
    with socket.create_connection(("127.0.0.1", server.port)) as sock:
        started = time.monotonic()
        sent = 0
        try:
            for byte in request:  # one byte every 0.25 s: 9 s for the whole request
                sock.sendall(bytes([byte]))
                sent += 1
                if closed_by_peer(sock, 0.25):
                    break
        except (BrokenPipeError, ConnectionResetError):
            pass
        elapsed = time.monotonic() - started
        assert sent < len(request), "the slow request was read whole"
        assert 1.0 < elapsed < 4.0, elapsed
    with socket.create_connection(("127.0.0.1", server.port)) as sock:
        sock.sendall(request)
        assert read_response(sock)[0] == 200
        assert closed_by_peer(sock, 3.0), "an idle keep-alive connection stayed open"


def test_connections_over_the_cap_get_503(start_server):
    server = start_server("--max-connections", "2")
    held = [socket.create_connection(("127.0.0.1", server.port), timeout=10) for _ in range(2)]
    try:
        for sock in held:  # each answered, so each is counted open
            sock.sendall(b"GET /healthz HTTP/1.1\r\nHost: x\r\n\r\n")
            assert read_response(sock)[0] == 200
        assert get(server, "/healthz")[0] == 503
    finally:
        for sock in held:
            sock.close()
    assert wait_until(lambda: get(server, "/healthz")[0] == 200, timeout=5)


def test_sigterm_finishes_the_request_in_flight(start_server):
    server = start_server()
    idle = socket.create_connection(("127.0.0.1", server.port), timeout=10)
    idle.sendall(b"GET /healthz HTTP/1.1\r\nHost: x\r\n\r\n")
    assert read_response(idle)[0] == 200
    busy = socket.create_connection(("127.0.0.1", server.port), timeout=10)
    busy.sendall(b"GET /v1/read?lang=ru&text=21 HTTP/1.1\r\n")  # half a request
    time.sleep(0.2)
    server.proc.send_signal(signal.SIGTERM)
    assert closed_by_peer(idle, 5.0), "the idle connection was not closed"
    busy.sendall(b"Host: x\r\n\r\n")
    status, headers, body = read_response(busy)
    assert status == 200 and headers["connection"] == "close"
    assert json.loads(body)["names"] == ["двадцать", "один"]
    assert server.proc.wait(timeout=10) == 0
    idle.close()
    busy.close()


def client_loop(port, stop, tally):
    """Keep-alive requests until `stop`; every answer that starts must end whole."""
    while not stop.is_set():
        try:
            sock = socket.create_connection(("127.0.0.1", port), timeout=10)
        except OSError:
            return  # the server has stopped listening
        with sock:
            while not stop.is_set():
                try:
                    sock.sendall(b"GET /v1/read?lang=ru&text=12.50%D1%80%D1%83%D0%B1 HTTP/1.1\r\nHost: x\r\n\r\n")
                    answer = read_response(sock)
                except (BrokenPipeError, ConnectionResetError):
                    break  # closed between two requests: nothing was answered
                except AssertionError as error:
                    tally["torn"].append(str(error))
                    break
                if answer is None:
                    break
                if answer[0] != 200 or not json.loads(answer[2])["names"]:
                    tally["torn"].append("answered %d: %r" % (answer[0], answer[2][:100]))
                tally["answered"] += 1
                if answer[1].get("connection") == "close":
                    break


def test_sigterm_under_load_loses_no_answered_request(start_server):
    server = start_server()
    stop = threading.Event()
    tally = {"answered": 0, "torn": []}
    clients = [threading.Thread(target=client_loop, args=(server.port, stop, tally)) for _ in range(16)]
    for client in clients:
        client.start()
    time.sleep(1.0)
    server.proc.send_signal(signal.SIGTERM)
    code = server.proc.wait(timeout=20)
    stop.set()
    for client in clients:
        client.join(timeout=20)
    assert code == 0
    assert tally["answered"] > 100
    assert tally["torn"] == []


def wrk(url, seconds, connections=256):
    out = subprocess.run(["wrk", "-t2", "-c%d" % connections, "-d%ds" % seconds, "--timeout", "10s", "--latency", url],
                         check=True, capture_output=True, text=True).stdout
    requests = int(re.search(r"(\d+) requests in", out).group(1))
    return requests, out


@pytest.mark.skipif(shutil.which("wrk") is None, reason="wrk is installed by scripts/setup.sh")
def test_load_without_errors_and_steady_memory(start_server):
    """256 connections for a few seconds (VELA_LOAD_SECONDS, default 5): no
    error, no non-2xx answer, and memory after a second run close to the first."""
    seconds = int(os.environ.get("VELA_LOAD_SECONDS", "5"))
    server = start_server()
    url = server.url("/v1/read?lang=ru&text=12.50%D1%80%D1%83%D0%B1")
    requests, out = wrk(url, seconds)
    first = server.rss_kb()
    again, out2 = wrk(url, seconds)
    second = server.rss_kb()
    for text in (out, out2):
        assert "Socket errors" not in text and "Non-2xx" not in text, text
    assert requests > 0 and again > 0
    if not SANITIZED:  # ASan holds freed memory back in its quarantine on purpose
        assert second - first < 8 * 1024 + first // 10, (first, second)
