"""Checks of damaged programs and a full disk, while a device plays and at the start."""

from checks import ShortChecks, expect_no_growth, used
from contents import FIRST, OTHER
from machine import Failed

PROGRAM = ShortChecks.PROGRAM
# What replaces the program, and the command that makes it.
SPOILT = {"directory": f"mkdir {PROGRAM}",
          "pipe": f"mkfifo {PROGRAM}",
          "half": f"head -c 900 /{FIRST} >{PROGRAM}",
          "200 MB": f"truncate -s 200M {PROGRAM}",
          "nothing": ":"}


class SpoiltChecks(ShortChecks):
    # full_disk is first: it needs the other program's glyph images to be missing.
    CHECKS = dict.fromkeys(["full_disk", "spoilt", "spoilt_at_start"], {})

    def spoilt(self, machine, screen):
        """Whatever replaces the program, the screen keeps showing the last good one."""
        screen.await_right(FIRST)
        first = self.restarts(machine)
        for _ in range(2):  # the first rounds fill caches
            self.spoil(machine, screen)
        before = used(machine)
        self.spoil(machine, screen)
        after = used(machine)
        expect_no_growth(before, after)
        self.expect_restarts(machine, first, 0)
        self.note(f"the program was replaced by {', '.join(SPOILT)}: the screen stayed right; "
                  f"{after}, one round earlier {before}")

    def spoil(self, machine, screen):
        """Replaces the program by each in turn; each counts as one more fault."""
        faults = self.status(machine)["fault_count"]
        for count, (what, command) in enumerate(SPOILT.items(), faults + 1):
            machine.run(f"rm -rf {PROGRAM}; {command}; sleep 5")
            screen.expect_right(FIRST, 1)
            told = self.status(machine)
            if told["fault_count"] != count:
                raise Failed(f"{what}: {told['faults']}")
        self.put(machine, FIRST)
        machine.run("sleep 3")

    def spoilt_at_start(self, machine, screen):
        """Started without a good program, the player shows a notice, then the next good program."""
        for what, command in SPOILT.items():
            machine.run(f"rm -rf {PROGRAM}; {command}; killall -9 clock_player")
            screen.await_dark()
            self.await_notice(machine, screen, "P1" if what == "nothing" else "P2")
            machine.run(f"rm -rf {PROGRAM}")
            self.put(machine, OTHER)
            screen.await_right(OTHER)
        self.put(machine, FIRST)
        screen.await_right(FIRST)
        self.note(f"started with {', '.join(SPOILT)}: a notice until there was a program")

    def full_disk(self, machine, screen):
        """Clocks whose glyph images exist play on, also after a restart; others wait for space."""
        screen.await_right(FIRST)
        machine.run("dd if=/dev/zero of=/run/filler bs=4k 2>/dev/null; ! echo x >/run/more")
        screen.await_right(FIRST)
        machine.run("/bin/date -s '2024-03-06 23:59:57'; sleep 4")
        screen.await_right(FIRST)
        self.kill(machine, screen)
        machine.run(f"ln -s /{OTHER} {PROGRAM}.new && mv -f {PROGRAM}.new {PROGRAM}")
        screen.await_notice("G1")
        machine.run("rm /run/filler /run/more")
        screen.await_right(OTHER)
        self.put(machine, FIRST)
        screen.await_right(FIRST)
        self.note("the disk was filled: the screen stayed right, after a restart too; a program "
                  "without glyph images waited for space")
