"""Checks with little memory, other screens and other times, and of ten minutes of play."""

import time

from checks import ShortChecks, expect_no_growth, uptime, used
from contents import FIRST
from machine import MIPS, Failed

STEADY_SECONDS = 600


class LongChecks(ShortChecks):
    CHECKS = {"small_memory": {"memory": 64},
              "sixteen_bits": {"screen": "cirrus"},
              "late_screen": {"words": "SCREEN_IS_LATE=1"},
              "no_time": {"words": "PLAYER_OPTIONS=--require-time"},
              "far_times": {},
              "restart_often": {},
              "steady": {}}

    def small_memory(self, machine, screen):
        self.note("with 64 MiB of memory:")
        self.boot(machine, screen, 3)

    def sixteen_bits(self, machine, screen):
        """Each colour is at most two levels of the framebuffer's 5 or 6 bits off."""
        depth = machine.run("cat /sys/class/graphics/fb0/bits_per_pixel")
        if depth != "16":
            raise Failed(f"the framebuffer has {depth} bits per pixel")
        screen.await_right(FIRST)
        screen.expect_right(FIRST, 3)
        self.replace(machine, screen)
        self.kill(machine, screen)
        self.note("the same on a framebuffer with 16 bits per pixel, larger than the program")

    def late_screen(self, machine, screen):
        """The player tries again until there is a framebuffer."""
        machine.run("sleep 10")
        tried = self.log(machine).count("no display can be reached")
        if tried < 2:
            raise Failed(f"without a framebuffer: {self.log(machine)}")
        machine.run("insmod /dev/late.ko")
        screen.await_right(FIRST)
        self.note(f"no framebuffer: tried {tried} times; the screen was right once there was one")

    def no_time(self, machine, screen):
        """With --require-time, the clock must be after the build and synchronised."""
        self.await_notice(machine, screen, "T1")
        for command in ("/bin/date -s '2040-01-01 00:00:00'", "killall -HUP clock_player"):
            machine.run(f"{command}; sleep 3")
            self.await_notice(machine, screen, "T1")
        machine.run("synchronise")
        screen.await_right(FIRST)
        screen.expect_right(FIRST, 2)
        machine.run("/bin/date -s '1970-01-02 00:00:00'")
        self.await_notice(machine, screen, "T1")
        self.note("--require-time: the notice T1 until the clock was set and synchronised, and "
                  "after it was lost")

    def far_times(self, machine, screen):
        """In 1970, and across the ends of 31 and 32 bits in 2038 and 2106."""
        screen.await_right(FIRST)
        before = self.restarts(machine)
        for instant, seconds in (("1970-01-01 01:00:00", 3600), ("2038-01-19 03:14:04", 2**31 - 4),
                                 ("2106-02-07 06:28:12", 2**32 - 4)):
            machine.run(f"/bin/date -s '{instant}'")
            screen.await_right(FIRST)
            machine.run("sleep 5")
            screen.expect_right(FIRST, 2)
            if not seconds + 5 <= screen.now() < seconds + 3600:
                raise Failed(f"set to {instant}, the device's clock is at {screen.now()}")
        self.expect_restarts(machine, before, 0)
        machine.run("/bin/date -s '2024-03-05 14:00:00'")  # the device's own find fails beyond 2038
        screen.await_right(FIRST)
        self.note("right in 1970, and across 2^31 and 2^32 seconds")

    def steady(self, machine, screen):
        """Ten minutes: every sample is right and no second missed; measures what a second takes."""
        screen.await_right(FIRST)
        machine.run("sleep 70")  # the first minute fills caches
        first, begun, before = self.status(machine), work(machine), used(machine)
        samples = 0
        while uptime(machine) - begun[0] < STEADY_SECONDS:
            screen.expect_right(FIRST, 1)
            samples += 1
            time.sleep(3)
        ended, last, after = work(machine), self.status(machine), used(machine)
        seconds = ended[0] - begun[0]
        shown, missed = (end - begin for begin, end in zip(seconds_of(first), seconds_of(last)))
        if missed or abs(shown - seconds) > 3:
            raise Failed(f"in {seconds:.0f} s {shown} seconds were shown, {missed} missed")
        expect_no_growth(before, after)
        # Of the player alone, without the commands of the check.
        share = (ended[1] - begun[1]) / seconds
        self.note(f"{seconds:.0f} s: {samples} of {samples} samples equal the frames, no second of "
                  f"{shown} missed; {share * MIPS:.2f} million instructions per second; "
                  f"lateness in ms {last['lateness_ms']}; {after}, before {before}")


def seconds_of(status):
    """How many seconds were shown and missed."""
    return status["frames"] - status["second_presentations"], status["missed_seconds"]


def work(machine):
    """The device's uptime and the player's processor time, in seconds."""
    told = machine.run("cat /proc/uptime; cat /proc/$(pidof clock_player)/schedstat").split()
    return float(told[0]), int(told[2]) / 1e9
