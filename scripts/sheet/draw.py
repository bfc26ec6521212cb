"""Plays the contact sheet's programs and stacks their frames. See scripts/contact-sheet."""
import pathlib
import subprocess
import sys
import tempfile

import samples
import strips

EXAMPLES = pathlib.Path(__file__).parents[2] / "examples"


def second_frame(player, program, language, instant, *size):
    """The second frame: a dial has no texts in the first."""
    with tempfile.TemporaryDirectory() as directory:
        subprocess.run(
            [player, program, "--output", directory, "--frames", "2", *size]
            + ["--language", language, "--at", instant],
            stdout=subprocess.DEVNULL,
            check=True,
        )
        return (pathlib.Path(directory) / "frame_0002.png").read_bytes()


def played(player, wall):
    with tempfile.NamedTemporaryFile(suffix=".xml") as program:
        program.write(wall.program())
        program.flush()
        return second_frame(player, program.name, wall.language, wall.instant, "--magnify", "2")


def main():
    player, directory = sys.argv[1], pathlib.Path(sys.argv[2])
    sheet = strips.joined([played(player, wall) for wall in samples.walls()])
    (directory / "contact_sheet.png").write_bytes(sheet)
    for example in ("station", "wall"):
        program = EXAMPLES / f"{example}.xml"
        frame = second_frame(player, program, "en", samples.INSTANT, "--magnify", "2")
        (directory / f"{example}.png").write_bytes(frame)
    leds = second_frame(player, EXAMPLES / "wall.xml", "en", samples.INSTANT, "--led", "3")
    (directory / "wall_leds.png").write_bytes(leds)


main()
