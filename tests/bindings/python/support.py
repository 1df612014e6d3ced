"""What the tests have in common."""
import os
import pathlib
import subprocess
import time

BIN = pathlib.Path(os.environ["QORIN_BIN"])
READY = [0, 20, 60, 0, 100, 0]


class Simulator:
    """A simulated control box. The index tells those of one process apart, 0 to 5."""

    def __init__(self, index, *options):
        pid = os.getpid()
        self.address = f"127.{64 + index * 32 + (pid >> 16 & 31)}.{pid >> 8 & 255}.{pid & 255}"
        self.process = subprocess.Popen([BIN / "qorin_cbox_sim", "--address", self.address, *options],
                                        stdout=subprocess.PIPE, text=True)
        while "listening" not in self.process.stdout.readline():
            assert self.process.poll() is None

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()
        self.process.stdout.close()


def eventually(condition, seconds=5):
    end = time.monotonic() + seconds
    while not condition() and time.monotonic() < end:
        time.sleep(0.002)
    return condition()
