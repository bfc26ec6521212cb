"""Plays the contact sheet's programs and puts their frames together. See scripts/contact-sheet."""
import pathlib
import subprocess
import sys
import tempfile

import samples
import strips

EXAMPLES = pathlib.Path(__file__).parents[2] / "examples"


def second_frame(player, program, language, instant, magnify):
    """The texts of a dial appear in the frame after the dial's first."""
    with tempfile.TemporaryDirectory() as directory:
        subprocess.run(
            [player, program, "--output", directory, "--frames", "2", "--magnify", str(magnify)]
            + ["--language", language, "--at", instant],
            stdout=subprocess.DEVNULL,
            check=True,
        )
        return (pathlib.Path(directory) / "frame_0002.png").read_bytes()


def played(player, wall):
    with tempfile.NamedTemporaryFile(suffix=".xml") as program:
        program.write(wall.program())
        program.flush()
        return second_frame(player, program.name, wall.language, wall.instant, 2)


def main():
    player, directory = sys.argv[1], pathlib.Path(sys.argv[2])
    sheet = strips.joined([played(player, wall) for wall in samples.walls()])
    (directory / "contact_sheet.png").write_bytes(sheet)
    for example in ("station", "wall"):
        frame = second_frame(player, EXAMPLES / f"{example}.xml", "en", samples.INSTANT, 2)
        (directory / f"{example}.png").write_bytes(frame)


main()
