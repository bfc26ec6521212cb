"""What the screen ought to show: frames of the device's own programs in user emulation."""

import os
import subprocess
from datetime import datetime, timezone
from pathlib import Path

from PIL import Image

import image


class Frames:
    """Frames of programs in the device's file system, by the second of their time."""

    def __init__(self, packages, root, folder):
        self.packages = Path(packages)
        self.root = Path(root)
        self.folder = Path(folder)
        self.known = {}

    def between(self, program, first, last):
        """The frames of a program, by its path on the device, from one second since 1970 to
        another."""
        seconds = range(first, last + 1)
        if any((program, second) not in self.known for second in seconds):
            self.draw(program, first, len(seconds))
        return [self.known[program, second] for second in seconds]

    def draw(self, program, first, count):
        # The texts of a dial appear in the second frame.
        before = datetime.fromtimestamp(first - 1, timezone.utc)
        image.clean(self.folder)
        # Paths that exist in the device's file system are read there: its fonts, its settings. The
        # device has no platform plugin for programs without a screen.
        plugins = self.packages / image.LIBRARIES / "qt5/plugins/platforms"
        subprocess.run(["qemu-arm", "-L", self.root, "-E", f"QT_QPA_PLATFORM_PLUGIN_PATH={plugins}",
                        "-E", "QT_QPA_PLATFORM=offscreen",
                        self.root / "usr/lib/clock-player/bin/clock_player", self.root / program,
                        "--output", self.folder, "--frames", str(count + 1), "--language", "en",
                        "--at", before.strftime("%Y-%m-%dT%H:%M:%SZ")],
                       env={**os.environ, "TMPDIR": str(self.folder)}, check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        for number in range(count):
            with Image.open(self.folder / f"frame_{number + 2:04}.png") as picture:
                self.known[program, first + number] = picture.convert("RGB")
