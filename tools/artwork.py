#!/usr/bin/env python3
"""Render res/art/*.svg into the pictures that the program and its package need.

    tools/artwork.py OUT     (needs rsvg-convert of librsvg2-bin)

OUT/art/NAME-DPI.bmp   pictures of the window, 8 bit, run-length encoded, opaque
OUT/art/NAME.ico       icons that are linked into the program
OUT/Icons/NAME.ICO     device icons, files beside the program

Drawings are fitted to the pixel grid before they are rendered: the corners of rectangles and
polygons and the edges of circles go to whole pixels; paths are left as drawn. Two attributes
choose details by size: data-from="N" drops an element below N pixels, data-below="N" from N on
(N is the height of an icon, or the DPI of a picture). data-fit="stem" keeps equal widths equal
where rectangles need not meet, data-fit="no" leaves a shape as drawn.
"""
import os
import struct
import subprocess
import sys
import xml.etree.ElementTree as xml
import zlib
from concurrent.futures import ThreadPoolExecutor

ART = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "res", "art")
SVG = "{http://www.w3.org/2000/svg}"

DPI = (96, 120, 144, 192)
PICTURES = ("picScreenLogo", "picCncIcon", "picLogo", "picVarnel")
MAX_COLORS = 256

# Frames above the limit are PNG in the container, which keeps the program small.
#                name pattern       sizes                              largest plain frame
LINKED_ICONS = (("imgIconDevice",   (16, 20, 24, 32, 40, 48, 64, 256), 32),
                ("picAppIcon",      (32, 40, 48, 64),                  32))
DEVICE_SIZES = (16, 24, 32, 48, 64)


# --- fitting to the pixel grid -------------------------------------------------------------

def fit_rect(e, scale):
    for start, length in (("x", "width"), ("y", "height")):
        a = float(e.get(start, 0))
        b = a + float(e.get(length))
        lo = round(a * scale)
        hi = round(b * scale) if e.get("data-fit") != "stem" else lo + round((b - a) * scale)
        hi = max(hi, lo + 1)
        e.set(start, repr(lo / scale))
        e.set(length, repr((hi - lo) / scale))


def fit_circle(e, scale):
    r = float(e.get("r"))
    diameter = max(round(2 * r * scale), 1)
    for axis in ("cx", "cy"):
        edge = round((float(e.get(axis)) - r) * scale)
        e.set(axis, repr((edge + diameter / 2) / scale))
    e.set("r", repr(diameter / 2 / scale))


def fit_polygon(e, scale):
    numbers = [float(n) for n in e.get("points").replace(",", " ").split()]
    e.set("points", " ".join(repr(round(n * scale) / scale) for n in numbers))


FIT = {SVG + "rect": fit_rect, SVG + "circle": fit_circle, SVG + "polygon": fit_polygon}


def fit(parent, scale, size):
    for e in list(parent):
        if size < int(e.get("data-from", 0)) or size >= int(e.get("data-below", 1 << 20)):
            parent.remove(e)
            continue
        if "transform" in e.attrib:
            continue
        if e.tag in FIT and e.get("data-fit") != "no":
            FIT[e.tag](e, scale)
        fit(e, scale, size)


# --- rendering -----------------------------------------------------------------------------

def unfilter(data, width, height, bpp):
    """The scan lines of a PNG with `bpp` bytes a pixel, filters undone."""
    stride, rows, above = bpp * width, [], bytearray(bpp * width)
    for y in range(height):
        kind = data[y * (stride + 1)]
        row = bytearray(data[y * (stride + 1) + 1:(y + 1) * (stride + 1)])
        for i in range(stride):
            left = row[i - bpp] if i >= bpp else 0
            corner = above[i - bpp] if i >= bpp else 0
            if kind == 1:
                row[i] = row[i] + left & 255
            elif kind == 2:
                row[i] = row[i] + above[i] & 255
            elif kind == 3:
                row[i] = row[i] + (left + above[i]) // 2 & 255
            elif kind == 4:
                p = left + above[i] - corner
                nearest = min((abs(p - left), 0, left), (abs(p - above[i]), 1, above[i]),
                              (abs(p - corner), 2, corner))
                row[i] = row[i] + nearest[2] & 255
        rows.append(row)
        above = row
    return rows


def render(name, scale, size):
    """Rows of (red, green, blue, alpha), from the top."""
    tree = xml.parse(os.path.join(ART, name + ".svg"))
    root = tree.getroot()
    box = [float(n) for n in root.get("viewBox").split()]
    if scale is None:
        scale = size / box[3]
    width, height = round(box[2] * scale), round(box[3] * scale)
    root.set("width", str(width))
    root.set("height", str(height))
    fit(root, scale, size)
    run = subprocess.run(["rsvg-convert", "-f", "png"], input=xml.tostring(root),
                         stdout=subprocess.PIPE, check=True)
    at, packed, bpp = 8, b"", 0
    while at < len(run.stdout):
        length, kind = struct.unpack_from(">I4s", run.stdout, at)
        body = run.stdout[at + 8:at + 8 + length]
        if kind == b"IHDR":
            bpp = {(width, height, 8, 2, 0, 0, 0): 3,  # opaque
                   (width, height, 8, 6, 0, 0, 0): 4}[struct.unpack(">IIBBBBB", body)]
        if kind == b"IDAT":
            packed += body
        at += length + 12
    rows = unfilter(zlib.decompress(packed), width, height, bpp)
    return [[tuple(row[i:i + bpp]) + (255,) * (4 - bpp) for i in range(0, len(row), bpp)]
            for row in rows]


# --- 8-bit bitmaps, run-length encoded -----------------------------------------------------

def to_palette(rows):
    counts = {}
    for row in rows:
        for pixel in row:
            if pixel[3] != 255:
                raise ValueError("a picture of the window must be opaque")
            counts[pixel[:3]] = counts.get(pixel[:3], 0) + 1
    ranked = sorted(counts, key=lambda c: (-counts[c], c))
    palette = ranked[:MAX_COLORS]
    index = {c: i for i, c in enumerate(palette)}
    for c in ranked[MAX_COLORS:]:
        index[c] = min(range(len(palette)),
                       key=lambda i: sum((a - b) ** 2 for a, b in zip(palette[i], c)))
    return palette, [[index[p[:3]] for p in row] for row in rows]


def run_length(row, at):
    end = at
    while end < len(row) and row[end] == row[at] and end - at < 255:
        end += 1
    return end - at


def rle8_row(row):
    out, at = bytearray(), 0
    while at < len(row):
        n = run_length(row, at)
        if n >= 3 or at + n == len(row):
            out += bytes((n, row[at]))
            at += n
            continue
        end = at
        while end < len(row) and run_length(row, end) < 4 and end - at < 254:
            end += 1
        if end - at < 3:
            for value in row[at:end]:
                out += bytes((1, value))
        else:
            out += bytes((0, end - at)) + bytes(row[at:end]) + b"\0" * (end - at & 1)
        at = end
    return out


def bmp(rows):
    palette, indexed = to_palette(rows)
    bits = b"".join(rle8_row(row) + b"\0\0" for row in reversed(indexed[1:]))
    bits += rle8_row(indexed[0]) + b"\0\1"
    colors = b"".join(bytes((b, g, r, 0)) for r, g, b in palette)
    offset = 14 + 40 + len(colors)
    return (struct.pack("<2sIHHI", b"BM", offset + len(bits), 0, 0, offset) +
            struct.pack("<IiiHHIIiiII", 40, len(rows[0]), len(rows), 1, 8, 1, len(bits), 0, 0,
                        len(palette), len(palette)) + colors + bits)


# --- icons ---------------------------------------------------------------------------------

def plain_frame(rows):
    size = len(rows)
    image = b"".join(bytes((b, g, r, a)) for row in reversed(rows) for r, g, b, a in row)
    stride = (size + 31) // 32 * 4
    mask = b""
    for row in reversed(rows):
        bits = "".join("1" if p[3] == 0 else "0" for p in row).ljust(stride * 8, "0")
        mask += int(bits, 2).to_bytes(stride, "big")
    return struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, len(image) + len(mask),
                       0, 0, 0, 0) + image + mask


def png_frame(rows):
    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(
            ">I", zlib.crc32(kind + body))

    size = len(rows)
    flat = [b"".join(bytes(p) for p in row) for row in rows]
    plain = b"".join(b"\0" + row for row in flat)
    above = b"\0" * (4 * size)
    upward = b""
    for row in flat:
        upward += b"\2" + bytes(a - b & 255 for a, b in zip(row, above))
        above = row
    best = min((zlib.compress(data, 9) for data in (plain, upward)), key=len)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0))
            + chunk(b"IDAT", best) + chunk(b"IEND", b""))


def ico(images, largest_plain):
    frames = [plain_frame(rows) if len(rows) <= largest_plain else png_frame(rows)
              for rows in images]
    offset = 6 + 16 * len(frames)
    entries = b""
    for rows, frame in zip(images, frames):
        size = len(rows) & 255
        entries += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(frame), offset)
        offset += len(frame)
    return struct.pack("<HHH", 0, 1, len(frames)) + entries + b"".join(frames)


# --- what is made --------------------------------------------------------------------------

def write(path, data):
    with open(path, "wb") as file:
        file.write(data)


def names(folder, prefix=""):
    found = (f[:-4] for f in os.listdir(os.path.join(ART, folder)) if f.endswith(".svg"))
    return sorted(n for n in found if n.startswith(prefix))


def make_picture(out, name, dpi):
    write(f"{out}/art/{name}-{dpi}.bmp", bmp(render(name, dpi / 96, dpi)))


def make_icon(path, name, sizes, largest_plain):
    write(path, ico([render(name, None, size) for size in sizes], largest_plain))


def main(out):
    os.makedirs(f"{out}/art", exist_ok=True)
    os.makedirs(f"{out}/Icons", exist_ok=True)
    with ThreadPoolExecutor(2) as pool:
        jobs = [pool.submit(make_picture, out, name, dpi) for name in PICTURES for dpi in DPI]
        for prefix, sizes, largest_plain in LINKED_ICONS:
            jobs += [pool.submit(make_icon, f"{out}/art/{name}.ico", name, sizes, largest_plain)
                     for name in names(".", prefix)]
        jobs += [pool.submit(make_icon, f"{out}/Icons/{name}.ICO", f"devices/{name}",
                             DEVICE_SIZES, 64) for name in names("devices")]
        for job in jobs:
            job.result()


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])
