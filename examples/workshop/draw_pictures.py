#!/usr/bin/env python3
"""Draws the .bmp files of the workshop beside this script: smooth shapes, 24 bits a pixel, rows from the bottom up."""
import math
import pathlib
import struct

FOLDER = pathlib.Path(__file__).resolve().parent
FACE = (243, 243, 243)  # About the colour of dialogs: pictures that end in it seem to have no corners.
WHITE = (255, 255, 255)
INK = (52, 64, 84)
SHADE = (176, 186, 200)
BLUE = (38, 110, 190)
PALE = (222, 234, 248)
GREEN = (46, 160, 90)
RED = (208, 62, 58)
GREY = (196, 200, 206)


# Shapes: functions of a point that give its distance from the outline in pixels, negative inside.
def disc(x0, y0, radius):
    return lambda x, y: math.hypot(x - x0, y - y0) - radius


def box(left, top, right, bottom, radius=0):
    """A rectangle with rounded corners."""
    x0, y0 = (left + right) / 2, (top + bottom) / 2
    half_width, half_height = (right - left) / 2 - radius, (bottom - top) / 2 - radius

    def distance(x, y):
        dx, dy = abs(x - x0) - half_width, abs(y - y0) - half_height
        return math.hypot(max(dx, 0), max(dy, 0)) + min(max(dx, dy), 0) - radius

    return distance


def bar(x1, y1, x2, y2, width):
    """A line with round ends."""
    dx, dy = x2 - x1, y2 - y1
    length = dx * dx + dy * dy or 1

    def distance(x, y):
        along = max(0, min(1, ((x - x1) * dx + (y - y1) * dy) / length))
        return math.hypot(x - x1 - along * dx, y - y1 - along * dy) - width / 2

    return distance


def polygon(*corners):
    """A convex one, its corners clockwise as seen on the screen."""
    edges = []
    for (x1, y1), (x2, y2) in zip(corners, corners[1:] + corners[:1]):
        length = math.hypot(x2 - x1, y2 - y1)
        edges.append((x1, y1, (y2 - y1) / length, -(x2 - x1) / length))
    return lambda x, y: max((x - x1) * across + (y - y1) * down for x1, y1, across, down in edges)


def toward(x0, y0, degrees, distance):
    """The point so far from (x0, y0); 0 degrees is up, then clockwise."""
    return x0 + distance * math.sin(math.radians(degrees)), y0 - distance * math.cos(math.radians(degrees))


def mixed(colour, other, part):
    return tuple(round(a + (b - a) * part) for a, b in zip(colour, other))


class Picture:
    def __init__(self, width, height, colour=FACE):
        self.width, self.height = width, height
        self.rows = [[colour] * width for _ in range(height)]

    def fill(self, colour, shape):
        """Pixels that the outline cuts get the colour in part. A colour may be a pair: from top to bottom."""
        for y, row in enumerate(self.rows):
            here = mixed(colour[0], colour[1], y / self.height) if isinstance(colour[0], tuple) else colour
            for x in range(self.width):
                part = 0.5 - shape(x + 0.5, y + 0.5)
                if part > 0:
                    row[x] = mixed(row[x], here, min(part, 1))

    def line(self, colour, *points, width=2.5):
        for (x1, y1), (x2, y2) in zip(points, points[1:]):
            self.fill(colour, bar(x1, y1, x2, y2, width))

    def save(self, name):
        padding = b"\0" * (-3 * self.width % 4)
        pixels = b"".join(
            b"".join(bytes((b, g, r)) for r, g, b in row) + padding for row in reversed(self.rows))
        header = struct.pack("<2sIHHI", b"BM", 54 + len(pixels), 0, 0, 54)
        info = struct.pack("<IiiHHIIiiII", 40, self.width, self.height, 1, 24, 0, len(pixels), 2835, 2835, 0, 0)
        (FOLDER / name).write_bytes(header + info + pixels)


def banner():
    """The head of the main window: a plot on paper."""
    picture = Picture(520, 64, WHITE)
    for x in range(0, 520, 16):
        picture.fill((243, 246, 250), box(x, 0, x + 1, 61))
    for y in range(0, 61, 16):
        picture.fill((243, 246, 250), box(0, y, 520, y + 1))
    curve = [(x, 32 - 18 * math.sin((x - 330) / 28) * math.exp(-((x - 420) / 75) ** 2)) for x in range(300, 521, 4)]
    picture.line((140, 180, 225), *curve, width=2)
    picture.fill(BLUE, box(0, 61, 520, 64))
    picture.save("banner.bmp")


def icons():
    tile = box(0, 0, 40, 40, 8)
    picture = Picture(40, 40)  # Sliders.
    picture.fill(PALE, tile)
    for y, knob in ((12, 26), (20, 14), (28, 22)):
        picture.line(SHADE, (9, y), (31, y), width=3)
        picture.fill(BLUE, disc(knob, y, 3.6))
    picture.save("icon_machine.bmp")
    picture = Picture(40, 40)  # Sheets, one above the other.
    picture.fill(PALE, tile)
    for y, colour in ((26, SHADE), (21, mixed(BLUE, SHADE, 0.5)), (16, BLUE)):
        sheet = polygon((20, y - 7), (32, y), (20, y + 7), (8, y))
        picture.fill(PALE, lambda x, y, sheet=sheet: sheet(x, y) - 1.5)
        picture.fill(colour, sheet)
    picture.save("icon_pens.bmp")
    picture = Picture(40, 40)  # Four ways to go.
    picture.fill(PALE, tile)
    for degrees in range(0, 360, 90):
        picture.fill(BLUE, polygon(*(toward(*toward(20, 20, degrees, 11), degrees + turn, 5.5) for turn in (0, 120, 240))))
    picture.fill(INK, disc(20, 20, 3))
    picture.save("icon_jog.bmp")


def jog_button(name, draw):
    for status, plate, edge, mark, down in (("normal", (WHITE, (232, 237, 244)), SHADE, INK, 0),
                                            ("pressed", ((206, 222, 242), PALE), BLUE, BLUE, 1),
                                            ("disabled", ((236, 236, 236), (236, 236, 236)), (216, 216, 216), GREY, 0)):
        picture = Picture(48, 48)
        picture.fill(edge, box(0, 0, 48, 48, 9))
        picture.fill(plate, box(1, 1, 47, 47, 8))
        draw(picture, mark, 24, 24 + down)
        picture.save(f"{name}_{status}.bmp")


def jog_buttons():
    for name, degrees in (("y_plus", 0), ("x_plus", 90), ("y_minus", 180), ("x_minus", 270)):
        def arrow(picture, mark, x, y, degrees=degrees):
            tip = toward(x, y, degrees, 9)
            sides = [toward(*toward(x, y, degrees, 1), degrees + turn, 9) for turn in (-90, 90)]
            picture.line(mark, sides[0], tip, sides[1], width=4)
            picture.line(mark, tip, toward(x, y, degrees + 180, 9), width=4)

        jog_button(name, arrow)

    def house(picture, mark, x, y):
        picture.line(mark, (x - 11, y + 1), (x, y - 9), (x + 11, y + 1), width=4)
        picture.line(mark, (x - 7, y + 2), (x - 7, y + 10), (x + 7, y + 10), (x + 7, y + 2), width=4)

    jog_button("home", house)


def pen_switch():
    for name, plate, knob in (("pen_off", GREY, 14), ("pen_up", BLUE, 32), ("pen_down", GREEN, 50)):
        picture = Picture(64, 28)
        picture.fill(plate, box(0, 0, 64, 28, 14))
        for place in (14, 32, 50):
            picture.fill(mixed(plate, WHITE, 0.45), disc(place, 14, 2.5))
        picture.fill(WHITE, disc(knob, 14, 11))
        picture.save(name + ".bmp")


def dial():
    """The scale that the knob turns on: a mark for each tenth, longer ones at 50, 100 and 150 percent."""
    picture = Picture(104, 104)
    for percent in range(10, 151, 10):
        degrees = (percent - 100) * 1.8
        start = 44 if percent % 50 else 42
        colour = RED if percent > 100 else INK
        picture.line(colour, toward(52, 52, degrees, start), toward(52, 52, degrees, 49),
                     width=1.6 if percent % 50 else 2.8)
    picture.save("dial.bmp")


def knob():
    """White lets the dial through, so the outline fades into what is not quite white."""
    picture = Picture(104, 104, WHITE)
    picture.fill(FACE, disc(52, 52, 39))
    picture.fill(SHADE, disc(52, 52, 37))
    picture.fill(((250, 251, 252), (214, 221, 230)), disc(52, 52, 35.5))
    picture.line(BLUE, toward(52, 52, 0, 19), toward(52, 52, 0, 30), width=5)
    picture.save("knob.bmp")


def step_knob(position):
    picture = Picture(72, 72)
    for place in range(5):
        lit = place == position
        picture.fill(BLUE if lit else SHADE, disc(*toward(36, 36, -100 + 50 * place, 32), 3.2 if lit else 2.2))
    picture.fill(SHADE, disc(36, 36, 25))
    picture.fill((WHITE, (214, 221, 230)), disc(36, 36, 24))
    degrees = -100 + 50 * position
    picture.line(INK, toward(36, 36, degrees, 6), toward(36, 36, degrees, 20), width=4)
    picture.save(f"step_{position}.bmp")


def spindle(frame):
    picture = Picture(48, 48)
    picture.fill(PALE, disc(24, 24, 23))
    for blade in range(3):
        degrees = 120 * blade + 30 * frame
        picture.fill(BLUE, polygon(toward(24, 24, degrees - 20, 6), toward(24, 24, degrees - 8, 20),
                                   toward(24, 24, degrees + 14, 20), toward(24, 24, degrees + 20, 6)))
    picture.fill(INK, disc(24, 24, 6))
    picture.fill(PALE, disc(24, 24, 2))
    picture.save(f"spindle_{frame}.bmp")


def pen_lift(frame):
    """The pen over the paper, each frame lower."""
    picture = Picture(56, 64, WHITE)
    picture.fill((230, 235, 242), box(0, 54, 56, 64))
    picture.line(SHADE, (0, 54), (56, 54), width=1.5)
    y = 5 * frame
    picture.fill(((90, 106, 130), INK), box(20, y - 14, 36, 24 + y, 4))
    picture.fill(BLUE, polygon((20, 22 + y), (36, 22 + y), (30, 36 + y), (26, 36 + y)))
    picture.fill(INK, polygon((26.2, 35 + y), (29.8, 35 + y), (28, 40 + y)))
    if frame == 3:
        picture.line(BLUE, (6, 55), (28, 55), width=2)
    picture.save(f"lift_{frame}.bmp")


def swatch(name, colour):
    picture = Picture(44, 30, WHITE)
    picture.fill(mixed(colour, (0, 0, 0), 0.2), box(3, 3, 41, 27, 6))
    picture.fill(colour, box(4, 4, 40, 26, 5))
    picture.save(f"colour_{name}.bmp")


def layer(name, colour, top):
    picture = Picture(20, 20, WHITE)
    for y, paint in ((13, SHADE), (10, mixed(colour, SHADE, 0.6)), (7, top)):
        sheet = polygon((10, y - 4.5), (18, y), (10, y + 4.5), (2, y))
        picture.fill(WHITE, lambda x, y, sheet=sheet: sheet(x, y) - 1)
        picture.fill(paint, sheet)
    picture.save(name)


def main():
    banner()
    icons()
    jog_buttons()
    pen_switch()
    dial()
    knob()
    for position in range(5):
        step_knob(position)
    for frame in range(4):
        spindle(frame)
        pen_lift(frame)
    for name, colour in (("black", (40, 42, 48)), ("red", RED), ("orange", (236, 140, 40)), ("yellow", (238, 200, 60)),
                         ("green", GREEN), ("cyan", (50, 175, 190)), ("blue", BLUE), ("violet", (130, 80, 180))):
        swatch(name, colour)
    layer("layer.bmp", SHADE, mixed(BLUE, WHITE, 0.4))
    layer("layer_chosen.bmp", BLUE, BLUE)


main()
