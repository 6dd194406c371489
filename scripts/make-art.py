#!/usr/bin/env python3
"""Draws Rhomba's icons and cursors from simple geometry and writes them as .ico and .cur files.

Usage: scripts/make-art.py [repository root]

Icons are 32-bit with alpha plus an AND mask, anti-aliased by 4x4 supersampling: the application
icon at 48, 32 and 16 pixels (the small one at 16), the tool icons at 32 and 24. Cursors are
32x32 monochrome (black, white, transparent), drawn on the pixel grid so that they stay
sharp. Every picture is designed on a 32-unit square and scaled to the size it is rendered at.
Only the standard library is used; the generated files are committed, so the build needs no
Python.
"""

import math
import os
import struct
import sys

# ---------------------------------------------------------------------------------------------
# Shapes: anything with a bounding box and an inside test, in design units (0..32, y down).


class Shape:
    def __or__(self, other):
        return Union([self, other])

    def __sub__(self, other):
        return Difference(self, other)


class Polygon(Shape):
    def __init__(self, points):
        self.points = [(float(x), float(y)) for x, y in points]
        xs = [p[0] for p in self.points]
        ys = [p[1] for p in self.points]
        self.bbox = (min(xs), min(ys), max(xs), max(ys))

    def contains(self, x, y):
        inside = False
        pts = self.points
        j = len(pts) - 1
        for i in range(len(pts)):
            xi, yi = pts[i]
            xj, yj = pts[j]
            if (yi > y) != (yj > y) and x < (xj - xi) * (y - yi) / (yj - yi) + xi:
                inside = not inside
            j = i
        return inside


class Ellipse(Shape):
    def __init__(self, cx, cy, rx, ry=None):
        self.cx, self.cy, self.rx, self.ry = cx, cy, rx, ry if ry is not None else rx
        self.bbox = (cx - self.rx, cy - self.ry, cx + self.rx, cy + self.ry)

    def contains(self, x, y):
        dx = (x - self.cx) / self.rx
        dy = (y - self.cy) / self.ry
        return dx * dx + dy * dy <= 1.0


class Capsule(Shape):
    """A straight stroke of the given width with round ends."""

    def __init__(self, a, b, width):
        self.a, self.b, self.r = a, b, width / 2.0
        self.bbox = (min(a[0], b[0]) - self.r, min(a[1], b[1]) - self.r,
                     max(a[0], b[0]) + self.r, max(a[1], b[1]) + self.r)

    def contains(self, x, y):
        ax, ay = self.a
        bx, by = self.b
        dx, dy = bx - ax, by - ay
        length2 = dx * dx + dy * dy
        t = 0.0 if length2 == 0 else max(0.0, min(1.0, ((x - ax) * dx + (y - ay) * dy) / length2))
        px, py = ax + t * dx - x, ay + t * dy - y
        return px * px + py * py <= self.r * self.r


class Union(Shape):
    def __init__(self, shapes):
        self.shapes = list(shapes)
        boxes = [s.bbox for s in self.shapes]
        self.bbox = (min(b[0] for b in boxes), min(b[1] for b in boxes),
                     max(b[2] for b in boxes), max(b[3] for b in boxes))

    def contains(self, x, y):
        for s in self.shapes:
            b = s.bbox
            if b[0] <= x <= b[2] and b[1] <= y <= b[3] and s.contains(x, y):
                return True
        return False


class Difference(Shape):
    def __init__(self, keep, cut):
        self.keep, self.cut = keep, cut
        self.bbox = keep.bbox

    def contains(self, x, y):
        return self.keep.contains(x, y) and not self.cut.contains(x, y)


class Inset(Shape):
    """The part of a shape at least d units away from its edge (sampled, good enough for art)."""

    def __init__(self, shape, d):
        self.shape, self.d = shape, d
        self.bbox = shape.bbox
        self.probes = [(d * math.cos(a * math.pi / 8), d * math.sin(a * math.pi / 8))
                       for a in range(16)]

    def contains(self, x, y):
        return self.shape.contains(x, y) and all(self.shape.contains(x + ox, y + oy)
                                                 for ox, oy in self.probes)


def stroke(points, width, closed=False):
    """A polyline stroke with round joins."""
    pts = list(points) + ([points[0]] if closed else [])
    return Union(Capsule(pts[i], pts[i + 1], width) for i in range(len(pts) - 1))


def ring(cx, cy, r, width):
    return Ellipse(cx, cy, r + width / 2) - Ellipse(cx, cy, r - width / 2)


def rect(x0, y0, x1, y1):
    return Polygon([(x0, y0), (x1, y0), (x1, y1), (x0, y1)])


def bezier(p0, p1, p2, p3, steps=24):
    out = []
    for i in range(steps + 1):
        t = i / steps
        u = 1 - t
        w = (u * u * u, 3 * u * u * t, 3 * u * t * t, t * t * t)
        out.append((w[0] * p0[0] + w[1] * p1[0] + w[2] * p2[0] + w[3] * p3[0],
                    w[0] * p0[1] + w[1] * p1[1] + w[2] * p2[1] + w[3] * p3[1]))
    return out


def moved(points, dx, dy, scale=1.0):
    return [(x * scale + dx, y * scale + dy) for x, y in points]


# ---------------------------------------------------------------------------------------------
# Colour icons: layers of (shape, colour) painted in order.


def rgb(text):
    return tuple(int(text[i:i + 2], 16) for i in (0, 2, 4))


def render_icon(layers, size, ss=4):
    """Returns rows of (r, g, b, a) bytes, top row first."""
    scale = 32.0 / size
    pixels = [[(0.0, 0.0, 0.0, 0.0)] * size for _ in range(size)]
    offsets = [(i + 0.5) / ss for i in range(ss)]
    for shape, colour in layers:
        cr, cg, cb = (c / 255.0 for c in colour)
        x0, y0, x1, y1 = shape.bbox
        px0 = max(0, int(math.floor(x0 / scale)))
        py0 = max(0, int(math.floor(y0 / scale)))
        px1 = min(size - 1, int(math.ceil(x1 / scale)))
        py1 = min(size - 1, int(math.ceil(y1 / scale)))
        for py in range(py0, py1 + 1):
            row = pixels[py]
            for px in range(px0, px1 + 1):
                hits = 0
                for oy in offsets:
                    for ox in offsets:
                        if shape.contains((px + ox) * scale, (py + oy) * scale):
                            hits += 1
                if hits == 0:
                    continue
                a = hits / (ss * ss)
                r, g, b, da = row[px]
                out_a = a + da * (1 - a)
                row[px] = ((cr * a + r * da * (1 - a)) / out_a,
                           (cg * a + g * da * (1 - a)) / out_a,
                           (cb * a + b * da * (1 - a)) / out_a, out_a)
    return [[tuple(int(round(c * 255)) for c in p) for p in row] for row in pixels]


def icon_image(rows):
    """BITMAPINFOHEADER, 32-bit BGRA pixels bottom-up, then the AND mask."""
    size = len(rows)
    header = struct.pack('<IiiHHIIiiII', 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    xor = bytearray()
    for row in reversed(rows):
        for r, g, b, a in row:
            xor += bytes((b, g, r, a))
    mask_stride = ((size + 31) // 32) * 4
    mask = bytearray()
    for row in reversed(rows):
        line = bytearray(mask_stride)
        for x, (_, _, _, a) in enumerate(row):
            if a == 0:
                line[x // 8] |= 0x80 >> (x % 8)
        mask += line
    return header + bytes(xor) + bytes(mask)


def write_ico(path, pictures):
    """pictures: (size, layers) pairs, one image each."""
    images = [(size, icon_image(render_icon(layers, size))) for size, layers in pictures]
    out = bytearray(struct.pack('<HHH', 0, 1, len(images)))
    offset = 6 + 16 * len(images)
    for size, data in images:
        out += struct.pack('<BBBBHHII', size % 256, size % 256, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    for _, data in images:
        out += data
    with open(path, 'wb') as f:
        f.write(out)


# ---------------------------------------------------------------------------------------------
# Monochrome cursors: a character grid of '.' (transparent), 'B' (black) and 'W' (white).


def pixel_mask(shape):
    """The 32x32 pixels whose centres lie inside the shape."""
    return {(x, y) for y in range(32) for x in range(32) if shape.contains(x + 0.5, y + 0.5)}


def neighbours(points):
    return {(x + dx, y + dy) for x, y in points for dx in (-1, 0, 1) for dy in (-1, 0, 1)
            if 0 <= x + dx < 32 and 0 <= y + dy < 32}


class CursorGrid:
    def __init__(self):
        self.cells = [['.'] * 32 for _ in range(32)]

    def put(self, points, value):
        for x, y in points:
            self.cells[y][x] = value

    def halo(self, shape):
        """The shape in black with a one-pixel white rim, readable on any background."""
        inner = pixel_mask(shape)
        self.put(neighbours(inner) - inner, 'W')
        self.put(inner, 'B')

    def framed(self, shape):
        """The shape in white with a black border, as the system's own arrow."""
        inner = pixel_mask(shape)
        self.put(inner, 'W')
        self.put(inner - {p for p in inner if all(q in inner for q in neighbours({p}))}, 'B')


def write_cur(path, grid, hotspot):
    size = 32
    # XOR bit 1 = white; AND bit 1 = the screen shows through.
    xor_bits = {'.': 0, 'B': 0, 'W': 1}
    and_bits = {'.': 1, 'B': 0, 'W': 0}
    stride = 4

    def plane(table):
        data = bytearray()
        for row in reversed(grid.cells):
            line = bytearray(stride)
            for x, c in enumerate(row):
                if table[c]:
                    line[x // 8] |= 0x80 >> (x % 8)
            data += line
        return bytes(data)

    header = struct.pack('<IiiHHIIiiII', 40, size, size * 2, 1, 1, 0, 0, 0, 0, 2, 0)
    palette = bytes((0, 0, 0, 0, 255, 255, 255, 0))
    image = header + palette + plane(xor_bits) + plane(and_bits)
    out = struct.pack('<HHH', 0, 2, 1)
    out += struct.pack('<BBBBHHII', size, size, 2, 0, hotspot[0], hotspot[1], len(image), 22)
    with open(path, 'wb') as f:
        f.write(out + image)


# ---------------------------------------------------------------------------------------------
# The pictures.

INK = rgb('1E2A38')        # outlines and strokes on the light button face
ACCENT = rgb('2F6FB5')     # the program's blue
GREY_FILL = rgb('AAAAAA')  # the fill colour of new shapes
WHITE = rgb('FFFFFF')


def app_icon(small=False):
    """The cube's edges rise at 1 in 2, as the program's side faces do. The 16-pixel version puts
    its vertical edges on pixel centres so that they stay sharp."""
    top, left, right = rgb('9CC8F0'), rgb('3F86CF'), rgb('1F4F8A')
    if small:
        t, l, r, c = (15, 3), (3, 9), (27, 9), (15, 15)
        ll, lr, b = (3, 23), (27, 23), (15, 29)
        outline, inner = 2.0, 2.0
    else:
        t, l, r, c = (16, 3), (4, 9), (28, 9), (16, 15)
        ll, lr, b = (4, 23), (28, 23), (16, 29)
        outline, inner = 1.8, 1.3
    layers = [
        (Polygon([t, r, c, l]), top),
        (Polygon([l, c, b, ll]), left),
        (Polygon([c, r, lr, b]), right),
    ]
    if not small:
        # A small projected square on the top face hints at what the program does.
        mx, my = (t[0] + c[0]) / 2, (t[1] + c[1]) / 2
        q = [(mx, my - 3), (mx + 6, my), (mx, my + 3), (mx - 6, my)]
        layers.append((stroke(q, 1.0, closed=True), WHITE))
    edges = [t, r, lr, b, ll, l]
    lines = stroke(edges, outline, closed=True) | stroke([l, c, r], inner) | stroke([c, b], inner)
    layers.append((lines, INK))
    return layers


ARROW = [(7, 3), (7, 25), (12.2, 20.2), (15.8, 28.5), (19.6, 26.8), (16, 18.8), (23, 18.8)]


def tool_select():
    return [(Polygon(ARROW), INK), (stroke(ARROW, 1.2, closed=True), INK)]


HAND_FINGERS = [(10.5, 6.5), (14.5, 4.5), (18.5, 5.0), (22.5, 8.0)]  # centre x, top y
HAND_PALM = [(8.5, 15), (24.3, 15), (24.3, 22), (21, 28.5), (12, 28.5), (8.5, 23)]
HAND_THUMB = ((9.5, 22.5), (4.5, 16.5))


def hand_parts(rim=0.0, finger=3.6):
    """An open hand, palm towards the viewer, fingers up: the outline shapes, or with rim > 0
    the inner shapes that leave a border of that width (and thin lines between the fingers)."""
    width = finger - 2 * rim
    fingers = [Capsule((x, top + rim), (x, 17), width) for x, top in HAND_FINGERS]
    palm = Polygon(HAND_PALM)
    if rim > 0:
        palm = Inset(palm, rim)
    return [palm] + fingers + [Capsule(HAND_THUMB[0], HAND_THUMB[1], width)]


def tool_scroll():
    skin = rgb('F2D3B3')
    return [(Union(hand_parts()), INK), (Union(hand_parts(0.9)), skin)]


def tool_zoom():
    glass = rgb('D6E9FA')
    return [
        (Ellipse(13, 13, 8.2), glass),
        (stroke([(10, 9.5), (12.5, 8.3)], 1.2), WHITE),
        (ring(13, 13, 8.2, 2.6), INK),
        (Capsule((19.3, 19.3), (27.5, 27.5), 4.6), INK),
        (Capsule((19.3, 19.3), (26.8, 26.8), 2.4), ACCENT),
    ]


def node_square(x, y, half, colour, border=INK, width=1.0):
    return [(rect(x - half, y - half, x + half, y + half), border),
            (rect(x - half + width, y - half + width, x + half - width, y + half - width), colour)]


def tool_path():
    pts = [(4, 26), (11, 9), (20, 21), (28, 5)]
    layers = [(stroke(pts, 2.0), INK)]
    for i, (x, y) in enumerate(pts):
        layers += node_square(x, y, 2.6, ACCENT if i == len(pts) - 1 else WHITE)
    return layers


def tool_node():
    curve = bezier((3, 26), (9, 6), (20, 4), (29, 12))
    node = (13.1, 10.3)
    handle_a, handle_b = (5.5, 16), (22, 3.8)
    layers = [
        (stroke(curve, 2.0), INK),
        (stroke([handle_a, handle_b], 1.0), ACCENT),
        (Ellipse(*handle_a, 2.1), ACCENT),
        (Ellipse(*handle_b, 2.1), ACCENT),
    ]
    layers += node_square(*node, 3.0, WHITE, width=1.2)
    layers += [(rect(node[0] - 1.0, node[1] - 1.0, node[0] + 1.0, node[1] + 1.0), INK)]
    return layers


def letter_a(x0, y0, h, w, stem):
    """A sans-serif capital A in the box (x0, y0) to (x0 + w, y0 + h)."""
    apex = (x0 + w / 2, y0)
    left_leg = Polygon([(apex[0] - stem * 0.55, y0), (apex[0] + stem * 0.55, y0),
                        (x0 + stem * 1.1, y0 + h), (x0, y0 + h)])
    right_leg = Polygon([(apex[0] - stem * 0.55, y0), (apex[0] + stem * 0.55, y0),
                         (x0 + w, y0 + h), (x0 + w - stem * 1.1, y0 + h)])
    bar_y = y0 + h * 0.62
    bar = rect(x0 + w * 0.2, bar_y, x0 + w * 0.8, bar_y + stem * 0.85)
    return Union([left_leg, right_leg, bar])


def tool_text():
    return [(letter_a(6, 4, 24, 20, 4.6), INK)]


def tool_rect():
    return [(rect(4, 8, 28, 26), INK), (rect(6, 10, 26, 24), GREY_FILL)]


def tool_ellipse():
    return [(Ellipse(16, 16.5, 13, 9.5), INK), (Ellipse(16, 16.5, 11, 7.5), GREY_FILL)]


# Cursors. Hotspots are given in pixels from the top left.


def crosshair(grid, cx, cy, arm=7):
    """A thin black cross-hair with a white rim, its centre pixel left open."""
    black = set()
    for d in range(2, arm + 1):
        black |= {(cx + d, cy), (cx - d, cy), (cx, cy + d), (cx, cy - d)}
    black = {p for p in black if 0 <= p[0] < 32 and 0 <= p[1] < 32}
    grid.put(neighbours(black) - black - {(cx, cy)}, 'W')
    grid.put(black, 'B')


def cursor_scroll():
    g = CursorGrid()
    g.framed(Union(hand_parts(finger=4.4)))
    # The fingers touch; a black line between them lets each read on its own.
    for x in (12, 16, 20):
        for y in range(15):
            if g.cells[y][x] != '.':
                g.cells[y][x] = 'B'
    return g, (16, 16)


def cursor_path():
    g = CursorGrid()
    crosshair(g, 8, 8)
    body = Polygon([(17, 20), (26, 11), (30, 15), (21, 24)])
    tip = Polygon([(17, 20), (21, 24), (14.5, 27.5)])
    g.halo(body | tip)
    g.put(pixel_mask(Polygon([(18.6, 21.4), (19.8, 22.6), (16.6, 25.4)])), 'W')
    return g, (8, 8)


def cursor_node():
    g = CursorGrid()
    g.halo(Polygon(moved(ARROW, -6.2, -2.2, 0.78)))
    g.halo(rect(16, 18, 25, 27) - rect(18, 20, 23, 25))
    g.put(pixel_mask(rect(18, 20, 23, 25)), 'W')
    return g, (1, 1)


def four_way_arrow(cx, cy, arm, head, shaft):
    parts = []
    for dx, dy in ((1, 0), (-1, 0), (0, 1), (0, -1)):
        tip = (cx + dx * arm, cy + dy * arm)
        base = (cx + dx * (arm - head), cy + dy * (arm - head))
        px, py = -dy, dx
        parts.append(Polygon([tip, (base[0] + px * head, base[1] + py * head),
                              (base[0] - px * head, base[1] - py * head)]))
        parts.append(Polygon([(cx + px * shaft, cy + py * shaft),
                              (base[0] + px * shaft, base[1] + py * shaft),
                              (base[0] - px * shaft, base[1] - py * shaft),
                              (cx - px * shaft, cy - py * shaft)]))
    return Union(parts)


def cursor_move():
    g = CursorGrid()
    g.halo(four_way_arrow(16, 16, 13.5, 4.5, 1.0))
    return g, (16, 16)


def cursor_zoom():
    g = CursorGrid()
    lens = Ellipse(11.5, 11.5, 8.5)
    g.halo(ring(11.5, 11.5, 7.5, 2.0) | Capsule((17.5, 17.5), (26.5, 26.5), 4.0))
    g.put(pixel_mask(lens - Ellipse(11.5, 11.5, 6.4)) - pixel_mask(ring(11.5, 11.5, 7.5, 2.0)), 'W')
    g.put(pixel_mask(Ellipse(11.5, 11.5, 6.4)), '.')
    # A plus sign in the lens.
    g.put({(x, 11) for x in range(8, 15)} | {(11, y) for y in range(8, 15)}, 'B')
    return g, (11, 11)


def cursor_text():
    g = CursorGrid()
    beam = rect(9, 4, 10, 23) | rect(6, 3, 9, 4) | rect(10, 3, 13, 4) | rect(6, 23, 9, 24) | \
        rect(10, 23, 13, 24)
    g.halo(beam)
    tee = rect(17, 19, 28, 21.5) | rect(21.25, 21.5, 23.75, 30)
    g.halo(tee)
    return g, (9, 13)


def cursor_rect():
    g = CursorGrid()
    crosshair(g, 8, 8)
    g.halo(rect(15, 17, 29, 18) | rect(15, 27, 29, 28) | rect(15, 17, 16, 28) |
           rect(28, 17, 29, 28))
    return g, (8, 8)


def cursor_ellipse():
    g = CursorGrid()
    crosshair(g, 8, 8)
    g.halo(Ellipse(22, 22.5, 7.5, 5.5) - Ellipse(22, 22.5, 6.4, 4.4))
    return g, (8, 8)


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    root = sys.argv[1] if len(sys.argv) > 1 else os.path.join(here, '..')
    icons = os.path.join(root, 'resources', 'icons')
    cursors = os.path.join(root, 'resources', 'cursors')
    os.makedirs(icons, exist_ok=True)
    os.makedirs(cursors, exist_ok=True)

    write_ico(os.path.join(icons, 'app.ico'),
              [(48, app_icon()), (32, app_icon()), (16, app_icon(True))])
    write_ico(os.path.join(icons, 'app-small.ico'), [(16, app_icon(True))])
    for name, layers in (('select', tool_select()), ('scroll', tool_scroll()),
                         ('zoom', tool_zoom()), ('path', tool_path()), ('node', tool_node()),
                         ('text', tool_text()), ('rect', tool_rect()),
                         ('ellipse', tool_ellipse())):
        # 24 pixels as well, for palette buttons narrower than 32 pixels.
        write_ico(os.path.join(icons, 'tool-%s.ico' % name), [(32, layers), (24, layers)])
    for name, make in (('scroll', cursor_scroll), ('path', cursor_path), ('node', cursor_node),
                       ('move', cursor_move), ('zoom', cursor_zoom), ('text', cursor_text),
                       ('rect', cursor_rect), ('ellipse', cursor_ellipse)):
        grid, hotspot = make()
        write_cur(os.path.join(cursors, 'cursor-%s.cur' % name), grid, hotspot)


if __name__ == '__main__':
    main()
