"""The playground page in headless Chromium: type a text, see its names and
status, hear it, and list the prompts with their recordings and examples."""
from selenium import webdriver
from selenium.webdriver.chrome.service import Service as DriverService
from selenium.webdriver.common.by import By
from selenium.webdriver.support.ui import Select, WebDriverWait


def test_reads_plays_and_lists_prompts(start_server, voice, tmp_path):
    server = start_server("--voice", "ru=%s" % voice)
    options = webdriver.ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    # The network is closed: without these Chromium waits on services it cannot reach.
    for flag in ("--headless=new", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
                 "--disable-background-networking", "--disable-component-update", "--disable-sync",
                 "--disable-dev-shm-usage", "--autoplay-policy=no-user-gesture-required",
                 "--user-data-dir=%s" % tmp_path):
        options.add_argument(flag)
    browser = webdriver.Chrome(service=DriverService("/usr/bin/chromedriver"), options=options)
    try:
        by_id, wait = browser.find_element, WebDriverWait(browser, 30)
        browser.get(server.url("/"))
        wait.until(lambda d: d.find_element(By.TAG_NAME, "body").get_attribute("data-ready") == "1")
        Select(by_id(By.ID, "lang")).select_by_value("ru")

        def show(text, status, names):
            by_id(By.ID, "text").clear()
            by_id(By.ID, "text").send_keys(text)
            wait.until(lambda d: by_id(By.ID, "status").text == status)
            wait.until(lambda d: [li.text for li in d.find_elements(By.CSS_SELECTOR, "#names li")] == names)

        show("21руб", "spoken", ["двадцать", "один", "рубль"])
        duration = wait.until(lambda d: d.execute_script(
            "const a = document.getElementById('audio');"
            "return a.src && a.readyState >= 1 && a.duration > 0 ? a.duration : false;"))
        assert 0.3 < duration < 10
        show("-5xyz", "partly spoken", ["минус"])  # nothing plays, the earlier answer is gone
        wait.until(lambda d: "not fully spoken" in by_id(By.ID, "audio-note").text)
        assert not by_id(By.ID, "audio").is_displayed()

        by_id(By.ID, "prompts-tab").click()
        rows = wait.until(lambda d: d.find_elements(By.CSS_SELECTOR, "#prompts tr") or False)
        cells = {r[0]: r for r in ([c.text for c in row.find_elements(By.TAG_NAME, "td")] for row in rows)}
        assert cells["двадцать"][2] == "present" and cells["двадцать"][3] != ""
        assert cells["тридцать"][2] == "missing"
        assert "4 recorded" in by_id(By.ID, "prompts-summary").text
    finally:
        browser.quit()
