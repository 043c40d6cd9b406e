#!/usr/bin/env python3
"""Makes the three sample parts that lie beside this script.

    python3 make_samples.py [FOLDER]

bracket.stl (binary): a bearing bracket with a bore, two screw holes and lightened sides.
gear.stl (ASCII): a spur gear with a bore and lightening holes.
vase.stl (binary): a twisted, fluted vase with a wall.
All three are closed, and their triangles look outwards.
"""
import math
import os
import struct
import sys


# ---- flat shapes -------------------------------------------------------------------------------

def area(ring):
    return 0.5 * sum(ring[i][0] * ring[(i + 1) % len(ring)][1] - ring[(i + 1) % len(ring)][0] * ring[i][1]
                     for i in range(len(ring)))


def circle(x, y, radius, count, clockwise=False):
    sign = -1 if clockwise else 1
    return [(x + radius * math.cos(sign * 2 * math.pi * i / count),
             y + radius * math.sin(sign * 2 * math.pi * i / count)) for i in range(count)]


def turn(a, b, c):
    return (b[0] - a[0]) * (c[1] - a[1]) - (b[1] - a[1]) * (c[0] - a[0])


def in_triangle(p, a, b, c):
    return turn(a, b, p) >= 0 and turn(b, c, p) >= 0 and turn(c, a, p) >= 0


def crosses(p, q, a, b):
    """Whether the open segments pq and ab cross."""
    return turn(p, q, a) * turn(p, q, b) < 0 and turn(a, b, p) * turn(a, b, q) < 0


def bridge(ring, hole):
    """Joins a hole to the ring by the shortest pair of corners that see each other."""
    pairs = sorted((math.hypot(p[0] - q[0], p[1] - q[1]), i, k)
                   for i, p in enumerate(ring) for k, q in enumerate(hole))
    edges = [(r[i], r[(i + 1) % len(r)]) for r in (ring, hole) for i in range(len(r))]
    for _, i, k in pairs:
        p, q = ring[i], hole[k]
        if not any(crosses(p, q, a, b) for a, b in edges):
            return ring[:i + 1] + hole[k:] + hole[:k + 1] + ring[i:]
    raise ValueError("the hole cannot be reached")


def triangulate(outline, holes):
    """Triangles, as corner triples, that fill the outline less its holes."""
    ring = list(outline)
    for hole in sorted(holes, key=lambda h: -max(p[0] for p in h)):
        ring = bridge(ring, hole)
    triangles = []
    while len(ring) > 3:
        best = None
        for i in range(len(ring)):
            a, b, c = ring[i - 1], ring[i], ring[(i + 1) % len(ring)]
            if turn(a, b, c) <= 0:
                continue
            if any(p not in (a, b, c) and in_triangle(p, a, b, c) for p in ring):
                continue
            # The fattest ear first: slivers are ugly in a wireframe.
            longest = max(math.dist(a, b), math.dist(b, c), math.dist(c, a))
            fatness = turn(a, b, c) / (longest * longest)
            if best is None or fatness > best[0]:
                best = (fatness, i)
            if fatness > 0.5:
                break
        if best is None:
            raise ValueError("no ear is left")
        i = best[1]
        triangles.append((ring[i - 1], ring[i], ring[(i + 1) % len(ring)]))
        del ring[i]
    triangles.append(tuple(ring))
    return triangles


def extrude(outline, holes, low, high, place=lambda x, y, z: (x, y, z)):
    """A prism over an outline with holes; `place` puts (x, y, height) into space."""
    if area(outline) < 0:
        outline = outline[::-1]
    holes = [h if area(h) < 0 else h[::-1] for h in holes]
    result = []
    for a, b, c in triangulate(outline, holes):
        result.append((place(*a, high), place(*b, high), place(*c, high)))
        result.append((place(*a, low), place(*c, low), place(*b, low)))
    for ring in [outline] + holes:
        for i in range(len(ring)):
            p, q = ring[i], ring[(i + 1) % len(ring)]
            a, b = place(*p, low), place(*q, low)
            c, d = place(*q, high), place(*p, high)
            result += [(a, b, c), (a, c, d)]
    return result


# ---- the parts ---------------------------------------------------------------------------------

def bracket():
    """A pillow block, drawn in the x-z plane and extruded along y."""
    outline = [(-42, 0), (42, 0), (42, 10), (26, 10)]
    outline += [(22 * math.cos(t), 38 + 22 * math.sin(t)) for t in
                [math.radians(-14 + (208.0 * i) / 48) for i in range(49)]]
    outline += [(-26, 10), (-42, 10)]
    holes = [circle(0, 38, 13, 56, True),
             circle(-15.5, 14.5, 3.4, 24, True),
             circle(15.5, 14.5, 3.4, 24, True),
             [(-9, 8), (0, 18), (9, 8)]]
    triangles = extrude(outline, holes, -14, 14, lambda x, y, h: (x, -h, y))
    return triangles


def gear(teeth=22, module=2.4, height=12.0):
    pitch = teeth * module / 2
    outer, root = pitch + module, pitch - 1.25 * module
    outline = []
    for i in range(teeth):
        start = 2 * math.pi * i / teeth
        step = 2 * math.pi / teeth
        # A flank of four points between root and tip stands for the involute.
        for fraction, radius in ((0.0, root), (0.16, root), (0.22, root + 0.35 * (outer - root)),
                                 (0.275, root + 0.7 * (outer - root)), (0.345, outer),
                                 (0.575, outer), (0.645, root + 0.7 * (outer - root)),
                                 (0.70, root + 0.35 * (outer - root)), (0.76, root)):
            outline.append((radius * math.cos(start + fraction * step),
                            radius * math.sin(start + fraction * step)))
    holes = [circle(0, 0, 6, 48, True)]
    for i in range(6):
        t = 2 * math.pi * i / 6
        holes.append(circle(15 * math.cos(t), 15 * math.sin(t), 3.8, 28, True))
    return extrude(outline, holes, 0.0, height)


def vase(height=90.0, wall=2.0, around=108, rings=40):
    def radius(z, angle, inset):
        t = z / height
        body = 21 + 11 * math.sin(math.pi * (0.12 + 0.80 * t)) ** 2 + 5 * t * t
        flute = 1.6 * math.sin(9 * (angle + 1.3 * t)) * math.sin(math.pi * min(1.0, 1.25 * t + 0.08))
        return body + flute - inset

    def ring(z, inset):
        return [(radius(z, a, inset) * math.cos(a), radius(z, a, inset) * math.sin(a), z)
                for a in (2 * math.pi * i / around for i in range(around))]

    outside = [ring(height * i / rings, 0.0) for i in range(rings + 1)]
    inside = [ring(wall + (height - wall) * i / rings, wall) for i in range(rings + 1)]
    result = []

    def band(lower, upper, outward):
        for i in range(around):
            k = (i + 1) % around
            a, b, c, d = lower[i], lower[k], upper[k], upper[i]
            result.extend([(a, b, c), (a, c, d)] if outward else [(a, c, b), (a, d, c)])

    for i in range(rings):
        band(outside[i], outside[i + 1], True)
        band(inside[i], inside[i + 1], False)
    band(outside[-1], inside[-1], True)
    for i in range(around):
        k = (i + 1) % around
        result.append(((0.0, 0.0, 0.0), outside[0][k], outside[0][i]))
        result.append(((0.0, 0.0, wall), inside[0][i], inside[0][k]))
    return result


# ---- files -------------------------------------------------------------------------------------

def normal(a, b, c):
    u = [b[i] - a[i] for i in range(3)]
    v = [c[i] - a[i] for i in range(3)]
    n = [u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]]
    length = math.sqrt(sum(x * x for x in n)) or 1.0
    return [x / length for x in n]


def write_binary(path, name, triangles):
    with open(path, "wb") as out:
        out.write(("Sample part: " + name).encode("ascii").ljust(80, b"\0"))
        out.write(struct.pack("<I", len(triangles)))
        for corners in triangles:
            out.write(struct.pack("<12fH", *normal(*corners), *[x for p in corners for x in p], 0))


def write_ascii(path, name, triangles):
    def text(p):
        return " ".join("%.6g" % (x + 0.0) for x in p)

    with open(path, "w", newline="\n") as out:
        out.write("solid %s\n" % name)
        for corners in triangles:
            out.write("facet normal %s\nouter loop\n" % text(normal(*corners)))
            for p in corners:
                out.write("vertex %s\n" % text(p))
            out.write("endloop\nendfacet\n")
        out.write("endsolid %s\n" % name)


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.dirname(os.path.abspath(__file__))
    write_binary(os.path.join(folder, "bracket.stl"), "Bracket", bracket())
    write_ascii(os.path.join(folder, "gear.stl"), "Gear", gear())
    write_binary(os.path.join(folder, "vase.stl"), "Vase", vase())


if __name__ == "__main__":
    main()
