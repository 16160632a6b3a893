"""Audio over HTTP: what platforms cache by (ETag, 304, max-age), what they
play (the same bytes as `vela say`), and the errors that replace a partial file."""
import json
import shutil
import signal
import subprocess
import urllib.error
import urllib.parse
import urllib.request

import pytest

from conftest import VELA, wait_until


def fetch(server, path, headers=None, method="GET"):
    request = urllib.request.Request(server.url(path), headers=headers or {}, method=method)
    try:
        with urllib.request.urlopen(request, timeout=30) as response:
            return response.status, response.headers, response.read()
    except urllib.error.HTTPError as error:
        return error.code, error.headers, error.read()


def audio(text="21руб", route="/v1/audio", **params):  # 21руб: двадцать один рубль
    return route + "?" + urllib.parse.urlencode({"lang": "ru", "text": text, **params})


@pytest.fixture
def voice(tmp_path, voice_root):
    """A private copy of the Russian test voice, free to change."""
    shutil.copytree(voice_root / "ru", tmp_path / "ru")
    return tmp_path / "ru"


def test_audio_is_cached_by_etag_and_max_age(start_server, voice):
    server = start_server("--voice", "ru=%s" % voice, "--max-age", "600")
    status, headers, body = fetch(server, audio())
    assert status == 200 and headers["Content-Type"] == "audio/wav" and body[:4] == b"RIFF"
    assert headers["Cache-Control"] == "public, max-age=600"
    etag = headers["ETag"]
    status, again, _ = fetch(server, audio(), {"If-None-Match": etag})
    assert status == 304 and again["ETag"] == etag
    status, head, nothing = fetch(server, audio(), method="HEAD")
    assert status == 200 and nothing == b"" and int(head["Content-Length"]) == len(body)
    # Another format is another answer with another tag.
    status, other, mulaw = fetch(server, audio(route="/v1/audio.ulaw"))
    assert status == 200 and other["Content-Type"] == "audio/basic" and other["ETag"] != etag
    assert mulaw[:4] != b"RIFF" and len(mulaw) * 2 < len(body)
    assert 'vela_audio_cache_requests_total{result="hit"} 1' in fetch(server, "/metrics")[2].decode()  # the HEAD


def test_a_changed_voice_is_used_at_once(start_server, voice):
    server = start_server("--voice", "ru=%s" % voice)
    first = fetch(server, audio())
    shutil.copyfile(voice / "два.wav", voice / "один.wav")  # re-recorded in place
    second = fetch(server, audio(), {"If-None-Match": first[1]["ETag"]})
    assert second[0] == 200 and second[1]["ETag"] != first[1]["ETag"] and second[2] != first[2]
    # Never a partial file: a missing recording is named; once there it is used,
    # and SIGHUP (drop the cache) leaves the server serving.
    status, _, body = fetch(server, audio(text="31руб"))
    assert status == 404 and json.loads(body)["missing"] == ["тридцать"]
    shutil.copyfile(voice / "два.wav", voice / "тридцать.wav")
    server.proc.send_signal(signal.SIGHUP)
    assert wait_until(lambda: any("reloaded" in line for line in server.stderr))
    assert fetch(server, audio(text="31руб"))[0] == 200


def test_audio_matches_vela_say(start_server, voice, tmp_path):
    server = start_server("--voice", "ru=%s" % voice)
    status, _, body = fetch(server, audio(rate="8000", encoding="ulaw"))
    subprocess.run([VELA, "say", "-l", "ru", "--voice", str(voice), "--rate", "8000", "--encoding", "ulaw",
                    "-o", str(tmp_path / "said.wav"), "21руб"], check=True)
    assert status == 200 and body == (tmp_path / "said.wav").read_bytes()


def test_an_unreadable_recording_is_named(start_server, voice):
    (voice / "один.wav").write_text("not a recording\n")
    server = start_server("--voice", "ru=%s" % voice)
    status, _, body = fetch(server, audio())
    assert status == 500 and [p["prompt"] for p in json.loads(body)["problems"]] == ["один"]


def test_files_for_asterisk_and_as_urls(start_server, voice):
    server = start_server("--voice", "ru=%s" % voice)
    status, _, body = fetch(server, audio(route="/v1/files", layout="asterisk"))
    assert status == 200 and body.decode() == "vela/двадцать&vela/один&vela/рубль\n"
    urls = json.loads(fetch(server, audio(route="/v1/files", layout="urls", rate="16000"))[2])
    assert urllib.parse.unquote(urllib.parse.urlsplit(urls[1]).path) == "/v1/recordings/ru/один.wav"
    for url in urls:
        got = fetch(server, urllib.parse.urlsplit(url)._replace(scheme="", netloc="").geturl())
        assert got[0] == 200 and got[1]["Content-Type"] == "audio/wav" and "ETag" in got[1]
    assert len(urls) == 3
