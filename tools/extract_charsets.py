#!/usr/bin/env python3
"""Writes data/Charsets.txt: the characters of standards, and those that texts in a language need.

Usage: extract_charsets.py CLDR/common > Charsets.txt

data/README.md tells what a set holds.
"""

import re
import sys
import unicodedata
import xml.etree.ElementTree as ElementTree
from pathlib import Path

STANDARDS = [
    ("ascii", "ASCII", "ascii"),
    ("latin1", "ISO 8859-1, Western European", "iso8859-1"),
    ("latin2", "ISO 8859-2, Central European", "iso8859-2"),
    ("latin3", "ISO 8859-3, South European", "iso8859-3"),
    ("latin4", "ISO 8859-4, North European", "iso8859-4"),
    ("latin5", "ISO 8859-9, Turkish", "iso8859-9"),
    ("latin6", "ISO 8859-10, Nordic", "iso8859-10"),
    ("latin7", "ISO 8859-13, Baltic", "iso8859-13"),
    ("latin8", "ISO 8859-14, Celtic", "iso8859-14"),
    ("latin9", "ISO 8859-15, Western European with the euro", "iso8859-15"),
    ("latin10", "ISO 8859-16, South-Eastern European", "iso8859-16"),
    ("cyrillic", "ISO 8859-5, Cyrillic", "iso8859-5"),
    ("arabic", "ISO 8859-6, Arabic letters without their joined forms", "iso8859-6"),
    ("greek", "ISO 8859-7, Greek", "iso8859-7"),
    ("hebrew", "ISO 8859-8, Hebrew", "iso8859-8"),
    ("thai", "ISO 8859-11, Thai", "iso8859-11"),
    ("cp437", "Code page 437, the first PC's", "cp437"),
    ("cp850", "Code page 850, the Western European PC's", "cp850"),
    ("cp1250", "Code page 1250, Central European", "cp1250"),
    ("cp1251", "Code page 1251, Cyrillic", "cp1251"),
    ("cp1252", "Code page 1252, Western European", "cp1252"),
    ("cp1253", "Code page 1253, Greek", "cp1253"),
    ("cp1254", "Code page 1254, Turkish", "cp1254"),
    ("cp1255", "Code page 1255, Hebrew", "cp1255"),
    ("cp1256", "Code page 1256, Arabic", "cp1256"),
    ("cp1257", "Code page 1257, Baltic", "cp1257"),
    ("cp1258", "Code page 1258, Vietnamese", "cp1258"),
]
ASCII = {chr(code) for code in range(0x20, 0x7F)}
SOFT_HYPHEN = "\u00ad"
GEORGIAN_CAPITALS = range(0x1C90, 0x1CC0)


class OtherSyntax(Exception):
    """A set that is not a plain list of characters."""


def printable(characters):
    """Without control and format characters, which have no picture, but with the soft hyphen."""
    return {
        character
        for character in characters
        if not unicodedata.category(character).startswith("C") or character == SOFT_HYPHEN
    }


def of_standard(codec):
    return set(bytes(range(256)).decode(codec, "ignore"))


def exemplars(text):
    """The characters of a list such as "[a-c {dz} \\u0302 \\-]", those of sequences one by one."""
    if text[0] != "[" or text[-1] != "]":
        raise OtherSyntax(text)
    token = re.compile(r"\\u([0-9A-Fa-f]{4})|\\U([0-9A-Fa-f]{8})|\\x\{([0-9A-Fa-f]+)\}|\\([^uUx])|([^\\])", re.S)
    result = []
    from_last = False
    for match in token.finditer(text[1:-1]):
        code = match[1] or match[2] or match[3]
        character = chr(int(code, 16)) if code else match[4] or match[5]
        if match[5] == "-":
            from_last = True
        elif match[5] in ("[", "]", "&", "^", "$"):
            raise OtherSyntax(text)
        elif match[5] is None or match[5] not in "{} \t\n":
            if from_last:
                result += map(chr, range(ord(result[-1]) + 1, ord(character)))
            result.append(character)
            from_last = False
    return set(result)


def exemplar_lists(tree):
    """By type: "" for the main ones. Inherited ones are left out."""
    lists = {}
    for element in tree.iterfind("characters/exemplarCharacters"):
        if "↑↑↑" not in element.text:
            lists[element.get("type", "")] = exemplars(element.text)
    return lists


def in_capitals(characters):
    capitals = {character.upper() for character in characters if len(character.upper()) == 1}
    if "ß" in characters:
        capitals.add("ẞ")
    # Ordinary Georgian text has no capitals.
    return {capital for capital in capitals if ord(capital) not in GEORGIAN_CAPITALS}


def description(locale, english):
    names = {element.get("type"): element.text for element in english.iterfind("localeDisplayNames/languages/language")
             if element.get("alt") is None}
    scripts = {element.get("type"): element.text for element in english.iterfind("localeDisplayNames/scripts/script")
               if element.get("alt") is None}
    language, _, script = locale.partition("_")
    return names.get(locale) or (f"{names[language]} ({scripts[script]})" if script else names[language])


def parents(folder):
    """Of the languages that have their characters from another one."""
    tree = ElementTree.parse(folder / "supplemental" / "supplementalData.xml")
    return {
        locale: element.get("parent")
        for element in tree.iterfind("parentLocales/parentLocale")
        for locale in element.get("locales").split()
    }


def languages(folder):
    main = folder / "main"
    english = ElementTree.parse(main / "en.xml")
    parent_of = parents(folder)
    for path in sorted(main.iterdir()):
        locale = path.stem
        if not re.fullmatch(r"[a-z]{2,3}(_[A-Z][a-z]{3})?", locale):
            continue
        lists = {}
        for source in ("root", parent_of.get(locale, "root"), locale):
            lists |= exemplar_lists(ElementTree.parse(main / f"{source}.xml"))
        letters = lists.get("", set())
        if not letters or max(map(ord, letters)) > 0xFFFF:
            continue
        characters = ASCII | letters | in_capitals(letters) | lists["numbers"] | lists["punctuation"]
        yield locale.replace("_", "-"), description(locale, english), printable(characters)


def ranges(characters):
    codes = sorted(map(ord, characters))
    result = []
    for code in codes:
        if result and code == result[-1][1] + 1:
            result[-1][1] = code
        else:
            result.append([code, code])
    return " ".join(f"{first:04X}" if first == last else f"{first:04X}-{last:04X}" for first, last in result)


def main():
    sets = [(name, text, printable(of_standard(codec))) for name, text, codec in STANDARDS]
    for name, text, characters in sets + list(languages(Path(sys.argv[1]))):
        print(name, text, ranges(characters), sep=";")


if __name__ == "__main__":
    main()
