#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws the strips of the gallery's bitmap buttons, each a BMP file of equally wide frames side by
side: normal, pressed, hover, disabled, and in one of them two more that no button shows.  The results
are kept beside it: run it only to change them."""

import struct
from pathlib import Path

SIZE = 32  # of a frame, in pixels
FINE = 4  # samples a pixel, in both directions

# Face at the top and at the bottom, edge, sign.
LOOKS = [
    ((252, 253, 255), (214, 222, 235), (120, 136, 160), (40, 62, 100)),  # normal
    ((150, 178, 220), (186, 206, 236), (52, 84, 140), (20, 40, 84)),  # pressed
    ((255, 250, 230), (255, 214, 130), (196, 138, 30), (120, 72, 0)),  # hover
    ((240, 240, 240), (232, 232, 232), (190, 190, 190), (170, 170, 170)),  # disabled
    ((255, 190, 190), (255, 150, 150), (160, 0, 0), (120, 0, 0)),  # never shown
    ((200, 255, 200), (150, 230, 150), (0, 110, 0), (0, 80, 0)),  # never shown
]


def play(x, y):
    return 12 <= x <= 23 and abs(y - 16) <= (23 - x) * 0.62


def pause(x, y):
    return 9 <= y <= 23 and (10 <= x <= 14 or 18 <= x <= 22)


def stop(x, y):
    return 10 <= x <= 22 and 10 <= y <= 22


def record(x, y):
    return (x - 16) ** 2 + (y - 16) ** 2 <= 6.5**2


def sample(sign, look, x, y):
    top, bottom, edge, ink = look
    if not (1.5 <= x <= SIZE - 1.5 and 1.5 <= y <= SIZE - 1.5):
        return edge
    if sign(x, y):
        return ink
    part = y / SIZE
    return tuple(a + (b - a) * part for a, b in zip(top, bottom))


def pixel(sign, look, column, row):
    total = [0.0, 0.0, 0.0]
    for i in range(FINE * FINE):
        x = column + (i % FINE + 0.5) / FINE
        y = row + (i // FINE + 0.5) / FINE
        for channel, value in enumerate(sample(sign, look, x, y)):
            total[channel] += value
    red, green, blue = (round(value / FINE**2) for value in total)
    return bytes((blue, green, red))


def strip(name, sign, frames):
    width = SIZE * frames
    rows = b"".join(  # from the bottom up; a row is a multiple of four bytes long
        b"".join(pixel(sign, LOOKS[x // SIZE], x % SIZE, y) for x in range(width))
        for y in reversed(range(SIZE))
    )
    info = struct.pack("<IiiHHIIiiII", 40, width, SIZE, 1, 24, 0, len(rows), 2835, 2835, 0, 0)
    header = struct.pack("<2sIHHI", b"BM", 54 + len(rows), 0, 0, 54)
    Path(__file__).with_name(name).write_bytes(header + info + rows)


strip("record-1.bmp", record, 1)
strip("stop-3.bmp", stop, 3)
strip("play-4.bmp", play, 4)
strip("pause-6.bmp", pause, 6)
