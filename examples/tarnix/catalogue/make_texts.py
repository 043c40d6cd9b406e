#!/usr/bin/env python3
"""Lists the texts of the catalogue and of the default profiles for the translator.

    python3 make_texts.py            writes catalogue_texts.cpp beside this script
    python3 make_texts.py --check    compares it with what would be written

The program looks these texts up at run time, by contexts that only the catalogue knows: lupdate
finds them in the file that is written here. Nothing compiles it.
"""
import os
import sys

import make_catalogue

HEAD = """// Made by make_texts.py from commands.txt and layouts.txt; do not edit.
// Not compiled: lupdate reads here what is looked up at run time.

#include <QtGlobal>

"""


def literal(text):
    return '"%s"' % text.replace("\\", "\\\\").replace('"', '\\"')


def entries():
    """Triples of context, text and comment, each once, in the order of the tables."""
    for command in make_catalogue.commands():
        if command["title"] in ("-", ""):
            continue
        for key, comment in (("title", "title"), ("tooltip", "tooltip"), ("status", "statustip")):
            yield "commands." + command["id"], command[key], comment
    # Not the layouts: the customise dialog finds a layout by the text that it shows.
    tables = make_catalogue.Tables()
    for composite in tables.composites:
        head, _ = make_catalogue.split_head(composite)
        if len(head) > 3:
            yield "composites", " ".join(head[3:]), ""
    contexts = {"toolbar": ("toolbars", 2), "menu": ("menus", 2), "panel": ("toolsheets", 2), "float": ("toolsheets", 5),
                "page": ("ribbon.pages", 1), "group": ("ribbon.groups", 1)}
    blocks = [tables.common] + list(tables.blocks.values())
    for block in blocks:
        for line in block:
            word, _, rest = line.partition(" ")
            if word not in contexts:
                continue
            context, skip = contexts[word]
            if word == "page":
                yield context, rest.split(" ", 1)[1], ""
                continue
            head, words = make_catalogue.split_head(rest)
            yield context, " ".join(head[skip:]), ""
            if word in ("panel", "float"):
                for page in words:
                    yield "toolpages", page.split("=")[1], ""


def text():
    seen = set()
    lines = []
    for context, source, comment in entries():
        if not source or (context, source, comment) in seen:
            continue
        seen.add((context, source, comment))
        if comment:
            lines.append("QT_TRANSLATE_NOOP3(%s, %s, %s)" % (literal(context), literal(source), literal(comment)))
        else:
            lines.append("QT_TRANSLATE_NOOP(%s, %s)" % (literal(context), literal(source)))
    return HEAD + "\n".join(lines) + "\n"


def main():
    path = os.path.join(make_catalogue.HERE, "catalogue_texts.cpp")
    if "--check" in sys.argv:
        same = os.path.exists(path) and open(path, encoding="utf-8").read() == text()
        if not same:
            print("catalogue_texts.cpp")
        return 0 if same else 1
    with open(path, "w", encoding="utf-8", newline="\n") as out:
        out.write(text())
    return 0


if __name__ == "__main__":
    sys.exit(main())
