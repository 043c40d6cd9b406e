#!/usr/bin/env python3
"""Draws the icons of all commands: one SVG file a command, named after its identifier, and icons.qrc.

    python3 make_icons.py            writes the files beside this script
    python3 make_icons.py --check    compares them with what would be written
"""
import math
import os
import sys

# Nothing but the icons is to be left beside the script.
sys.dont_write_bytecode = True

from glyphs import *

HERE = os.path.dirname(os.path.abspath(__file__))
I = {}


def many(table):
    I.update(table)


# ---- files and editing -------------------------------------------------------------------------
many({
    "File.New": page() + badge("plus"),
    "File.Open": folder(),
    "File.Import": cube(13, 13, 10) + badge("plus"),
    "File.Save": disk(),
    "File.SaveAs": disk() + badge("pen"),
    "File.Reload": cube(13, 13, 10) + badge("reload"),
    "File.ExportStl": cube(12, 16, 10) + arrow(17, 24, 30, 24, GREEN, 3.4, 8),
    "File.ExportAscii": page(3, 3, 18, 24) + text_lines(7, (12, 16, 20), (9, 6, 9)) + arrow(16, 25, 30, 25, GREEN, 3.4, 8),
    "File.ExportEach": cube(9, 10, 6) + cube(23, 10, 6) + path("M5 27V19H12L14 21H25V27Z", YELLOW) + arrow(16, 13, 16, 25, GREEN, 3, 7),
    "File.ExportPicture": rect(3, 5, 22, 18, WHITE) + circle(9, 11, 2.5, YELLOW, None) + poly([(4, 22), (11, 14), (15, 18), (19, 13), (24, 19), (24, 22)], GREEN, None) + badge("down"),
    "File.CopyPicture": rect(3, 3, 18, 15, LIGHT) + rect(9, 9, 20, 18, WHITE) + circle(15, 15, 2.2, YELLOW, None) + poly([(10, 26), (16, 18), (20, 22), (23, 18), (28, 24), (28, 26)], GREEN, None),
    "File.PrintReport": rect(9, 3, 14, 9, WHITE) + rect(3, 11, 26, 12, MID, INK, 2, 2) + rect(9, 17, 14, 12, WHITE) + text_lines(12, (21, 25), (8, 5)) + circle(25, 14.5, 1.4, GREEN, None),
    "File.Bracket": path("M3 25H29V21H24L22 13A7 7 0 0 0 10 13L8 21H3Z", MID) + circle(16, 14, 3.4, WHITE),
    "File.Vase": path("M10 5H22Q19 10 24 16Q27 23 20 27H12Q5 23 8 16Q13 10 10 5Z", MID) + path("M13 10Q16 16 12 24M18 10Q21 17 17 26", "none", DEEP) + ellipse(16, 5, 6, 1.6, LIGHT),
    "File.ClearRecent": circle(14, 14, 11, WHITE) + polyline([(14, 7), (14, 14), (19, 17)]) + badge("cross"),
    "File.Exit": path("M5 3H19V29H5Z", MID) + path("M5 3L13 7V29L5 29Z", DEEP) + arrow(16, 16, 31, 16, RED, 3.4, 8),
    "Edit.Undo": path("M7 11H19A8 8 0 0 1 19 27H11", "none", BLUE, 4) + head(2, 11, 180, BLUE, 10),
    "Edit.Redo": path("M25 11H13A8 8 0 0 0 13 27H21", "none", BLUE, 4) + head(30, 11, 0, BLUE, 10),
    "Edit.Cut": line(9, 4, 20, 21, INK, 2.6) + line(23, 4, 12, 21, INK, 2.6) + circle(9, 25, 4, WHITE, BLUE, 2.6) + circle(23, 25, 4, WHITE, BLUE, 2.6),
    "Edit.Copy": page(3, 3, 16, 20, LIGHT, 5) + page(11, 9, 18, 20, WHITE, 5) + text_lines(15, (19, 23), (9, 6), DEEP),
    "Edit.Paste": clip() + page(13, 13, 16, 16, WHITE, 5),
    "Edit.Duplicate": cube(11, 12, 8, LIGHT, LIGHT, MID) + cube(20, 19, 9),
    "Edit.Delete": path("M8 11L10 29H22L24 11Z", LIGHT) + line(5, 9, 27, 9, RED, 3) + path("M12 8V5H20V8", "none", RED, 2.4) + line(13, 15, 14, 25, INK, 2) + line(19, 15, 18, 25, INK, 2),
    "Edit.Rename": rect(3, 9, 26, 14, WHITE) + letter("A", 10, 16, INK, 4.5) + line(17, 12, 17, 20, BLUE, 2.6) + line(20, 20, 25, 20, DEEP),
    "Edit.Recolor": cube(13, 13, 10, "#f7d9a4", ORANGE, "#b86d12") + path("M20 27L28 17L31 20L23 29Z", YELLOW) + circle(21, 28, 2.6, BLUE, None),
    "Edit.Row": cube(7, 16, 5.5) + cube(16, 16, 5.5, LIGHT, LIGHT, MID) + cube(25, 16, 5.5, LIGHT, LIGHT, MID) + arrow(4, 26, 29, 26, BLUE, 2.4, 6),
    "Edit.Grid": "".join(rect(x, y, 7, 7, BLUE if (x, y) == (3, 3) else MID, INK) for y in (3, 13, 23) for x in (3, 13, 23)),
    "Edit.Preferences": "".join(line(3, y, 29, y, INK, 2.4) for y in (7, 16, 25)) + circle(21, 7, 4, BLUE, INK) + circle(9, 16, 4, GREEN, INK) + circle(18, 25, 4, ORANGE, INK),
    "Edit.CustomizeUI": rect(3, 5, 26, 20, WHITE, INK, 2, 1) + rect(4, 6, 24, 6, MID, None) + rect(6, 15, 6, 6, BLUE, None) + rect(14, 15, 6, 6, DEEP, None) + badge("pen"),
    "Help.Service": circle(16, 16, 12, BLUE, None) + path("M11 12.5A5 5 0 1 1 16 17.5V19.5", "none", WHITE, 3) + circle(16, 24, 2, WHITE, None),
    "Help.Keys": rect(2, 9, 28, 16, LIGHT, INK, 2, 2) + "".join(rect(x, 12, 3, 3, DEEP, None) for x in (5, 10, 15, 20, 25)) + rect(9, 19, 14, 3, BLUE, None) + rect(5, 19, 3, 3, DEEP, None) + rect(25, 19, 3, 3, DEEP, None),
    "Help.CopyInfo": clip() + badge("info"),
    "Help.About": cube(13, 13, 10, LIGHT, BLUE, DEEP) + badge("info"),
})


def gear_path(cx, cy, outer, inner, teeth):
    pts = []
    for i in range(teeth):
        for f, r in ((-0.30, inner), (-0.18, outer), (0.18, outer), (0.30, inner)):
            a = 2 * math.pi * (i + f) / teeth
            pts.append((cx + r * math.sin(a), cy - r * math.cos(a)))
    return pts


I["File.Gear"] = poly(gear_path(16, 16, 13, 9.5, 8), MID) + circle(16, 16, 4, WHITE)

# ---- selection ---------------------------------------------------------------------------------
FRAME = dict(fill="none", stroke=BLUE, width=2, dash="4 3")
many({
    "Select.All": rect(3, 3, 26, 26, **FRAME) + cube(11, 13, 6, BLUE, BLUE, BLUE, WHITE, 1.4) + cube(21, 20, 6, BLUE, BLUE, BLUE, WHITE, 1.4),
    "Select.None": rect(3, 3, 26, 26, **FRAME) + cube(11, 13, 6) + cube(21, 20, 6),
    "Select.Invert": rect(3, 3, 26, 26, **FRAME) + cube(11, 13, 6) + cube(21, 20, 6, BLUE, BLUE, BLUE, WHITE, 1.4),
    "Select.Next": cube(10, 16, 8, BLUE, BLUE, DEEP, INK) + arrow(18, 16, 31, 16, BLUE, 3.6, 9),
    "Select.Previous": cube(22, 16, 8, BLUE, BLUE, DEEP, INK) + arrow(14, 16, 1, 16, BLUE, 3.6, 9),
    "Select.Faulty": rect(3, 3, 22, 22, **FRAME) + polyline([(7, 19), (10, 9), (15, 15), (20, 7)], RED, 2.6) + badge("warn"),
    "Select.Outside": plate(22, 12, 6) + cube(25, 9, 6, BLUE, BLUE, DEEP) + polyline([(10, 12), (10, 5), (16, 5)], BLUE, 2, "3 2.5"),
    "Select.Similar": cube(9, 10, 6.5, BLUE, BLUE, DEEP) + cube(23, 10, 6.5, BLUE, BLUE, DEEP) + line(10, 23, 22, 23, BLUE, 3) + line(10, 28, 22, 28, BLUE, 3),
    "Select.Hide": eye(14, DEEP) + line(5, 28, 27, 3, RED, 3),
    "Select.Isolate": ghost(8, 22, 5) + ghost(24, 22, 5) + cube(16, 12, 9, LIGHT, BLUE, DEEP),
    "Select.ShowAll": eye(13) + "".join(cube(x, 26, 3.8, width=1.5) for x in (8, 16, 24)),
    "Select.Lock": cube(12, 13, 10) + lock(22, 21),
    "Select.Unlock": cube(12, 13, 10) + lock(22, 21, GREEN, True),
})

# ---- new solids --------------------------------------------------------------------------------
many({
    "Add.Box": cube(16, 16, 12),
    "Add.Cylinder": cylinder(16, 8, 24, 10, 4),
    "Add.Cone": cone(),
    "Add.Sphere": sphere(16, 16, 12),
    "Add.Torus": ellipse(16, 17, 13, 9, MID) + ellipse(16, 15, 5.5, 3, WHITE) + path("M5 14Q8 9 14 9", "none", LIGHT, 2),
    "Add.Prism": poly([(5, 11), (11, 5), (21, 5), (27, 11), (27, 22), (21, 27), (11, 27), (5, 22)], MID)
    + poly([(5, 11), (11, 5), (21, 5), (27, 11), (21, 15), (11, 15)], LIGHT) + line(11, 15, 11, 27) + line(21, 15, 21, 27),
})

# ---- moving, turning, scaling ------------------------------------------------------------------
many({
    "Move.Left": cube(21, 16, 9) + arrow(15, 16, 1, 16, RED, 4, 10),
    "Move.Right": cube(11, 16, 9) + arrow(17, 16, 31, 16, RED, 4, 10),
    "Move.Front": cube(20, 11, 9) + arrow(16, 18, 4, 29, GREEN, 4, 10),
    "Move.Back": cube(12, 21, 9) + arrow(16, 14, 28, 3, GREEN, 4, 10),
    "Move.Up": cube(16, 22, 9) + arrow(16, 17, 16, 1, BLUE, 4, 10),
    "Move.Down": cube(16, 10, 9) + arrow(16, 15, 16, 31, BLUE, 4, 10),
    "Move.By": arrow(16, 16, 16, 2, BLUE, 2.6, 7) + arrow(16, 16, 30, 22, RED, 2.6, 7) + arrow(16, 16, 4, 24, GREEN, 2.6, 7) + circle(16, 16, 3.4, WHITE),
    "Move.ToPlate": plate(25, 14, 5) + cube(16, 9, 7) + arrow(16, 14, 16, 27, BLUE, 3, 7),
    "Move.ToCenter": plate(16, 14, 11, LIGHT, INK, False) + line(16, 5, 16, 27, DEEP, 1.5) + line(2, 16, 30, 16, DEEP, 1.5) + cube(16, 15, 6, LIGHT, BLUE, DEEP),
    "Move.Arrange": rect(3, 3, 26, 26, WHITE) + rect(6, 6, 9, 7, BLUE, None) + rect(17, 6, 9, 7, DEEP, None) + rect(6, 16, 6, 10, DEEP, None) + rect(14, 16, 12, 10, MID, None),
    "Move.CopyPlacement": ghost(11, 12, 8) + cube(21, 20, 7) + arrow(6, 27, 13, 20, BLUE, 2.6, 6) ,
    "Move.PastePlacement": clip() + cube(21, 21, 8, LIGHT, BLUE, DEEP),
    "Move.Reset": ghost(12, 13, 9) + cube(12, 13, 5) + badge("reload", ORANGE),
    "Move.Bake": cube(12, 13, 10) + badge("check"),
    "Turn.By": circle(16, 17, 11, LIGHT) + line(16, 17, 27, 17, INK, 2) + line(16, 17, 22, 8, BLUE, 2.6) + arc(16, 17, 7, 7, 0, -52, BLUE, 2, 0) + circle(16, 17, 2, INK, None),
    "Turn.LayFlat": plate(25, 14, 4.5, LIGHT, INK, False) + poly([(9, 22), (4, 12), (16, 5), (22, 15)], MID) + arc(15, 16, 12, 12, -50, 40, BLUE, 3, 8),
    "Turn.Over": poly([(8, 3), (24, 3), (21, 13), (11, 13)], MID) + poly([(11, 19), (21, 19), (24, 29), (8, 29)], BLUE) + line(2, 16, 30, 16, INK, 2, "3 3"),
    "Turn.Reset": cube(12, 13, 9) + arc(12, 13, 12, 12, -150, -60, BLUE, 2, 0) + badge("reload", ORANGE),
})
for name, axis, sign in (("Turn.XPlus", "x", 1), ("Turn.XMinus", "x", -1), ("Turn.YPlus", "y", 1), ("Turn.YMinus", "y", -1)):
    color = AXIS[axis]
    a0, a1 = (-215, 35) if sign > 0 else (35, -215)
    I[name] = arc(16, 17, 13, 13, a0, a1, color, 3, 9) + letter(axis.upper(), 16, 17, color, 6, 3.2)
I["Turn.ZPlus"] = cube(16, 15, 9) + arc(16, 19, 14, 8, 20, 175, BLUE, 3, 8)
I["Turn.ZMinus"] = cube(16, 15, 9) + arc(16, 19, 14, 8, 160, 5, BLUE, 3, 8)
many({
    "Scale.By": rect(3, 3, 26, 26, "none", INK, 2, 0, "3 3") + rect(3, 15, 14, 14, MID) + arrow(14, 18, 27, 5, BLUE, 3, 8),
    "Scale.Up": cube(15, 17, 8) + arrow(22, 10, 30, 2, GREEN, 3, 8) + arrow(8, 24, 1, 31, GREEN, 3, 8),
    "Scale.Down": cube(16, 16, 8) + arrow(31, 1, 22, 10, ORANGE, 3, 8) + arrow(1, 31, 10, 22, ORANGE, 3, 8),
    "Scale.Double": cube(12, 14, 10) + rect(17, 17, 14, 14, BLUE, WHITE, 1.6, 3) + letter("2", 26, 24, WHITE, 4) + letter("X", 20.5, 25, WHITE, 2.2, 2),
    "Scale.Half": cube(12, 14, 10) + rect(17, 17, 14, 14, BLUE, WHITE, 1.6, 3) + letter("1", 20.5, 22, WHITE, 3, 2) + line(20.5, 28.5, 27.5, 19.5, WHITE, 1.6) + letter("2", 27, 26.5, WHITE, 3, 2),
    "Scale.ToFit": rect(3, 3, 26, 26, "none", INK, 2) + cube(16, 16, 6.5) + "".join(arrow(x0, y0, x1, y1, BLUE, 2.4, 6) for x0, y0, x1, y1 in ((11, 11, 5, 5), (21, 11, 27, 5), (11, 21, 5, 27), (21, 21, 27, 27))),
    "Scale.InchToMm": rect(3, 5, 12, 6, YELLOW) + rect(3, 19, 26, 8, MID) + "".join(line(x, 20, x, 23, INK, 1.6) for x in (8, 13, 18, 23)) + arrow(23, 5, 23, 17, GREEN, 3, 7),
    "Scale.MmToInch": rect(3, 5, 26, 8, MID) + "".join(line(x, 6, x, 9, INK, 1.6) for x in (8, 13, 18, 23)) + rect(3, 21, 12, 6, YELLOW) + arrow(23, 15, 23, 28, ORANGE, 3, 7),
    "Scale.Reset": rect(3, 3, 20, 20, "none", INK, 2, 0, "3 3") + rect(3, 11, 12, 12, MID) + badge("reload", ORANGE),
    "Mirror.X": poly([(3, 25), (13, 25), (13, 7)], MID) + poly([(29, 25), (19, 25), (19, 7)], RED) + line(16, 2, 16, 30, INK, 2, "3 3"),
    "Mirror.Y": poly([(3, 27), (15, 27), (9, 14)], MID) + poly([(17, 18), (29, 18), (23, 5)], GREEN) + line(4, 4, 28, 29, INK, 2, "3 3"),
    "Mirror.Z": poly([(5, 13), (27, 13), (5, 3)], MID) + poly([(5, 19), (27, 19), (5, 29)], BLUE) + line(2, 16, 30, 16, INK, 2, "3 3"),
})

# ---- aligning ----------------------------------------------------------------------------------


def align(vertical, where):
    """Two bars against a line; `where` 0, 1, 2 for low, middle, high on the screen."""
    out = []
    for offset, length, fill in ((5, 20, MID), (18, 12, BLUE)):
        start = (5, 16 - length / 2, 27 - length)[where]
        out.append(rect(start, offset, length, 9, fill) if vertical else rect(offset, start, 9, length, fill))
    at = (3, 16, 29)[where]
    guide = line(at, 1, at, 31, RED, 2) if vertical else line(1, at, 31, at, RED, 2)
    return "".join(out) + guide if where == 1 else guide + "".join(out)


def floor_align(where):
    """Two footprints on a slanted plate, for front, middle and back."""
    y = (25, 16, 7)[where]
    return (poly([(2, 29), (9, 3), (30, 3), (23, 29)], LIGHT, INK, 1.6)
            + line(3 + (29 - y) * 0.27, y, 24 + (29 - y) * 0.27, y, GREEN, 2.6)
            + rect(9, (15, 12, 9)[where], 5, 9, MID) + rect(18, (19, 13, 9)[where], 5, 5 if where != 1 else 7, BLUE))


many({
    "Align.Left": align(True, 0), "Align.CenterX": align(True, 1), "Align.Right": align(True, 2),
    "Align.Front": floor_align(0), "Align.CenterY": floor_align(1), "Align.Back": floor_align(2),
    "Align.Top": align(False, 0), "Align.Bottom": align(False, 2),
    "Align.SpreadX": rect(3, 9, 5, 14, MID) + rect(13, 9, 5, 14, BLUE) + rect(24, 9, 5, 14, MID) + arrow(9, 27, 12.5, 27, RED, 1, 3) + line(3, 27, 29, 27, RED, 2) + line(3, 24, 3, 30, RED, 2) + line(29, 24, 29, 30, RED, 2),
    "Align.SpreadY": rect(9, 3, 14, 5, MID) + rect(9, 13, 14, 5, BLUE) + rect(9, 24, 14, 5, MID) + line(27, 3, 27, 29, GREEN, 2) + line(24, 3, 30, 3, GREEN, 2) + line(24, 29, 30, 29, GREEN, 2),
})

# ---- repair and mesh ---------------------------------------------------------------------------


def mesh(fill=LIGHT, hole=None, flipped=None):
    """A patch of triangles."""
    p = [(3, 10), (13, 4), (25, 7), (6, 22), (16, 16), (28, 20), (16, 28)]
    tris = [(0, 1, 4), (1, 2, 4), (2, 5, 4), (0, 4, 3), (3, 4, 6), (4, 5, 6)]
    out = ""
    for i, t in enumerate(tris):
        color = "none" if i == hole else (flipped[1] if flipped and i in flipped[0] else (fill, MID)[i % 2])
        out += poly([p[k] for k in t], color, INK, 1.8)
    return out


many({
    "Repair.All": cube(12, 13, 10) + path("M31 18A6 6 0 0 1 23 24L17 30L14 27L20 21A6 6 0 0 1 26 13L24 17L27 20Z", ORANGE, INK, 1.6),
    "Repair.Join": mesh() + circle(16, 16, 4, RED, WHITE, 1.6) + arrow(27, 27, 20, 20, RED, 2.4, 6),
    "Repair.Clean": mesh() + path("M20 30L18 22L26 14L31 19L24 27Z", YELLOW, INK, 1.6) + line(22, 18, 28, 23, INK, 1.6),
    "Repair.Orient": mesh() + "".join(arrow(x, y, x + 3, y - 9, GREEN, 2.4, 6) for x, y in ((8, 15), (17, 13), (22, 22))),
    "Repair.Flip": mesh(flipped=((0, 3, 4), RED)) + arc(21, 21, 7, 7, 200, 480, BLUE, 3, 7),
    "Repair.CloseHoles": mesh(hole=3, flipped=((5,), LIGHT)) + poly([(3, 10), (16, 16), (6, 22)], ORANGE, RED, 2),
    "Repair.Split": path("M14 4L4 9V22L14 28Z", MID) + path("M18 4L28 9V22L18 28Z", BLUE) + line(16, 1, 16, 31, RED, 2, "3 3"),
    "Repair.KeepLargest": cube(12, 14, 10, LIGHT, BLUE, DEEP) + "".join(circle(x, y, 2, "none", RED, 1.6) + line(x - 2, y + 2, x + 2, y - 2, RED, 1.6) for x, y in ((26, 8), (28, 19), (23, 27))),
    "Repair.Merge": circle(11, 16, 8, MID) + circle(21, 16, 8, BLUE) + path("M16 9.8A8 8 0 0 1 16 22.2A8 8 0 0 1 16 9.8Z", GREEN),
    "Mesh.Subdivide": poly([(3, 27), (16, 4), (29, 27)], LIGHT) + poly([(9.5, 15.5), (22.5, 15.5), (16, 27)], BLUE, INK),
    "Mesh.Smooth": polyline([(3, 9), (9, 5), (15, 11), (22, 4), (29, 9)], RED, 2.4) + path("M3 24Q10 13 16 20T29 19", "none", BLUE, 3.4),
    "Mesh.Simplify": poly([(3, 21), (15, 3), (27, 21)], LIGHT) + polyline([(3, 21), (15, 14), (27, 21)], DEEP, 1.6, "2 2") + line(15, 3, 15, 14, DEEP, 1.6, "2 2") + badge("minus"),
    "Mesh.CutBelow": path("M7 14H25V27H7Z", BLUE) + path("M7 3H25V10H7Z", "none", INK, 2, "3 3") + line(2, 12, 30, 12, RED, 2.6),
    "Mesh.CutAbove": path("M7 5H25V17H7Z", BLUE) + path("M7 22H25V29H7Z", "none", INK, 2, "3 3") + line(2, 20, 30, 20, RED, 2.6),
    "Mesh.CutApart": path("M7 3H25V12H7Z", MID) + path("M7 20H25V29H7Z", BLUE) + line(2, 16, 30, 16, RED, 2.6),
})

# ---- measuring and checking --------------------------------------------------------------------


def mark(x, y, color=RED):
    return circle(x, y, 3.4, WHITE, color, 2.4)


many({
    "Measure.Point": line(16, 3, 16, 29, INK, 2) + line(3, 16, 29, 16, INK, 2) + circle(16, 16, 7, LIGHT, BLUE, 2.4) + circle(16, 16, 2.6, RED, None),
    "Measure.Distance": line(5, 23, 27, 9, BLUE, 2.6) + mark(5, 23) + mark(27, 9) + line(9, 29, 31, 15, DEEP, 2),
    "Measure.Angle": polyline([(27, 5), (5, 26), (29, 26)], INK, 2.6) + arc(5, 26, 15, 15, -44, 0, BLUE, 2.6, 0) + mark(5, 26),
    "Measure.Radius": arc(14, 18, 13, 13, 150, 400, INK, 2.4, 0) + arrow(14, 18, 25, 9, BLUE, 2.6, 7) + circle(14, 18, 2.6, RED, None),
    "Measure.Size": cube(14, 14, 9) + line(3, 28, 25, 28, BLUE, 2) + line(3, 25, 3, 31, BLUE, 2) + line(25, 25, 25, 31, BLUE, 2) + line(29, 4, 29, 23, BLUE, 2) + line(26, 4, 32, 4, BLUE, 2) + line(26, 23, 32, 23, BLUE, 2),
    "Measure.Gap": rect(1, 7, 8, 18, MID) + rect(23, 7, 8, 18, MID) + arrow(15, 16, 10, 16, RED, 2.4, 6) + arrow(17, 16, 22, 16, RED, 2.4, 6),
    "Measure.Stop": ruler() + badge("cross"),
    "Measure.SnapPoint": polyline([(5, 27), (15, 11), (29, 19)], INK, 2.6) + rect(10, 6, 10, 10, "none", RED, 2.6),
    "Measure.SnapEdge": line(4, 27, 28, 6, INK, 2.6) + poly([(16, 9), (23, 16), (16, 23), (9, 16)], "none", RED, 2.6),
    "Measure.RemoveLast": ruler() + badge("minus"),
    "Measure.Clear": path("M12 28L4 20L18 5L28 14L16 28Z", LIGHT) + path("M4 20L10 13L20 23L16 28H12Z", RED) + line(9, 29, 29, 29, INK, 2),
    "Measure.Copy": clip() + path("M10 26L24 12L30 18L16 32Z", YELLOW, INK, 1.6) + line(16, 20, 18, 22, INK, 1.6) + line(20, 16, 22, 18, INK, 1.6),
    "Check.Run": clip(5, 5, 18, 24) + polyline([(9, 13), (11, 15), (14, 11)], GREEN, 2) + line(16, 13, 20, 13, DEEP) + line(9, 19, 18, 19, DEEP) + badge("check"),
    "Check.SelectNext": poly([(13, 3), (25, 23), (1, 23)], YELLOW) + line(13, 10, 13, 15, INK, 2.6) + circle(13, 19, 1.6, INK, None) + badge("right"),
    "Check.Copy": page(3, 3, 17, 22) + text_lines(7, (11, 15, 19), (8, 9, 6), DEEP) + page(13, 9, 17, 22) + polyline([(17, 20), (20, 23), (26, 16)], GREEN, 2.6),
    "Check.Overhang": path("M9 29V13L3 3H29L20 15V29Z", MID) + path("M3 3L9 13V15L1 5ZM29 3L20 15", "none", RED, 3.4),
    "Check.OverhangMore": path("M5 29V3", "none", INK, 2.4) + path("M5 29L14 5", "none", RED, 3) + arc(5, 29, 19, 19, -90, -69, ORANGE, 2, 0) + badge("plus", BLUE),
    "Check.OverhangLess": path("M5 29V3", "none", INK, 2.4) + path("M5 29L22 12", "none", RED, 3) + arc(5, 29, 17, 17, -90, -45, ORANGE, 2, 0) + badge("minus", BLUE),
    "Check.OpenEdges": mesh(hole=4) + polyline([(6, 22), (16, 16), (16, 28), (6, 22)], RED, 3),
    "Check.BackFaces": path("M4 12L16 5L28 12V22L16 29L4 22Z", RED) + path("M4 12L16 19L28 12L16 5Z", "#f4a7a5") + path("M4 12V22L16 29V19Z", MID),
    "Check.CenterOfMass": circle(16, 16, 12, WHITE) + path("M16 16V4A12 12 0 0 1 28 16Z", INK, None) + path("M16 16V28A12 12 0 0 1 4 16Z", INK, None) + circle(16, 16, 12),
})


def cut_cube(color, which):
    """A see-through cube with a plane across one of its axes."""
    quads = {"x": [((10.8, 7), (21.2, 13), (21.2, 25), (10.8, 19))],
             "y": [((21.2, 7), (10.8, 13), (10.8, 25), (21.2, 19))],
             "z": [((5.6, 16), (16, 10), (26.4, 16), (16, 22))]}
    out = cube(16, 16, 12, "none", "none", "none")
    return out + "".join(poly(q, color, WHITE, 1.2) for q in quads[which])


many({
    "Section.On": path("M5 10L16 4L27 10V22L16 28L5 22Z", MID) + path("M16 4L27 10V22L16 16Z", WHITE) + path("M16 4V16L27 22", "none", RED, 2.6) + path("M16 16V28L27 22Z", ORANGE),
    "Section.X": cut_cube(RED, "x"), "Section.Y": cut_cube(GREEN, "y"), "Section.Z": cut_cube(BLUE, "z"),
    "Section.Flip": rect(5, 5, 10, 22, BLUE) + rect(17, 5, 10, 22, "none", INK, 2, 0, "3 3") + line(16, 1, 16, 31, RED, 2) + arrow(8, 16, 25, 16, ORANGE, 3, 8),
    "Section.Forward": poly([(5, 9), (13, 5), (13, 23), (5, 27)], ORANGE) + arrow(13, 16, 30, 16, BLUE, 3.4, 9),
    "Section.Backward": poly([(19, 9), (27, 5), (27, 23), (19, 27)], ORANGE) + arrow(19, 16, 2, 16, BLUE, 3.4, 9),
    "Section.Center": rect(3, 9, 26, 14, LIGHT) + line(16, 3, 16, 29, RED, 3) + arrow(5, 16, 14, 16, BLUE, 2.4, 6) + arrow(27, 16, 18, 16, BLUE, 2.4, 6),
})

# ---- views -------------------------------------------------------------------------------------
many({
    "View.Home": path("M3 17L16 5L29 17", "none", INK, 3) + path("M7 15V28H25V15L16 7Z", LIGHT) + rect(13, 19, 6, 9, BLUE, INK),
    "View.Front": face("front"), "View.Back": face("back"), "View.Left": face("left"),
    "View.Right": face("right"), "View.Top": face("top"), "View.Bottom": face("bottom"),
    "View.RotateLeft": sphere(16, 16, 8) + arc(16, 17, 14, 5, -20, -200, BLUE, 3, 8),
    "View.RotateRight": sphere(16, 16, 8) + arc(16, 17, 14, 5, -160, 20, BLUE, 3, 8),
    "View.RotateUp": sphere(16, 16, 8) + arc(16, 16, 5, 14, 70, -110, BLUE, 3, 8),
    "View.RotateDown": sphere(16, 16, 8) + arc(16, 16, 5, 14, -70, 110, BLUE, 3, 8),
    "View.Previous": eye(13) + arrow(27, 27, 7, 27, ORANGE, 3, 8),
    "View.ZoomIn": lens() + line(9, 13, 17, 13, BLUE, 3) + line(13, 9, 13, 17, BLUE, 3),
    "View.ZoomOut": lens() + line(9, 13, 17, 13, BLUE, 3),
    "View.ZoomAll": lens() + cube(13, 13, 5, BLUE, BLUE, BLUE, WHITE, 1.2) + polyline([(3, 29), (3, 25)], BLUE, 2) + polyline([(24, 3), (29, 3), (29, 8)], BLUE, 2.4) + polyline([(3, 24), (3, 29), (8, 29)], BLUE, 2.4),
    "View.ZoomSelection": lens() + rect(9, 9, 8, 8, "none", BLUE, 2, 0, "3 2"),
    "View.ZoomPlate": lens() + poly([(7, 14), (13, 10), (19, 14), (13, 18)], BLUE, None),
    "View.Perspective": poly([(3, 3), (3, 29), (29, 21), (29, 11)], LIGHT) + line(3, 16, 29, 16, BLUE, 2) + line(12, 6, 12, 26, DEEP, 2) + line(21, 9, 21, 23, DEEP, 2),
})

# ---- display -----------------------------------------------------------------------------------
many({
    "Display.Shaded": cube(16, 16, 12, "#cfe3f7", "#7fb0e0", BLUE, None),
    "Display.Edges": cube(16, 16, 12, "#cfe3f7", "#7fb0e0", BLUE, "#2f4257", 2.4),
    "Display.Triangles": cube(16, 16, 12, LIGHT, MID, DEEP) + line(5.6, 10, 26.4, 10, INK, 1.4) + line(5.6, 10, 16, 28, INK, 1.4) + line(16, 16, 26.4, 22, INK, 1.4),
    "Display.Wireframe": glass(16, 16, 12),
    "Display.Transparent": poly([(16, 4), (26.4, 10), (26.4, 22), (16, 28), (5.6, 22), (5.6, 10)], "#bfe0f5", None) + line(16, 16, 16, 4, WHITE, 2) + line(16, 16, 26.4, 22, WHITE, 2) + line(16, 16, 5.6, 22, WHITE, 2) + cube(16, 16, 12, "none", "none", "none", "#6fb1dc"),
    "Display.Boxes": circle(16, 17, 7, MID, None) + cube(16, 16, 13, "none", "none", "none", ORANGE),
    "Show.Plate": plate(17, 14, 10, MID, INK, False) + polyline([(2, 17), (2, 20), (16, 30), (30, 20), (30, 17)], INK, 2),
    "Show.Grid": poly([(2, 17), (16, 6), (30, 17), (16, 28)], WHITE) + "".join(line(2 + 14 * f, 17 - 11 * f, 16 + 14 * f, 28 - 11 * f, BLUE, 1.6) + line(2 + 14 * f, 17 + 11 * f, 16 + 14 * f, 6 + 11 * f, BLUE, 1.6) for f in (0.33, 0.67)),
    "Show.Volume": poly([(4, 24), (16, 18), (28, 24), (16, 30)], MID, INK, 1.6) + cube(16, 16, 13.5, "none", "none", "none", BLUE, 2, "3 2.5"),
    "Show.Axes": arrow(9, 23, 9, 2, BLUE, 3, 8) + arrow(9, 23, 30, 23, RED, 3, 8) + arrow(9, 23, 1, 31, GREEN, 3, 7),
    "Show.Labels": cube(11, 20, 8) + path("M15 3H29V13H23L19 17V13H15Z", WHITE) + text_lines(18, (7, 10), (8, 5), BLUE),
    "Show.Bounds": sphere(16, 16, 8) + "".join(polyline(p, ORANGE, 2.4) for p in (((3, 9), (3, 3), (9, 3)), ((23, 3), (29, 3), (29, 9)), ((3, 23), (3, 29), (9, 29)), ((23, 29), (29, 29), (29, 23)))),
    "Show.ViewCube": cube(16, 16, 9) + arc(16, 16, 14, 14, 120, 225, ORANGE, 2.4, 6) + arc(16, 16, 14, 14, -60, 45, ORANGE, 2.4, 6),
    "Show.Shadows": ellipse(19, 26, 11, 4, DEEP, None) + cube(13, 13, 10),
})

# ---- slices ------------------------------------------------------------------------------------
L3 = (LIGHT, LIGHT, LIGHT)
many({
    "Slice.Show": layers((MID, LIGHT, BLUE)),
    "Slice.Up": layers((LIGHT, MID), (26, 20)) + arrow(16, 17, 16, 1, BLUE, 4, 10),
    "Slice.Down": layers((MID, LIGHT), (12, 6)) + arrow(16, 15, 16, 31, BLUE, 4, 10),
    "Slice.Up10": layer(26) + arrow(16, 14, 16, 1, BLUE, 4, 9) + arrow(16, 22, 16, 9, BLUE, 4, 9),
    "Slice.Down10": layer(6) + arrow(16, 18, 16, 31, BLUE, 4, 9) + arrow(16, 10, 16, 23, BLUE, 4, 9),
    "Slice.First": layers((BLUE, LIGHT, LIGHT)) + line(4, 30, 28, 30, BLUE, 2.4),
    "Slice.Last": layers((LIGHT, LIGHT, BLUE)) + line(4, 3, 28, 3, BLUE, 2.4),
    "Slice.GoTo": layers((LIGHT, BLUE, LIGHT)) + badge("question"),
    "Slice.Play": layers((LIGHT, LIGHT, MID)) + badge("play"),
    "Slice.Thicker": layer(10) + layer(22) + arrow(16, 16, 16, 0.5, GREEN, 2.6, 6) + arrow(16, 16, 16, 31.5, GREEN, 2.6, 6),
    "Slice.Thinner": layer(14) + layer(20) + arrow(16, 1, 16, 12, ORANGE, 2.6, 7) + arrow(16, 31, 16, 22, ORANGE, 2.6, 7),
    "Slice.Thickness": layers((LIGHT, MID), (21, 12)) + line(30, 12, 30, 21, RED, 2.4) + line(27, 12, 31, 12, RED, 2) + line(27, 21, 31, 21, RED, 2),
    "Slice.Fill": path("M5 7Q16 1 27 7Q31 18 24 26Q14 31 6 25Q1 15 5 7Z", BLUE) + circle(16, 16, 5, WHITE),
    "Slice.Hatch": path("M5 7Q16 1 27 7Q31 18 24 26Q14 31 6 25Q1 15 5 7Z", WHITE) + "".join(line(5 + k, 25, 11 + k, 6, BLUE, 1.8) for k in (2, 7, 12)) + line(23, 24, 27, 12, BLUE, 1.8),
    "Slice.HatchDenser": rect(3, 3, 26, 26, WHITE) + "".join(line(x, 27, x, 5, BLUE, 2) for x in (7, 11)) + "".join(line(x, 15, x, 5, BLUE, 2) for x in (15, 19, 23)) + badge("plus"),
    "Slice.HatchSparser": rect(3, 3, 26, 26, WHITE) + line(7, 27, 7, 5, BLUE, 2) + line(15, 15, 15, 5, BLUE, 2) + line(23, 13, 23, 5, BLUE, 2) + badge("minus"),
    "Slice.HatchTurn": circle(16, 16, 9, WHITE) + "".join(line(16 + k - 3, 22, 16 + k + 3, 10, BLUE, 2) for k in (-4, 0, 4)) + arc(16, 16, 14, 14, -160, -40, ORANGE, 2.6, 7) + arc(16, 16, 14, 14, 20, 140, ORANGE, 2.6, 7),
    "Slice.HatchCross": rect(3, 3, 26, 26, WHITE) + "".join(line(x, 4, x, 28, BLUE, 2) + line(4, x, 28, x, GREEN, 2) for x in (9, 16, 23)),
    "Slice.Stack": layers((MID, MID, LIGHT), (25, 21, 17)) + layer(9, fill=BLUE),
    "Slice.Fault": layers((LIGHT, LIGHT), (19, 11)) + polyline([(4, 11), (16, 16), (21, 14)], RED, 3) + badge("warn"),
    "Slice.ExportLayer": layer(12, 13, 8, WHITE) + path("M9 12Q16 6 22 11Q21 17 14 16Z", BLUE, None) + arrow(16, 25, 30, 25, GREEN, 3.4, 8),
    "Slice.ExportAll": layers(L3, (17, 12, 7)) + arrow(16, 26, 30, 26, GREEN, 3.4, 8) + line(3, 26, 11, 26, GREEN, 3.4),
    "Slice.CopyLayer": clip() + poly([(11, 22), (20, 16), (30, 22), (20, 29)], WHITE) + path("M16 22Q20 18 25 22Q20 26 16 22Z", BLUE, None),
})

# ---- units, layouts, windows -------------------------------------------------------------------


def panel(side, content=""):
    x = 20 if side == "right" else 4
    return window(WHITE, MID) + rect(x, 11, 8, 15, BLUE, None) + content


many({
    "Units.Mm": rect(1, 11, 30, 12, YELLOW) + "".join(line(x, 12, x, 18 if x % 10 == 6 else 16, INK, 1.6) for x in (6, 11, 16, 21, 26)) + line(6, 27, 26, 27, BLUE, 2.4),
    "Units.Inch": rect(1, 11, 30, 12, MID) + line(11, 12, 11, 18, INK, 2) + line(21, 12, 21, 18, INK, 2) + line(13, 3, 13, 8, BLUE, 3) + line(19, 3, 19, 8, BLUE, 3),
    "Layout.Prepare": plate(23, 14, 7, LIGHT) + cube(16, 13, 8, LIGHT, BLUE, DEEP),
    "Layout.Inspect": cube(12, 13, 9) + lens(19, 18, 6, WHITE),
    "Layout.Slice": layers((DEEP, MID, BLUE), (24, 16, 8)),
    "Window.Parts": panel("left") + "".join(rect(6, y, 4, 2.4, WHITE, None) for y in (14, 18, 22)),
    "Window.PartTree": panel("right") + cube(11, 19, 5.5, "#cfe3f7", "#7fb0e0", BLUE) + "".join(rect(22, y, 4, 2.4, WHITE, None) for y in (14, 18, 22)),
    "Window.Properties": panel("right") + "".join(line(22, y, 26, y, WHITE, 1.8) for y in (15, 19, 23)),
    "Window.Measurements": panel("right") + path("M6 22L16 13L18 15L8 24Z", YELLOW, INK, 1.4),
    "Window.Findings": panel("right") + poly([(11, 13), (17, 24), (5, 24)], ORANGE, None) + line(11, 17, 11, 20, WHITE, 1.8) + circle(11, 22, 1, WHITE, None),
    "Window.Layers": panel("right") + "".join(poly([(5, y), (11, y - 3), (17, y), (11, y + 3)], DEEP, WHITE, 1) for y in (22, 18.5, 15)),
    "Window.History": panel("right") + circle(11, 19, 5.5, WHITE, INK, 1.8) + polyline([(11, 16), (11, 19), (13.5, 20.5)], INK, 1.8),
    "Window.Primitives": panel("left") + rect(5, 13, 6, 6, BLUE, INK, 1.4) + circle(8, 23, 3, GREEN, INK, 1.4),
    "Window.Notes": panel("right") + page(5, 12, 12, 13, WHITE, 4) + text_lines(7, (18, 21), (7, 4), DEEP),
    "Window.Log": panel("left") + "".join(line(15, y, x, y, INK, 1.8) for x, y in ((26, 14), (22, 18), (25, 22))) + circle(7.5, 18, 2.4, GREEN, None),
    "Window.Legend": panel("left") + "".join(rect(6, y, 5, 3, c, None) for y, c in ((12, RED), (15, ORANGE), (18, YELLOW), (21, GREEN), (24, BLUE))),
    "Window.Dark": path("M21 4A13 13 0 1 0 28 21A10 10 0 0 1 21 4Z", PURPLE) + circle(24, 9, 1.6, YELLOW, None) + circle(28, 14, 1.2, YELLOW, None),
    "Window.FullScreen": rect(3, 5, 26, 18, LIGHT, INK, 2, 1) + line(11, 28, 21, 28, INK, 2.4) + "".join(arrow(x0, y0, x1, y1, BLUE, 2, 5) for x0, y0, x1, y1 in ((13, 12, 7, 8.5), (19, 12, 25, 8.5), (13, 16, 7, 19.5), (19, 16, 25, 19.5))),
    "Window.StatusBar": window(WHITE, MID) + rect(4, 21, 24, 5, BLUE, None) + line(7, 23.5, 13, 23.5, WHITE, 1.8),
    "View.QuickSearch": rect(2, 9, 28, 14, WHITE, INK, 2, 3) + circle(10, 15, 3.6, LIGHT, BLUE, 2) + line(13, 18, 15, 20, BLUE, 2.6) + line(19, 19, 26, 19, DEEP),
})
# Icons of composite commands and of the recent files.
many({
    "Group.Samples": path("M3 27V15H13V27Z", MID) + circle(22, 20, 7, BLUE) + poly([(16, 3), (23, 13), (9, 13)], ORANGE),
    "Group.Align": line(3, 3, 3, 29, RED, 2.4) + rect(5, 5, 18, 5, MID) + rect(5, 13, 12, 5, BLUE) + rect(5, 21, 22, 5, MID),
    "Group.Export": page(5, 3, 17, 26) + arrow(13, 19, 30, 19, GREEN, 3.6, 9),
    "Group.Views": cube(11, 12, 9, BLUE, LIGHT, MID) + path("M11 25Q20 16 30 25Q20 34 11 25Z", WHITE) + circle(20.5, 25, 3.6, ORANGE, None) + circle(20.5, 25, 1.2, WHITE, None),
    "Group.Display": cube(16, 16, 12, "#cfe3f7", "none", BLUE),
    "Recent.File": page() + text_lines(11, (14, 18, 22), (10, 10, 6), DEEP),
    "App": poly(gear_path(16, 16, 14, 11, 10), "#d7e6f5", INK, 1.6) + cube(16, 16, 7.5, "#cfe3f7", "#7fb0e0", BLUE),
})


def document(content):
    return ('<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32" viewBox="0 0 32 32">'
            + content + "</svg>\n")


def files():
    result = {name + ".svg": document(content) for name, content in I.items()}
    qrc = '<!DOCTYPE RCC>\n<RCC version="1.0">\n<qresource prefix="/tarnix/icons">\n'
    qrc += "".join("    <file>%s</file>\n" % name for name in sorted(result))
    result["icons.qrc"] = qrc + "</qresource>\n</RCC>\n"
    return result


def main():
    wanted = files()
    if "--check" in sys.argv:
        bad = [n for n, text in wanted.items()
               if not os.path.exists(os.path.join(HERE, n)) or open(os.path.join(HERE, n)).read() != text]
        print("\n".join(bad))
        return 1 if bad else 0
    for name in os.listdir(HERE):
        if name.endswith(".svg") and name not in wanted:
            os.remove(os.path.join(HERE, name))
    for name, text in wanted.items():
        with open(os.path.join(HERE, name), "w", newline="\n") as out:
            out.write(text)
    return 0


if __name__ == "__main__":
    sys.exit(main())
