"""Runs of keltavlo-tool over many files and the same work by other programs, for dev/bench/compare."""
import pathlib
import random
import statistics
import struct
import subprocess
import sys
import tempfile
import time

ROUNDS = 15
PILLOW = """
import pathlib, sys
from PIL import Image
for path in sorted(pathlib.Path(sys.argv[1]).iterdir()):
    Image.open(path).convert("RGB").save(pathlib.Path(sys.argv[2]) / (path.stem + ".tga"))
"""


def mip(name, width, height, texels):
    offsets = [40 + width * height * sum(4 ** -k for k in range(level)) for level in range(4)]
    header = struct.pack("<16s6I", name.encode(), width, height, *map(int, offsets))
    return header + texels + bytes(width * height * 21 // 64)


def wad2(lumps):
    body, directory = b"", b""
    for name, data in lumps:
        directory += struct.pack("<3IBBH16s", 12 + len(body), len(data), len(data), 68, 0, 0, name.encode())
        body += data
    return b"WAD2" + struct.pack("<2I", len(lumps), 12 + len(body)) + body + directory


def make_inputs(folder):
    """Writes 396 textures as a WAD2 and as PCX files, 4,000 files in a pack, 200 pictures and 20,000 lumps."""
    from PIL import Image

    source = random.Random(3)
    for name in ("pcx", "colors"):
        (folder / name).mkdir()
    textures = []
    for i in range(396):
        width, height = source.choice(((64, 64), (128, 64), (64, 128), (128, 128), (32, 64)))
        texels = bytes(min(255, x * y // 24 % 200 + source.randrange(3)) for y in range(height) for x in range(width))
        textures.append((f"wall{i:03}", mip(f"wall{i:03}", width, height, texels)))
        picture = Image.frombytes("P", (width, height), texels)
        picture.putpalette(source.randbytes(768))
        picture.save(folder / f"pcx/wall{i:03}.pcx")
    (folder / "textures.wad").write_bytes(wad2(textures))
    (folder / "lumps.wad").write_bytes(wad2([(f"lump{i:05}", mip("", 8, 8, bytes(64))) for i in range(20000)]))
    for i in range(200):
        Image.frombytes("RGB", (256, 256), source.randbytes(256 * 256 * 3)).save(folder / f"colors/{i:03}.tga")
    files, directory, place = [], b"", 12
    for i in range(4000):
        data = source.randbytes(source.randrange(500, 33000))
        directory += struct.pack("<56sII", f"dir{i % 40}/sub/file{i}.dat".encode(), place, len(data))
        files.append(data)
        place += len(data)
    (folder / "files.pak").write_bytes(b"PACK" + struct.pack("<II", place, len(directory)) + b"".join(files) + directory)


def wall_time(command):
    start = time.perf_counter()
    subprocess.run(command, check=True, capture_output=True)
    return time.perf_counter() - start


def report(tool):
    """Prints a table of median wall times of interleaved runs, each into a new folder.

    Each run starts on a synced file system: otherwise a durable run would also write what the one before it left.
    """
    # On a disk, not in memory, and in a new folder, because many deleted files would slow down the creation of others.
    folder = tempfile.TemporaryDirectory(dir="/var/tmp")
    box = pathlib.Path(folder.name)
    make_inputs(box)
    subprocess.run([tool, "extract", "-q", box / "files.pak", box / "files"], check=True)
    subprocess.run(["sync"], check=True)
    runs = {
        "396 textures of a WAD2 to Targa, durable":
            lambda out: [tool, "convert", "-q", box / "textures.wad", out, "--to", "tga"],
        "the same as PCX files, Pillow in one process": lambda out: [sys.executable, "-c", PILLOW, box / "pcx", out],
        "the same, mogrify": lambda out: ["mogrify", "-format", "tga", "-path", out, *sorted((box / "pcx").iterdir())],
        "4,000 files extracted, durable": lambda out: [tool, "extract", "-q", box / "files.pak", out],
        "the same files, cp -r and sync": lambda out: ["sh", "-c", 'cp -r "$0" "$1" && sync -f "$1"', box / "files", out],
        "200 pictures of 256 x 256 to WAL, dithered, -j1":
            lambda out: [tool, "convert", "-q", "-j1", box / "colors", out, "--to", "wal", "--dither"],
        "the same, -j2": lambda out: [tool, "convert", "-q", "-j2", box / "colors", out, "--to", "wal", "--dither"],
        "20,000 lumps listed": lambda out: [tool, "list", box / "lumps.wad"],
    }
    times = {title: [] for title in runs}
    for number in range(ROUNDS):
        for index, (title, command) in enumerate(runs.items()):
            out = box / f"out{number}-{index}"
            out.mkdir()
            subprocess.run(["sync", "-f", out], check=True)
            times[title].append(wall_time(command(out)))
    print("| run | median | fastest |\n|---|---|---|")
    for title, taken in times.items():
        print(f"| {title} | {1000 * statistics.median(taken):,.0f} ms | {1000 * min(taken):,.0f} ms |")
