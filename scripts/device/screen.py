"""Compares a device's screen with the frames of its program."""

import time
from operator import le

from PIL import Image, ImageChops

from machine import Failed

# The part of a second after which the screen certainly shows that second: drawing takes up
# to a tenth, and the framebuffer is copied to the screen twenty times a second.
SHOWN_AFTER = 0.35
POLL_SECONDS = 0.1
SETTLE_SECONDS = 600  # on a machine that is busy with something else
NOTICE_COLOURS = {(0, 0, 64), (255, 255, 255)}  # player/notice.cpp


class Screen:
    """Compares pictures of the screen; those that differ are saved in the folder."""

    def __init__(self, machine, frames, folder):
        self.machine = machine
        self.frames = frames
        self.folder = folder

    def now(self):
        """Seconds since 1970 by the device's clock."""
        return float(self.machine.run("/bin/date +%s.%N"))

    def picture(self):
        """A picture that was taken within one second of the device's clock, and that second."""
        end = time.monotonic() + SETTLE_SECONDS
        while time.monotonic() < end:
            before = self.now()
            if not SHOWN_AFTER <= before % 1 < 0.9:
                time.sleep((1 + SHOWN_AFTER - before % 1) % 1)
                continue
            picture = self.machine.screen()
            if int(self.now()) == int(before):
                return picture, int(before)
        raise Failed("no picture could be taken within one second of the device's clock")

    def compare(self, program):
        """Whether the screen shows the second's frame, and both pictures. A larger screen
        has the frame at the top left and is black elsewhere."""
        picture, second = self.picture()
        frame = self.frames.at(program, second)
        if picture.width < frame.width or picture.height < frame.height:
            return False, picture, frame
        expected = Image.new("RGB", picture.size)
        expected.paste(frame)
        most = [most for _, most in ImageChops.difference(picture, expected).getextrema()]
        return all(map(le, most, self.machine.tolerance)), picture, expected

    def await_right(self, program):
        """Waits until the screen is right; returns the device's uptime in seconds."""
        end = time.monotonic() + SETTLE_SECONDS
        while time.monotonic() < end:
            is_right, picture, frame = self.compare(program)
            if is_right:
                return float(self.machine.run("cat /proc/uptime").split()[0])
            time.sleep(POLL_SECONDS)  # leaves the processor to the emulator
        raise self.wrong(f"the screen does not show {program}", picture, frame)

    def expect_right(self, program, count):
        """Checks that the screen is right in `count` samples."""
        for sample in range(count):
            is_right, picture, frame = self.compare(program)
            if not is_right:
                raise self.wrong(f"sample {sample + 1} does not show {program}", picture,
                                 frame)

    def await_dark(self):
        self.await_picture("dark", lambda picture: not picture.getbbox())

    def await_notice(self, code):
        self.await_picture(f"the notice {code}", lambda picture: {
            colour for _, colour in picture.getcolors(65536) or []} == NOTICE_COLOURS)

    def await_picture(self, what, is_shown):
        end = time.monotonic() + SETTLE_SECONDS
        while time.monotonic() < end:
            picture = self.machine.screen()
            if is_shown(picture):
                return
            time.sleep(POLL_SECONDS)
        raise self.wrong(f"the screen does not become {what}", picture)

    def wrong(self, what, picture, expected=None):
        picture.save(self.folder / "screen.png")
        if expected:
            expected.save(self.folder / "expected.png")
        return Failed(f"{what}: see {self.folder}/screen.png")
