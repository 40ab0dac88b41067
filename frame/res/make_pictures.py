#!/usr/bin/env python3
"""Writes the library's pictures: the combo-box drop arrows (8-bit bitmaps with a palette)
and the line-tracker cursors (32 by 32 monochrome). Run it after changing a picture; the
written files are committed."""
import struct
from pathlib import Path

HERE = Path(__file__).resolve().parent


def bitmap_8bpp(pixels, palette):
    """pixels: 16 rows of 16 palette indices, top row first."""
    h, w = len(pixels), len(pixels[0])
    stride = (w + 3) & ~3
    rows = b"".join(bytes(r) + b"\0" * (stride - w) for r in reversed(pixels))
    pal = b"".join(struct.pack("<BBBB", b, g, r, 0) for (r, g, b) in palette)
    pal += b"\0" * (256 * 4 - len(pal))
    info = struct.pack("<IiiHHIIiiII", 40, w, h, 1, 8, 0, len(rows), 2835, 2835, 256, 0)
    offset = 14 + len(info) + len(pal)
    head = struct.pack("<2sIHHI", b"BM", offset + len(rows), 0, 0, offset)
    return head + info + pal + rows


def drop_arrow(colour):
    """White square with a downward triangle of 7, 5, 3 and 1 pixels, centred."""
    rows = [[0] * 16 for _ in range(16)]
    for i, width in enumerate((7, 5, 3, 1)):
        start = 8 - (width + 1) // 2
        for x in range(start, start + width):
            rows[6 + i][x] = 1
    return bitmap_8bpp(rows, [(255, 255, 255), colour])


def cursor(shape, hotspot):
    """shape: 32 strings of 32 characters: '#' black, 'o' white, anything else transparent."""
    xor_rows, and_rows = [], []
    for line in reversed(shape):
        xor_bits = and_bits = 0
        for x, ch in enumerate(line):
            bit = 1 << (31 - x)
            if ch == "o":
                xor_bits |= bit
            elif ch != "#":
                and_bits |= bit
        xor_rows.append(struct.pack(">I", xor_bits))
        and_rows.append(struct.pack(">I", and_bits))
    info = struct.pack("<IiiHHIIiiII", 40, 32, 64, 1, 1, 0, 0, 0, 0, 2, 0)
    pal = struct.pack("<BBBBBBBB", 0, 0, 0, 0, 255, 255, 255, 0)
    image = info + pal + b"".join(xor_rows) + b"".join(and_rows)
    head = struct.pack("<HHH", 0, 2, 1)
    entry = struct.pack("<BBBBHHII", 32, 32, 0, 0, hotspot[0], hotspot[1], len(image), 6 + 16)
    return head + entry + image


def blank():
    return [[" "] * 32 for _ in range(32)]


def split_cursor(vertical_line, dragging):
    """A bar along the line with an arrow on each side pointing away from it."""
    g = blank()

    def put(x, y, ch):
        if vertical_line:
            x, y = y, x
        if 0 <= x < 32 and 0 <= y < 32:
            g[y][x] = ch

    bar = 3 if dragging else 1
    for x in range(6, 26):
        for dy in range(-bar, bar + 1):
            put(x, 15 + dy, "#")
        put(x, 15 - bar - 1, "o")
        put(x, 15 + bar + 1, "o")
    for step in range(6):
        y_up, y_down = 15 - bar - 2 - step, 15 + bar + 2 + step
        for dx in range(-(5 - step), 6 - step):
            put(15 + dx, y_up, "#" if step < 5 else "o")
            put(15 + dx, y_down, "#" if step < 5 else "o")
    return ["".join(r) for r in g]


def main():
    (HERE / "combo_arrow.bmp").write_bytes(drop_arrow((0, 0, 0)))
    (HERE / "combo_arrow_disabled.bmp").write_bytes(drop_arrow((128, 128, 128)))
    (HERE / "hline_hover.cur").write_bytes(cursor(split_cursor(False, False), (15, 15)))
    (HERE / "hline_drag.cur").write_bytes(cursor(split_cursor(False, True), (15, 15)))
    (HERE / "vline_hover.cur").write_bytes(cursor(split_cursor(True, False), (15, 15)))
    (HERE / "vline_drag.cur").write_bytes(cursor(split_cursor(True, True), (15, 15)))


if __name__ == "__main__":
    main()
