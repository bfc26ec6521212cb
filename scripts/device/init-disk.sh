#!/bin/sh
# In the initramfs: what the kernel needs to reach the screen and the disk, and on to the disk.
export PATH=/bin
mount -t devtmpfs dev /dev
for module in /[0-9]*.ko; do insmod "$module"; done
mkdir /disk
# The disk is probed beside this script.
until mount -t squashfs -o ro /dev/vda /disk 2>/dev/null; do :; done
mount -o move /dev /disk/dev
exec switch_root /disk /sbin/init
