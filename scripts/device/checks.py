"""What is tried on a device that has booted."""

import time

from PIL import ImageChops

FIRST = "etc/clock-player/program.xml"
OTHER = "etc/clock-player/other.xml"
BOOT_SECONDS = 240  # on a machine that is busy otherwise
SETTLE_SECONDS = 240
MOST_SECONDS = 4  # in which a picture may have been taken
LATE_SECONDS = 20  # which the emulator may be behind on a machine that is busy otherwise


class Failed(Exception):
    pass


class Checks:
    def __init__(self, start, frames, folder, note):
        self.start = start
        self.frames = frames
        self.folder = folder
        self.note = note

    def short(self):
        machine = self.boot()
        try:
            self.equal(machine, FIRST, 5)
            self.set_clock(machine)
            self.kill(machine)
            self.replace(machine)
        finally:
            machine.close()

    def all(self):
        self.short()
        self.small_memory()
        self.no_screen()
        self.restarts()
        self.full_disk()
        self.steady()

    def boot(self, **settings):
        machine = self.start(**settings)
        if not machine.listen(rb"shell is ready", BOOT_SECONDS):
            machine.close()
            raise Failed("no shell: " + machine.heard.decode(errors="replace")[-2000:])
        return machine

    def await_right(self, machine, program):
        """Until the screen is as it should be; then the uptime of the device, in seconds."""
        end = time.monotonic() + SETTLE_SECONDS
        while time.monotonic() < end:
            if self.sample(machine, program) == "equal":
                return float(machine.run("cat /proc/uptime").split()[0])
        machine.screen().save(self.folder / "wrong.png")
        raise Failed(f"the screen does not become right, see {self.folder}/wrong.png: "
                     + machine.run("cat /run/log; ps"))

    @staticmethod
    def now(machine):
        """Seconds since 1970 by the device's clock; date has whole seconds only."""
        told = machine.run("busybox adjtimex | grep tv_").split()
        # Numbers of 32 bits, which the device's busybox takes for signed ones.
        return int(told[1]) % 2**32 + int(told[3]) / 1e6

    def sample(self, machine, program):
        """How the screen compares, pixel by pixel: equal to the frame of a second in which the picture
        may have been taken; late, equal to that of a second just before, which is what an emulator
        shows that has to wait for its turn; or wrong."""
        before = int(self.now(machine))
        picture = machine.screen()
        after = int(self.now(machine))
        if after - before > MOST_SECONDS:
            return "slow"  # the machine does something else
        first = before - LATE_SECONDS
        frames = self.frames.between(program, first, after)
        found = [first + at for at, frame in enumerate(frames)
                 if not ImageChops.difference(picture, frame).getbbox()]
        if found:
            return "equal" if found[-1] >= before else "late"
        picture.save(self.folder / "screen.png")
        return "wrong"

    def equal(self, machine, program, count):
        """The screen is right in samples at different seconds."""
        uptime = self.await_right(machine, program)
        self.note(f"the first right second was seen {uptime:.1f} s after the kernel's start")
        found = [self.sample(machine, program) for _ in range(count)]
        if "wrong" in found:
            raise Failed(f"samples of the screen: {found}, see {self.folder}/screen.png")
        self.note(f"{found.count('equal')} of {count} samples equal the frames, "
                  f"{found.count('late')} are late, {found.count('slow')} could not be taken")

    def set_clock(self, machine):
        for instant in ("2024-03-05 18:30:00", "2024-03-04 02:00:00", "2038-01-19 03:14:05",
                        "2024-07-01 12:00:00"):
            machine.run(f"date -s '{instant}'")
            self.await_right(machine, FIRST)
        self.note("the clock was set forward and back, past 2038 too: the screen followed")

    def starts(self, machine):
        return int(machine.run("cat /run/starts"))

    def kill(self, machine):
        """A player that is killed leaves a dark screen, not a wrong time, and comes back."""
        before = self.starts(machine)
        machine.run("killall -9 clock_player")
        seen_dark = self.await_dark(machine)
        self.await_right(machine, FIRST)
        if not seen_dark or self.starts(machine) != before + 1:
            raise Failed(f"after a kill: dark: {seen_dark}, starts: {self.starts(machine)}")
        self.note("killed: the screen was dark, then right again")

    @staticmethod
    def await_dark(machine):
        end = time.monotonic() + 30
        while time.monotonic() < end:
            if not machine.screen().getbbox():
                return True
        return False

    def replace(self, machine):
        """The player is told of a new program by being ended."""
        machine.run(f"cp /{OTHER} /run/clock/new && mv /run/clock/new /run/clock/program.xml")
        machine.run("killall clock_player")
        self.await_right(machine, OTHER)
        self.note("the program was replaced: the screen shows the new one")

    def small_memory(self):
        machine = self.boot(memory=64)
        try:
            self.equal(machine, FIRST, 3)
            self.note("with 64 MiB: " + self.memory(machine))
        finally:
            machine.close()

    @staticmethod
    def memory(machine):
        process = machine.run("grep -E 'VmRSS|VmHWM' /proc/$(pidof clock_player)/status")
        return " ".join((process + " free " + machine.run("free -k | head -2")).split())

    def no_screen(self):
        """Without a framebuffer there is a sentence in the log, and another start."""
        machine = self.boot(screen=False)
        try:
            end = time.monotonic() + SETTLE_SECONDS
            while self.starts(machine) < 3 and time.monotonic() < end:
                time.sleep(1)
            log = machine.run("cat /run/log")
            if self.starts(machine) < 3 or log.count("ended with 1") < 2:
                raise Failed("without a framebuffer: " + log)
            if machine.run("ls /run/tmp"):
                raise Failed("directories are left: " + machine.run("ls /run/tmp"))
            self.note("without a framebuffer the player ends with 1 and says why: "
                      + next(line for line in log.split("\n") if "clock_player:" in line))
        finally:
            machine.close()

    def restarts(self):
        """Nothing piles up."""
        machine = self.boot()
        try:
            self.await_right(machine, FIRST)
            used = machine.run("df -k /run | grep run")
            for _ in range(30):
                machine.run("killall -9 clock_player")
                while not machine.run("pidof clock_player"):
                    time.sleep(0.2)
            self.await_right(machine, FIRST)
            self.note(f"thirty restarts; /run before and after: {used.split()[2]} kB, "
                      + machine.run("df -k /run | grep run").split()[2] + " kB; "
                      + self.memory(machine))
        finally:
            machine.close()

    def full_disk(self):
        """The glyph files are there already: the clocks go on."""
        machine = self.boot()
        try:
            self.await_right(machine, FIRST)
            machine.run("dd if=/dev/zero of=/run/filler bs=64k 2>/dev/null")
            self.await_right(machine, FIRST)
            machine.run("date -s '2024-03-06 23:59:57'")
            self.await_right(machine, FIRST)
            self.note("the disk was filled: the screen stays right")
        finally:
            machine.close()

    def steady(self):
        """Ten minutes; and how many instructions the device takes for each."""
        machine = self.boot()
        try:
            self.await_right(machine, FIRST)
            end = time.monotonic() + 600
            found = []
            while time.monotonic() < end:
                found.append(self.sample(machine, FIRST))
                time.sleep(5)
            if "wrong" in found:
                raise Failed(f"in ten minutes, samples: {found}")
            machine.run("killall -USR1 clock_player; sleep 1")
            self.note(f"ten minutes: {found.count('equal')} samples equal, "
                      f"{found.count('late')} late; " + self.memory(machine))
        finally:
            machine.close()
