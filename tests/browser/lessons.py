# SPDX-License-Identifier: MIT
"""Lessons for the tests in a browser."""

import base64
import io
import json
import math
import struct
import wave


def tone():
    """A second of a tone, as a .wav file."""
    data = io.BytesIO()
    with wave.open(data, "wb") as sound:
        sound.setnchannels(1)
        sound.setsampwidth(2)
        sound.setframerate(8000)
        sound.writeframes(b"".join(struct.pack("<h", int(9000 * math.sin(i / 3))) for i in range(8000)))
    return data.getvalue()


def box(identifier, left, color, **keys):
    """A square of 100 pixels in the middle of the height of a page."""
    return {"ID": identifier, "Type": "ZQMath2DRectangle", "BoundingBox": f"{left},100,{left + 100},200",
            "LineColor": color, "ArtObj_Color": color, **keys}


def text(identifier, words, top, **keys):
    return {"ID": identifier, "Type": "ZQTextBoard", "BoundingBox": f"100,{top},390,{top + 40}", "Text": words, **keys}


def action(target, mode, kind, **keys):
    return {"targetID": target, "activeMode": mode, "interactiveType": kind, "activeItem": "slide", "valid": True,
            **keys}


def script(*triggers):
    return json.dumps({f"src_NO=={i}": {f"animation_NO=={j}": step for j, step in enumerate(steps)}
                       for i, steps in enumerate(triggers)})


def lesson(slides, files=None):
    resources = {name: base64.b64encode(content).decode() for name, content in (files or {}).items()}
    return {"Title": "A <lesson> & more", "Width": "400", "Height": "300", "Slides": slides, "Resources": resources}


def playing():
    """One slide for each thing that a page does."""
    enter = "ID_OBJANIMATION_ENTER_"
    slides = [
        {"ID": "1", "Items": [text("t", "First slide", 20), box("r", 150, "255,255,0,0")]},
        {"ID": "2", "EffectType": "ID_SLIDE_EFFECT_XZTJ",
         "animations": {"animation": ["a", "b", "a"]},
         "Items": [box("a", 20, "255,0,0,255", animations={
                       "appearance": {"e": enter + "FLYIN"}, "emphasis": {"e": "blink"},
                       "disappearance": {"e": "ID_OBJANIMATION_OUT_ZOOM"}}),
                   box("b", 150, "255,0,128,0")]},
        {"ID": "3", "objAnimationData": script(
            [action("s", "from_previous", enter + "FADE"), action("h", "click", enter + "CIRCLE", scale="1.5"),
             action("s", "from_previous_end", "ID_OBJANIMATION_OUT_BLINDS")],
            [{**action("g", "click", "ANIMATION_UNKNOWN"), "activeItem": "k"},
             {**action("g", "from_previous_end", "ID_OBJANIMATION_OUT_FADE"), "activeItem": "k"}]),
         "Items": [box("s", 20, "255,0,0,255"), box("h", 150, "255,0,128,0", Visible=False),
                   text("k", "Click me", 220),
                   {"ID": "g", "Type": "ZQGroupItem", "Children": [box("g1", 280, "255,255,0,255")]}]},
        {"ID": "4", "Items": [
            text("next", "Onwards", 10, InteractiveType="ACTION_GOTOSLIDE", InteractiveValue="6"),
            text("web", "Web", 60, InteractiveType="ACTION_OPENWEB", InteractiveValue="https://example.org/a?b=c"),
            text("file", "File", 110, InteractiveType="ACTION_OPENFILE", InteractiveValue="n/page.html"),
            text("evil", "Evil", 160, InteractiveType="ACTION_OPENWEB",
                 InteractiveValue="javascript:alert(1)//http://x")]},
        {"ID": "5", "Items": [
            {"ID": "m", "Type": "ZQMediaAudio", "resource": "n/tone.wav", "BoundingBox": "20,20,200,100"},
            {"ID": "w", "Type": "ZQMediaVideo", "resource": "n/odd.mpg", "BoundingBox": "210,20,390,140"},
            text("solution", "Solution", 220, CoverLayer="1", InteractiveType="ACTION_GOTOSLIDE",
                 InteractiveValue="2")]},
        {"ID": "6", "Items": [
            box("under", 150, "255,255,0,0"),
            {"ID": "c", "Type": "General:curtain", "BoundingBox": "0,0,400,300"}]},
        {"ID": "7", "Items": [
            {"ID": "l", "Type": "General:spotlight", "BoundingBox": "0,0,400,200", "CanvasSize": "400,200",
             "SpotCenter": "100,100", "SpotRadius": "40"},
            {"ID": "q", "Type": "Math:ruler", "BoundingBox": "50,220,330,260", "Length": "280"},
            {"ID": "x", "Type": "Math:compasses", "BoundingBox": "340,210,390,290"}]},
        {"ID": "8", "Items": [
            {"ID": "f", "Type": "ZQActivityFlipItem", "BoundingBox": "20,20,180,140", "frontContent": "7 x 8",
             "TextHtml": "<p>fifty-six</p>"},
            {"ID": "u", "Type": "ZQQuestionItem", "BoundingBox": "200,20,380,100", "R_Content_svg": "Why?",
             "R_Answer_svg": "Because"},
            {"ID": "water", "Type": "ZQActiveContainerItem", "BoundingBox": "20,180,120,290",
             "TextHtml": "<p>Water</p>"},
            {"ID": "land", "Type": "ZQActiveContainerItem", "BoundingBox": "280,180,380,290",
             "TextHtml": "<p>Land</p>"},
            {"ID": "whale", "Type": "ZQActiveMaterialItem", "BoundingBox": "160,200,240,260", "TextHtml": "Whale"}],
         "activity": {"type": "Match", "title": "Where?", "matchs": [
             {"container": {"id": "c1", "txt": "Water"}, "materials": [{"id": "m1", "txt": "Whale"}],
              "answers": [{"c1": ["m1"]}]},
             {"container": {"id": "c2", "txt": "Land"}, "materials": [{"id": "m2", "txt": "Fox"}],
              "answers": [{"c2": ["m2"]}]}], "unmatchs": []}},
    ]
    slides.append({"ID": "9", "Items": [
        {"ID": "e", "Type": "General:everCard", "BoundingBox": "20,20,180,140", "Title": "Tables",
         "CardList": json.dumps([{"front": "7 x 8", "back": "56"}, {"front": "9 x 6", "back": "54"}])},
        {"ID": "o", "Type": "General:connection", "BoundingBox": "200,20,380,140",
         "ConnectionList": json.dumps([["cat", "kitten"], ["dog", "puppy"]])},
        {"ID": "i", "Type": "General:fiaction", "BoundingBox": "20,150,380,290",
         "FicationList": json.dumps([{"name": "even", "items": ["2", "4"]}, {"name": "odd", "items": ["1"]}])}]})
    return lesson(slides, {"n/tone.wav": tone(), "n/odd.mpg": b"no film at all",
                           "n/page.html": b"<script>document.title = 'ran'</script>"})


HOSTILE = [
    "</script><script>alert(1)</script>", "<img src=x onerror=alert(1)>", "<!--<script>", "]]><svg onload=alert(1)>",
    "<iframe src='https://example.org/'></iframe>", "<link rel=stylesheet href='https://example.org/s.css'>",
    "\" onclick=\"alert(1)", "<style>@import 'https://example.org/s.css'; * { display: none !important }</style>",
    "<p style='background:url(https://example.org/p.png)'>x</p>", "<a href='javascript:alert(1)'>x</a>",
    "<svg xmlns='http://www.w3.org/2000/svg'><foreignObject>"
    "<script xmlns='http://www.w3.org/1999/xhtml'>alert(1)</script></foreignObject>"
    "<image href='https://example.org/p.png' width='9' height='9'/><script>alert(1)</script>"
    "<style>rect { fill: url(https://example.org/f.svg#f) }</style>"
    "<rect width='9' height='9' onclick='alert(1)'/></svg>",
]


def hostile():
    """Texts, names, links and files that want to run or to load."""
    items = []
    for number, words in enumerate(HOSTILE):
        items += [{**text(words, words, 20 * number), "TextHtml": words, "name": words},
                  {"ID": f"q{number}", "Type": "ZQQuestionItem", "BoundingBox": "0,0,99,99", "R_Content_svg": words,
                   "R_Answer_svg": words},
                  {"ID": "__proto__", "Type": "ZQActivityFlipItem", "BoundingBox": "0,0,50,50", "frontContent": words,
                   "TextHtml": words, "attachments": {"back": "https://example.org/b.png", "front": words}},
                  {"ID": f"p{number}", "Type": "ZQImagePic", "resource": "https://example.org/p.png", "name": words,
                   "BoundingBox": "9,9,99,99"}]
    links = ["javascript:alert(1)", "data:text/html,<script>alert(1)</script>", "file:///etc/passwd", "//example.org",
             "\tjavascript:alert(1)//https://example.org", "https://example.org/\"onclick=\"alert(1)"]
    for number, address in enumerate(links):
        for kind in ("ACTION_OPENWEB", "ACTION_OPENFILE", "ACTION_TOOLTIP", "ACTION_GOTOSLIDE"):
            items.append(text(f"l{number}{kind}", f"link {number}", 250, InteractiveType=kind,
                              InteractiveValue=address))
    picture = (b"<svg xmlns='http://www.w3.org/2000/svg' width='50' height='50' onload='alert(1)'>"
               b"<script>alert(1)</script><image href='https://example.org/p.png' width='50' height='50'/></svg>")
    items.append({"ID": "svg", "Type": "ZQImagePic", "resource": "a.svg", "BoundingBox": "0,0,50,50"})
    items.append({"ID": "doc", "Type": "ZQMediaDoc", "resource": "a.svg", "BoundingBox": "300,0,390,50"})
    items.append({"ID": "film", "Type": "ZQMediaVideo", "resource": "https://example.org/v.mp4",
                  "BoundingBox": "0,0,9,9"})
    words = HOSTILE[0]
    slide = {"ID": words, "EffectType": words, "Items": items, "animations": {"animation": [words, "__proto__"]},
             "objAnimationData": script([action(words, "click", words, effectoption=words)],
                                        [{**action("constructor", "click", words), "activeItem": "__proto__"}]),
             "activity": {"type": words, "title": words, "matchs": [{"question": words, "answer": words}]}}
    result = lesson([slide, {"ID": "2"}], {"a.svg": picture})
    result["Title"] = words
    return result
