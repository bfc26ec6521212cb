"""Builds the images of a small controller and tests them in the emulator."""

import argparse
import subprocess
import sys
from pathlib import Path

import contents
import image
from checks import Checks
from frames import Frames
from machine import Failed, Machine

SIZE = (768, 320)  # of the screen, and of the programs
CLOCK = "2024-03-05T13:07:30"


def note(text):
    print(f"boot-device: {text}", file=sys.stderr, flush=True)


class Devices:
    """Starts devices, one at a time."""

    def __init__(self, kernel, initramfs, disk, folder):
        self.files = (kernel, initramfs, disk)
        self.folder = folder

    def size(self):
        return sum(file.stat().st_size for file in self.files)

    def start(self, **settings):
        return Machine(*self.files, image.clean(self.folder / "machine"), size=SIZE,
                       **{"clock": CLOCK, **settings})


def read_arguments():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--short", action="store_true",
                        help="boot, compare, set the clock, replace the program, kill the player")
    parser.add_argument("build", type=Path, help="with the player for 32-bit ARM")
    parser.add_argument("sysroot", type=Path, help="which it was built with")
    return parser.parse_args()


def make_devices(build, sysroot, folder):
    packages = folder / "packages"
    note("unpacking Debian's packages")
    image.unpack_packages(contents.PACKAGES, packages)
    note("making the images")
    sources = [packages, sysroot]
    root, disk = contents.make_small(build, sources, folder)
    initramfs = contents.make_initramfs(sources, folder)
    devices = Devices(image.kernel_of(packages), initramfs, disk, folder)
    frames = Frames(root, sysroot / image.LIBRARIES / "qt5/plugins/platforms", folder / "frames")
    return devices, frames


def main():
    arguments = read_arguments()
    folder = arguments.build.resolve() / "device"
    folder.mkdir(parents=True, exist_ok=True)
    devices, frames = make_devices(arguments.build, arguments.sysroot.resolve(), folder)
    note(f"image: {devices.size() / 1e6:.1f} MB")
    checks = Checks(devices, frames, folder, note)
    try:
        checks.short() if arguments.short else checks.all()
    except Failed as failure:
        console = folder / "machine/console.log"
        said = console.read_text(errors="replace")[-2000:] if console.exists() else ""
        note(f"FAILED: {failure}\nThe device said at last:\n{said}")
        return 1
    note("all is well")
    return 0


if __name__ == "__main__":
    sys.exit(main())
