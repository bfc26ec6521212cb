"""What all checks have in common, and the checks of --short."""

import json
import re
import time
from contextlib import contextmanager
from itertools import groupby

from contents import FIRST, OTHER
from machine import Failed
from screen import SETTLE_SECONDS, Screen

BOOT_SECONDS = 600  # on a busy machine
# How long the last frame of a killed player may be shown, by the device's clock.
DARK_SECONDS = 2
# Growth between two measurements that is not a leak.
MAX_GROWTH = {"kB": 64, "files": 2, "kB of memory free": 3072, "kB of the player": 512}


class Checks:
    """CHECKS has the names of the checks, each with the settings of its device; neighbours with
    equal settings share a device. `note` is called with results."""

    CHECKS = {}
    SETTINGS = {}  # of the devices of all its checks
    PROGRAM = "/run/clock/program.xml"  # the program being played
    STATUS = "/run/clock/status.json"

    def __init__(self, devices, frames, folder, note):
        self.devices = devices
        self.frames = frames
        self.folder = folder
        self.note = note

    def do(self, names):
        for settings, group in groupby(names, self.CHECKS.get):
            with self.booted(**{**self.SETTINGS, **settings}) as device:
                for name in group:
                    getattr(self, name)(*device)

    @contextmanager
    def booted(self, **settings):
        """A device with a shell, and its screen."""
        machine = self.devices.start(**settings)
        try:
            machine.listen(rb"shell is ready", BOOT_SECONDS)
            yield machine, Screen(machine, self.frames, self.folder)
        finally:
            machine.close()

    def restarts(self, machine):
        """How often the player has been restarted."""
        raise NotImplementedError

    def log(self, machine):
        """The player's last messages."""
        raise NotImplementedError

    def expect_restarts(self, machine, before, count):
        counted = self.restarts(machine) - before
        if counted != count:
            raise Failed(f"{counted} restarts instead of {count}:\n{self.log(machine)}")

    def status(self, machine):
        """The player's status file, rewritten now."""
        machine.run("kill -USR1 $(pidof clock_player); sleep 1")
        return json.loads(machine.run(f"cat {self.STATUS}"))

    def await_notice(self, machine, screen, code):
        screen.await_notice(code)
        shown = self.status(machine)["notice"]
        if shown != code:
            raise Failed(f"the notice is {shown}, not {code}")

    def put(self, machine, program):
        """Replaces the program in one step, as its writers should."""
        machine.run(f"cp /{program} {self.PROGRAM}.new && "
                    f"mv -f {self.PROGRAM}.new {self.PROGRAM}")

    def ended(self, machine, screen, command, what, dark_seconds=DARK_SECONDS):
        """After the command, the screen becomes dark, then correct again after one restart."""
        screen.await_right(FIRST)
        before = self.restarts(machine)
        since = uptime(machine)
        machine.run(command)
        screen.await_dark()
        dark_after = uptime(machine) - since
        if dark_after > dark_seconds:
            raise Failed(f"{what}: the screen took {dark_after:.1f} s to become dark")
        screen.await_right(FIRST)
        self.expect_restarts(machine, before, 1)
        self.note(f"{what}: the screen was dark within {dark_after:.1f} s, then correct again")

    def replace(self, machine, screen):
        """Replaces the program while it plays."""
        screen.await_right(FIRST)
        before = self.restarts(machine)
        for program in (OTHER, FIRST):
            self.put(machine, program)
            screen.await_right(program)
        self.expect_restarts(machine, before, 0)
        self.note("the program was replaced twice: the screen showed the new one each time")

    def restart_often(self, machine, screen):
        """Nothing grows over thirty restarts."""
        screen.await_right(FIRST)
        before, first = used(machine), self.restarts(machine)
        for number in range(first, first + 30):
            machine.run("kill -9 $(pidof clock_player)")
            self.await_restart(machine, number)
        screen.await_right(FIRST)
        self.expect_restarts(machine, first, 30)
        after = used(machine)
        expect_no_growth(before, after)
        self.note(f"after thirty restarts: {after}; before: {before}")

    def await_restart(self, machine, before):
        end = time.monotonic() + SETTLE_SECONDS
        while self.restarts(machine) == before or not machine.run("pidof clock_player || :"):
            time.sleep(0.3)  # asking takes the device's time
            if time.monotonic() > end:
                raise Failed(f"no restart:\n{self.log(machine)}")


class ShortChecks(Checks):
    CHECKS = dict.fromkeys(["boot", "set_clock", "kill", "replace"], {})

    def restarts(self, machine):
        return int(machine.run("cat /run/starts")) - 1

    def log(self, machine):
        return machine.run("logread")

    def boot(self, machine, screen, count=5):
        seconds = screen.await_right(FIRST)
        self.note(f"correct {seconds:.1f} s after the kernel's start; {memory(machine)}")
        screen.expect_right(FIRST, count)
        self.note(f"{count} of {count} samples of the screen equal the frames")

    def set_clock(self, machine, screen):
        for instant in ("2024-03-05 18:30:00", "2024-03-04 02:00:00", "2038-01-19 03:14:05",
                        "2024-07-01 12:00:00"):
            machine.run(f"/bin/date -s '{instant}'")
            screen.await_right(FIRST)
        self.note("the clock was set forward, back and to 2038: the screen followed")

    def kill(self, machine, screen):
        """A killed player leaves a dark screen, not a wrong time, and is restarted."""
        self.ended(machine, screen, "killall -9 clock_player", "killed")


def uptime(machine):
    return float(machine.run("cat /proc/uptime").split()[0])


def used(machine):
    """What could grow: kB and files written, without the system's log, which has its own limit;
    free memory and the player's memory, in kB."""
    sizes = machine.run("du -kxs /run /tmp /var; [ ! -d /run/log ] || du -ks /run/log")
    kilobytes = [int(line.split()[0]) for line in sizes.split("\n")]
    files = machine.run("find /run /tmp /var -xdev ! -path '/run/log/*' | wc -l")
    memory = dict(re.findall(r"(MemAvailable|VmRSS):\s*(\d+)", machine.run(
        "grep MemAvailable /proc/meminfo; grep VmRSS /proc/$(pidof clock_player)/status")))
    return {"kB": sum(kilobytes[:3]) - sum(kilobytes[3:]), "files": int(files),
            "kB of memory free": int(memory["MemAvailable"]),
            "kB of the player": int(memory["VmRSS"])}


def expect_no_growth(before, after):
    for what, most in MAX_GROWTH.items():
        growth = after[what] - before[what]
        if (-growth if "free" in what else growth) > most:
            raise Failed(f"{what}: {after}, before {before}")


def memory(machine):
    process = machine.run("grep -E 'VmRSS|VmHWM' /proc/$(pidof clock_player)/status")
    free = machine.run("grep -E 'MemTotal|MemAvailable' /proc/meminfo")
    return ", ".join(" ".join(line.split()) for line in f"{process}\n{free}".split("\n"))
