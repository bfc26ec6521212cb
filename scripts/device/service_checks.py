"""Checks of the image that runs the packaged unit under systemd."""

from checks import Checks, memory, uptime
from contents import FIRST
from machine import Failed
from service_contents import SLOW

UNIT = "clock-player"
WATCHDOG_SECONDS = 20  # of the unit
LATE_SECONDS = 20  # the longest from a framebuffer's appearance to a correct screen
BLANK_SECONDS = 5  # after which the player blanks the screen if no second is presented
FIRST_THREAD = f"/sys/fs/cgroup/system.slice/{UNIT}.service/first"


class ServiceChecks(Checks):
    CHECKS = {"unit_boot": {}, "unit_kill": {}, "unit_hang": {}, "unit_watchdog": {},
              "unit_replace": {}, "unit_slow_glyphs": {}, "unit_restart_often": {},
              "unit_late_screen": {"words": "SCREEN_IS_LATE=1 systemd.show_status=false"}}
    SETTINGS = {"memory": 128, "words": "systemd.show_status=false"}
    PROGRAM = "/etc/clock-player/program.xml"
    STATUS = "/run/clock-player/status.json"

    def restarts(self, machine):
        return int(machine.run(f"systemctl show -P NRestarts {UNIT}"))

    def log(self, machine):
        return machine.run(f"journalctl -n 40 --no-pager -o cat -u {UNIT} -u init.scope")

    def unit_boot(self, machine, screen):
        seconds = screen.await_right(FIRST)
        screen.expect_right(FIRST, 3)
        self.note(f"unit: right {seconds:.1f} s after the kernel's start; {memory(machine)}")

    def unit_kill(self, machine, screen):
        self.ended(machine, screen, "kill -9 $(pidof clock_player)", "unit: killed")

    def unit_hang(self, machine, screen):
        """The player's first thread, which draws, is frozen; the one that guards the screen is
        not."""
        screen.await_right(FIRST)
        before, since = self.restarts(machine), uptime(machine)
        freeze(machine)
        screen.await_dark()
        dark_after = uptime(machine) - since
        if dark_after > BLANK_SECONDS + 2:
            raise Failed(f"the screen took {dark_after:.1f} s to become dark")
        machine.run(f"echo 0 >{FIRST_THREAD}/cgroup.freeze")
        screen.await_right(FIRST)
        self.expect_restarts(machine, before, 0)
        self.note(f"unit: frozen: the player blanked the screen {dark_after:.1f} s later, "
                  "and repainted it when thawed")

    def unit_watchdog(self, machine, screen):
        self.ended(machine, screen, "kill -STOP $(pidof clock_player)", "unit: stopped",
                   WATCHDOG_SECONDS + 3)
        if "Watchdog timeout" not in self.log(machine):
            raise Failed(f"no watchdog:\n{self.log(machine)}")

    def unit_replace(self, machine, screen):
        self.replace(machine, screen)

    def unit_slow_glyphs(self, machine, screen):
        """Glyphs take longer than the watchdog waits: the screen is dark, nothing is restarted."""
        screen.await_right(FIRST)
        before, since = self.restarts(machine), uptime(machine)
        self.put(machine, SLOW)
        screen.await_dark()
        screen.await_right(SLOW)
        took = uptime(machine) - since
        if took < WATCHDOG_SECONDS:
            raise Failed(f"its glyphs took only {took:.1f} s")
        self.expect_restarts(machine, before, 0)
        self.put(machine, FIRST)
        screen.await_right(FIRST)
        self.note(f"unit: the watchdog waited for a program whose glyphs took {took:.0f} s")

    def unit_restart_often(self, machine, screen):
        self.restart_often(machine, screen)

    def unit_late_screen(self, machine, screen):
        """Started without a framebuffer, the unit may open one that appears later."""
        machine.run("sleep 10")
        machine.run("insmod /dev/late.ko")
        since = uptime(machine)
        screen.await_right(FIRST)
        right_after = uptime(machine) - since
        if right_after > LATE_SECONDS:
            raise Failed(f"right only {right_after:.1f} s after its framebuffer appeared")
        self.note(f"unit: right {right_after:.1f} s after its framebuffer appeared")


def freeze(machine):
    """Freezes the player's first thread, and no other."""
    machine.run(f"mkdir -p {FIRST_THREAD} && echo threaded >{FIRST_THREAD}/cgroup.type && "
                f"echo $(pidof clock_player) >{FIRST_THREAD}/cgroup.threads && "
                f"echo 1 >{FIRST_THREAD}/cgroup.freeze")
