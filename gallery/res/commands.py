#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws commands.bmp, the images of the Menus scene's commands: 16 x 16 pixels each, side by side, on
magenta, which stands for transparent.  The result is kept beside it: run it only to change them."""
import struct
from pathlib import Path

SIZE = 16
COLORS = {
    ".": (255, 0, 255), "k": (64, 64, 72), "w": (255, 255, 255), "y": (250, 205, 90),
    "o": (196, 140, 40), "b": (70, 120, 200), "l": (170, 200, 240), "g": (90, 160, 90),
    "r": (210, 70, 60), "s": (150, 156, 168),
}


class Icon:
    def __init__(self):
        self.rows = [["."] * SIZE for _ in range(SIZE)]

    def box(self, left, top, right, bottom, color, inside=None):
        for y in range(top, bottom):
            for x in range(left, right):
                edge = x in (left, right - 1) or y in (top, bottom - 1)
                if edge or inside:
                    self.rows[y][x] = color if edge else inside
        return self

    def line(self, x, y, dx, dy, count, color):
        for i in range(count):
            self.rows[y + dy * i][x + dx * i] = color
        return self


def page(icon, left, top):
    icon.box(left, top, left + 9, top + 12, "k", "w")
    for y in range(top + 3, top + 10, 2):
        icon.line(left + 2, y, 1, 0, 5, "b")
    return icon


ICONS = [
    page(Icon(), 3, 2),                                                              # new
    Icon().box(1, 4, 7, 7, "o", "y").box(1, 6, 15, 14, "o", "y")
          .line(2, 8, 1, 0, 12, "w"),                                                # open
    Icon().box(2, 2, 14, 14, "k", "b").box(5, 2, 11, 7, "k", "w")
          .box(4, 9, 12, 14, "k", "l"),                                              # save
    Icon().box(2, 3, 4, 13, "r", "r").box(12, 3, 14, 13, "r", "r").box(2, 11, 14, 14, "r", "r")
          .box(2, 2, 4, 5, "s", "s").box(12, 2, 14, 5, "s", "s"),                    # snap
    Icon().line(5, 2, 1, 1, 8, "s").line(11, 2, -1, 1, 8, "s")
          .box(3, 9, 7, 14, "b").box(10, 9, 14, 14, "b"),                            # cut
    page(page(Icon(), 1, 1), 6, 3),                                                  # copy
    page(Icon().box(1, 2, 12, 14, "o", "y").box(4, 1, 9, 4, "k", "s"), 6, 4),        # paste
    Icon().box(2, 7, 14, 9, "g", "g").box(7, 2, 9, 14, "g", "g"),                    # add
]

data = b""
for y in reversed(range(SIZE)):
    for icon in ICONS:
        for key in icon.rows[y]:
            red, green, blue = COLORS[key]
            data += bytes((blue, green, red))
width = SIZE * len(ICONS)
header = struct.pack("<IiiHHIIiiII", 40, width, SIZE, 1, 24, 0, len(data), 0, 0, 0, 0)
Path(__file__).with_name("commands.bmp").write_bytes(
    b"BM" + struct.pack("<IHHI", 54 + len(data), 0, 0, 54) + header + data)
