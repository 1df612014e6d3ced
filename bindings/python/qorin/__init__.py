"""Control boxes and their robots.

    import qorin

    with qorin.connect("127.0.0.1") as box, box.control():
        box.create_system()
        with box.create_robot(qorin.RobotModel.ARM_C) as robot:
            robot.servo = True
            robot.move_joints([0, 20, 60, 0, 100, 0], speed=60)
            print(robot.joints, robot.tcp)

Angles are in degrees, lengths in millimetres, times in seconds. All functions of the interface are in `qorin.raw`.
"""
import re as _re

from qorin import _native


def _expect_version(library: str) -> None:
    """Refuses a library that this package was not built for: its numbers may mean something else."""
    found = _re.search(r"v(\d+)\.(\d+)\.(\d+)\.(\d+)", library)
    numbers = tuple(map(int, found.groups())) if found else ()
    mine = tuple(map(int, _native.built_for.split(".")))
    if numbers != mine:
        how = "newer" if numbers > mine else "older"
        raise ImportError(f"the library {library} is {how} than this package, which is for {_native.built_for}: "
                          "install both from one release")


_expect_version(_native.library_version())
__version__ = _native.built_for

from qorin import enumerations, raw
from qorin.box import Box, Control, UserMemory, connect
from qorin.enumerations import *
from qorin.errors import (CboxError, ControlError, FieldbusError, InternalError, LinkLostError, MemoryKeyError,
                          MotionError, QorinError, QorinWarning, RobotError, SystemFailure, VersionError)
from qorin.events import Event, EventStream, Registration
from qorin.motion import Motion, Output, Weave
from qorin.robot import Array, JointStream, Payload, Plane, Recording, Robot, SafetyLimits

__all__ = [
    "Array", "Box", "CboxError", "Control", "ControlError", "Event", "EventStream", "FieldbusError", "InternalError",
    "JointStream", "LinkLostError", "MemoryKeyError", "Motion", "MotionError", "Output", "Payload", "Plane", "QorinError",
    "QorinWarning", "Recording", "Registration", "Robot", "RobotError", "SafetyLimits", "SystemFailure", "UserMemory",
    "VersionError", "Weave", "connect", "raw",
]
__all__ += enumerations.__all__
