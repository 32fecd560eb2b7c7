#!/usr/bin/python3
"""desktop_service_test.py KELTAVLO: the desktop opens files in the running program through a session bus of our own."""
import os
import pathlib
import subprocess
import sys
import tempfile
import time

NAME = "org.example.keltavlo"
LIMIT = 60  # seconds


def call(destination, path, method, *arguments):
    """Calls a method on the bus and returns its answer, or None if it fails."""
    answer = subprocess.run(["gdbus", "call", "--session", "--dest", destination, "--object-path", path, "--method",
                             method, *arguments], capture_output=True, text=True)
    return answer.stdout if answer.returncode == 0 else None


def ask_desktop(method, *arguments):
    assert call(NAME, "/org/example/keltavlo", f"org.freedesktop.Application.{method}", *arguments, "{}"), method


def owner():
    """Returns the process that has the program's name, or None."""
    answer = call("org.freedesktop.DBus", "/", "org.freedesktop.DBus.GetConnectionUnixProcessID", NAME)
    return int(answer.split()[1].rstrip(",)")) if answer else None


def wait_until(condition, what):
    end = time.monotonic() + LIMIT
    while not condition():
        assert time.monotonic() < end, what
        time.sleep(0.05)


def check(program, folder):
    settings = folder / "config/KelTavlo/KelTavlo.ini"
    picture = (b"BM" + (58).to_bytes(4, "little") + bytes(4) + (54).to_bytes(4, "little") + (40).to_bytes(4, "little") +
               (1).to_bytes(4, "little") * 2 + b"\1\0\x18\0" + bytes(24) + b"\1\2\3\0")
    names = [os.fsencode(folder) + b"/" + name for name in (b"one.bmp", b"caf\xe9 2.bmp", b"three.bmp")]
    for name in names:
        pathlib.Path(os.fsdecode(name)).write_bytes(picture)

    def opens(name):
        address = "".join(chr(byte) if byte < 128 and chr(byte).isalnum() or byte in b"/._" else f"%{byte:02X}" for byte in name)
        ask_desktop("Open", f"['file://{address}']")
        wait_until(lambda: settings.exists() and name.hex() in settings.read_text(), f"{name} was not opened")

    opens(names[0])  # the bus starts the program
    first = owner()
    opens(names[1])
    assert owner() == first, "another program opened the second file"
    os.kill(first, 9)
    wait_until(lambda: owner() is None, "the name stays")

    with subprocess.Popen([program, names[0]]) as running, subprocess.Popen([program, names[1]]) as other:
        try:
            wait_until(owner, "no program takes the name")
            taker = owner()
            opens(names[2])
            ask_desktop("Activate")
            assert owner() == taker and taker in (running.pid, other.pid)
            assert running.poll() is None and other.poll() is None, "a program of the command line ended"
        finally:
            running.kill()
            other.kill()
    wait_until(lambda: owner() is None, "the name stays")
    assert call("org.freedesktop.DBus", "/", "org.freedesktop.DBus.StartServiceByName", NAME, "0")
    (folder / "waiting").write_text(str(owner()))


def end_programs(folder):
    """Ends what the bus started and a failed test left behind."""
    for process in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            if f"XDG_RUNTIME_DIR={folder}\0".encode() in (process / "environ").read_bytes():
                os.kill(int(process.name), 9)
        except OSError:  # it has ended
            pass


def main():
    program = sys.argv[1]
    if len(sys.argv) == 3:
        return check(program, pathlib.Path(sys.argv[2]))
    with tempfile.TemporaryDirectory() as folder:
        services = pathlib.Path(folder) / "data/dbus-1/services"
        services.mkdir(parents=True)
        (services / f"{NAME}.service").write_text(f"[D-BUS Service]\nName={NAME}\nExec={program} --service\n")
        environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "XDG_CONFIG_HOME": f"{folder}/config",
                       "XDG_DATA_HOME": f"{folder}/data", "XDG_RUNTIME_DIR": folder}
        command = ["dbus-run-session", "--", sys.executable, __file__, program, folder]
        try:
            code = subprocess.run(command, env=environment, timeout=5 * LIMIT).returncode
            if code == 0:
                waiting = pathlib.Path("/proc", (pathlib.Path(folder) / "waiting").read_text())
                wait_until(lambda: not waiting.exists(), "a program without a window outlives the bus")
            return code
        finally:
            end_programs(folder)


sys.exit(main())
