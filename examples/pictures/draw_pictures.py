#!/usr/bin/env python3
"""Draws the .bmp files of the example dialogs beside this script: 24 bits a pixel, rows from the bottom up."""
import math
import pathlib
import struct

FOLDER = pathlib.Path(__file__).resolve().parent
WHITE = (255, 255, 255)
FACE = (240, 240, 240)
DARK = (64, 72, 84)


class Picture:
    def __init__(self, width, height, colour):
        self.width, self.height = width, height
        self.rows = [[colour] * width for _ in range(height)]

    def paint(self, colour, inside):
        """Colours the pixels whose middle, in pixels from the upper left corner, lies inside."""
        for y, row in enumerate(self.rows):
            for x in range(self.width):
                if inside(x + 0.5, y + 0.5):
                    row[x] = colour

    def disc(self, colour, x0, y0, radius):
        self.paint(colour, lambda x, y: math.hypot(x - x0, y - y0) <= radius)

    def box(self, colour, left, top, right, bottom):
        self.paint(colour, lambda x, y: left <= x <= right and top <= y <= bottom)

    def hand(self, colour, x0, y0, angle, start, end, width):
        """A bar from the distance start to end of (x0, y0); 0 degrees is up, then clockwise."""
        dx, dy = math.sin(math.radians(angle)), -math.cos(math.radians(angle))

        def inside(x, y):
            along = (x - x0) * dx + (y - y0) * dy
            across = abs((x - x0) * dy - (y - y0) * dx)
            return start <= along <= end and across <= width / 2

        self.paint(colour, inside)

    def save(self, name):
        padding = b"\0" * (-3 * self.width % 4)
        pixels = b"".join(
            b"".join(bytes((b, g, r)) for r, g, b in row) + padding for row in reversed(self.rows))
        header = struct.pack("<2sIHHI", b"BM", 54 + len(pixels), 0, 0, 54)
        info = struct.pack("<IiiHHIIiiII", 40, self.width, self.height, 1, 24, 0, len(pixels), 2835, 2835, 0, 0)
        (FOLDER / name).write_bytes(header + info + pixels)


def button(name, upper_left, lower_right, face, shift, mark):
    picture = Picture(64, 32, upper_left)
    picture.paint(lower_right, lambda x, y: x / 64 + y / 32 > 1)
    picture.box(face, 2, 2, 62, 30)
    picture.paint(mark, lambda x, y: 24 <= x - shift <= 42 and abs(y - shift - 16) <= (42 - x + shift) / 2)
    picture.save(name)


def lamp(name, colour):
    picture = Picture(32, 32, FACE)
    picture.disc(DARK, 16, 16, 15)
    picture.disc(colour, 16, 16, 12)
    picture.disc(tuple((2 * 255 + part) // 3 for part in colour), 12, 12, 3)
    picture.save(name)


def dial():
    picture = Picture(64, 64, FACE)
    for angle in range(-120, 121, 30):
        picture.hand(DARK, 32, 32, angle, 27, 31, 2)
    picture.save("dial.bmp")


def knob():
    """Only the middle and what the white around it leaves visible of the dial."""
    picture = Picture(64, 64, WHITE)
    picture.disc(DARK, 32, 32, 24)
    picture.disc((120, 140, 165), 32, 32, 21)
    picture.hand((250, 210, 60), 32, 32, 0, 6, 20, 5)
    picture.save("knob.bmp")


def fan(frame):
    picture = Picture(40, 40, (225, 235, 245))
    for blade in range(3):
        picture.hand((40, 110, 170), 20, 20, 30 * frame + 120 * blade, 3, 18, 7)
    picture.disc(DARK, 20, 20, 5)
    picture.save(f"fan_{frame}.bmp")


def lever(position):
    picture = Picture(40, 40, FACE)
    picture.disc((200, 200, 205), 20, 20, 19)
    picture.hand((180, 40, 40), 20, 20, 45 * position, 0, 17, 5)
    picture.disc(DARK, 20, 20, 6)
    picture.save(f"lever_{position}.bmp")


def main():
    light, shade, grey = (252, 252, 252), (110, 110, 118), (170, 170, 170)
    button("run_normal.bmp", light, shade, (200, 215, 235), 0, (20, 120, 50))
    button("run_pressed.bmp", shade, light, (165, 185, 215), 1, (10, 90, 35))
    button("run_released.bmp", light, shade, (190, 235, 195), 0, (20, 120, 50))
    button("run_disabled.bmp", light, shade, (228, 228, 228), 0, grey)
    lamp("lamp_red.bmp", (215, 40, 40))
    lamp("lamp_yellow.bmp", (240, 200, 40))
    lamp("lamp_green.bmp", (50, 175, 70))
    dial()
    knob()
    for frame in range(4):
        fan(frame)
    for position in range(8):
        lever(position)


main()
