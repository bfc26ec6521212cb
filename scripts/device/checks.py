"""Checks of the small image."""

import json
import time
from contextlib import contextmanager

from contents import FIRST, OTHER
from machine import Failed
from screen import Screen

BOOT_SECONDS = 600  # on a busy machine


class Checks:
    def __init__(self, devices, frames, folder, note):
        self.devices = devices
        self.frames = frames
        self.folder = folder
        self.note = note

    @contextmanager
    def booted(self, **settings):
        """A device with a shell, and its screen."""
        machine = self.devices.start(**settings)
        try:
            machine.listen(rb"shell is ready", BOOT_SECONDS)
            yield machine, Screen(machine, self.frames, self.folder)
        finally:
            machine.close()

    def short(self):
        with self.booted() as device:
            self.equal(*device, 5)
            self.set_clock(*device)
            self.kill(*device)
            self.replace(*device)

    def all(self):
        self.short()
        with self.booted(memory=64) as device:
            self.equal(*device, 3)

    def equal(self, machine, screen, count):
        uptime = screen.await_right(FIRST)
        self.note(f"right {uptime:.1f} s after the kernel's start; " + memory(machine))
        screen.expect_right(FIRST, count)
        self.note(f"{count} of {count} samples of the screen equal the frames")

    def set_clock(self, machine, screen):
        for instant in ("2024-03-05 18:30:00", "2024-03-04 02:00:00", "2038-01-19 03:14:05",
                        "2024-07-01 12:00:00"):
            machine.run(f"/bin/date -s '{instant}'")
            screen.await_right(FIRST)
        self.note("the clock was set forward and back, past 2038 too: the screen followed")

    def kill(self, machine, screen):
        """A player that is killed leaves a dark screen, not a wrong time, and comes back."""
        before = starts(machine)
        machine.run("killall -9 clock_player")
        screen.await_dark()
        screen.await_right(FIRST)
        if starts(machine) != before + 1:
            raise Failed(f"{starts(machine) - before} starts after one kill")
        self.note("killed: the screen was dark, then right again")

    def replace(self, machine, screen):
        """Replaces the program while it plays."""
        before = starts(machine)
        machine.run(f"cp /{OTHER} /run/clock/new && mv /run/clock/new /run/clock/program.xml")
        screen.await_right(OTHER)
        if starts(machine) != before:
            raise Failed("the player ended when its program was replaced")
        self.note("the program was replaced: the screen shows the new one")


def starts(machine):
    return int(machine.run("cat /run/starts"))


def status(machine):
    """The status that the player reports."""
    machine.run("killall -USR1 clock_player; sleep 1")
    return json.loads(machine.run("cat /run/clock/status.json"))


def memory(machine):
    process = machine.run("grep -E 'VmRSS|VmHWM' /proc/$(pidof clock_player)/status")
    free = machine.run("grep -E 'MemTotal|MemAvailable' /proc/meminfo")
    return ", ".join(" ".join(line.split()) for line in f"{process}\n{free}".split("\n"))
