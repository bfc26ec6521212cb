#!/bin/sh
# First process of the small image: plays one program for ever. A player that ends, for whatever
# reason, leaves a dark screen and comes back.
export PATH=/bin TMPDIR=/run/tmp LC_ALL=C QT_QPA_PLATFORM=linuxfb:fb=/dev/fb0
mount -t proc proc /proc
mount -t sysfs sys /sys
mount -t tmpfs -o mode=0755,size=24m run /run
mkdir -p /run/tmp /run/clock
cp /etc/clock-player/program.xml /run/clock/program.xml

# A shell for whoever holds the serial line.
while :; do setsid sh -c 'stty -echo; echo shell is ready; exec sh'  </dev/ttyAMA0 >/dev/ttyAMA0 2>&1; done &

blank() { [ ! -e /dev/fb0 ] || cat /dev/zero >/dev/fb0 2>/dev/null; }
starts=0
while :; do
    starts=$((starts + 1))
    echo "$starts" >/run/starts
    /usr/lib/clock-player/bin/clock_player /run/clock/program.xml >>/run/log 2>&1
    echo "ended with $?" >>/run/log
    blank
    sleep 1
done
