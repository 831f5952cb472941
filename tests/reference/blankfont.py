#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
"""Writes a TrueType font whose glyphs all have the same width and are empty: blankfont.py FILE

If it is the only font, pictures can be compared without their text, which each version of Qt draws differently.
"""
import struct
import sys

FIRST, LAST = 0x20, 0x2FFF  # the characters that have a glyph
UNITS = 1024  # units of an em
ADVANCE = UNITS // 2


def cmap():
    ids = struct.pack(">H", 1) * (LAST - FIRST + 1)
    segments = struct.pack(">HHHHH", LAST, 0xFFFF, 0, FIRST, 0xFFFF)
    segments += struct.pack(">HHHH", 0, 1, 4, 0) + ids
    subtable = struct.pack(">HHHHHHH", 4, 14 + len(segments), 0, 4, 4, 1, 0) + segments
    return struct.pack(">HHHHL", 0, 1, 3, 1, 12) + subtable


def names():
    texts = {1: "Blank", 2: "Regular", 4: "Blank", 6: "Blank"}
    records, strings = b"", b""
    for name, text in texts.items():
        data = text.encode("utf-16-be")
        records += struct.pack(">HHHHHH", 3, 1, 0x409, name, len(data), len(strings))
        strings += data
    return struct.pack(">HHH", 0, len(texts), 6 + len(records)) + records + strings


TABLES = {
    "OS/2": struct.pack(">HhHHHhhhhhhhhhhh10sLLLL4sHHHhhhHHLLhhHHH", 4, ADVANCE, 400, 5, 0, *[100] * 10, 0, bytes(10),
                        1, 0, 0, 0, b"NONE", 0x40, FIRST, LAST, 800, -200, 90, 800, 200, 1, 0, 500, 700, 0, 0x20, 1),
    "cmap": cmap(),
    "glyf": bytes(4),
    "head": struct.pack(">LLLLHHQQhhhhHHhhh", 0x10000, 0x10000, 0, 0x5F0F3CF5, 0, UNITS, 0, 0, 0, -200, ADVANCE, 800,
                        0, 8, 2, 0, 0),
    "hhea": struct.pack(">LhhhHhhhhhhhhhhhH", 0x10000, 800, -200, 90, ADVANCE, 0, 0, 0, 1, 0, *[0] * 6, 1),
    "hmtx": struct.pack(">Hhh", ADVANCE, 0, 0),
    "loca": struct.pack(">HHH", 0, 0, 0),
    "maxp": struct.pack(">LH13H", 0x10000, 2, *[0] * 4, 1, *[0] * 8),
    "name": names(),
    "post": struct.pack(">LLhhLLLLL", 0x30000, 0, -100, 50, 1, 0, 0, 0, 0),
}


def checksum(data):
    data += bytes(-len(data) % 4)
    return sum(struct.unpack(">%dL" % (len(data) // 4), data)) & 0xFFFFFFFF


def font():
    directory, body = b"", b""
    offset = 12 + 16 * len(TABLES)
    for tag, data in sorted(TABLES.items()):
        directory += struct.pack(">4sLLL", tag.encode(), checksum(data), offset + len(body), len(data))
        body += data + bytes(-len(data) % 4)
    return struct.pack(">LHHHH", 0x10000, len(TABLES), 128, 3, 16 * len(TABLES) - 128) + directory + body


if __name__ == "__main__":
    with open(sys.argv[1], "wb") as file:
        file.write(font())
