#!/usr/bin/python3
"""batch_test.py TOOL [--rounds N]: runs over many files, killed at random, on full disks and in several threads."""
import argparse
import collections
import os
import pathlib
import random
import resource
import shutil
import signal
import struct
import subprocess
import tempfile
import time

BOX = tempfile.TemporaryDirectory()
HERE = pathlib.Path(BOX.name)
ENVIRONMENT = os.environ | {"XDG_DATA_HOME": f"{BOX.name}/data", "LC_ALL": "C"}
RANDOM = random.Random(5)
COUNT = 540  # enough that a run publishes more than once


def run(*arguments, code=0, **options):
    done = subprocess.run([TOOL, *arguments], capture_output=True, cwd=HERE, env=ENVIRONMENT, **options)
    assert done.returncode == code, (arguments, done.returncode, done.stderr)
    return done


def pack(entries):
    body, directory = b"", b""
    for name, data in entries:
        directory += struct.pack("<56sII", name.encode(), 12 + len(body), len(data))
        body += data
    return b"PACK" + struct.pack("<II", 12 + len(body), len(directory)) + body + directory


def wal(side):
    offsets = [100 + sum((side >> k) ** 2 for k in range(level)) for level in range(4)]
    header = struct.pack("<32s6I32s3I", b"", side, side, *offsets, b"", 0, 0, 0)
    return header + RANDOM.randbytes(side * side * 85 // 64)


def contents(folder):
    return {str(path.relative_to(folder)): path.read_bytes() for path in folder.rglob("*") if path.is_file()}


def write_inputs():
    inner = pack([("wall.wal", wal(16))])
    textures = [(f"textures/{i % 7}/wall{i}.wal", wal(RANDOM.choice((32, 64)))) for i in range(COUNT)]
    (HERE / "large.pak").write_bytes(pack(textures))
    (HERE / "mixed.pak").write_bytes(pack([
        *textures[:40], ("textures/0/bad.wal", b"short"), ("readme.txt", b"hello"), ("README.TXT", b"second"),
        ("textures/0/WALL0.wal", wal(16)), ("inner.pak", inner), ("../out.txt", b"out")]))


def check_threads():
    """Outputs, notes and exit codes do not depend on the number of threads."""
    for command in (["convert", "--to", "tga"], ["extract"], ["extract", "--no-archives"]):
        runs = []
        for threads in (1, 2, 7):
            done = run(*command, f"-j{threads}", "-v", "mixed.pak", "threads", code=1)
            runs.append((contents(HERE / "threads"), done.stderr))
            shutil.rmtree(HERE / "threads")
        assert runs[0] == runs[1] == runs[2], command
        files, told = runs[0]
        assert ("inner.pak" in files) == ("--no-archives" in command), command
        assert ("inner.pak/wall.wal" in files) == (command == ["extract"]), command
        if command[0] == "convert":
            assert {"inner.pak/wall.tga", "textures/0/WALL0_2.tga"} <= set(files)
            assert b"Converted 42, skipped 2, failed 1." in told and b"bad.wal" in told and b"becomes" in told
        else:
            assert files["readme.txt"] == b"hello" and files["README_2.TXT"] == b"second"


def check_links():
    """Nothing is written through links that lead out of the output folder."""
    for name, target in (("textures", "elsewhere"), ("readme.txt", "elsewhere/old")):
        (HERE / "elsewhere").mkdir(exist_ok=True)
        (HERE / "elsewhere/old").write_bytes(b"old")
        (HERE / "linked").mkdir()
        (HERE / "linked" / name).symlink_to(HERE / target)
        told = run("extract", "--force", "mixed.pak", "linked", code=1).stderr
        assert b"leads out" in told and contents(HERE / "elsewhere") == {"old": b"old"}
        shutil.rmtree(HERE / "linked")


def check_streams():
    picture = run("extract", "large.pak/textures/0/wall0.wal", "-").stdout
    targa = run("convert", "-", "-", "--to", "tga", input=picture).stdout
    run("convert", "large.pak/textures/0/wall0.wal", "one.tga")
    assert (HERE / "one.tga").read_bytes() == targa
    run("convert", "large.pak", "-", "--to", "tga", code=2)


def check_full_disk():
    """A full disk, or a limit on file sizes instead, is reported, and no file is cut short."""
    whole = {name.split("/")[-1]: len(data) for name, data in new.items()}
    script = 'mount -t tmpfs -o size=1m none "$1" || exit 9; "$0" extract large.pak "$1/out"; echo code $?; ' \
             'find "$1" -type f -printf "%f %s\\n"'
    (HERE / "small").mkdir()
    done = subprocess.run(["unshare", "--map-root-user", "--mount", "sh", "-c", script, TOOL, "small"],
                          capture_output=True, text=True, cwd=HERE, env=ENVIRONMENT)
    if done.returncode == 0:
        code, *files = done.stdout.splitlines()
        assert code == "code 1" and "disk is full" in done.stderr, done
        assert 0 < len(files) < COUNT
        assert all(whole[name] == int(size) for name, size in map(str.split, files))
    limit = 3000  # between the sizes of the two kinds of textures
    told = run("extract", "large.pak", "limited", code=1,
               preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit))).stderr
    assert told.count(b"disk is full") == sum(len(data) > limit for data in new.values())
    assert contents(HERE / "limited") == {name: data for name, data in new.items() if len(data) <= limit}


def check_endings(rounds):
    """A run that is killed or interrupted leaves each output whole or absent, and each overwritten file old or new."""
    target = HERE / "ended"
    old = {name: b"old" * 1000 for name in new}
    start = time.monotonic()
    run("convert", "large.pak", target, "--to", "wal")
    longest = time.monotonic() - start
    ends = collections.Counter()
    # Without /proc, an unnamed file cannot get a name, so the tool uses temporary files.
    hide = ["unshare", "--map-root-user", "--mount", "sh", "-c", 'mount -t tmpfs none /proc && exec "$0" "$@"']
    # The sanitizers need /proc themselves.
    can_hide = subprocess.run([*hide, TOOL, "list", "large.pak"], cwd=HERE, capture_output=True).returncode == 0
    for number in range(rounds):
        hidden = can_hide and number % 3 == 2
        shutil.rmtree(target)
        overwrites = number % 2 == 1
        for name in old if overwrites else ():
            (target / name).parent.mkdir(parents=True, exist_ok=True)
            (target / name).write_bytes(old[name])
        sent = (signal.SIGKILL, signal.SIGINT, signal.SIGTERM, signal.SIGHUP)[number // 2 % 4]
        child = subprocess.Popen([*(hide if hidden else []), TOOL, "extract", "--force", "large.pak", target],
                                 cwd=HERE, env=ENVIRONMENT, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        time.sleep(RANDOM.uniform(0, longest))
        child.send_signal(sent)
        code = child.wait()
        # SIGKILL, or a signal that comes before its handler is installed, ends the program at once.
        assert code in (0, -sent, 128 + sent if sent != signal.SIGKILL else 0), (sent, code)
        ends[code] += 1
        if (overwrites or hidden) and code < 0:
            run("list", "large.pak")  # removes what a killed run left behind
        target.mkdir(exist_ok=True)
        found = contents(target)
        assert all(name in new for name in found), (sent, set(found) - set(new))
        assert all(data in (new[name], old[name] if overwrites else b"") for name, data in found.items()), sent
        assert not overwrites or len(found) == len(new), sent
    print(f"{rounds} runs ended with", dict(ends))


parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("tool")
parser.add_argument("--rounds", type=int, default=25)
options = parser.parse_args()
TOOL = str(pathlib.Path(options.tool).resolve())
write_inputs()
run("extract", "large.pak", "whole")
new = contents(HERE / "whole")
assert len(new) == COUNT
check_threads()
check_links()
check_streams()
check_full_disk()
check_endings(options.rounds)
