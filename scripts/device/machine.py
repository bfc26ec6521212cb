"""A device in the emulator: its screen through the monitor, its shell through the serial line."""

import json
import re
import socket
import subprocess
import time
from pathlib import Path

from PIL import Image

# The device's time advances 4 ns per instruction, so that results do not depend on this machine's
# load.
ICOUNT = "shift=2,sleep=on"
MIPS = 250  # of the device
KERNEL_WORDS = "console=ttyAMA0 quiet loglevel=3 vt.global_cursor_default=0"
# For each kernel module of a screen: the emulator's device, and by how much red, green and blue may
# be off. The second has its own size and 5, 6 and 5 bits per pixel; hands that are blended over a
# dial of 16 bits are rounded twice.
SCREENS = {"virtio-gpu": ("virtio-gpu-device,xres={},yres={}", (0, 0, 0)),
           "cirrus": ("cirrus-vga,romfile=", (15, 7, 15))}


class Failed(Exception):
    """A check failed, or the device does not respond."""


class Machine:
    """Runs until it is closed. The output of emulator and serial line is kept in the folder."""

    def __init__(self, kernel, initramfs, disk, folder, memory=128, size=(320, 160), clock=None,
                 screen="virtio-gpu", words=""):
        self.folder = Path(folder)
        device, self.tolerance = SCREENS[screen]
        command = ["qemu-system-arm", "-M", "virt,highmem=off", "-m", str(memory),
                   "-display", "none", "-nodefaults", "-no-reboot",
                   "-global", "virtio-mmio.force-legacy=false",
                   "-icount", ICOUNT, "-kernel", str(kernel), "-initrd", str(initramfs),
                   "-append", f"{KERNEL_WORDS} SCREEN={screen} {words}",
                   "-drive", f"file={disk},format=raw,if=none,id=disk,readonly=on",
                   "-device", "virtio-blk-device,drive=disk",
                   "-device", device.format(*size)]
        if clock:
            command += ["-rtc", f"base={clock},clock=vm"]
        monitor, its_monitor = socket.socketpair()
        self.serial, its_serial = socket.socketpair()
        command += ["-chardev", f"socket,id=monitor,fd={its_monitor.fileno()}",
                    "-mon", "chardev=monitor,mode=control",
                    "-chardev", f"socket,id=serial,fd={its_serial.fileno()}",
                    "-serial", "chardev:serial"]
        self.serial.settimeout(1)
        self.heard = b""  # serial output not yet matched
        self.console = open(self.folder / "console.log", "wb")
        with its_monitor, its_serial, open(self.folder / "emulator.log", "w") as log:
            self.process = subprocess.Popen(command, stdout=log, stderr=log,
                                            pass_fds=[its_monitor.fileno(), its_serial.fileno()])
        self.monitor = monitor.makefile("rw")
        self.answer()
        self.ask("qmp_capabilities")

    def answer(self):
        try:
            line = self.monitor.readline()
        except ConnectionResetError:
            line = ""
        if not line:
            raise Failed("the emulator ended: " + (self.folder / "emulator.log").read_text())
        return json.loads(line)

    def ask(self, command, **arguments):
        """The monitor's answer to a command."""
        self.monitor.write(json.dumps({"execute": command, "arguments": arguments}) + "\n")
        self.monitor.flush()
        while True:
            answer = self.answer()
            if "error" in answer:
                raise Failed(f"{command}: {answer['error']['desc']}")
            if "return" in answer:
                return answer["return"]

    def screen(self):
        """A picture of the screen."""
        path = self.folder / "screen.ppm"
        self.ask("screendump", filename=str(path))
        with Image.open(path) as picture:
            return picture.convert("RGB")

    def hear(self):
        try:
            said = self.serial.recv(65536)
        except TimeoutError:
            return
        if not said:
            raise Failed("the emulator ended: " + (self.folder / "emulator.log").read_text())
        self.heard += said
        self.console.write(said)
        self.console.flush()

    def listen(self, pattern, seconds):
        """Reads the serial line up to a match."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            found = re.search(pattern, self.heard, re.DOTALL)
            if found:
                self.heard = self.heard[found.end():]
                return found
            self.hear()
        raise Failed(f"no match for {pattern.decode()!r} on the serial line within {seconds} s")

    def run(self, command, seconds=240):
        """Runs a command on the device, which must succeed; returns its output."""
        # The line echoes the input, so the markers are split there and joined only by the shell.
        self.serial.sendall(f"echo be''gin; {{ {command}\n}}; echo e''nd $?\n".encode())
        found = self.listen(rb"begin\r?\n(.*?)end (\d+)\r?\n", seconds)
        output = found.group(1).decode(errors="replace").replace("\r", "").strip()
        if found.group(2) != b"0":
            raise Failed(f"{command!r} ended with {found.group(2).decode()}: {output}")
        return output

    def close(self):
        self.process.kill()
        self.process.wait()
        self.serial.close()
        self.monitor.close()
        self.console.close()
