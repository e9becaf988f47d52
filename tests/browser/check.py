#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Gives lessons in a browser, as a teacher does, and looks at what is seen.

  check.py LESSONCONV [TEST...]

The browser is Chromium, or Firefox with BROWSER=firefox in the environment. Ends with 77 where it, its driver or their
Python library isn't installed.
"""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

import lessons

try:
    import browsers
    from selenium.webdriver.common.action_chains import ActionChains
    from selenium.webdriver.common.actions.action_builder import ActionBuilder
    from selenium.webdriver.common.actions.pointer_input import PointerInput
    from selenium.webdriver.common.by import By
    from selenium.webdriver.common.keys import Keys
    BROWSER = {"chromium": browsers.Chromium, "firefox": browsers.Firefox}[os.environ.get("BROWSER", "chromium")]
except ImportError:
    BROWSER = None


class Page(unittest.TestCase):
    """A page in one browser for all tests."""

    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp())
        cls.browser = BROWSER(f"{cls.folder}/profile")
        cls.driver = cls.browser.driver
        cls.pages = {name: cls.render(name, make()) for name, make in
                     (("playing", lessons.playing), ("hostile", lessons.hostile))}

    @classmethod
    def tearDownClass(cls):
        cls.browser.quit()
        shutil.rmtree(cls.folder, ignore_errors=True)

    @classmethod
    def render(cls, name, lesson, *options):
        (cls.folder / f"{name}.json").write_text(json.dumps(lesson))
        page = cls.folder / f"{name}.html"
        subprocess.run([LESSONCONV, "render", cls.folder / f"{name}.json", page, "--quiet", *options], check=True,
                       env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
        return page

    def tearDown(self):
        self.browser.run_scripts(True)

    def open(self, address="", name="playing", is_calm=True, languages="en-US"):
        self.browser.be_calm(is_calm)
        self.browser.speak(languages)
        self.resize(800, 600)
        self.driver.get("about:blank")
        self.errors(), self.browser.requests()
        self.driver.get(self.pages[name].as_uri() + address)

    def resize(self, width, height):
        self.browser.resize(width, height)

    def js(self, script, *arguments):
        return self.driver.execute_script(script, *arguments)

    def press(self, *keys):
        ActionChains(self.driver).send_keys(*keys).perform()

    def shown(self):
        """The numbers of the slides that can be seen."""
        return self.js("""return [...document.querySelectorAll('.slide')].filter((one) => one.checkVisibility())
            .map((one) => Number(one.id.slice(5)))""")

    def item(self, identifier):
        return self.driver.find_element(By.CSS_SELECTOR, f'.shown [data-item="{identifier}"]')

    def is_seen(self, identifier):
        """Whether the middle of where an item was drawn shows it."""
        return self.js("""const item = document.querySelector(`.shown [data-item="${arguments[0]}"]`);
            if (getComputedStyle(item).display === 'none') { return false; }
            const box = item.getBoundingClientRect();
            const top = document.elementFromPoint(box.x + box.width / 2, box.y + box.height / 2);
            return item.contains(top);""", identifier)

    def box(self, element):
        return self.js("const b = arguments[0].getBoundingClientRect(); return [b.x, b.y, b.width, b.height]", element)

    def click_at(self, x, y):
        mouse = ActionBuilder(self.driver)
        mouse.pointer_action.move_to_location(int(x), int(y)).click()
        mouse.perform()

    def click(self, identifier):
        """Clicks the middle of where an item was drawn."""
        x, y, width, height = self.box(self.item(identifier))
        self.click_at(x + width / 2, y + height / 2)

    def drag(self, start, end, kind="mouse"):
        hand = ActionBuilder(self.driver, mouse=PointerInput(kind, "hand"), duration=20)
        hand.pointer_action.move_to_location(*map(int, start)).pointer_down()
        hand.pointer_action.move_to_location(*[int((a + b) / 2) for a, b in zip(start, end)])
        hand.pointer_action.move_to_location(*map(int, end)).pointer_up()
        hand.perform()

    def wait(self, condition):
        end = time.time() + 5
        while not condition():
            self.assertLess(time.time(), end, "it didn't come")
            time.sleep(0.02)

    def dialog(self):
        return self.driver.find_element(By.TAG_NAME, "dialog")

    def errors(self):
        return self.browser.errors()


class Presenting(Page):
    def test_keys_lead_from_slide_to_slide(self):
        self.open()
        self.assertEqual(self.shown(), [1])
        for keys, slide in ((Keys.ARROW_LEFT, 1), (Keys.END, 9), (Keys.ARROW_RIGHT, 9), (Keys.HOME, 1), (" ", 2),
                            (Keys.PAGE_UP, 1), (("5", Keys.ENTER), 5), (Keys.PAGE_DOWN, 6), (Keys.ARROW_UP, 5),
                            (("9", "9", Keys.ENTER), 5), (("0", "4", Keys.ENTER), 4)):
            self.press(*keys)
            self.assertEqual(self.shown(), [slide], keys)
            address = f"#{slide}" if slide > 1 or keys != Keys.ARROW_LEFT else ""
            self.assertEqual(self.js("return location.hash"), address)
        self.assertEqual(self.driver.title, "4 – A <lesson> & more")
        self.assertEqual(self.errors(), [])

    def test_the_address_tells_the_slide(self):
        self.open("#3")
        self.assertEqual(self.shown(), [3])
        self.press(Keys.END)
        self.driver.back()
        self.wait(lambda: self.shown() == [3])
        self.driver.forward()
        self.wait(lambda: self.shown() == [9])
        self.open("#99")
        self.assertEqual(self.shown(), [1])

    def test_a_slide_fills_the_window(self):
        self.open()
        for width, height in ((1000, 500), (500, 900), (360, 640)):
            self.resize(width, height)
            x, y, w, h = self.box(self.driver.find_element(By.CSS_SELECTOR, ".shown .stage > svg:not(.pictures)"))
            self.assertAlmostEqual(w / h, 4 / 3, places=1)
            self.assertTrue(abs(w - width) < 2 or abs(h - height) < 2, (w, h))
            self.assertTrue(abs(x + w / 2 - width / 2) < 2 and abs(y + h / 2 - height / 2) < 2, (x, y))
            self.assertEqual(self.js("return document.scrollingElement.scrollWidth"), width)

    def test_margins_swipes_and_the_overview(self):
        self.open("#4")
        width, height = self.js("return [innerWidth, innerHeight]")
        self.click_at(width - 10, height / 2)
        self.assertEqual(self.shown(), [5])
        self.click_at(10, height / 2)
        self.assertEqual(self.shown(), [4])
        self.drag((width * 0.6, height * 0.8), (width * 0.3, height * 0.8), "touch")
        self.assertEqual(self.shown(), [5])
        self.press("o")
        self.assertEqual(self.shown(), list(range(1, 10)))
        self.driver.find_element(By.CSS_SELECTOR, "#slide2 .choose").click()
        self.assertEqual(self.shown(), [2])
        # Two slides a row: from the second one down to the fourth, and on to the fifth.
        for keys, slide in (((Keys.ARROW_DOWN, Keys.ARROW_RIGHT), 5), ((Keys.END, Keys.ARROW_RIGHT), 9),
                            ((Keys.ARROW_UP, Keys.ARROW_LEFT), 6), ((Keys.HOME, Keys.ARROW_UP), 1)):
            self.press("o", *keys, Keys.ENTER)
            self.assertEqual(self.shown(), [slide])

    def test_what_is_written_can_be_read(self):
        """WCAG's contrast, over white and black where something shines through."""
        self.open("#9")
        script = """
            const numbers = (color) => color.match(/[\\d.]+/g).map(Number);
            const over = (above, below) => above.slice(0, 3).map((one, i) => one * (above[3] ?? 1)
                + below[i] * (1 - (above[3] ?? 1)));
            const light = (color) => color.map((one) => one / 255)
                .map((one) => one <= 0.04045 ? one / 12.92 : ((one + 0.055) / 1.055) ** 2.4)
                .reduce((sum, one, i) => sum + one * [0.2126, 0.7152, 0.0722][i], 0);
            const contrast = (a, b) => (Math.max(light(a), light(b)) + 0.05) / (Math.min(light(a), light(b)) + 0.05);
            const ground = (element, paper) => element ? over(numbers(getComputedStyle(element).backgroundColor),
                ground(element.parentElement.closest('dialog, nav') === null ? null : element.parentElement, paper))
                : paper;
            const written = [...document.querySelectorAll('nav *, dialog *')].filter((one) => one.checkVisibility()
                && [...one.childNodes].some((node) => node.nodeType === 3 && node.data.trim()));
            return written.map((one) => [one.textContent, Math.min(...[[0, 0, 0], [255, 255, 255]].map((paper) =>
                contrast(numbers(getComputedStyle(one).color), ground(one, paper))))]);"""
        read = {text: ratio for text, ratio in self.js(script)}
        self.click("o")
        for left, right in (("cat", "puppy"), ("cat", "kitten")):
            for text in (left, right):
                self.dialog().find_element(By.XPATH, f".//button[text()='{text}']").click()
        read.update({text: ratio for text, ratio in self.js(script)})
        for text in ("Pen", "kitten", "puppy", "Right: 1 of 2. Wrong: 1."):
            self.assertIn(text, read)
        self.assertEqual({text: ratio for text, ratio in read.items() if ratio < 4.5}, {})

    def test_a_narrow_telephone(self):
        self.open("#9")
        self.resize(320, 568)
        for opened in (None, "e", "o", "i"):
            if opened:
                self.click(opened)
            buttons = self.js("""return [...document.querySelectorAll(arguments[0])].map((one) =>
                one.getBoundingClientRect()).map((box) => [box.left, box.right, box.width, box.height])""",
                              "dialog button" if opened else "nav button:not([hidden])")
            self.assertGreater(len(buttons), 3)
            for left, right, width, height in buttons:
                self.assertTrue(left >= 0 and right <= 320 and min(width, height) >= 19, (opened, left, right, height))
            self.press(Keys.ESCAPE)
        self.assertEqual(self.js("return document.scrollingElement.scrollWidth"), 320)

    def test_the_page_speaks_the_language_of_the_browser(self):
        for languages, language, slide, title in (
                ("en-GB,de", "en", "Slide 4", "Full screen (f)"),
                ("fr,de-AT,en", "de", "Folie 4", "Vollbild (f)"),
                ("zh-SG", "zh-CN", "幻灯片 4", "全屏（f）"),
                ("zh-TW", "en", "Slide 4", "Full screen (f)")):
            self.open("#4", languages=languages)
            self.assertEqual(self.js("return document.documentElement.lang"), language)
            heading = self.js("return document.querySelector('#slide4 h2')")
            self.assertEqual((self.js("return arguments[0].lang", heading),
                              self.js("return document.querySelector('#slide4').ariaLabel || "
                                      "document.querySelector('#slide4').getAttribute('aria-label')")),
                             (language, slide))
            self.assertEqual(self.js("return arguments[0].textContent.split(/[:：(]/)[0].trim()", heading), slide)
            self.assertTrue(self.driver.find_elements(By.CSS_SELECTOR, f"nav [title='{title}']"))
            self.press(Keys.HOME)
            self.assertEqual(self.item("r").accessible_name,
                             {"en": "Rectangle", "de": "Rechteck", "zh-CN": "矩形"}[language])
            self.assertEqual(self.errors(), [])

    def test_full_screen(self):
        self.open()
        button = self.driver.find_element(By.CSS_SELECTOR, "[title^='Full screen']")
        for press in (lambda: self.press("f"), button.click):
            press()
            self.wait(lambda: self.js("return Boolean(document.fullscreenElement)"))
            self.press("f")
            self.wait(lambda: not self.js("return Boolean(document.fullscreenElement)"))

    def test_paper_and_no_script(self):
        self.open("#3")
        paper = subprocess.run(["pdfinfo", "-"], input=self.browser.paper(), capture_output=True, check=True).stdout
        self.assertRegex(paper, rb"Pages: +9\n")
        self.browser.run_scripts(False)
        self.open()
        self.browser.run_scripts(True)
        self.assertEqual(self.shown(), list(range(1, 10)))
        tops = [self.box(one)[1] for one in self.driver.find_elements(By.CLASS_NAME, "slide")]
        self.assertTrue(all(a + 300 < b for a, b in zip(tops, tops[1:])), tops)

    def test_items_are_read_aloud(self):
        self.open()
        self.assertEqual(self.item("t").accessible_name, "First slide")
        self.assertEqual(self.item("r").accessible_name, "Rectangle")
        self.assertEqual([one.text for one in self.driver.find_elements(By.CSS_SELECTOR, "h1, #slide1 h2")][0:1],
                         ["A <lesson> & more"])
        self.assertEqual(self.item("t").aria_role, "image")


class Animating(Page):
    def test_the_list_of_items_plays_click_by_click(self):
        self.open("#2")
        seen = []
        for _ in range(5):
            seen.append([self.is_seen(one) for one in "ab"])
            self.press(Keys.ARROW_RIGHT)
        # a comes, b comes, a is emphasized, a goes, the next slide.
        self.assertEqual(seen, [[False, False], [True, False], [True, True], [True, True], [False, True]])
        self.assertEqual(self.shown(), [3])
        self.press(Keys.ARROW_LEFT)
        self.assertEqual([self.is_seen(one) for one in "ab"], [False, True])

    def test_the_script_plays_with_and_after(self):
        self.open("#3", is_calm=False)
        self.wait(lambda: self.is_seen("s"))
        self.assertFalse(self.is_seen("h"))
        before = self.js("return document.getAnimations().length")
        self.click_at(400, 320)
        self.assertGreater(self.js("return document.getAnimations().length"), 0, before)
        self.assertTrue(self.is_seen("s"), "what comes after waits")
        self.wait(lambda: not self.is_seen("s"))
        self.assertTrue(self.is_seen("h"))
        self.assertAlmostEqual(self.box(self.item("h"))[2] / self.box(self.item("g1"))[2], 1.5, places=1)

    def test_items_start_what_they_trigger(self):
        self.open("#3")
        self.click("k")
        self.wait(lambda: not self.is_seen("g1"))
        self.press("r")
        self.assertTrue(self.is_seen("g1"))
        self.item("k").send_keys(Keys.ENTER)
        self.wait(lambda: not self.is_seen("g1"))

    def test_slides_move_as_they_say(self):
        self.open(is_calm=False)
        self.js("""window.places = []; const look = () => { window.places.push(['slide1', 'slide2'].map((id) =>
            document.getElementById(id).getBoundingClientRect().x)); requestAnimationFrame(look); }; look();""")
        self.press(Keys.END, Keys.HOME, Keys.ARROW_RIGHT)
        self.wait(lambda: self.js("return document.getAnimations().length") == 0)
        places = self.js("return window.places")
        self.assertTrue(any(a < -50 and b > 50 and abs(b - a) > 700 for a, b in places), places[-40:])
        self.assertEqual(self.shown(), [2])


class Working(Page):
    def test_links(self):
        self.open("#4")
        self.click("web")
        link = self.dialog().find_element(By.TAG_NAME, "a")
        self.assertIn("https://example.org/a?b=c", self.dialog().text)
        self.assertEqual([link.get_attribute(one) for one in ("href", "target", "rel")],
                         ["https://example.org/a?b=c", "_blank", "noopener noreferrer"])
        self.press(Keys.ESCAPE)
        self.item("file").send_keys(Keys.ENTER)
        self.assertEqual(self.dialog().find_element(By.TAG_NAME, "a").get_attribute("href"),
                         (self.folder / "playing_files/page.html.txt").as_uri())
        self.press(Keys.ESCAPE)
        self.click("evil")
        self.assertEqual(self.driver.find_elements(By.TAG_NAME, "dialog"), [])
        self.click("next")
        self.assertEqual(self.shown(), [6])
        self.assertEqual(self.errors(), [])

    def test_sounds_play_and_what_cannot_says_so(self):
        for options in ((), ("--embed",)):
            self.pages["media"] = self.render("media", lessons.playing(), *options)
            self.assertEqual((self.folder / "media_files").exists(), not options)
            self.open("#5", "media")
            self.js("document.querySelector('.shown audio').play()")
            self.wait(lambda: self.js("return document.querySelector('.shown audio').currentTime > 0.05"))
            self.wait(lambda: self.driver.find_elements(By.CLASS_NAME, "message"))
            message = self.driver.find_element(By.CLASS_NAME, "message")
            self.assertIn("odd.mpg", message.text)
            address = message.find_element(By.TAG_NAME, "a").get_attribute("href")
            self.assertTrue(address.endswith("/media_files/odd.mpg") if not options else address.startswith("data:"))
            shutil.rmtree(self.folder / "media_files", ignore_errors=True)

    def test_a_cover_is_taken_off(self):
        self.open("#5")
        cover = self.driver.find_element(By.CSS_SELECTOR, ".shown [data-cover]")
        self.assertFalse(self.is_seen("solution"))
        self.click("solution")
        self.assertTrue(self.is_seen("solution"))
        self.assertEqual(self.shown(), [5])
        self.press("r")
        self.assertFalse(self.is_seen("solution"))
        for is_off in (True, False, True):
            cover.send_keys(Keys.ENTER)
            self.assertEqual(self.is_seen("solution"), is_off)
        self.click("solution")
        self.assertEqual(self.shown(), [2])

    def test_a_curtain_is_drawn_open(self):
        self.open("#6")
        self.assertFalse(self.is_seen("under"))
        x, y, w, h = self.box(self.item("c"))
        self.drag((x + w / 2, y + h * 0.75), (x + w / 2, y + h * 0.1))
        self.assertTrue(self.is_seen("under"))
        self.press(Keys.ENTER)
        self.assertTrue(self.is_seen("under"))
        self.press(Keys.ENTER)
        self.assertFalse(self.is_seen("under"))
        self.press(Keys.ARROW_UP * 7)
        self.assertTrue(self.is_seen("under"))
        self.press("4", Keys.ENTER)
        self.assertEqual(self.shown(), [4])

    def test_spotlight_ruler_and_compasses(self):
        self.open("#7")
        stage = self.box(self.driver.find_element(By.CSS_SELECTOR, ".shown .stage"))
        scale = stage[2] / 400
        at = lambda x, y: (stage[0] + x * scale, stage[1] + y * scale)
        dark = lambda x, y: self.js("return Boolean(document.elementFromPoint(...arguments).closest('[data-item=l]'))",
                                    *at(x, y))
        self.assertEqual([dark(100, 100), dark(300, 100)], [False, True])
        self.drag(at(300, 50), at(300, 100))
        self.assertEqual([dark(100, 100), dark(300, 100)], [True, False])
        before = self.box(self.item("q"))
        self.drag(at(100, 250), at(120, 230))
        after = self.box(self.item("q"))
        self.assertAlmostEqual((after[0] - before[0]) / scale, 20, delta=1)
        self.press("]" * 18)
        turned = self.box(self.item("q"))
        self.assertGreater(turned[3], turned[2] * 4)
        for place in (0, 1):
            self.assertAlmostEqual(turned[place] + turned[place + 2] / 2, after[place] + after[place + 2] / 2, delta=20)
        self.drag(at(388, 290), at(342, 240))
        arc = self.js("return [...document.querySelector('.arc').points].map((one) => [one.x, one.y])")
        self.assertTrue(all(abs(((x - 342) ** 2 + (y - 290) ** 2) ** 0.5 - 46) < 1 for x, y in arc), arc)
        self.assertLess(abs(arc[-1][0] - 342), 2)

    def test_cards_questions_and_ink(self):
        self.open("#8")
        self.click("f")
        back = self.driver.find_element(By.CSS_SELECTOR, "[data-back=f]")
        self.assertEqual((back.text, back.value_of_css_property("display")), ("fifty-six", "inline"))
        self.assertEqual(self.item("f").value_of_css_property("opacity"), "0")
        self.assertIn("fifty-six", self.item("f").accessible_name)
        self.driver.find_element(By.CSS_SELECTOR, ".shown .reveal").click()
        self.assertEqual(self.driver.find_element(By.CSS_SELECTOR, ".card.answer").text, "Because")
        self.press("p")
        self.drag((300, 400), (500, 420))
        self.drag((300, 450), (500, 470))
        strokes = lambda: len(self.driver.find_elements(By.CSS_SELECTOR, ".shown .ink polyline"))
        self.assertEqual(strokes(), 2)
        self.press("e")
        self.drag((400, 380), (400, 430))
        self.assertEqual(strokes(), 1)

    def test_a_game_is_played(self):
        self.open("#8")
        self.driver.find_element(By.XPATH, "//nav//button[text()='Play']").click()
        score = lambda: self.dialog().find_element(By.CLASS_NAME, "score").text
        piece = lambda text: self.dialog().find_element(By.XPATH, f".//button[text()='{text}']")
        middle = lambda element: [a + b / 2 for a, b in zip(self.box(element)[:2], self.box(element)[2:])]
        self.drag(middle(piece("Whale")), middle(piece("Land")))
        self.assertEqual(score(), "Right: 0 of 2. Wrong: 1.")
        self.drag(middle(piece("Whale")), middle(piece("Water")))
        piece("Fox").send_keys(Keys.ENTER)
        piece("Land").send_keys(Keys.ENTER)
        self.assertEqual(score(), "Right: 2 of 2. Wrong: 1.")
        piece("Start again").click()
        self.assertEqual(score(), "Right: 0 of 2. Wrong: 0.")
        self.assertEqual(self.errors(), [])


    def test_pieces_are_put_into_baskets(self):
        self.open("#8")
        middle = lambda name: [a + b / 2 for a, b in zip(self.box(self.item(name))[:2], self.box(self.item(name))[2:])]
        score = lambda: self.driver.find_element(By.CSS_SELECTOR, ".shown .score").text
        place = middle("whale")
        self.drag(place, middle("land"))
        self.assertEqual((score(), middle("whale")), ("Right: 0 of 1. Wrong: 1.", place))
        self.drag(place, middle("water"))
        self.assertEqual(score(), "Right: 1 of 1. Wrong: 1.")
        self.assertAlmostEqual(middle("whale")[0], middle("water")[0], delta=3)
        self.press("r")
        self.assertEqual((score(), middle("whale")), ("Right: 0 of 1. Wrong: 0.", place))

    def test_exercises_open_where_they_stand(self):
        self.open("#9")
        button = lambda text: self.dialog().find_element(By.XPATH, f".//button[text()='{text}']")
        self.click("e")
        self.press(Keys.ENTER)
        self.assertIn("56\nCard 1 of 2, back", self.dialog().text)
        button("Next").click()
        self.assertIn("9 x 6\nCard 2 of 2, front", self.dialog().text)
        self.press(Keys.ESCAPE)
        self.item("o").send_keys(Keys.ENTER)
        for left, right in (("cat", "puppy"), ("cat", "kitten"), ("dog", "puppy")):
            button(left).click()
            button(right).click()
        self.assertIn("Right: 2 of 2. Wrong: 1.", self.dialog().text)
        lines = lambda: self.js("""return [...document.querySelectorAll('dialog line')].map((one) =>
            one.getBoundingClientRect()).map((box) => [box.left, box.right])""")
        self.assertEqual(len(lines()), 2)
        # Drawn from the right to the left, a line goes with the pointer, here until it is halfway.
        button("Start again").click()
        self.js("""window.ends = []; document.addEventListener('pointermove', () => window.ends.push(
            ...[...document.querySelectorAll('dialog .drawn')].map((one) => one.getBoundingClientRect().left)));""")
        (x, y, w, h), (to_x, to_y, to_w, to_h) = map(self.box, (button("puppy"), button("dog")))
        self.drag((x + w / 2, y + h / 2), (to_x + to_w / 2, to_y + to_h / 2))
        halfway = (x + w / 2 + to_x + to_w / 2) / 2
        self.assertTrue(any(abs(end - halfway) < 5 for end in self.js("return window.ends")))
        self.assertIn("Right: 1 of 2. Wrong: 0.", self.dialog().text)
        (left, right), = lines()
        self.assertAlmostEqual(left, to_x + to_w, delta=2)
        self.assertAlmostEqual(right, x, delta=2)
        self.press(Keys.ESCAPE)
        self.click("i")
        for number, name in (("1", "odd"), ("2", "odd"), ("4", "even")):
            button(number).click()
            button(name).click()
        self.assertIn("Right: 2 of 3. Wrong: 1.", self.dialog().text)


class Example(Page):
    def test_a_whole_lesson_is_given(self):
        page = self.folder / "sounds.html"
        example = pathlib.Path(__file__).parent.parent.parent / "examples" / "playing"
        subprocess.run([LESSONCONV, "render", example, page, "--quiet"], check=True,
                       env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
        self.pages["sounds"] = page
        self.open(name="sounds")
        steps = []
        for _ in range(20):
            steps.append((self.shown()[0], self.js("""return [...document.querySelectorAll('.shown [data-item]')]
                .filter((one) => getComputedStyle(one).display != 'none').length""")))
            if self.shown() == [2] and steps[-2][0] == 1:
                self.js("document.querySelector('.shown video').play()")
                self.wait(lambda: self.js("return document.querySelector('.shown video').currentTime > 0.05"))
            self.press(Keys.PAGE_DOWN)
        self.assertEqual([count for slide, count in steps if slide == 1], [4, 5, 7, 7])
        self.assertEqual(sorted({slide for slide, _ in steps}), [1, 2, 3, 4, 5, 6, 7])
        self.assertEqual(self.errors(), [])


class Hostile(Page):
    def test_nothing_runs_or_loads(self):
        self.open(name="hostile")
        self.press(Keys.ARROW_RIGHT, Keys.ARROW_RIGHT, Keys.HOME)
        live = self.js("""const live = [...document.querySelectorAll('.shown .live')];
            live.forEach((one) => { one.dispatchEvent(new MouseEvent('click', {bubbles: true}));
                document.querySelectorAll('dialog').forEach((dialog) => dialog.close()); });
            document.querySelectorAll('.shown .reveal').forEach((one) => one.click());
            return live.length""")
        self.assertGreater(live, 10)
        self.press(Keys.HOME)
        self.assertEqual(self.driver.title, lessons.HOSTILE[0])
        self.assertEqual(self.js("""return [...document.querySelectorAll('*')].filter((one) =>
            ['foreignobject', 'iframe', 'link', 'object', 'embed'].includes(one.localName.toLowerCase())
            || [...one.attributes].some((it) => it.name.startsWith('on') || /^\\s*(javascript|file):/i.test(it.value)
                || (/href|src/.test(it.name) && /^http/.test(it.value))))
            .map((one) => one.outerHTML.slice(0, 99))"""), [])
        self.assertEqual([one for one in self.browser.requests() if not one.startswith(("file:", "data:image/"))], [])
        self.assertEqual(self.errors(), [])


if __name__ == "__main__":
    LESSONCONV = sys.argv.pop(1)
    if not (BROWSER and all(map(shutil.which, BROWSER.programs))):
        print("Skipped: install chromium, chromium-driver and python3-selenium to see lessons in a browser.")
        sys.exit(77)
    unittest.main(verbosity=2)
