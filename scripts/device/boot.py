"""Builds the images of a small controller and tests them in the emulator."""

import argparse
import sys
from itertools import groupby
from pathlib import Path

import contents
import image
from checks import ShortChecks
from frames import Frames
from long_checks import LongChecks
from machine import Failed, Machine
from service_checks import ServiceChecks
from service_contents import make_service
from spoilt_checks import SpoiltChecks

SIZE = (768, 320)  # of the screen, and of the programs
CLOCK = "2024-03-05T13:07:30"
# The checks, each with the function that makes their image; neighbours share an image.
ALL = {ShortChecks: contents.make_small, LongChecks: contents.make_small,
       SpoiltChecks: contents.make_small, ServiceChecks: make_service}


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
    names = [name for kind in ALL for name in kind.CHECKS]
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--short", action="store_true",
                        help="only " + ", ".join(ShortChecks.CHECKS))
    parser.add_argument("--only", action="append", metavar="CHECK", choices=names,
                        help="may be repeated: " + ", ".join(names))
    parser.add_argument("build", type=Path, help="build directory of the player for 32-bit ARM")
    parser.add_argument("sysroot", type=Path, help="sysroot it was built with")
    arguments = parser.parse_args()
    if arguments.short and not set(arguments.only or names) & set(ShortChecks.CHECKS):
        parser.error("--short has none of the checks that --only names")
    return arguments


def chosen(arguments):
    """The classes of checks to do, each with the names of its checks."""
    for kind in [ShortChecks] if arguments.short else ALL:
        names = [name for name in kind.CHECKS if not arguments.only or name in arguments.only]
        if names:
            yield kind, names


def run_checks(arguments, folder):
    packages = folder / "packages"
    note("unpacking Debian's packages")
    image.unpack_packages(contents.PACKAGES, packages)
    sysroot = arguments.sysroot.resolve()
    sources = [packages, sysroot]
    kernel, initramfs = image.kernel_of(packages), contents.make_initramfs(sources, folder)
    plugins = sysroot / image.LIBRARIES / "qt5/plugins/platforms"
    for make, kinds in groupby(chosen(arguments), lambda pair: ALL[pair[0]]):
        root, disk = make(arguments.build, sources, folder)
        devices = Devices(kernel, initramfs, disk, folder)
        note(f"image: {devices.size() / 1e6:.1f} MB")
        frames = Frames(root, plugins, folder / "frames")
        for kind, names in kinds:
            kind(devices, frames, folder, note).do(names)


def main():
    arguments = read_arguments()
    folder = arguments.build.resolve() / "device"
    folder.mkdir(parents=True, exist_ok=True)
    try:
        run_checks(arguments, folder)
    except Failed as failure:
        console = folder / "machine/console.log"
        said = console.read_text(errors="replace")[-2000:] if console.exists() else ""
        note(f"FAILED: {failure}\nLast output of the device:\n{said}")
        return 1
    note("all checks passed")
    return 0


if __name__ == "__main__":
    sys.exit(main())
