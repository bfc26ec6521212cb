#!/bin/sh
# Init of the initramfs: loads the modules for the screen and the disk, and switches to the disk.
# With LATE_MODULE=virtio-gpu on the kernel's command line it leaves that module in /dev for later.
export PATH=/bin
mount -t devtmpfs dev /dev
for module in /[0-9]*.ko; do
    case $module in
    *-"$LATE_MODULE.ko") cat "$module" >/dev/late.ko ;;
    *) insmod "$module" ;;
    esac
done
mkdir /disk
# The disk is probed asynchronously.
until mount -t squashfs -o ro /dev/vda /disk 2>/dev/null; do :; done
mount -o move /dev /disk/dev
exec switch_root /disk /sbin/init
