"""A device in the emulator: its screen by the monitor, its shell by the serial line."""

import json
import re
import socket
import subprocess
import time
from pathlib import Path

from PIL import Image


class Machine:
    """Runs until it is closed. Sockets and logs are in the folder."""

    def __init__(self, kernel, initramfs, disk, folder, memory=128, size=(320, 160), clock=None,
                 screen=True, words=""):
        self.folder = Path(folder)
        self.began = time.monotonic()
        command = ["qemu-system-arm", "-M", "virt", "-m", str(memory), "-display", "none",
                   "-nodefaults", "-no-reboot", "-global", "virtio-mmio.force-legacy=false",
                   # The device's time goes by its instructions, 250 million a second, so that it is
                   # as fast as itself where this machine does something else besides.
                   "-icount", "shift=2,sleep=on",
                   "-kernel", str(kernel), "-initrd", str(initramfs),
                   "-append", f"console=ttyAMA0 quiet loglevel=3 vt.global_cursor_default=0 {words}",
                   "-drive", f"file={disk},format=raw,if=none,id=disk,readonly=on",
                   "-device", "virtio-blk-device,drive=disk",
                   "-qmp", f"unix:{self.folder}/monitor,server=on,wait=off",
                   "-serial", f"unix:{self.folder}/serial,server=on,wait=off"]
        if screen:
            command += ["-device", f"virtio-gpu-device,xres={size[0]},yres={size[1]}"]
        if clock:
            command += ["-rtc", f"base={clock},clock=vm"]
        self.log = open(self.folder / "emulator.log", "w")
        self.process = subprocess.Popen(command, stdout=self.log, stderr=self.log)
        self.monitor = self.connect("monitor").makefile("rw")
        self.monitor.readline()
        self.ask("qmp_capabilities")
        self.serial = self.connect("serial")
        self.serial.settimeout(1)
        self.heard = b""

    def connect(self, name):
        while True:
            if self.process.poll() is not None:
                raise SystemExit((self.folder / "emulator.log").read_text())
            try:
                line = socket.socket(socket.AF_UNIX)
                line.connect(str(self.folder / name))
                return line
            except OSError:
                line.close()
                time.sleep(0.05)

    def ask(self, command, **arguments):
        """The monitor's answer to a command."""
        self.monitor.write(json.dumps({"execute": command, "arguments": arguments}) + "\n")
        self.monitor.flush()
        while True:
            answer = json.loads(self.monitor.readline())
            if "error" in answer:
                raise SystemExit(f"{command}: {answer['error']['desc']}")
            if "return" in answer:
                return answer["return"]

    def screen(self):
        """A picture of the screen."""
        path = self.folder / "screen.ppm"
        self.ask("screendump", filename=str(path))
        with Image.open(path) as picture:
            return picture.convert("RGB")

    def listen(self, pattern, seconds):
        """What the serial line says, up to what matches; nothing where it does not come in time."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            found = re.search(pattern, self.heard, re.DOTALL)
            if found:
                self.heard = self.heard[found.end():]
                return found
            try:
                self.heard += self.serial.recv(65536)
            except TimeoutError:
                pass
        return None

    def run(self, command, seconds=120):
        """What a command on the device writes."""
        # The line repeats what is sent: the marks are put together only where the command runs.
        self.serial.sendall(f"echo be''gin; {command}; echo e''nd\n".encode())
        found = self.listen(rb"begin\r?\n(.*?)end\r?\n", seconds)
        if not found:
            raise SystemExit(f"the device did not answer: {command}\n{self.heard.decode()}")
        return found.group(1).decode().replace("\r", "").strip()

    def close(self):
        self.process.kill()
        self.process.wait()
        self.serial.close()
        self.monitor.close()
        self.log.close()
