"""What the images of a device contain: Debian's packages, the player, and a few files of their
own."""

import subprocess
from pathlib import Path

import image

SCRIPTS = Path(__file__).resolve().parent
TREE = SCRIPTS.parent.parent
LIBRARIES = image.LIBRARIES

# In addition to the packages that programs for 32-bit ARM are built with.
PACKAGES = ["base-passwd", "busybox-static", "coreutils", "fontconfig-config", "fonts-dejavu-core",
            "linux-image-armmp", "systemd-sysv", "tzdata", "udev"]
# What the player opens at run time.
OPENED = [f"{LIBRARIES}/qt5/plugins/platforms/libqlinuxfb.so",
          "usr/share/fonts/truetype/dejavu", "etc/fonts", "usr/share/fontconfig",
          "usr/share/zoneinfo/UTC", "usr/share/zoneinfo/Europe/Berlin"]
COMMANDS = ["cat", "cp", "dd", "df", "du", "find", "grep", "head", "insmod", "kill", "killall",
            "ln", "logger", "logread", "ls", "mkdir", "mkfifo", "mount", "mv", "pidof", "ps", "rm",
            "setsid", "sh", "sleep", "stty", "syslogd", "truncate", "wc"]
DATE = "bin/date"  # coreutils' date, as busybox's cannot set times after 2038

# Programs in the image. The first one is played.
FIRST = "usr/share/wall.xml"
OTHER = "usr/share/other.xml"
# As large as the first one, so that it covers all of it.
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


def add_player(build, packed):
    """Adds the installed player, and what it needs at run time."""
    subprocess.run(["cmake", "--install", build, "--prefix", packed.root / "usr", "--strip",
                    "--component", "runtime"], check=True, stdout=subprocess.DEVNULL)
    image.remove(packed.root / "usr/share/doc", packed.root / "usr/share/man")
    for path in OPENED:
        packed.add(path)
    packed.add_text(FIRST, (TREE / "examples/wall.xml").read_text())
    packed.add_text(OTHER, OTHER_PROGRAM)
    packed.add(DATE)
    subprocess.run(["arm-linux-gnueabihf-gcc", SCRIPTS / "synchronise.c",
                    "-o", packed.root / "bin/synchronise"], check=True)
    packed.add_busybox(COMMANDS)


def make_small(build, sources, folder):
    """The disk of the image whose first process is a script. Returns its folder and the disk."""
    small = image.Image(sources, image.clean(folder / "small"))
    add_player(build, small)
    small.add_libraries()
    small.add_text("sbin/init", (SCRIPTS / "init-small.sh").read_text(), 0o755)
    return small.root, image.pack_root(small.root, folder / "small.squashfs")


def make_initramfs(sources, folder):
    packed = image.Image(sources, image.clean(folder / "initramfs"))
    return image.pack_initramfs(packed, (SCRIPTS / "init-disk.sh").read_text(),
                                folder / "initramfs.gz")
