"""The playground page in headless Chromium: type a text, see its names and
status, hear it (the audio element gets a duration), and list the prompts
with their recordings and example texts."""
import shutil
import tempfile

import pytest

from selenium import webdriver
from selenium.webdriver.chrome.service import Service as DriverService
from selenium.webdriver.common.by import By
from selenium.webdriver.support.ui import Select, WebDriverWait


@pytest.fixture(scope="module")
def browser():  # one Chromium for the module: it takes seconds to start
    profile = tempfile.mkdtemp(prefix="vela-chromium-")
    options = webdriver.ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    # The network is closed: without these Chromium waits on services it cannot reach.
    for flag in ("--headless=new", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
                 "--disable-background-networking", "--disable-component-update", "--disable-sync",
                 "--disable-dev-shm-usage", "--autoplay-policy=no-user-gesture-required",
                 "--user-data-dir=" + profile):
        options.add_argument(flag)
    driver = webdriver.Chrome(service=DriverService("/usr/bin/chromedriver"), options=options)
    driver.set_page_load_timeout(30)
    yield driver
    driver.quit()
    shutil.rmtree(profile, ignore_errors=True)


def shown_names(driver):
    return [li.text for li in driver.find_elements(By.CSS_SELECTOR, "#names li")]


def type_text(driver, text):
    box = driver.find_element(By.ID, "text")
    box.clear()
    box.send_keys(text)


def test_reads_and_plays_a_text(start_server, voice_root, browser):
    server = start_server("--voice", "ru=%s" % (voice_root / "ru"))
    browser.get(server.url("/"))
    wait = WebDriverWait(browser, 20)
    wait.until(lambda d: d.find_element(By.TAG_NAME, "body").get_attribute("data-ready") == "1")
    Select(browser.find_element(By.ID, "lang")).select_by_value("ru")

    type_text(browser, "21руб")
    wait.until(lambda d: shown_names(d) == ["двадцать", "один", "рубль"])
    assert browser.find_element(By.ID, "status").text == "spoken"
    duration = wait.until(lambda d: d.execute_script(
        "const a = document.getElementById('audio');"
        "return a.src && a.readyState >= 1 && a.duration > 0 ? a.duration : false;"))
    assert 0.3 < duration < 10

    # A partial reading: its status is shown and nothing plays.
    type_text(browser, "-5xyz")
    wait.until(lambda d: d.find_element(By.ID, "status").text == "partly spoken")
    assert shown_names(browser) == ["минус"]
    wait.until(lambda d: "not fully spoken" in d.find_element(By.ID, "audio-note").text)
    assert not browser.find_element(By.ID, "audio").is_displayed()  # the earlier answer is gone


def test_lists_prompts_with_their_recordings(start_server, voice_root, browser):
    server = start_server("--voice", "ru=%s" % (voice_root / "ru"))
    browser.get(server.url("/"))
    wait = WebDriverWait(browser, 30)
    wait.until(lambda d: d.find_element(By.TAG_NAME, "body").get_attribute("data-ready") == "1")
    browser.find_element(By.ID, "prompts-tab").click()
    rows = wait.until(lambda d: d.find_elements(By.CSS_SELECTOR, "#prompts tr") or False)
    states, examples = {}, {}
    for row in rows:
        cells = [cell.text for cell in row.find_elements(By.TAG_NAME, "td")]
        states[cells[0]], examples[cells[0]] = cells[2], cells[3]
    assert states["двадцать"] == "present" and examples["двадцать"] != ""
    assert states["тридцать"] == "missing"
    assert "5 recorded" in browser.find_element(By.ID, "prompts-summary").text
