"""Writes faces as picture files: 4-bit BMP for the resources, PNG for looking at them."""

import struct
import zlib


def bmp_bytes(face, palette):
    """A 4-bit uncompressed Windows bitmap: rows bottom up, two pixels a byte, padded to 4 bytes."""
    index = {character: number for number, character in enumerate(palette)}
    stride = (len(face[0]) + 7) // 8 * 4
    rows = bytearray()
    for row in reversed(face):
        nibbles = [index[character] for character in row] + [0] * (len(row) % 2)
        packed = bytes(high << 4 | low for high, low in zip(nibbles[::2], nibbles[1::2]))
        rows += packed.ljust(stride, b"\0")
    colours = b"".join(bytes((blue, green, red, 0)) for red, green, blue in palette.values())
    colours = colours.ljust(16 * 4, b"\0")
    info = struct.pack("<IiiHHIIiiII", 40, len(face[0]), len(face), 1, 4, 0, len(rows), 0, 0, 16, 0)
    start = 14 + len(info) + len(colours)
    header = struct.pack("<2sIHHI", b"BM", start + len(rows), 0, 0, start)
    return header + info + colours + bytes(rows)


def _png_chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def png_bytes(rows):
    """A PNG of `rows` of (red, green, blue)."""
    lines = b"".join(b"\0" + bytes(channel for pixel in row for channel in pixel) for row in rows)
    header = struct.pack(">IIBBBBB", len(rows[0]), len(rows), 8, 2, 0, 0, 0)
    return (
        b"\x89PNG\r\n\x1a\n"
        + _png_chunk(b"IHDR", header)
        + _png_chunk(b"IDAT", zlib.compress(lines, 9))
        + _png_chunk(b"IEND", b"")
    )


def sheet(columns, palette, scale, background=(90, 130, 90)):
    """Rows of one picture that shows every column's faces below one another, enlarged."""
    gap, cell = 3, 20
    width = gap + len(columns) * (cell + gap)
    height = gap + max(map(len, columns)) * (cell + gap)
    canvas = [[background] * width for _ in range(height)]
    for column, pictures in enumerate(columns):
        for line, face in enumerate(pictures):
            for y, row in enumerate(face):
                for x, character in enumerate(row):
                    pixel = palette[character]
                    canvas[gap + line * (cell + gap) + y][gap + column * (cell + gap) + x] = pixel
    return [[pixel for pixel in row for _ in range(scale)] for row in canvas for _ in range(scale)]
