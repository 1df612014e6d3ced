"""Fixtures: a simulated control box, a robot, and programs beside them."""
import os
import subprocess
import sys

import pytest

import qorin
from support import Simulator


@pytest.fixture(scope="session")
def logs(tmp_path_factory):
    return tmp_path_factory.mktemp("logs")


@pytest.fixture(scope="session")
def box(logs):
    """In control of a box with a system."""
    with Simulator(0) as simulator, qorin.connect(simulator.address, log_directory=logs) as box:
        with box.control():
            box.create_system()
            yield box


@pytest.fixture
def robot(box):
    """An arm under power, that nobody has moved."""
    with box.create_robot(qorin.RobotModel.ARM_C, replace=True) as robot:
        robot.servo = True
        yield robot


@pytest.fixture
def python(logs):
    """Runs a program in a process of its own: what it prints, and its status."""
    def run(*arguments, **environment):
        done = subprocess.run([sys.executable, *map(str, arguments)], capture_output=True, text=True, timeout=100,
                              env={**os.environ, "MPLBACKEND": "Agg", "MPLCONFIGDIR": str(logs), "TMPDIR": str(logs), **environment})
        return done.stdout + done.stderr, done.returncode
    return run
