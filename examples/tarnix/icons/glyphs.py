"""Primitives of the icons: everything is drawn on a grid of 32 with lines 2 wide, centred on odd
coordinates, so that they fall on whole pixels at 16, 32 and 48.

The colours are of middling lightness with light bodies: they stand on a white ribbon as on a dark
one."""
import math

INK, LIGHT, MID, DEEP = "#64798f", "#eaf1f8", "#bed2e6", "#94b1ce"
BLUE, GREEN, ORANGE, RED = "#2b7cd3", "#3f9b57", "#e08a1e", "#d64541"
PURPLE, YELLOW, WHITE = "#8a63c4", "#f2c14e", "#ffffff"
AXIS = {"x": RED, "y": GREEN, "z": BLUE}


def num(value):
    return ("%.2f" % value).rstrip("0").rstrip(".")


def points(pts):
    return " ".join(num(x) + "," + num(y) for x, y in pts)


def stroke_of(stroke, width, dash=None):
    if not stroke:
        return ""
    text = ' stroke="%s" stroke-width="%s" stroke-linejoin="round" stroke-linecap="round"' % (stroke, num(width))
    return text + (' stroke-dasharray="%s"' % dash if dash else "")


def line(x1, y1, x2, y2, color=INK, width=2, dash=None):
    return '<path d="M%s %sL%s %s" fill="none"%s/>' % (num(x1), num(y1), num(x2), num(y2),
                                                      stroke_of(color, width, dash))


def poly(pts, fill="none", stroke=INK, width=2, dash=None):
    return '<polygon points="%s" fill="%s"%s/>' % (points(pts), fill, stroke_of(stroke, width, dash))


def polyline(pts, stroke=INK, width=2, dash=None):
    return '<polyline points="%s" fill="none"%s/>' % (points(pts), stroke_of(stroke, width, dash))


def rect(x, y, w, h, fill="none", stroke=INK, width=2, radius=0, dash=None):
    return '<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="%s"%s/>' % (
        num(x), num(y), num(w), num(h), num(radius), fill, stroke_of(stroke, width, dash))


def circle(x, y, r, fill="none", stroke=INK, width=2, dash=None):
    return '<circle cx="%s" cy="%s" r="%s" fill="%s"%s/>' % (num(x), num(y), num(r), fill,
                                                             stroke_of(stroke, width, dash))


def ellipse(x, y, rx, ry, fill="none", stroke=INK, width=2, dash=None):
    return '<ellipse cx="%s" cy="%s" rx="%s" ry="%s" fill="%s"%s/>' % (
        num(x), num(y), num(rx), num(ry), fill, stroke_of(stroke, width, dash))


def path(d, fill="none", stroke=INK, width=2, dash=None):
    return '<path d="%s" fill="%s"%s/>' % (d, fill, stroke_of(stroke, width, dash))


# ---- arrows ------------------------------------------------------------------------------------

def head(x, y, angle, color, size=6):
    """A filled head with its point at (x, y), looking along the angle in degrees."""
    a = math.radians(angle)
    c, s = math.cos(a), math.sin(a)
    pts = [(0, 0), (-size, -size * 0.72), (-size, size * 0.72)]
    return poly([(x + px * c - py * s, y + px * s + py * c) for px, py in pts], color, color, 1)


def arrow(x1, y1, x2, y2, color=BLUE, width=3, size=7):
    a = math.atan2(y2 - y1, x2 - x1)
    ex, ey = x2 - math.cos(a) * size * 0.8, y2 - math.sin(a) * size * 0.8
    return line(x1, y1, ex, ey, color, width) + head(x2, y2, math.degrees(a), color, size)


def arc(cx, cy, rx, ry, a0, a1, color=BLUE, width=3, tip=7):
    """An elliptic arc from a0 to a1 degrees (clockwise on the screen) with a head at its end."""
    def at(a):
        return cx + rx * math.cos(math.radians(a)), cy + ry * math.sin(math.radians(a))
    step = 1 if a1 > a0 else -1
    back = math.degrees(tip * 0.7 / max(rx, ry)) if tip else 0
    end = a1 - step * back
    n = max(4, int(abs(end - a0) / 12))
    out = polyline([at(a0 + (end - a0) * i / n) for i in range(n + 1)], color, width)
    if tip:
        (x0, y0), (x1, y1) = at(end - step * 4), at(a1)
        out += head(x1, y1, math.degrees(math.atan2(y1 - y0, x1 - x0)), color, tip)
    return out


# ---- bodies ------------------------------------------------------------------------------------

def cube_points(cx, cy, s):
    """Top, right, ... of an upright cube seen from the front right above; s is its edge."""
    w, h = s * 0.87, s * 0.5
    return dict(t=(cx, cy - s), r=(cx + w, cy - h), rb=(cx + w, cy + h), b=(cx, cy + s),
                lb=(cx - w, cy + h), l=(cx - w, cy - h), m=(cx, cy))


def cube(cx=16, cy=16, s=11, top=LIGHT, left=MID, right=DEEP, ink=INK, width=2, dash=None):
    p = cube_points(cx, cy, s)
    out = poly([p["t"], p["r"], p["m"], p["l"]], top, None)
    out += poly([p["l"], p["m"], p["b"], p["lb"]], left, None)
    out += poly([p["m"], p["r"], p["rb"], p["b"]], right, None)
    out += poly([p["t"], p["r"], p["rb"], p["b"], p["lb"], p["l"]], "none", ink, width, dash)
    return out + polyline([p["l"], p["m"], p["r"]], ink, width, dash) + line(*p["m"], *p["b"], ink, width, dash)


def ghost(cx=16, cy=16, s=11, ink=INK):
    return cube(cx, cy, s, "none", "none", "none", ink, 2, "2 3")


def glass(cx=16, cy=16, s=11):
    """A see-through cube whose hidden edges show."""
    p = cube_points(cx, cy, s)
    hidden = "".join(line(cx, cy, *p[k], DEEP, 1.5) for k in ("t", "rb", "lb"))
    return hidden + cube(cx, cy, s, "none", "none", "none")


def face(which, cx=16, cy=16, s=11, color=BLUE):
    """A cube with one of its six sides in colour; the far sides shine through."""
    p = cube_points(cx, cy, s)
    near = {"top": ("t", "r", "m", "l"), "front": ("l", "m", "b", "lb"), "right": ("m", "r", "rb", "b")}
    far = {"bottom": ("m", "rb", "b", "lb"), "back": ("t", "r", "rb", "m"), "left": ("t", "m", "lb", "l")}
    if which in near:
        return cube(cx, cy, s, color if which == "top" else LIGHT, color if which == "front" else MID,
                    color if which == "right" else DEEP)
    out = poly([p["t"], p["r"], p["rb"], p["b"], p["lb"], p["l"]], LIGHT, None)
    out += poly([p[k] for k in far[which]], color, None)
    out += "".join(line(*p["m"], *p[k], DEEP if k in ("t", "rb", "lb") else INK, 2) for k in ("t", "rb", "lb"))
    return out + poly([p["t"], p["r"], p["rb"], p["b"], p["lb"], p["l"]], "none", INK)


def cylinder(cx=16, top=7, bottom=25, r=9, flat=3.5):
    return (path("M%s %sV%sA%s %s 0 0 0 %s %sV%s" % (num(cx - r), num(top), num(bottom), num(r), num(flat),
                                                     num(cx + r), num(bottom), num(top)), MID)
            + ellipse(cx, top, r, flat, LIGHT))


def cone(cx=16, top=5, bottom=24, r=11, flat=4):
    return path("M%s %sL%s %sA%s %s 0 0 0 %s %sZ" % (num(cx), num(top), num(cx - r), num(bottom), num(r),
                                                     num(flat), num(cx + r), num(bottom)), MID) \
        + path("M%s %sL%s %s" % (num(cx), num(top), num(cx + 3), num(bottom + flat)), "none", DEEP)


def sphere(cx=16, cy=16, r=11):
    return (circle(cx, cy, r, MID) + ellipse(cx - r * 0.3, cy - r * 0.35, r * 0.42, r * 0.34, LIGHT, None)
            + path("M%s %sA%s %s 0 0 0 %s %s" % (num(cx - r), num(cy), num(r), num(r * 0.36), num(cx + r), num(cy)),
                   "none", INK, 1.5))


def plate(y=23, w=13, h=5, fill=LIGHT, ink=INK, lines=True):
    pts = [(16 - w, y), (16, y - h), (16 + w, y), (16, y + h)]
    out = poly(pts, fill, ink)
    if lines:
        out += line(16 - w / 2, y - h / 2, 16 + w / 2, y + h / 2, DEEP, 1.5)
        out += line(16 + w / 2, y - h / 2, 16 - w / 2, y + h / 2, DEEP, 1.5)
    return out


def layer(y, w=12, h=5, fill=LIGHT, ink=INK):
    return poly([(16 - w, y), (16, y - h), (16 + w, y), (16, y + h)], fill, ink)


def layers(colors, ys=(23, 17, 11)):
    return "".join(layer(y, fill=c) for y, c in zip(ys, colors))


# ---- things ------------------------------------------------------------------------------------

def page(x=7, y=3, w=18, h=26, fill=WHITE, fold=6):
    return (path("M%s %sH%sL%s %sV%sH%sZ" % (num(x), num(y), num(x + w - fold), num(x + w), num(y + fold),
                                             num(y + h), num(x)), fill)
            + polyline([(x + w - fold, y), (x + w - fold, y + fold), (x + w, y + fold)]))


def folder(front=YELLOW, back="#d9a531"):
    return (path("M3 25V7H12L15 11H27V15", back) + path("M3 25L7 15H29L25 25Z", front))


def disk(x=5, y=5, s=22, fill=BLUE):
    return (path("M%s %sH%sL%s %sV%sH%sZ" % (x, y, x + s - 4, x + s, y + 4, y + s, x), fill)
            + rect(x + 5, y, 11, 7, LIGHT, INK) + rect(x + 4, y + 12, 14, 10, WHITE, INK))


def clip(x=5, y=5, w=18, h=24):
    return (rect(x, y, w, h, MID, INK, 2, 1) + rect(x + 3, y + 4, w - 6, h - 7, WHITE, None)
            + rect(x + w / 2 - 4, y - 2, 8, 5, LIGHT, INK, 2, 1))


def lens(x=13, y=13, r=8, fill=LIGHT):
    e = r * 0.71 + 1
    return line(x + e, y + e, x + e + 8, y + e + 8, INK, 4) + circle(x, y, r, fill)


def eye(y=16, color=BLUE):
    return (path("M3 %sQ16 %s 29 %sQ16 %s 3 %sZ" % (num(y), num(y - 15), num(y), num(y + 15), num(y)), WHITE)
            + circle(16, y, 5, color, None) + circle(16, y, 2, WHITE, None))


def lock(x=16, y=18, color=YELLOW, opened=False):
    bow = "M%s %sV%sA5 5 0 0 1 %s %sV%s" % (num(x - 5), num(y - 2), num(y - 7), num(x + 5), num(y - 7),
                                            num(y - (6 if opened else 2)))
    return path(bow) + rect(x - 8, y - 2, 16, 12, color, INK, 2, 1) + circle(x, y + 3, 1.6, INK, None) \
        + line(x, y + 4, x, y + 6, INK, 2)


def ruler(color=YELLOW):
    out = poly([(3, 23), (23, 3), (29, 9), (9, 29)], color)
    for i in range(4):
        x, y = 9 + i * 4, 17 - i * 4
        out += line(x, y, x + 2, y + 2, INK, 1.6)
    return out


def bars(x, heights, color=DEEP):
    return "".join(rect(x + i * 6, 27 - h, 4, h, color, INK, 1.5) for i, h in enumerate(heights))


def window(fill=WHITE, bar=BLUE):
    return rect(3, 5, 26, 22, fill, INK, 2, 1) + rect(4, 6, 24, 5, bar, None)


def text_lines(x, ys, widths, color=INK):
    return "".join(line(x, y, x + w, y, color, 2) for y, w in zip(ys, widths))


def letter(which, x, y, color, s=4, width=2.4):
    """X, Y, Z and digits of few strokes, s is half the height."""
    strokes = {"X": [((-1, -1), (1, 1)), ((1, -1), (-1, 1))],
               "Y": [((-1, -1), (0, 0), (1, -1)), ((0, 0), (0, 1))],
               "Z": [((-1, -1), (1, -1), (-1, 1), (1, 1))],
               "1": [((-0.6, -0.5), (0.2, -1), (0.2, 1))],
               "2": [((-0.8, -0.7), (0, -1), (0.8, -0.6), (-0.8, 1), (0.9, 1))],
               "A": [((-0.9, 1), (0, -1), (0.9, 1)), ((-0.5, 0.3), (0.5, 0.3))]}
    return "".join(polyline([(x + px * s * 0.8, y + py * s) for px, py in one], color, width)
                   for one in strokes[which])


# ---- badges in the lower right corner ----------------------------------------------------------

def badge(kind, color=None, x=23, y=23):
    colors = {"plus": GREEN, "minus": RED, "check": GREEN, "cross": RED, "play": GREEN, "dot": BLUE,
              "up": BLUE, "down": BLUE, "left": BLUE, "right": BLUE, "reload": BLUE, "warn": ORANGE,
              "equal": BLUE, "question": BLUE, "info": BLUE, "pen": ORANGE, "star": YELLOW, "cycle": GREEN}
    color = color or colors[kind]
    out = circle(x, y, 8, color, WHITE, 1.6)
    w, ink = 2.6, WHITE
    if kind == "plus":
        out += line(x - 4, y, x + 4, y, ink, w) + line(x, y - 4, x, y + 4, ink, w)
    elif kind == "minus":
        out += line(x - 4, y, x + 4, y, ink, w)
    elif kind == "check":
        out += polyline([(x - 4, y), (x - 1, y + 3), (x + 4, y - 3)], ink, w)
    elif kind == "cross":
        out += line(x - 3, y - 3, x + 3, y + 3, ink, w) + line(x + 3, y - 3, x - 3, y + 3, ink, w)
    elif kind == "play":
        out += poly([(x - 2, y - 4), (x + 4, y), (x - 2, y + 4)], ink, ink, 1)
    elif kind == "dot":
        out += circle(x, y, 3, ink, None)
    elif kind == "equal":
        out += line(x - 4, y - 2, x + 4, y - 2, ink, w) + line(x - 4, y + 2, x + 4, y + 2, ink, w)
    elif kind == "warn":
        out += line(x, y - 4, x, y + 0.5, ink, w) + circle(x, y + 4, 1.5, ink, None)
    elif kind == "info":
        out += line(x, y - 0.5, x, y + 4, ink, w) + circle(x, y - 4, 1.5, ink, None)
    elif kind == "question":
        out += path("M%s %sA3 3 0 1 1 %s %sV%s" % (num(x - 3), num(y - 1.5), num(x), num(y + 0.5), num(y + 1.2)),
                    "none", ink, 2.2) + circle(x, y + 4.6, 1.4, ink, None)
    elif kind == "pen":
        out += poly([(x - 4, y + 4), (x - 3, y + 0.5), (x + 2, y - 4.5), (x + 4.5, y - 2), (x - 0.5, y + 3)], ink, None)
    elif kind in ("reload", "cycle"):
        out += arc(x, y, 4, 4, -30, 250, ink, 2.2, 4)
    else:
        a = {"up": -90, "down": 90, "left": 180, "right": 0}[kind]
        c, s = math.cos(math.radians(a)), math.sin(math.radians(a))
        out += line(x - 4 * c, y - 4 * s, x + 1 * c, y + 1 * s, ink, w) + head(x + 5 * c, y + 5 * s, a, ink, 5)
    return out
