"""The disk of the image whose first process is systemd, which runs the packaged unit."""

import image
from contents import FIRST, add_player

FOLDERS = ["etc/systemd", "lib/systemd", "lib/udev/rules.d", "usr/lib/tmpfiles.d"]
PROGRAMS = ["bin/journalctl", "bin/systemctl", "bin/systemd-tmpfiles", "bin/udevadm"]
# Not needed: there are no logins, and only /etc/clock-player, /run and /var are written to.
MASKED = ["getty.target", "ldconfig.service", "proc-sys-fs-binfmt_misc.automount",
          "systemd-firstboot.service", "systemd-hwdb-update.service",
          "systemd-journal-catalog-update.service", "systemd-machine-id-commit.service",
          "systemd-remount-fs.service", "systemd-sysusers.service", "systemd-update-done.service"]
# Named in udev's rules.
GROUPS = ["input", "kvm", "render", "sgx", "systemd-journal", "systemd-network"]

# A program whose glyph images take longer than the unit's watchdog waits: its texts are much larger
# than its areas.
SLOW = "usr/share/slow.xml"
SLOW_CLOCK = """  <area x="{x}" y="{y}" width="192" height="80">
    <clock type="digital" timezone="+01:00">
      <title display="true" value="{number}" fontName="DejaVu Serif" fontSize="{size}"/>
      <time display="true" format="1" fontName="DejaVu Sans Mono" fontSize="{size}" color="#ff6060"/>
    </clock>
  </area>
"""

VAR = """[Mount]
What=tmpfs
Where=/var
Type=tmpfs
Options=mode=0755,size=16m
"""
PROGRAM_FOLDER = VAR.replace("/var", "/etc/clock-player").replace("16m", "8m")
PROGRAM = f"C /etc/clock-player/program.xml 0644 root root - /{FIRST}\n"
SHELL = """[Service]
ExecStart=/bin/sh -c 'stty -echo; echo shell is ready; exec sh'
StandardInput=tty
StandardOutput=tty
StandardError=tty
TTYPath=/dev/ttyAMA0
Restart=always
"""
WANTED = {"local-fs.target.wants": ["var.mount", "etc-clock\\x2dplayer.mount"],
          "multi-user.target.wants": ["shell.service", "clock-player.service"]}


def slow_program():
    clocks = "".join(SLOW_CLOCK.format(number=number, size=16 + 15 * number, x=number % 4 * 192,
                                       y=number // 4 * 80) for number in range(16))
    return f'<program width="768" height="320">\n{clocks}</program>\n'


def add_users(packed):
    """Adds the users and groups that base-passwd and the scripts of systemd and udev would add."""
    masters = packed.source_of("usr/share/base-passwd")
    packed.add_text("etc/passwd", (masters / "passwd.master").read_text())
    groups = "".join(f"{name}:*:{900 + number}:\n" for number, name in enumerate(GROUPS))
    packed.add_text("etc/group", (masters / "group.master").read_text() + groups)


def add_units(packed):
    units = "etc/systemd/system"
    packed.add_text(f"{units}/var.mount", VAR)
    packed.add_text(f"{units}/etc-clock\\x2dplayer.mount", PROGRAM_FOLDER)
    packed.add_text(f"{units}/shell.service", SHELL)
    packed.add_text("usr/lib/tmpfiles.d/program.conf", PROGRAM)
    packed.add_link(f"{units}/default.target", "/lib/systemd/system/multi-user.target")
    for unit in MASKED:
        packed.add_link(f"{units}/{unit}", "/dev/null")
    for target, wanted in WANTED.items():
        for unit in wanted:
            packed.add_link(f"{units}/{target}/{unit}", f"../{unit}")


def make_service(build, sources, folder):
    """Returns its folder and the disk."""
    packed = image.Image(sources, image.clean(folder / "service"))
    for path in FOLDERS:
        packed.add(path, links=True)
    image.remove(packed.root / "lib/systemd/system-generators")
    for path in PROGRAMS:
        packed.add(path)
    add_player(build, packed)
    packed.add_libraries()
    packed.add_link("sbin/init", "/lib/systemd/systemd")
    packed.add_text("etc/machine-id", "0123456789abcdef0123456789abcdef\n")
    packed.add_text(SLOW, slow_program())
    (packed.root / "etc/clock-player").mkdir()
    add_users(packed)
    add_units(packed)
    return packed.root, image.pack_root(packed.root, folder / "service.squashfs")
