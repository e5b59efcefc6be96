#!/usr/bin/env python3
"""Writes the tones that alerts can be told with: short, quiet, mono, 16 bits, 22,050 Hz. `make_tones.py FOLDER`."""
import math
import pathlib
import struct
import sys
import wave

RATE = 22_050
LOUDEST = 0.35
# Of each tone: when it sets in, in seconds, its pitch in Hz, and how fast it fades.
TONES = {
    "chime": [(0.0, 880.0, 9.0), (0.12, 1318.5, 7.0)],
    "knock": [(0.0, 196.0, 40.0), (0.16, 164.8, 40.0)],
    "ping": [(0.0, 1567.98, 14.0)],
}
SECONDS = 0.6
SOFT_START = 0.004


def sample(notes: list[tuple[float, float, float]], time: float) -> float:
    total = 0.0
    for begin, pitch, fade in notes:
        age = time - begin
        if age >= 0:
            total += min(1.0, age / SOFT_START) * math.exp(-fade * age) * math.sin(2 * math.pi * pitch * age)
    return max(-1.0, min(1.0, LOUDEST * total))


def main() -> None:
    folder = pathlib.Path(sys.argv[1])
    for name, notes in TONES.items():
        with wave.open(str(folder / f"{name}.wav"), "wb") as file:
            file.setnchannels(1)
            file.setsampwidth(2)
            file.setframerate(RATE)
            for at in range(int(RATE * SECONDS)):
                file.writeframesraw(struct.pack("<h", int(32_767 * sample(notes, at / RATE))))


if __name__ == "__main__":
    main()
