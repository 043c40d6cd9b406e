#!/usr/bin/env python3
"""Brings the translation files up to date with the sources.

    python3 update.py            adds new texts to the files and takes out what is gone
    python3 update.py --check    changes nothing; tells what is new, gone or not translated
"""
import os
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(HERE)
LUPDATE = os.environ.get("OVK_LUPDATE", "lupdate")

# What each family of files is made from, and the folders from which its sources include.
FAMILIES = {
    "ovk": (["ovk", "platform"], [".", "platform"]),
    "tarnix": (["examples/tarnix"], [".", "platform", "examples/tarnix"]),
}
# Functions of the sample host that take a source text, as tr() does.
ALIASES = "tr+=Step,tr+=Later"


def update(family, path):
    folders, includes = FAMILIES[family]
    arguments = [LUPDATE, "-silent", "-no-obsolete", "-locations", "none", "-tr-function-alias", ALIASES]
    for include in includes:
        arguments += ["-I", os.path.join(ROOT, include)]
    arguments += [os.path.join(ROOT, folder) for folder in folders] + ["-ts", path]
    subprocess.run(arguments, check=True, stderr=subprocess.DEVNULL)


def messages(path):
    """The texts of a file by context, source and comment; what a translation lacks is told."""
    found = {}
    for context in ElementTree.parse(path).getroot().findall("context"):
        for message in context.findall("message"):
            key = (context.findtext("name"), message.findtext("source"), message.findtext("comment") or "")
            translation = message.find("translation")
            forms = [f.text for f in translation.findall("numerusform")] or [translation.text]
            found[key] = translation.get("type") is None and all(forms)
    return found


def check(family, path):
    """The faults of a file, a line each."""
    before = messages(path)
    with tempfile.TemporaryDirectory() as folder:
        fresh = os.path.join(folder, os.path.basename(path))
        shutil.copy(path, fresh)
        update(family, fresh)
        after = messages(fresh)
    name = os.path.basename(path)
    for key in sorted(after):
        if key not in before:
            yield "%s: new: %s: %r %s" % ((name,) + key)
        elif not before[key]:
            yield "%s: not translated: %s: %r %s" % ((name,) + key)
    for key in sorted(before):
        if key not in after:
            yield "%s: gone: %s: %r %s" % ((name,) + key)


def main():
    faults = []
    for name in sorted(os.listdir(HERE)):
        family = name.split("_")[0]
        if not name.endswith(".ts") or family not in FAMILIES:
            continue
        path = os.path.join(HERE, name)
        if "--check" in sys.argv:
            faults += check(family, path)
        else:
            update(family, path)
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
