#!/usr/bin/env python3
"""Makes the emoji picker's data of what Unicode publishes, while the program is built.

    cmake/emoji_data.py --annotations FOLDER --order FILE --output FOLDER

FOLDER of --annotations holds annotations/ and annotationsDerived/ of Unicode's CLDR, --order is emoji-test.txt. Written are
order.txt, a line "GROUP EMOJI" for each emoji in the order of Unicode, and for each language LANGUAGE.txt, whose line of the
same number is "NAME<tab>KEYWORD|KEYWORD|...". Skin tones are left out. What a language does not name has its English name.
"""
import argparse
import sys
import xml.etree.ElementTree
from pathlib import Path

LANGUAGES = ("en", "de", "fr", "es", "it", "pl")
# As emoji-test.txt calls them; the picker has names of its own for them, in this order.
GROUPS = ("Smileys & Emotion", "People & Body", "Animals & Nature", "Food & Drink", "Travel & Places", "Activities",
          "Objects", "Symbols", "Flags")
SKIN_TONES = range(0x1F3FB, 0x1F3FF + 1)
EMOJI_STYLE = "\N{VARIATION SELECTOR-16}"  # not part of the keys of annotations
INHERITED = "↑↑↑"
FEWEST = 1000  # fewer than this have been misread


def read_order(path):
    """(group, emoji, English name) in the order of Unicode."""
    group = None
    found = []
    for line in path.read_text(encoding="utf-8").splitlines():
        if line.startswith("# group:"):
            name = line.partition(":")[2].strip()
            group = GROUPS.index(name) if name in GROUPS else None
        fields, _, comment = line.partition("#")
        points, _, status = fields.partition(";")
        if group is None or status.strip() != "fully-qualified":
            continue
        emoji = "".join(chr(int(point, 16)) for point in points.split())
        if not any(ord(character) in SKIN_TONES for character in emoji):
            found.append((group, emoji, comment.split(maxsplit=2)[2]))
    return found


def read_annotations(folder, language):
    """Emoji without their style to their name, and to their keywords."""
    names, keywords = {}, {}
    for part in ("annotations", "annotationsDerived"):
        root = xml.etree.ElementTree.parse(folder / part / f"{language}.xml").getroot()
        for annotation in root.iter("annotation"):
            text = " ".join((annotation.text or "").split())
            if text and text != INHERITED:
                table = names if annotation.get("type") == "tts" else keywords
                table.setdefault(annotation.get("cp"), text)
    return names, keywords


def lines_of(language, order, folder, english):
    names, keywords = read_annotations(folder, language)
    for (_, emoji, standard), fallback in zip(order, english or [None] * len(order)):
        key = emoji.replace(EMOJI_STYLE, "")
        name = names.get(key) or (fallback or standard).partition("\t")[0]
        words = [word.strip() for word in keywords.get(key, "").split("|")]
        yield name + "\t" + "|".join(word for word in words if word and word.casefold() != name.casefold())


def main():
    options = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    for name in ("--annotations", "--order", "--output"):
        options.add_argument(name, type=Path, required=True)
    given = options.parse_args()
    order = read_order(given.order)
    if len(order) < FEWEST or {group for group, _, _ in order} != set(range(len(GROUPS))):
        sys.exit(f"{given.order} is not what it used to be: {len(order)} emoji were found in it")
    given.output.mkdir(parents=True, exist_ok=True)

    def write(name, lines):
        (given.output / name).write_text("".join(line + "\n" for line in lines), encoding="utf-8", newline="\n")

    write("order.txt", (f"{group} {emoji}" for group, emoji, _ in order))
    english = None
    for language in LANGUAGES:
        lines = list(lines_of(language, order, given.annotations, english))
        english = english or lines
        write(f"{language}.txt", lines)


if __name__ == "__main__":
    main()
