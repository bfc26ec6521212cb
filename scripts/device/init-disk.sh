#!/bin/sh
# Init process of the initramfs: loads the modules for the screen and the disk, and switches to the
# disk. On the kernel's command line, SCREEN is the screen's module; with SCREEN_IS_LATE=1 it is not
# loaded but left in /dev.
export PATH=/bin
mount -t devtmpfs dev /dev
for module in /[0-9]*.ko; do
    insmod "$module"
done
# As the card's firmware would: otherwise the registers that the driver needs do not respond.
[ "$SCREEN" != cirrus ] || devmem 0x3eff03c2 8 0x67
if [ -n "$SCREEN_IS_LATE" ]; then
    cat "/screen-$SCREEN.ko" >/dev/late.ko
else
    insmod "/screen-$SCREEN.ko"
fi
mkdir /disk
# The disk is probed asynchronously.
until mount -t squashfs -o ro /dev/vda /disk 2>/dev/null; do :; done
mount -o move /dev /disk/dev
exec switch_root /disk /sbin/init
