"""Stacks PNG pictures of the same width without decoding pixels.

A row of a PNG picture depends only on the row above it, which counts as black above the first
row. Packed rows of pictures that end in a black row can therefore be concatenated.
"""
import struct
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"


def chunks(data):
    """(kind, content) of each chunk."""
    at = len(SIGNATURE)
    while at < len(data):
        (length,) = struct.unpack(">I", data[at : at + 4])
        yield data[at + 4 : at + 8], data[at + 8 : at + 8 + length]
        at += length + 12


def chunk(kind, content):
    return struct.pack(">I", len(content)) + kind + content + struct.pack(
        ">I", zlib.crc32(kind + content)
    )


def read(data):
    """Width, height, the rest of the header, and the unpacked rows with their filters."""
    parts = list(chunks(data))
    width, height = struct.unpack(">II", parts[0][1][:8])
    packed = b"".join(content for kind, content in parts if kind == b"IDAT")
    return width, height, parts[0][1][8:], zlib.decompress(packed)


def joined(pictures):
    """One PNG picture from several of the same width and pixel format, whose last rows are black."""
    read_pictures = [read(picture) for picture in pictures]
    width, _, pixel_format, _ = read_pictures[0]
    if any((each[0], each[2]) != (width, pixel_format) for each in read_pictures):
        raise ValueError("the pictures differ in width or format")
    height = sum(each[1] for each in read_pictures)
    rows = b"".join(each[3] for each in read_pictures)
    return b"".join(
        (
            SIGNATURE,
            chunk(b"IHDR", struct.pack(">II", width, height) + pixel_format),
            chunk(b"IDAT", zlib.compress(rows, 9)),
            chunk(b"IEND", b""),
        )
    )
