#!/bin/sh
# Init of the initramfs: loads the modules for the screen and the disk, and switches to the disk.
# From the kernel's command line: SCREEN is the screen's module; with SCREEN_IS_LATE=1 it is left in
# /dev for later.
export PATH=/bin
mount -t devtmpfs dev /dev
for module in /[0-9]*.ko; do
    insmod "$module"
done
# As this screen's own start program would do: without it the driver's registers do not exist.
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
