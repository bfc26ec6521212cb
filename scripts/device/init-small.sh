#!/bin/sh
# Init process of the small image: plays a program forever. Whenever the player exits, blanks the
# screen and restarts it. PLAYER_OPTIONS on the kernel's command line are passed to the player.
export PATH=/bin:/usr/bin LC_ALL=C TMPDIR=/run/tmp RUNTIME_DIRECTORY=/run/clock
mount -t proc proc /proc
mount -t sysfs sys /sys
mount -t tmpfs -o mode=0755,size=24m run /run
mkdir -p "$TMPDIR" "$RUNTIME_DIRECTORY"
cp /usr/share/wall.xml /run/clock/program.xml

# The player's messages, to be read with logread.
syslogd -C64
mkfifo /run/said
logger -t clock_player </run/said &
exec 3>/run/said

# A shell on the serial line.
while :; do setsid sh -c 'stty -echo; echo shell is ready; exec sh' </dev/ttyAMA0 >/dev/ttyAMA0 2>&1; done &

starts=0
while :; do
    starts=$((starts + 1))
    echo "$starts" >/run/starts
    # shellcheck disable=SC2086 # words
    clock_player --kiosk --watch --files-dir /run/glyphs -platform linuxfb $PLAYER_OPTIONS \
        /run/clock/program.xml >&3 2>&1
    echo "clock_player ended with $?" >&3
    [ ! -e /dev/fb0 ] || cat /dev/zero >/dev/fb0 2>/dev/null
    sleep 1
done
