#!/usr/bin/python3
"""Looks for what the languages of the window lack, and for what would not work in one of them.

    translations.py LUPDATE
"""

import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

LUPDATE = sys.argv[1]
SOURCES = Path(__file__).parents[2]
GLOSSARY_WORDS = ["cart", "checkout", "wishlist", "piece", "look", "size", "designer", "collection", "order", "package",
                  "return", "refund", "discount", "final sale", "new in", "sold out", "back in stock", "price drop",
                  "closet", "alert"]

# Names, keys and units, which most languages leave as they are.
NAMES = {"%1 – LOOMSTREET", "Esc", "LOOMSTREET %1", "Mira", "MyLST", "Starlook", "Vessa", "Y2K", "cm", "ft", "in", "kg",
         "lb", "“%1”"}

# Plural forms that stand for one number alone, and so may do without it; the others have to show it.
FORMS_OF_ONE_NUMBER = {"ar": {0, 1, 2}, "fr": set(), "fil": set(), "is": set(), "pt": set(), "hi": set(), "hr": set(),
                       "ru": set(), "uk": set()}


def languages():
    header = (SOURCES / "src/net/AppLanguage.h").read_text()
    return re.findall(r'"([\w-]+)"', re.search(r"appLanguageCodes\{(.*?)\}", header, re.S).group(1))


class Text:
    """A text of the window, and how a file has it in its language: in one form, or in one for each kind of number."""

    def __init__(self, message):
        translation = message.find("translation")
        self.english = message.findtext("source")
        self.name = (self.english, message.findtext("comment", ""))
        self.is_plural = message.get("numerus") == "yes"
        self.is_finished = translation.get("type") is None
        # A translator who means the English says so.
        self.is_meant = message.find("translatorcomment") is not None
        forms = translation.findall("numerusform") if self.is_plural else [translation]
        self.forms = ["".join(form.itertext()) for form in forms]


def read(file):
    return {text.name: text for text in map(Text, ElementTree.parse(file).iter("message"))}


def asked_for(codes, folder):
    """What the sources say now, with as many empty forms as the numbers of each language need."""
    files = {code: Path(folder) / f"{code}.ts" for code in codes}
    for code, file in files.items():
        language = ElementTree.parse(file_of(code)).getroot().get("language")
        file.write_text(f'<!DOCTYPE TS><TS version="2.1" language="{language}" sourcelanguage="en_US"/>')
    update = [LUPDATE, "-silent", "-extensions", "cpp,h,qml", SOURCES / "src"]
    subprocess.run([*update, "-ts", *(files[code] for code in codes if code != "en")], check=True, capture_output=True)
    subprocess.run([*update, "-pluralonly", "-ts", files["en"]], check=True, capture_output=True)
    return {code: read(file) for code, file in files.items()}


def file_of(code):
    return SOURCES / f"translations/loomstreet_{code}.ts"


def places(text):
    """Where something is put in. Whether a number is written as the language does is not a translator's to say."""
    return sorted(re.findall(r"%L?(?:n|\d)", text))


def edges(text):
    return text[:len(text) - len(text.lstrip())], text[len(text.rstrip()):]


def faults(code, text):
    if not text.is_finished or not all(form.strip() for form in text.forms):
        yield "is not translated"
        return
    one_number = FORMS_OF_ONE_NUMBER.get(code, {0} if len(text.forms) > 1 else set())
    for index, form in enumerate(text.forms):
        wanted, found = places(text.english), places(form)
        if text.is_plural and index in one_number and not any("n" in place for place in found):
            wanted = [place for place in wanted if "n" not in place]
        if found != wanted:
            yield f"has {found} for {wanted} in “{form}”"
        if edges(form) != edges(text.english):
            yield f"begins or ends with other blanks: “{form}”"
        if re.search(r"[<>\x00-\x09\x0b-\x1f\u202a-\u202e\u2066-\u2069]|&\w+;", form):
            yield f"has markup or control characters in “{form}”"
        if text.english.endswith("…") != form.endswith("…"):
            yield f"says otherwise whether more is to come: “{form}”"
    if code != "en" and text.english in text.forms and not text.is_meant and text.english not in NAMES:
        yield "is the English"


class Translations(unittest.TestCase):
    def test_every_language_has_every_text(self):
        with tempfile.TemporaryDirectory() as folder:
            for code, asked in asked_for(languages(), folder).items():
                with self.subTest(code):
                    own = read(file_of(code))
                    self.assertGreater(len(asked), 20 if code == "en" else 900)
                    self.assertEqual([name for name in asked if name not in own], [], "lacks")
                    self.assertEqual([name for name in own if name not in asked], [], "has what nothing says")
                    self.assertEqual([name for name, text in asked.items() if len(own[name].forms) != len(text.forms)],
                                     [], "has too few or too many forms")

    def test_every_file_is_in_its_language(self):
        named = {"en": "en_US", "zh-Hans": "zh_CN", "zh-Hant": "zh_TW"}
        letters = {"ar": "\u0621-\u064a", "he": "\u05d0-\u05ea", "el": "\u03b1-\u03ce", "hi": "\u0904-\u0939",
                   "th": "\u0e01-\u0e2e", "ko": "\uac00-\ud7a3", "ja": "\u3041-\u30fe\u4e00-\u9fff",
                   "zh-Hans": "\u4e00-\u9fff", "zh-Hant": "\u4e00-\u9fff", "ru": "\u0430-\u044f",
                   "uk": "\u0430-\u044f\u0456"}
        for code in languages():
            with self.subTest(code):
                self.assertEqual(ElementTree.parse(file_of(code)).getroot().get("language"), named.get(code, code))
                texts = read(file_of(code)).values()
                own = [text for text in texts if re.search(f"[{letters.get(code, 'a-z')}]", text.forms[-1])]
                self.assertGreater(len(own), 0.95 * len(texts))

    def test_every_text_works_in_its_language(self):
        for code in languages():
            with self.subTest(code):
                self.assertEqual([f"{' '.join(filter(None, text.name))}: {fault}"
                                  for text in read(file_of(code)).values() for fault in faults(code, text)], [])

    def test_reasons_have_no_blanks_between_characters_of_scripts_that_need_none(self):
        for code in ("zh-Hans", "zh-Hant", "ja", "ko"):
            characters = "\u3400-\u9fff" + ("" if code == "ko" else "\u3040-\u30ff")
            place = "" if code == "ko" else "|%1"
            stray = rf"[{characters}][ \u00a0]+([{characters}]{place})" + rf"|%1[ \u00a0]+[{characters}]" * bool(place)
            for (english, key), text in read(file_of(code)).items():
                if key.startswith("reco."):
                    self.assertNotRegex(text.forms[0], stray, f"{code}: {english}")

    def test_every_language_has_its_glossary(self):
        for code in languages()[1:]:
            with self.subTest(code):
                rows = re.findall(r"^\| ([a-z][^|]*?) +\|", (SOURCES / f"docs/glossaries/{code}.md").read_text(), re.M)
                self.assertEqual([re.sub(r" \(.*\)", "", row) for row in rows], GLOSSARY_WORDS)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
