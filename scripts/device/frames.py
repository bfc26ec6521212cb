"""The expected screen: frames written by the device's own programs in user emulation."""

import os
import subprocess
from datetime import datetime, timezone
from pathlib import Path

from PIL import Image

import image


# Frames drawn per start of the emulator, and cached: starting takes longer than drawing.
AT_ONCE = 40


class Frames:
    """Frames of programs in the device's file system. The platform plugins are passed
    separately, as the device does not have the offscreen one."""

    def __init__(self, root, platform_plugins, folder):
        self.root = Path(root)
        self.platform_plugins = Path(platform_plugins)
        self.folder = Path(folder)
        self.known = {}

    def at(self, program, second):
        """The frame of a program, by its path on the device, at a second since 1970."""
        if (program, second) not in self.known:
            self.draw(program, second)
        return self.known[program, second]

    def draw(self, program, first):
        # The texts of a dial appear in the second frame.
        before = datetime.fromtimestamp(first - 1, timezone.utc)
        image.clean(self.folder)
        self.known.clear()
        # Paths that exist in the device's file system are read there: its fonts, its settings.
        subprocess.run(["qemu-arm", "-L", self.root,
                        "-E", f"QT_QPA_PLATFORM_PLUGIN_PATH={self.platform_plugins}",
                        "-E", "QT_QPA_PLATFORM=offscreen",
                        self.root / "usr/lib/clock-player/bin/clock_player", self.root / program,
                        "--output", self.folder, "--frames", str(AT_ONCE + 1), "--language", "en",
                        "--at", before.strftime("%Y-%m-%dT%H:%M:%SZ")],
                       env={**os.environ, "TMPDIR": str(self.folder)}, check=True,
                       stdout=subprocess.DEVNULL)
        for number in range(AT_ONCE):
            with Image.open(self.folder / f"frame_{number + 2:04}.png") as picture:
                self.known[program, first + number] = picture.convert("RGB")
