#!/usr/bin/env python3
"""Draws the pictures of lists.dlg: 24-bit .bmp files, lowest row first."""
import os
import struct


def write(name, width, height, pixel):
    data = bytearray()
    for y in reversed(range(height)):
        row = bytearray()
        for x in range(width):
            red, green, blue = pixel(x, y)
            row += bytes((blue, green, red))
        data += row + bytes(-len(row) % 4)
    head = struct.pack("<2sIHHI", b"BM", 54 + len(data), 0, 0, 54)
    info = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(data), 2835, 2835, 0, 0)
    with open(os.path.join(os.path.dirname(os.path.abspath(__file__)), name), "wb") as file:
        file.write(head + info + data)


def swatch(colour):
    """A pen's colour on paper, 56 by 40 pixels."""
    return lambda x, y: colour if 6 <= x < 50 and 8 <= y < 32 else (250, 250, 245)


def sheet(colour):
    """A sheet with a folded corner on white, 20 by 20 pixels."""
    def pixel(x, y):
        if not (4 <= x < 16 and 2 <= y < 18) or x - y > 9:
            return (255, 255, 255)
        edge = x in (4, 15) or y in (2, 17) or x - y == 9
        return (96, 96, 96) if edge else colour
    return pixel


PENS = {"red": (224, 64, 64), "green": (64, 176, 80), "blue": (64, 96, 208),
        "black": (48, 48, 48), "orange": (240, 150, 40), "violet": (150, 80, 190)}
for pen, shade in PENS.items():
    write(f"pen_{pen}.bmp", 56, 40, swatch(shade))
write("sheet.bmp", 20, 20, sheet((232, 240, 255)))
write("sheet_open.bmp", 20, 20, sheet((255, 224, 128)))
