#!/usr/bin/python3
"""pack_test.py TOOL: packs 200 pictures, reads the archives with a reader of its own, and takes them apart again."""
import pathlib
import random
import struct
import subprocess
import sys
import tempfile

from PIL import Image

TOOL = pathlib.Path(sys.argv[1]).resolve()
ROOT = pathlib.Path(__file__).parents[2]
BOX = tempfile.TemporaryDirectory()
HERE = pathlib.Path(BOX.name)
RANDOM = random.Random(7)


def run(*arguments, code=0):
    done = subprocess.run([TOOL, *arguments], capture_output=True, text=True, cwd=HERE)
    assert done.returncode == code, (arguments, done.returncode, done.stderr)
    return done.stderr


def palette_of(name):
    lines = (ROOT / "src/res/palettes" / name).read_text().splitlines()
    return [tuple(map(int, line.split()[1:])) for line in lines]


def read_pak(path):
    data = path.read_bytes()
    magic, place, size = struct.unpack_from("<4sII", data)
    assert magic == b"PACK" and place + size == len(data)
    records = struct.iter_unpack("<56sII", data[place:place + size])
    return {name.split(b"\0")[0].decode(): data[start:start + length] for name, start, length in records}


def read_wad(path):
    data = path.read_bytes()
    magic, count, place = struct.unpack_from("<4siI", data)
    lumps = {}
    records = struct.iter_unpack("<IIIBBxx16s", data[place:])
    for start, stored, size, kind, packed, name in records:
        assert stored == size and packed == 0 and start % 4 == 0 and b"\0" in name
        lumps[name.split(b"\0")[0].decode()] = kind, data[start:start + size]
    assert len(lumps) == count
    return magic, lumps


def read_levels(data, start, places):
    """Returns the size, the indices of level 0 and what follows the levels; checks that these follow one another."""
    width, height = struct.unpack_from("<II", data, start)
    offsets = struct.unpack_from("<4I", data, start + 8)
    sizes = [(width >> k) * (height >> k) for k in range(4)]
    assert list(offsets) == [places + sum(sizes[:k]) for k in range(4)]
    end = places + sum(sizes)
    return (width, height), data[places:places + sizes[0]], data[end:]


def read_texture(lump, palette=None):
    size, indices, rest = read_levels(lump, 16, 40)
    if palette is None:
        assert len(rest) == 772 and rest[:2] == b"\0\1" and rest[770:] == b"\0\0"
        palette = [tuple(rest[i:i + 3]) for i in range(2, 770, 3)]
    else:
        assert not rest
    return size, [palette[i] for i in indices]


def make_pictures(folder):
    """Makes 200 pictures. Returns the lump name and the colors of each, and the names of those with odd sides."""
    made, odd = {}, set()
    for n in range(200):
        mode = ("1", "L", "P", "RGB", "LA", "RGBA", "I;16", "few")[n % 8]
        size = RANDOM.choice((8, 16, 64, 72)), RANDOM.choice((8, 24, 32))
        plain = ("+%d{lamp", "fifteen_let_%d", "~w%d")[n % 3] % n
        name, lump = (f"_x2Awater{n}", f"*water{n}") if n % 10 == 0 else (plain, plain)
        if n % 12 == 5:
            size = size[0] + 1 + n % 7, size[1]
            odd.add(name + ".png")
        noise = bytes(RANDOM.randrange(256) for _ in range(size[0] * size[1] * 3))
        picture = Image.frombytes("RGB", size, noise)
        if mode == "few":
            picture = picture.quantize(200, dither=0).convert("RGB")
        elif mode == "P":
            picture = picture.quantize(RANDOM.choice((2, 16, 256)))
        elif mode == "I;16":
            picture = Image.frombytes("I;16", size, noise[:size[0] * size[1] * 2])
        elif mode == "RGBA":
            picture = Image.merge("RGBA", (*picture.split(), Image.new("L", size, 255)))
        else:
            picture = picture.convert(mode if mode != "LA" else "L").convert(mode)
        picture.save(folder / (name + ".png"))
        if mode == "I;16":
            samples = struct.unpack(f"<{size[0] * size[1]}H", noise[:size[0] * size[1] * 2])
            picture = Image.new("L", size)
            picture.putdata([(sample * 255 + 32767) // 65535 for sample in samples])
        if name + ".png" not in odd:
            made[name] = lump, picture.convert("RGB")
    return made, odd


def distance(a, b):
    return sum((x - y) ** 2 for x, y in zip(a, b))


def check_pixels(kind, made, textures, palette=None):
    """Compares each texture with its picture: exact if the palette has all colors, otherwise nearly nearest."""
    errors, exact = [], 0
    for name, picture in made.values():
        size, got = textures[name]
        wanted = list(picture.getdata())
        assert size == picture.size, name
        error = sum(map(distance, wanted, got)) / len(wanted)
        if palette is None and len(set(wanted)) <= 256:
            assert error <= 1, (name, error)  # 16-bit samples may round up or down
            exact += error == 0
        elif palette:
            for i in range(0, len(wanted), 97):
                best = min(distance(wanted[i], color) for color in palette)
                assert distance(wanted[i], got[i]) <= best + 3 * 2 * best ** 0.5 + 3, (name, i)
        errors.append(error)
    print(f"{kind}: {len(errors)} textures, {exact} exact, mean squared error {sum(errors) / len(errors):.1f},"
          f" at most {max(errors):.1f}")


def check_trip(archive, textures):
    """Converts the archive to PNG and compares; extracts and packs it again, which gives the same bytes."""
    run("convert", archive, "png", "--to", "png", "--force")
    for path, (size, colors) in textures.items():
        picture = Image.open(HERE / "png" / path).convert("RGB")
        assert picture.size == size and list(picture.getdata()) == colors, path
    run("extract", archive, "out-" + archive)
    run("pack", "out-" + archive, "again-" + archive, *(["--wad2"] if archive == "wad2.wad" else []))
    assert (HERE / ("again-" + archive)).read_bytes() == (HERE / archive).read_bytes()


def main():
    folder = HERE / "textures"
    folder.mkdir()
    made, odd = make_pictures(folder)
    (folder / "a_name_of_sixteen.png").write_bytes((folder / "~w2.png").read_bytes())
    (folder / "readme.txt").write_text("no picture")
    complaints = run("pack", "textures", "wad3.wad", code=1).splitlines()
    assert {line.split('"')[1] for line in complaints[:-1]} == odd | {"a_name_of_sixteen.png", "readme.txt"}, complaints
    assert not (HERE / "wad3.wad").exists()
    for name in odd | {"a_name_of_sixteen.png", "readme.txt"}:
        (folder / name).unlink()

    for kind, options in (("wad3.wad", []), ("wad2.wad", ["--wad2"]), ("wals.pak", ["--to", "wal"])):
        run("pack", "textures", kind, *options)
        first = (HERE / kind).read_bytes()
        run("pack", "textures", kind, *options, "--force")
        assert (HERE / kind).read_bytes() == first
    quake, quake2 = palette_of("quake.txt"), palette_of("quake2.txt")

    magic, lumps = read_wad(HERE / "wad3.wad")
    assert magic == b"WAD3" and {kind for kind, _ in lumps.values()} == {67}
    textures = {name: read_texture(lump) for name, (_, lump) in lumps.items()}
    assert all(lump[:16].split(b"\0")[0].decode() == name for name, (_, lump) in lumps.items())
    check_pixels("WAD3", made, textures)
    escaped = {lump: name + ".png" for name, (lump, _) in made.items()}
    check_trip("wad3.wad", {escaped[name]: texture for name, texture in textures.items()})

    magic, lumps = read_wad(HERE / "wad2.wad")
    assert magic == b"WAD2" and {kind for kind, _ in lumps.values()} == {68}
    textures = {name: read_texture(lump, quake) for name, (_, lump) in lumps.items()}
    check_pixels("WAD2", made, textures, quake)
    check_trip("wad2.wad", {escaped[name]: texture for name, texture in textures.items()})

    run("pack", "textures", "quake.wad", "--palette", "quake")
    for _, lump in read_wad(HERE / "quake.wad")[1].values():
        read_texture(lump)  # a WAD3 contains palettes, whichever they are

    files = read_pak(HERE / "wals.pak")
    textures = {}
    for path, wal in files.items():
        size, indices, rest = read_levels(wal, 32, 100)
        assert not rest
        textures[path[:-4]] = size, [quake2[i] for i in indices]
    check_pixels("WALs", {name: (name, picture) for name, (_, picture) in made.items()}, textures, quake2)
    check_trip("wals.pak", {name + ".png": texture for name, texture in textures.items()})


def edit():
    """Appends, replaces and deletes entries of an archive; what does not fit leaves it as it was."""
    for folder in ("one/a", "two/a"):
        (HERE / folder).mkdir(parents=True)
    (HERE / "one/a/b.txt").write_text("first")
    (HERE / "one/c").write_text("last")
    (HERE / "two/a/B.TXT").write_text("second")
    (HERE / "two/new").write_text("new")
    for folder in "left", "right":
        (HERE / folder).mkdir()
        Image.new("RGB", (16, 16), folder == "left" and "red" or "blue").save(HERE / folder / f"{folder}.png")
    run("pack", "left", "e.wad")
    assert "--wad2" in run("pack", "--append", "--wad2", "right", "e.wad", code=1)
    run("pack", "--append", "right", "e.wad")
    assert list(read_wad(HERE / "e.wad")[1]) == ["left", "right"]
    run("pack", "one", "e.pak")
    for option in "--append", "--replace":
        before = (HERE / "e.pak").read_bytes()
        assert len(run("pack", option, "two", "e.pak", code=1).splitlines()) == 2  # a reason and the result
        assert (HERE / "e.pak").read_bytes() == before
    run("pack", "--append", "--replace", "two", "e.pak")
    assert read_pak(HERE / "e.pak") == {"a/B.TXT": b"second", "c": b"last", "new": b"new"}
    (HERE / "list").write_text("# entries\n\nA/b.txt\r\n  new\n")
    run("pack", "--delete", "list", "e.pak")
    assert read_pak(HERE / "e.pak") == {"c": b"last"}
    (HERE / "list").write_text("one/c\n./two/new\n")
    run("pack", "list", "l.pak")
    assert list(read_pak(HERE / "l.pak")) == ["one/c", "two/new"]
    (HERE / "list").write_text("one/c\nl.pak\n")
    assert "is read in this run" in run("pack", "list", "l.pak", "--force", code=1)
    (HERE / ("x" * 56)).write_text("")
    (HERE / "list").write_text("x" * 56 + "\n../out\nmissing\n")
    assert all(name in run("pack", "list", "m.pak", code=1) for name in ("x" * 56, "out", "missing"))
    for n in range(4097):
        (HERE / "two/a" / str(n)).touch()
    assert "4096" in run("pack", "two", "m.pak", code=1)
    assert not (HERE / "m.pak").exists()


def skins():
    """Extracts the skins of a Quake model, a single one and a group, from a pack."""
    pixels = [bytes(range(first, first + 32)) for first in (0, 50, 100)]
    model = b"IDPO" + struct.pack("<i40x3i24x", 6, 2, 8, 4)
    model += struct.pack("<i", 0) + pixels[0] + struct.pack("<iiff", 1, 2, 0.5, 1) + pixels[1] + pixels[2]
    (HERE / "progs").mkdir()
    (HERE / "progs/soldier.mdl").write_bytes(model)
    run("pack", "progs", "progs.pak")
    run("extract", "progs.pak/soldier.mdl", "skins")
    quake = palette_of("quake.txt")
    for number, indices in zip(("1", "2_1", "2_2"), pixels):
        picture = Image.open(HERE / f"skins/soldier_{number}.tga").convert("RGB")
        assert picture.size == (8, 4) and list(picture.getdata()) == [quake[i] for i in indices]


def guide():
    """Runs the Makefile of the guide."""
    guide = (ROOT / "docs/pipeline.md").read_text()
    (HERE / "Makefile").write_text(guide.split("```make\n")[1].split("```")[0])
    new = HERE / "textures/new.png"
    for change in (lambda: None, lambda: Image.new("RGB", (8, 8)).save(new), new.unlink):
        change()
        subprocess.run(["make", f"TOOL={TOOL}"], cwd=HERE, check=True, capture_output=True)
        assert ("new" in read_wad(HERE / "mymod.wad")[1]) == new.exists()


edit()
skins()
main()
guide()
