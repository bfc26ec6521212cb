"""Makes the images of a small controller and tries them in the emulator. See scripts/boot-device."""

import argparse
import subprocess
import sys
from pathlib import Path

import image
from checks import Checks, Failed
from frames import Frames
from machine import Machine

SCRIPTS = Path(__file__).resolve().parent
TREE = SCRIPTS.parent.parent
PACKAGES = ["busybox-static", "fontconfig-config", "fonts-dejavu-core", "libqt5gui5", "libqt5xml5",
            "libxml2", "linux-image-armmp", "tzdata"]
COMMANDS = ["cat", "cp", "date", "dd", "df", "free", "grep", "head", "kill", "killall", "ls",
            "mkdir", "mount", "mv", "pidof", "ps", "rm", "setsid", "sh", "sleep", "stty", "sync",
            "wc"]
SIZE = (768, 320)  # of the screen, and of the programs
CLOCK = "2024-03-05T13:07:30"


def note(text):
    print(f"boot-device: {text}", file=sys.stderr, flush=True)


def tree_of_player(build, folder):
    """What is installed where a device plays."""
    subprocess.run(["cmake", "--install", build, "--prefix", folder / "usr", "--strip",
                    "--component", "runtime"], check=True, stdout=subprocess.DEVNULL)
    image.remove(folder / "usr/share/doc", folder / "usr/share/man")


def make_small_image(build, folder):
    """Kernel, initramfs and disk of the image whose first process is a script."""
    packages = folder / "packages"
    image.unpack_packages(PACKAGES, packages)
    root = image.clean(folder / "small")
    small = image.Image(packages, root)
    tree_of_player(build, root)
    for path in image.OPENED:
        small.add(path)
    small.add_busybox(COMMANDS)
    small.add_libraries()
    small.add_text("sbin/init", (SCRIPTS / "init-small.sh").read_text(), 0o755)
    small.add_text("etc/clock-player/program.xml", (TREE / "examples/wall.xml").read_text())
    small.add_text("etc/clock-player/other.xml", OTHER_PROGRAM)
    image.pack_root(root, folder / "small.squashfs")
    image.pack_initramfs(packages, (SCRIPTS / "init-disk.sh").read_text(),
                         image.clean(folder / "initramfs"), folder / "initramfs.gz")
    return image.kernel_of(packages), folder / "initramfs.gz", folder / "small.squashfs"


# As large as the other, so that no part of that may shine through.
OTHER_PROGRAM = """<program width="768" height="320">
  <area x="0" y="0" width="768" height="320">
    <clock type="digital" timezone="+08:00">
      <title display="true" value="replaced" fontName="DejaVu Sans" fontSize="30" color="#60ff60"/>
      <week display="false"/><date display="false"/>
      <time display="true" format="1" fontName="DejaVu Sans Mono" fontSize="60" color="#ff6060"/>
    </clock>
  </area>
</program>
"""


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--short", action="store_true",
                        help="boot, compare, set the clock, replace the program, kill the player")
    parser.add_argument("--folder", type=Path, help="where images and pictures go "
                        "(default: device in the build directory)")
    parser.add_argument("build", type=Path, help="with the player for 32-bit ARM")
    arguments = parser.parse_args()
    build = arguments.build.resolve()
    folder = (arguments.folder or build / "device").resolve()
    folder.mkdir(parents=True, exist_ok=True)
    note("making the image")
    boot = make_small_image(build, folder)
    note(f"image: {sum(file.stat().st_size for file in boot) / 1e6:.1f} MB")
    frames = Frames(folder / "packages", folder / "small", folder / "frames")

    def start(**settings):
        image.clean(folder / "machine")
        return Machine(*boot, folder / "machine", size=SIZE, clock=CLOCK, **settings)

    try:
        checks = Checks(start, frames, folder, note)
        checks.short() if arguments.short else checks.all()
    except Failed as failure:
        note(f"FAILED: {failure}")
        return 1
    note("all is well")
    return 0


sys.exit(main())
