"""`vela serve` over real sockets: framing, limits, timeouts, shutdown, load;
and audio: what platforms cache by (ETag, 304, max-age), what they play (the
same bytes as `vela say`), and the errors that replace a partial file."""
import http.client
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

from conftest import SANITIZED, VELA, wait_until

HEALTH = b"GET /healthz HTTP/1.1\r\nHost: x\r\n\r\n"
READ = b"GET /v1/read?lang=ru&text=21%D1%80%D1%83%D0%B1 HTTP/1.1\r\nHost: x\r\n\r\n"


def read_response(sock):
    """(status, headers, body), or None when the server closed first; an answer
    torn inside raises http.client.HTTPException or leaves the body short."""
    response = http.client.HTTPResponse(sock)
    try:
        response.begin()
    except http.client.RemoteDisconnected:
        return None
    return response.status, {k.lower(): v for k, v in response.getheaders()}, response.read()


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
    except OSError as error:  # reset: closed; timed out: still open
        return not isinstance(error, socket.timeout)


# Malformed requests get their 4xx; no recording URL leaves the voice folder
# (secret.txt lies beside it; notes.wav is in it, but no prompt of the language).
HOSTILE = [(HEALTH[:-2] + b"X-Big: " + b"a" * 70000 + b"\r\n\r\n", 431),
           (HEALTH[:-2] + b"Content-Length: 100000\r\n\r\n", 413),
           (HEALTH.replace(b"/healthz", b"/v1/re\x00ad"), 400)] + [
    (b"GET /v1/recordings/%s HTTP/1.1\r\nHost: x\r\n\r\n" % path, 400 if path == b"ru/%" else 404) for path in [
        b"ru/../secret.txt", b"ru/..%2Fsecret.txt", b"ru/%252e%252e%252fsecret.txt", b"ru/..%5csecret.txt",
        b"..%2F..%2Fetc/passwd", b"ru/%00.wav", b"ru/notes.wav", b"ru/%D0%B4%D0%B2%D0%B0.wav%00.txt", b"ru/%"]]


def test_hostile_requests_get_their_4xx_and_connections_over_the_cap_503(start_server, voice):
    server = start_server("--voice", "ru=%s" % voice)
    for raw, status in HOSTILE:
        answer = exchange(server, raw)
        assert answer is not None and answer[0] == status, (raw[:50], answer)
        assert b"not for the web" not in answer[2] and b"root:" not in answer[2], raw
        if answer[1].get("content-type") == "application/json":
            assert "error" in json.loads(answer[2])
    server = start_server("--max-connections", "2")
    held = [connect(server) for _ in range(2)]
    for sock in held:  # each answered, so each is counted open
        sock.sendall(HEALTH)
        assert read_response(sock)[0] == 200
    assert exchange(server)[0] == 503
    for sock in held:
        sock.close()
    assert wait_until(lambda: exchange(server)[0] == 200, timeout=5)


def test_slow_and_idle_clients_are_cut_off_pipelined_ones_answered(start_server):
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
    with connect(server) as sock:  # a HEAD (headers only, with the GET's length), then a GET, pipelined
        sock.sendall(HEALTH.replace(b"GET", b"HEAD") + HEALTH)
        data = b""
        while not data.endswith(b"}\n"):
            data += sock.recv(65536)
        head, rest = data.split(b"\r\n\r\n", 1)
        assert b"Content-Length: " in head and rest.startswith(b"HTTP/1.1 200")
        assert closed_by_peer(sock, 3.0), "an idle keep-alive connection stayed open"


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
        except http.client.HTTPException as torn:
            tally.append(repr(torn))
        except OSError:  # refused, or closed between two requests: nothing was answered
            return


def test_sigterm_under_load_closes_the_idle_and_finishes_the_rest(start_server):
    server = start_server()
    tally = []
    clients = [threading.Thread(target=client_loop, args=(server.port, tally)) for _ in range(16)]
    with connect(server) as idle, connect(server) as busy:
        idle.sendall(HEALTH)
        assert read_response(idle)[0] == 200
        busy.sendall(READ[:READ.index(b"Host")])  # half a request
        for client in clients:
            client.start()
        time.sleep(1.0)
        server.proc.send_signal(signal.SIGTERM)
        assert closed_by_peer(idle, 5.0), "the idle connection was not closed"
        busy.sendall(READ[READ.index(b"Host"):])
        status, headers, body = read_response(busy)
        assert status == 200 and headers["connection"] == "close"
        assert json.loads(body)["names"] == ["двадцать", "один", "рубль"]
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
        assert re.search(r"[1-9]\d* requests in", out) and "Socket errors" not in out and "Non-2xx" not in out, out
        rss.append(int(re.search(r"VmRSS:\s+(\d+)", open("/proc/%d/status" % server.proc.pid).read()).group(1)))
    if not SANITIZED:  # ASan holds freed memory back in its quarantine on purpose
        assert rss[1] - rss[0] < 8 * 1024 + rss[0] // 10, rss


def fetch(server, path, headers={}, method="GET"):
    connection = http.client.HTTPConnection("127.0.0.1", server.port, timeout=60)
    connection.request(method, path, headers=headers)
    response = connection.getresponse()
    return response.status, response.headers, response.read()


def audio(text="21руб", route="/v1/audio", **params):  # 21руб: двадцать один рубль
    return route + "?" + urllib.parse.urlencode({"lang": "ru", "text": text, **params})


def test_audio_and_files_as_vela_say_writes_them_cached_by_etag_and_max_age(start_server, voice, tmp_path):
    server = start_server("--voice", "ru=%s" % voice, "--max-age", "600")
    status, headers, body = fetch(server, audio())
    assert status == 200 and headers["Content-Type"] == "audio/wav" and body[:4] == b"RIFF"
    assert headers["Cache-Control"] == "public, max-age=600"
    status, again, _ = fetch(server, audio(), {"If-None-Match": headers["ETag"]})
    assert status == 304 and again["ETag"] == headers["ETag"]
    status, head, nothing = fetch(server, audio(), method="HEAD")
    assert status == 200 and nothing == b"" and int(head["Content-Length"]) == len(body)
    assert 'vela_audio_cache_requests_total{result="hit"} 1' in fetch(server, "/metrics")[2].decode()  # the HEAD
    # Another format is another answer with another tag, the bytes `vela say` writes.
    status, other, mulaw = fetch(server, audio(route="/v1/audio.ulaw"))
    assert status == 200 and other["Content-Type"] == "audio/basic" and other["ETag"] != headers["ETag"]
    subprocess.run([VELA, "say", "-l", "ru", "--voice", str(voice), "-o", str(tmp_path / "said.ulaw"), "21руб"],
                   check=True)
    assert mulaw == (tmp_path / "said.ulaw").read_bytes()
    # The files for Asterisk's Playback, and as URLs of each recording.
    status, _, body = fetch(server, audio(route="/v1/files", layout="asterisk"))
    assert status == 200 and body.decode() == "vela/двадцать&vela/один&vela/рубль\n"
    urls = json.loads(fetch(server, audio(route="/v1/files", layout="urls", rate="16000"))[2])
    assert len(urls) == 3
    assert urllib.parse.unquote(urllib.parse.urlsplit(urls[1]).path) == "/v1/recordings/ru/один.wav"
    for url in urls:
        got = fetch(server, urllib.parse.urlsplit(url)._replace(scheme="", netloc="").geturl())
        assert got[0] == 200 and got[1]["Content-Type"] == "audio/wav" and "ETag" in got[1]


def test_a_changed_voice_is_used_at_once_and_a_bad_one_named(start_server, voice):
    server = start_server("--voice", "ru=%s" % voice)
    first = fetch(server, audio())
    shutil.copyfile(voice / "два.wav", voice / "один.wav")  # re-recorded in place
    second = fetch(server, audio(), {"If-None-Match": first[1]["ETag"]})
    assert second[0] == 200 and second[1]["ETag"] != first[1]["ETag"] and second[2] != first[2]
    # Never a partial file: a missing or unreadable recording is named; once
    # there it is used, and SIGHUP (drop the cache) leaves the server serving.
    status, _, body = fetch(server, audio(text="31руб"))
    assert status == 404 and json.loads(body)["missing"] == ["тридцать"]
    (voice / "тридцать.wav").write_text("not a recording\n")
    status, _, body = fetch(server, audio(text="31руб"))
    assert status == 500 and [p["prompt"] for p in json.loads(body)["problems"]] == ["тридцать"]
    shutil.copyfile(voice / "два.wav", voice / "тридцать.wav")
    server.proc.send_signal(signal.SIGHUP)
    assert wait_until(lambda: any("reloaded" in line for line in server.stderr))
    assert fetch(server, audio(text="31руб"))[0] == 200

