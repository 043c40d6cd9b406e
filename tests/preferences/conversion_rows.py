#!/usr/bin/env python3
"""Says what becomes of the paths of every row of conversion_rows.txt, by the rules of the history of
names alone and without the library: writes conversion_results.txt.

A line of the rows: number | old path | new path | converter. A line of the results: number | what
the old path becomes | by which converter | what the new path becomes | by which converter.
"""
import pathlib

FOLDER = pathlib.Path(__file__).parent


def is_run_of_steps(path, at, key):
    """A key inside a path counts only as whole steps with a step behind it."""
    end = at + len(key)
    return (at == 0 or path[at - 1] == "/") and path[end] == "/"


def follow(rows, path, sought, replacement):
    converter = "KeepText"
    for row in rows:
        key = row[sought].lower()
        at = path.find(key)
        if at < 0:
            continue
        if at + len(key) == len(path):
            converter = row[3]
        elif not is_run_of_steps(path, at, key):
            continue
        path = path[:at] + row[replacement].lower() + path[at + len(key):]
    return path, converter


def main():
    rows = [line.split("|") for line in (FOLDER / "conversion_rows.txt").read_text().splitlines()]
    lines = []
    for row in rows:
        to_new = follow(rows, row[1].lower(), 1, 2)
        to_old = follow(rows, row[2].lower(), 2, 1)
        lines.append("|".join([row[0], *to_new, *to_old]))
    (FOLDER / "conversion_results.txt").write_text("\n".join(lines) + "\n")


main()
