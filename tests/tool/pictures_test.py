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

TOOL = pathlib.Path(sys.argv[1]).resolve()
FOLDER = tempfile.TemporaryDirectory()
CHANNELS = {0: 1, 2: 3, 3: 1, 4: 2, 6: 4}  # of PNG's color types
PASSES = [(0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2), (0, 1, 1, 2)]


def convert(data, source, target, *options):
    """Returns the bytes of the converted file, or the tool's message."""
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
    variants = ({}, {"progressive": True}, {"subsampling": 0}, {"quality": 9})
    for mode, options in itertools.product(("RGB", "L"), variants):
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


def game_file(kind, size, level, name=b"a", palette=b""):
    """Returns a WAL or MIP file whose smaller mip levels are 0."""
    offset = {"wal": 100, "mip": 40}[kind]
    offsets = [offset + len(level) * share // 64 for share in (0, 64, 80, 84)]
    rest = level + bytes(len(level) * 21 // 64) + (struct.pack("<h", len(palette) // 3) + palette if palette else b"")
    if kind == "mip":
        return struct.pack("<16s6I", name, *size, *offsets) + rest
    return struct.pack("<32s6I32s3I", name, *size, *offsets, b"e1u1/next", 0x81, 0x8000001, 300) + rest


def to_picture(colors, width):
    """Returns a PNG file of the colors."""
    picture = Image.new("RGB" if len(colors[0]) == 3 else "RGBA", (width, len(colors) // width))
    picture.putdata(colors)
    file = io.BytesIO()
    picture.save(file, "PNG")
    return file.getvalue()


def palette_of(kind):
    """Returns the colors of a game's indices."""
    file = game_file(kind, (64, 8), bytes(range(256)) * 2)
    return [color[:3] for color in pixels(convert(file, "a." + kind, "a.png"))[:256]]


def distance(one, other):
    return sum((a - b) ** 2 for a, b in zip(one, other))


def check_indices():
    """Indices survive a trip through the other paletted formats. With another palette, they become the nearest."""
    own = random.randbytes(768)
    for size, palette, way in itertools.product(((8, 8), (256, 248)), (b"", own), ("png", "pcx")):
        level = random.randbytes(size[0] * size[1])
        for kind in ("wal", "mip") if not palette else ("mip",):
            file = game_file(kind, size, level, b"a", palette)
            back = convert(convert(file, "a." + kind, "a." + way), "a." + way, "a." + kind, "--set",
                           "surface=0x81,contents=0x8000001,value=300,next=e1u1/next")
            end = len(file) - len(level) * 85 // 64 - (770 if palette else 0)
            assert back[:end + len(level)] == file[:end + len(level)] and len(back) == len(file), (size, kind, way)
            assert back[len(file) - 770:] == file[len(file) - 770:] or not palette
    bitmap = Image.frombytes("P", (16, 8), level[:128])
    bitmap.putpalette(own)
    file = io.BytesIO()
    bitmap.save(file, "BMP")
    mip = convert(file.getvalue(), "a.bmp", "a.mip")
    assert mip[40:168] == level[:128] and own in mip[-770:]
    quake, quake2 = palette_of("mip"), palette_of("wal")
    mip = convert(game_file("wal", (64, 8), bytes(range(256)) * 2), "a.wal", "a.mip")
    wal = game_file("wal", (64, 8), bytes(range(256)) * 2)
    assert [color[:3] for color in pixels(convert(wal, "a.wal", "a.png", "--palette", "quake"))[:256]] == quake
    for color, index in zip(quake2, mip[40:296]):
        assert distance(color, quake[index]) == min(distance(color, other) for other in quake)


def check_cutouts():
    """Index 255 marks only texels with an alpha below 128 and, in mip levels, blocks that are mostly transparent."""
    colors = [tuple(random.randrange(256) for _ in "rgba") for _ in range(32 * 16)]
    own = ("--palette", "own")
    for options in ((), ("--dither",), own, own + ("--dither",), ("--protect-fullbright",)):
        mip = convert(to_picture(colors, 32), "{a.png", "{a.mip", *options)
        assert [index == 255 for index in mip[40:552]] == [color[3] < 128 for color in colors], options
        found = pixels(convert(mip, "{a.mip", "a.png"))
        assert [color[3] for color in found] == [0 if color[3] < 128 else 255 for color in colors], options
        for shift, start in ((1, 552), (2, 680), (3, 712)):
            for i in range(512 >> 2 * shift):
                left, top = i % (32 >> shift) << shift, i // (32 >> shift) << shift
                side = range(1 << shift)
                block = [colors[(top + y) * 32 + left + x][3] < 128 for y in side for x in side]
                assert (mip[start + i] == 255) == (sum(block) * 2 > len(block)), (options, shift, i)
    opaque = convert(game_file("mip", (64, 8), bytes(range(256)) * 2), "a.mip", "a.png")
    assert convert(opaque, "{a.png", "{a.mip")[40:552] == bytes(range(256)) * 2, "an index says it, too"


def check_own_palette():
    """A palette made for a picture with few colors contains all of them."""
    colors = [color[:3] + (random.choice((0, 100, 255)),) for color in palette_of("wal")]
    for target, options in itertools.product(("x.pcx", "x.png"), ((), ("--dither",))):
        found = pixels(convert(to_picture(colors, 16), "a.png", target, "--palette", "own", *options))
        assert [color[:3] for color in found] == [color[:3] for color in colors], (target, options)


def check_fullbright():
    """No texel gets an index of 224 and above that it did not have."""
    colors = palette_of("mip")
    for options in ((), ("--dither",)):
        mip = convert(to_picture(colors, 16), "a.png", "a.mip", "--protect-fullbright", *options)
        assert [colors[index] for index in mip[40:264]] == colors[:224] or options, "others stay"
        assert max(mip[40:]) < 224
        file = game_file("mip", (16, 16), bytes(range(256)))
        mip = convert(convert(file, "a.mip", "a.png"), "a.png", "a.mip", "--protect-fullbright", *options)
        assert mip[40:296] == file[40:296]
        assert min(mip[296 + 56:296 + 64]) >= 224 > max(mip[296:296 + 56]), "the smaller levels of both parts"


def check_sizes():
    for size, note in (((300, 20), "was cropped to 256 x 24 to"), ((60, 8), "was resized from 60 x 8 to 64 x 8 to")):
        source = pathlib.Path(FOLDER.name, "a.png")
        Image.new("RGB", size).save(source)
        command = [TOOL, "convert", source, source.with_suffix(".wal"), "--force"]
        assert note in subprocess.run(command, capture_output=True, text=True).stderr


def check_samples():
    """The textures of the sample pack survive conversion to PNG and back."""
    pack = TOOL.parent / "samples/sample.pak"
    wals, pngs, back = (pathlib.Path(FOLDER.name, name) for name in ("wals", "pngs", "back"))
    for command in (("extract", pack, wals), ("convert", pack, pngs, "--to", "png", "--metadata"),
                    ("convert", pngs, back, "--to", "wal")):
        subprocess.run([TOOL, *command], check=True, capture_output=True)
    paths = [path.relative_to(wals) for path in wals.rglob("*.wal")]
    assert paths
    for path in paths:
        wal = (wals / path).read_bytes()
        width, height = struct.unpack_from("<2I", wal, 32)
        assert (back / path).read_bytes()[:100 + width * height] == wal[:100 + width * height], path


random.seed(4)
check_pngs()
check_jpegs()
check_bombs()
check_indices()
check_cutouts()
check_own_palette()
check_fullbright()
check_sizes()
check_samples()
