#!/usr/bin/python3
"""pictures_test.py TOOL: compares pictures that the tool converts with what Pillow and this script make of them."""
import io
import itertools
import pathlib
import random
import struct
import subprocess
import sys
import tempfile
import zlib

from PIL import Image

TOOL = sys.argv[1]
FOLDER = tempfile.TemporaryDirectory()
CHANNELS = {0: 1, 2: 3, 3: 1, 4: 2, 6: 4}  # of PNG's color types
PASSES = [(0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2), (0, 1, 1, 2)]


def convert(data, source, target, *options):
    """Returns the bytes of the converted file, or what the tool said."""
    source, target = (pathlib.Path(FOLDER.name, name) for name in (source, target))
    source.write_bytes(data)
    target.unlink(missing_ok=True)
    run = subprocess.run([TOOL, "convert", source, target, *options], capture_output=True, text=True)
    return target.read_bytes() if run.returncode == 0 else run.stderr


def pixels(data):
    return list(Image.open(io.BytesIO(data)).convert("RGBA").getdata())


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def pack(samples, depth):
    bits = "".join(format(sample, f"0{depth}b") for sample in samples)
    return bytes(int(bits[i:i + 8].ljust(8, "0"), 2) for i in range(0, len(bits), 8))


def png(rows, depth, kind, interlaced, chunks):
    """Returns a PNG file of rows of pixels, which are lists of samples."""
    width, height = len(rows[0]), len(rows)
    lines = b""
    for left, top, dx, dy in PASSES if interlaced else [(0, 0, 1, 1)]:
        for row in rows[top::dy]:
            samples = list(itertools.chain(*row[left::dx]))
            lines += b"\0" + pack(samples, depth) if samples else b""
    header = struct.pack(">IIBBBBB", width, height, depth, kind, 0, 0, interlaced)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunks + chunk(b"IDAT", zlib.compress(lines))
            + chunk(b"IEND", b""))


def check_png(kind, depth, interlaced, keyed, size):
    width, height = size
    top = (1 << depth) - 1
    rows = [[[random.randint(0, top) for _ in range(CHANNELS[kind])] for _ in range(width)] for _ in range(height)]
    key = rows[0][0]
    palette = [bytes(random.randrange(256) for _ in "rgba") for _ in range(min(top, 255) + 1)]
    chunks = b""
    if kind == 3:
        chunks = chunk(b"PLTE", b"".join(color[:3] for color in palette))
        chunks += chunk(b"tRNS", bytes(color[3] for color in palette)) if keyed else b""
    elif keyed:
        chunks = chunk(b"tRNS", struct.pack(f">{len(key)}H", *key))

    def color_of(pixel):
        if kind == 3:
            return tuple(palette[pixel[0]][:3]) + (palette[pixel[0]][3] if keyed else 255,)
        levels = [(2 * 255 * sample + top) // (2 * top) for sample in pixel]
        alpha = levels.pop() if kind in (4, 6) else 0 if keyed and pixel == key else 255
        return tuple(levels * 3 if len(levels) == 1 else levels) + (alpha,)

    data = png(rows, depth, kind, interlaced, chunks)
    expected = [color_of(pixel) for row in rows for pixel in row]
    for target in ("x.tga", "x.png"):
        assert pixels(convert(data, "a.png", target)) == expected, (kind, depth, interlaced, keyed, size, target)
    if kind == 3:
        back = Image.open(io.BytesIO(convert(data, "a.png", "x.png")))
        assert back.mode == "P" and list(back.getdata()) == [pixel[0] for row in rows for pixel in row]


def check_pngs():
    random.seed(3)
    depths = {0: (1, 2, 4, 8, 16), 2: (8, 16), 3: (1, 2, 4, 8), 4: (8, 16), 6: (8, 16)}
    for kind in depths:
        for depth, interlaced in itertools.product(depths[kind], (0, 1)):
            for keyed in (False,) if kind in (4, 6) else (False, True):
                check_png(kind, depth, interlaced, keyed, random.choice([(1, 1), (5, 3), (17, 9)]))


def check_jpegs():
    picture = Image.new("RGB", (61, 37))
    picture.putdata([(4 * x % 256, 6 * y % 256, x * y % 256) for y in range(37) for x in range(61)])
    for mode, options in itertools.product(("RGB", "L"), ({}, {"progressive": True}, {"subsampling": 0}, {"quality": 9})):
        file = io.BytesIO()
        picture.convert(mode).save(file, "JPEG", **options)
        found = Image.open(io.BytesIO(convert(file.getvalue(), "a.jpg", "x.png"))).convert("RGB").tobytes()
        expected = Image.open(file).convert("RGB").tobytes()
        assert max(abs(a - b) for a, b in zip(found, expected)) <= 1, (mode, options)


def check_bombs():
    for size, mode, kind in [((20000, 20000), "L", "PNG"), ((8192, 8192), "P", "PNG"), ((16000, 16000), "L", "JPEG")]:
        file = io.BytesIO()
        Image.new(mode, size).save(file, kind, progressive=True)
        answer = convert(file.getvalue(), "a." + kind.replace("E", ""), "x.tga")
        assert "compressed too highly" in answer, answer


def check_wals():
    """A WAL texture that goes through a PNG picture loses only its smaller mip levels."""
    random.seed(4)
    for size in ((8, 8), (64, 32), (256, 248)):
        header = struct.pack("<32s6I32s3I", b"a", *size, 100, 0, 0, 0, b"e1u1/next", 0x81, 0x8000001, 300)
        level = random.randbytes(size[0] * size[1])
        wal = header + level + bytes(len(level) * 21 // 64)
        back = convert(convert(wal, "a.wal", "a.png"), "a.png", "a.wal", "--set",
                       "surface=0x81,contents=0x8000001,value=300,next=e1u1/next")
        assert back[:44] == wal[:44] and back[56:100 + len(level)] == wal[56:100 + len(level)], size


check_pngs()
check_jpegs()
check_bombs()
check_wals()
