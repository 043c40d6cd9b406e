#!/usr/bin/env python3
"""Renders icons/*.svg to the PNG files that go into the library: the size of the drawing, and twice
that size as name@2x.png for screens of a high density. Needs rsvg-convert."""

import pathlib
import re
import subprocess

icons = pathlib.Path(__file__).resolve().parent / "icons"
for source in sorted(icons.glob("*.svg")):
    width, height = map(int, re.search(r'width="(\d+)" height="(\d+)"', source.read_text()).groups())
    for scale, suffix in ((1, ""), (2, "@2x")):
        target = source.with_name(source.stem + suffix + ".png")
        subprocess.run(["rsvg-convert", "-w", str(width * scale), "-h", str(height * scale), "-o", target,
                        source], check=True)
names = "\n".join(
    f'        <file alias="{png.name}">icons/{png.name}</file>' for png in sorted(icons.glob("*.png")))
(icons.parent / "ovk.qrc").write_text(
    f'<RCC>\n    <qresource prefix="/icons">\n{names}\n    </qresource>\n</RCC>\n')
