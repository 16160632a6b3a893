"""Audio over HTTP: what platforms cache by (ETag, 304, max-age), what they
play (the same bytes as `vela say`), and the errors that replace a partial file."""
import json
import os
import shutil
import signal
import subprocess
import urllib.error
import urllib.parse
import urllib.request

import pytest

from conftest import VELA, wait_until

TEXT = "21руб"  # двадцать один рубль


def fetch(server, path, headers=None, method="GET"):
    request = urllib.request.Request(server.url(path), headers=headers or {}, method=method)
    try:
        with urllib.request.urlopen(request, timeout=30) as response:
            return response.status, response.headers, response.read()
    except urllib.error.HTTPError as error:
        return error.code, error.headers, error.read()


def audio_path(text=TEXT, route="/v1/audio", **params):
    return route + "?" + urllib.parse.urlencode({"lang": "ru", "text": text, **params})


@pytest.fixture
def voice(tmp_path, voice_root):
    """A private copy of the Russian test voice, free to change."""
    folder = tmp_path / "ru"
    shutil.copytree(voice_root / "ru", folder)
    return folder


def test_audio_is_cached_by_etag_and_max_age(start_server, voice):
    server = start_server("--voice", "ru=%s" % voice, "--max-age", "600")
    status, headers, body = fetch(server, audio_path())
    assert status == 200 and headers["Content-Type"] == "audio/wav" and body[:4] == b"RIFF"
    assert headers["Cache-Control"] == "public, max-age=600"
    etag = headers["ETag"]
    assert etag.startswith('"') and etag.endswith('"')
    status, again, _ = fetch(server, audio_path(), {"If-None-Match": etag})
    assert status == 304 and again["ETag"] == etag
    status, head, nothing = fetch(server, audio_path(), method="HEAD")
    assert status == 200 and nothing == b"" and head["ETag"] == etag
    assert int(head["Content-Length"]) == len(body)
    # Another format is another answer with another tag.
    status, other, mulaw = fetch(server, audio_path(route="/v1/audio.ulaw"))
    assert status == 200 and other["Content-Type"] == "audio/basic" and other["ETag"] != etag
    assert mulaw[:4] != b"RIFF" and len(mulaw) * 2 < len(body)
    metrics = fetch(server, "/metrics")[2].decode()
    assert 'vela_audio_cache_requests_total{result="hit"} 1' in metrics  # the HEAD


def test_a_changed_voice_is_used_at_once(start_server, voice):
    server = start_server("--voice", "ru=%s" % voice)
    first = fetch(server, audio_path())
    shutil.copyfile(voice / "два.wav", voice / "один.wav")  # re-recorded in place
    second = fetch(server, audio_path(), {"If-None-Match": first[1]["ETag"]})
    assert second[0] == 200 and second[1]["ETag"] != first[1]["ETag"]
    assert second[2] != first[2]
    # A recording that was missing is used as soon as it is there; SIGHUP
    # (drop the cache) leaves the server serving.
    assert fetch(server, audio_path(text="31руб"))[0] == 404
    shutil.copyfile(voice / "два.wav", voice / "тридцать.wav")
    server.proc.send_signal(signal.SIGHUP)
    assert wait_until(lambda: any("reloaded" in line for line in server.stderr))
    assert fetch(server, audio_path(text="31руб"))[0] == 200


def test_audio_matches_vela_say(start_server, voice, tmp_path):
    server = start_server("--voice", "ru=%s" % voice)
    status, headers, body = fetch(server, audio_path(rate="8000", encoding="ulaw"))
    assert status == 200
    said = tmp_path / "said.wav"
    subprocess.run([VELA, "say", "-l", "ru", "--voice", str(voice), "--rate", "8000", "--encoding", "ulaw",
                    "-o", str(said), TEXT], check=True)
    assert body == said.read_bytes()
    if shutil.which("soxi"):
        def soxi(flag):
            return subprocess.run(["soxi", flag, str(said)], capture_output=True, text=True).stdout.strip()
        assert (soxi("-r"), soxi("-e")) == ("8000", "u-law")


# What replaces a partial file: one row per reason, with what the body names.
REFUSALS = [
    ("-5xyz", {}, 422, "status", "partly_spoken"),
    ("31руб", {}, 404, "missing", ["тридцать"]),
    ("31", {"lang": "en"}, 404, "error", 'no voice for "en" (vela serve --voice en=DIR)'),
]


@pytest.mark.parametrize("text,params,status,key,value", REFUSALS, ids=[r[0] for r in REFUSALS])
def test_audio_is_never_partial(start_server, voice, text, params, status, key, value):
    server = start_server("--voice", "ru=%s" % voice)
    answer = fetch(server, audio_path(text=text, **params))
    assert answer[0] == status
    assert json.loads(answer[2])[key] == value


def test_an_unreadable_recording_is_named(start_server, voice):
    (voice / "один.wav").write_text("not a recording\n")
    server = start_server("--voice", "ru=%s" % voice)
    status, _, body = fetch(server, audio_path())
    problems = json.loads(body)["problems"]
    assert status == 500 and [p["prompt"] for p in problems] == ["один"]


def test_files_for_asterisk_and_as_urls(start_server, voice):
    server = start_server("--voice", "ru=%s" % voice)
    status, _, body = fetch(server, audio_path(route="/v1/files", layout="asterisk"))
    assert status == 200 and body.decode() == "vela/двадцать&vela/один&vela/рубль\n"
    status, _, body = fetch(server, audio_path(route="/v1/files", layout="urls", rate="16000"))
    urls = json.loads(body)
    assert status == 200 and len(urls) == 3
    one = urllib.parse.urlsplit(urls[1])
    assert urllib.parse.unquote(one.path) == "/v1/recordings/ru/один.wav"
    for url in urls:
        got = fetch(server, urllib.parse.urlsplit(url)._replace(scheme="", netloc="").geturl())
        assert got[0] == 200 and got[1]["Content-Type"] == "audio/wav" and "ETag" in got[1]
