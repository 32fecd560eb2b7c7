#!/usr/bin/python3
"""cli_test.py TOOL MANUALS: uses the tool as a shell, a terminal and a program that reads JSON would."""
import json
import pathlib
import struct
import subprocess
import sys
import tempfile

from PIL import Image

TOOL, MANUALS = (pathlib.Path(path).resolve() for path in sys.argv[1:3])
BOX = tempfile.TemporaryDirectory()
HERE = pathlib.Path(BOX.name)


def run(*arguments, code=0):
    done = subprocess.run([TOOL, *arguments], capture_output=True, cwd=HERE)
    assert done.returncode == code, (arguments, done.returncode, done.stderr)
    return done


def pak(files):
    data, directory = b"", b""
    for name, content in files.items():
        directory += struct.pack("<56sII", name, 12 + len(data), len(content))
        data += content
    return b"PACK" + struct.pack("<II", 12 + len(data), len(directory)) + data + directory


def complete(*words):
    """Returns what bash offers for the last word."""
    script = (f'source "{MANUALS}/keltavlo-tool.bash"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1));'
              '_keltavlo_tool; printf "%s\\n" "${COMPREPLY[@]}"')
    done = subprocess.run(["bash", "-c", script, "bash", "keltavlo-tool", *words], capture_output=True, text=True)
    assert done.returncode == 0 and not done.stderr, done.stderr
    return done.stdout.split()


def test_completion():
    for words, offers in [(["co"], ["convert"]), (["list", "--j"], ["--json"]), (["list", ""], []),
                          (["convert", "--to", "p"], ["pcx", "png"]), (["convert", "a", "--to", "=", "w"], ["wal"]),
                          (["sheet", "--palette", "=", "quake"], ["quake", "quake2"]), (["list", "--to", ""], [])]:
        assert complete(*words) == offers, (words, complete(*words))
    page = (MANUALS / "keltavlo-tool.1").read_text()
    for command in complete(""):
        assert command.startswith("--") or f".SS {command} " in page, command
    for script in ["keltavlo-tool.bash", "_keltavlo-tool", "keltavlo-tool.fish"]:
        assert "--protect-fullbright" in (MANUALS / script).read_text().replace("-l ", "--"), script


def test_names():
    names = [b"tex\x1b[2J\n\x07", b"caf\xe9.txt", "caf\u00e9".encode(), b"50%25 off", b" ", b"a/\x9b\xff"]
    (HERE / "odd.pak").write_bytes(pak({name: name for name in names}))
    shown = [line[52:] for line in run("list", "-r", "odd.pak").stdout.split(b"\n")[:-1]]
    assert len(shown) == len(names) and all(byte >= 0x20 and byte != 0x7F for line in shown for byte in line), shown
    listing = json.loads(run("list", "--json", "-r", "odd.pak").stdout)
    assert [entry["name"].encode() for entry in listing[0]["entries"]] == shown
    for number, (name, text) in enumerate(zip(names, shown)):
        out = HERE / f"out{number}"
        run("extract", b"odd.pak/" + text, out)
        assert [file.read_bytes() for file in out.iterdir()] == [name], text
    for arguments in (["extract", "odd.pak/no\x1b]0;x\x07", "out"], ["fly\x1b[2J"], ["list", "--\x1b"]):
        assert b"\x1b" not in run(*arguments, code=1 if arguments[0] == "extract" else 2).stderr, arguments
    (HERE / "short.pak").write_bytes(pak({b"a": b"b"})[:-1])
    assert b"not an archive" not in run("list", "short.pak", code=1).stderr
    assert b"is not an archive" in run("list", "odd.pak/50%2525 off", code=1).stderr


def test_sheet():
    (HERE / "set").mkdir()
    for number in range(50):
        Image.new("RGBA", (300, 200) if number == 0 else (16, 8), (200, 0, 0, 255 if number else 0)).save(
            HERE / f"set/t{number:02}.tga")
    (HERE / "set/bad.tga").write_bytes(b"no picture")
    assert b"bad.tga" in run("sheet", "set", "sheet.png", code=1).stderr
    first, second = (Image.open(HERE / name).convert("RGB") for name in ("sheet.png", "sheet-2.png"))
    assert first.width == second.width and first.height > 3 * second.height, (first.size, second.size)
    cells = [first.getpixel((8 + 136 * column + 2, 25 + 2)) for column in range(3)]  # bad.tga, t00.tga, t01.tga
    assert cells[0] == (40, 40, 40) and cells[1][0] == cells[1][1] and cells[2] == (200, 0, 0), cells
    assert len({first.getpixel((8 + 136 + x, 26)) for x in range(16)}) == 2, "a checkerboard"
    stem = [first.getpixel((x, y))[0] > 200 for y in (156, 160) for x in (4, 8, 12)]
    assert stem == [False, True, False, False, True, True], "the b of bad.tga"
    before = (HERE / "sheet.png").read_bytes()
    run("sheet", "set", "sheet.png", code=1)
    run("sheet", "set", "sheet.jpg", code=2)
    assert (HERE / "sheet.png").read_bytes() == before
    info = json.loads(run("info", "--json", "set/t00.tga", "sheet.png").stdout)
    assert [(row["width"], row["height"]) for row in info] == [(300, 200), first.size]


test_completion()
test_names()
test_sheet()
