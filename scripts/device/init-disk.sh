#!/bin/sh
# In the initramfs: what the kernel needs to reach the screen and the disk, and on to the disk. A word
# LATE_MODULE=virtio-gpu on the kernel's command line leaves that module in /dev for later.
export PATH=/bin
mount -t devtmpfs dev /dev
for module in /[0-9]*.ko; do
    case $module in
    *-"$LATE_MODULE.ko") cat "$module" >/dev/late.ko ;;
    *) insmod "$module" ;;
    esac
done
mkdir /disk
# The disk is probed beside this script.
until mount -t squashfs -o ro /dev/vda /disk 2>/dev/null; do :; done
mount -o move /dev /disk/dev
exec switch_root /disk /sbin/init
