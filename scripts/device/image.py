"""Builds the device image: a kernel, an initramfs and a squashfs, from Debian's packages and a
build for 32-bit ARM. Packages are not configured: files are only copied."""

import gzip
import os
import re
import shutil
import subprocess
from pathlib import Path

LIBRARIES = "usr/lib/arm-linux-gnueabihf"
LIBRARY_FOLDERS = ["lib/arm-linux-gnueabihf", LIBRARIES, "lib", "lib/systemd",
                   "usr/lib/arm-linux-gnueabihf/systemd"]
# In this order: later ones need earlier ones.
MODULES = ["virtio_mmio", "virtio_blk", "virtio_dma_buf", "drm", "drm_kms_helper",
           "drm_shmem_helper", "squashfs"]
# One of these is loaded after the others.
SCREEN_MODULES = ["virtio-gpu", "cirrus"]
# Mount points, and folders that are written to.
FOLDERS = ["dev", "proc", "run", "sys", "tmp", "var/tmp"]


def needed_libraries(file):
    """The names of the libraries that an ELF file is linked with; none for other files."""
    if not file.is_file() or file.read_bytes()[:4] != b"\x7fELF":
        return []
    listed = subprocess.run(["readelf", "--dynamic", file], capture_output=True, text=True,
                            check=True).stdout
    return re.findall(r"\(NEEDED\).*\[(.*)\]", listed)


class Image:
    """A device's file system, copied from folders of unpacked packages; earlier folders first."""

    def __init__(self, sources, folder):
        self.sources = [Path(source) for source in sources]
        self.root = Path(folder)
        for name in FOLDERS:
            (self.root / name).mkdir(parents=True)

    def add(self, path, links=False):
        """Adds a file or folder of the packages at its own path; `links` keeps links as links."""
        source, target = self.source_of(self.path_of([path])), self.root / path
        target.parent.mkdir(parents=True, exist_ok=True)
        if source.is_dir():
            shutil.copytree(source, target, symlinks=links, dirs_exist_ok=True)
        else:
            shutil.copyfile(source, target)
            shutil.copymode(source, target)

    def source_of(self, path):
        for source in self.sources:
            if (source / path).exists():
                return source / path
        return None

    def path_of(self, paths):
        """The first of these paths that a package contains; exits if there is none."""
        for path in paths:
            if self.source_of(path):
                return path
        raise SystemExit(f"no package has {paths[0]}")

    def add_libraries(self):
        """Adds every library that a file of the image is linked with, and the loader."""
        waiting = [file for file in self.root.rglob("*")]
        while waiting:
            for name in needed_libraries(waiting.pop()):
                if any(self.root.rglob(name)):
                    continue
                path = self.path_of([f"{folder}/{name}" for folder in LIBRARY_FOLDERS])
                self.add(path)
                waiting.append(self.root / path)
        loader = self.root / "lib/ld-linux-armhf.so.3"
        if not loader.exists():
            self.add("lib/ld-linux-armhf.so.3")

    def add_busybox(self, commands):
        """Adds busybox, and links to it with the names of commands."""
        self.add("bin/busybox")
        for name in commands:
            self.add_link(f"bin/{name}", "busybox")

    def add_link(self, path, target):
        link = self.root / path
        link.parent.mkdir(parents=True, exist_ok=True)
        link.symlink_to(target)

    def add_text(self, path, text, mode=0o644):
        target = self.root / path
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(text)
        target.chmod(mode)


def pack_initramfs(packed, script, target):
    """Packs the modules that screen and disk need, and a script that mounts the disk."""
    packed.add_busybox(["cat", "devmem", "insmod", "mkdir", "mount", "sh", "switch_root"])
    targets = {module: f"{number}-{module}.ko" for number, module in enumerate(MODULES)}
    targets.update({module: f"screen-{module}.ko" for module in SCREEN_MODULES})
    for module, target_name in targets.items():
        source = next(packed.source_of("lib/modules").rglob(f"{module}.ko"))
        shutil.copyfile(source, packed.root / target_name)
    packed.add_text("init", script, 0o755)
    names = "\0".join(str(file.relative_to(packed.root)) for file in sorted(packed.root.rglob("*")))
    archive = subprocess.run(["cpio", "--null", "--create", "--format=newc", "--quiet",
                              "--owner=0:0"],
                             input=names.encode(), cwd=packed.root, capture_output=True, check=True)
    Path(target).write_bytes(gzip.compress(archive.stdout, 9, mtime=0))
    return target


def pack_root(folder, target):
    """Packs a squashfs with gzip: other compressions need too much memory for small devices."""
    Path(target).unlink(missing_ok=True)
    subprocess.run(["mksquashfs", folder, target, "-comp", "gzip", "-b", "64K", "-all-root",
                    "-no-progress", "-quiet", "-no-xattrs"], check=True, stdout=subprocess.DEVNULL)
    return target


def unpack_packages(names, folder):
    """Unpacks Debian's packages for armhf and all that they depend on, unless already there."""
    folder = Path(folder)
    stamp = folder / "made-of"
    release = "bookworm"
    made_of = f"{release} {' '.join(names)}\n"
    if stamp.exists() and stamp.read_text() == made_of:
        return
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    archive = subprocess.run(
        ["apt-get", "indextargets", "--format", "$(REPO_URI)", "Created-By: Packages",
         "Component: main", f"Codename: {release}"],
        capture_output=True, text=True, check=True).stdout.split("\n")[0]
    settings = folder / "apt.conf"
    settings.write_text(subprocess.run(["apt-config", "dump", "--format", '%F "%v";%n', "Acquire"],
                                       capture_output=True, text=True, check=True).stdout)
    packed = folder / "packages.tar"
    subprocess.run(["mmdebstrap", "--quiet", "--variant=extract", "--architectures=armhf",
                    "--include=" + ",".join(names), f"--aptopt={settings}", release, packed,
                    f"deb {archive} {release} main"], check=True)
    subprocess.run(["tar", "-x", "-f", packed, "-C", folder, "--no-same-owner", "--exclude=./dev/*"],
                   check=True)
    packed.unlink()
    stamp.write_text(made_of)


def kernel_of(packages):
    return next(Path(packages, "boot").glob("vmlinuz-*"))


def remove(*folders):
    for folder in folders:
        shutil.rmtree(folder, ignore_errors=True)


def clean(folder):
    """Empties or creates the folder, and returns it."""
    remove(folder)
    os.makedirs(folder)
    return folder
