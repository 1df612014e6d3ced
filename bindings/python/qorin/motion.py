"""Motions of a robot."""
from __future__ import annotations

import time
from typing import TYPE_CHECKING, Any, Callable, NamedTuple

import numpy
from numpy.typing import ArrayLike

from qorin import raw
from qorin.enumerations import (EventGrp, EventSubgrp, Interpolator, IoControlCondition, IoType, MovingState,
                                OrientationMode, RefCoordinate, WeldingWeavingPattern)
from qorin.events import Event

if TYPE_CHECKING:
    from qorin.robot import Robot

_points_most = 16
_SETTLED = (EventGrp.MOTION_COMMAND, EventSubgrp.MOTION_COMMAND_SETTLED_DOWN)


class Output(NamedTuple):
    """An output that a motion sets on its way.

    when: at its begin or end, or at a point on the way.
    point: seconds or percent of the way, as `when` tells.
    """

    channel: int
    value: float
    when: IoControlCondition = IoControlCondition.END
    point: float = 0
    type: IoType = IoType.CBOX_DIGITAL_OUTPUT


class Motion:
    """A motion command of the control box. It must stand until it has run, and is destroyed at the end of `with`.

    Made by `Robot.joint_motion()`, `Robot.tcp_motion()` and `Robot.welding_motion()`.
    """

    def __init__(self, robot: Robot, number: int, told: str) -> None:
        self.robot = robot
        self.id = number
        self._told = told
        self._stands = True

    def __index__(self) -> int:
        return self.id

    def __enter__(self) -> Motion:
        return self

    def __exit__(self, kind: type[BaseException] | None, *_: object) -> None:
        end_quietly(kind, self.destroy)

    def __repr__(self) -> str:
        return f"<Motion {self.id} {self._told} of {self.robot!r}{'' if self._stands else ', destroyed'}>"

    def destroy(self) -> None:
        """Gives the motion command back. A second time does nothing."""
        if self._stands:
            self._stands = False
            raw.motion_command_destroy(self.robot.box, self)

    def check(self) -> None:
        """Raises what the control box has against it. Queues nothing."""
        raw.motion_command_is_runnable(self.robot.box, self)

    @property
    def running_time(self) -> float:
        """Seconds that it takes, as the control box reckons."""
        return raw.motion_command_running_time_get(self.robot.box, self)

    def set_name(self, name: str) -> None:
        raw.motion_command_name_set(self.robot.box, self, name)

    def start_when(self, type: IoType, channel: int, value: int) -> None:
        """Has it start when an input has a value."""
        raw.motion_command_start_condition_set(self.robot.box, self, type, channel, value)

    def copy(self) -> Motion:
        return Motion(self.robot, raw.motion_command_deep_copy(self.robot.box, self), self._told)

    def queue(self) -> None:
        """Puts it at the end of the queue, which is one for the control box; `Box.start_queue()` starts that."""
        raw.motion_command_queue_add(self.robot.box, self)

    def start(self) -> None:
        """Queues it and starts the queue. Ends of it that nobody has waited for are forgotten."""
        while self.has_ended():
            pass
        self.queue()
        self.robot.box.start_queue()

    def wait(self, timeout: float | None = None) -> None:
        """Blocks until the robot rests at its end and the status shows that.

        timeout: seconds. Then TimeoutError, as when something has stopped the motion.
        """
        self.robot.box.wait_for(*_SETTLED, sender=self.id, timeout=timeout)
        self._await_status()

    async def wait_async(self, timeout: float | None = None) -> None:
        """As `wait()`, for asyncio."""
        await self.robot.box.wait(*_SETTLED, sender=self.id, timeout=timeout)
        self._await_status()

    def has_ended(self) -> bool:
        """Whether the robot has come to rest at its end since nobody waited for that; true once for each end."""
        return self._take_end(0) is not None

    def run(self, timeout: float | None = None) -> None:
        """Starts it and waits for its end. When the wait ends otherwise, by Ctrl-C too, the robot is stopped."""
        self.start()
        try:
            self.wait(timeout)
        except BaseException:
            end_quietly(BaseException, self.robot.stop)
            raise

    def _take_end(self, timeout: float) -> Event | None:
        try:
            return self.robot.box.wait_for(*_SETTLED, sender=self.id, timeout=timeout)
        except TimeoutError:
            return None

    def _await_status(self) -> None:
        """The frame that shows the rest comes by another link than the event."""
        end = time.monotonic() + 0.2
        while self.robot.moving == MovingState.MOVING and time.monotonic() < end:
            time.sleep(0.001)


def end_quietly(kind: type[BaseException] | None, end: Callable[[], object]) -> None:
    """Gives something back. When an exception is on its way already, another one shall not take its place."""
    try:
        end()
    except Exception:
        if kind is None:
            raise


class _Maker:
    """Sets parameters of a motion command. When one is refused, the motion command goes again."""

    def __init__(self, robot: Robot, create: Callable[[Any], int], told: str) -> None:
        self.motion = Motion(robot, create(robot.box), told)
        self.set(raw.motion_command_robot_robot_id_set, robot.id)  # ahead of all parameters of the robot

    def __enter__(self) -> _Maker:
        return self

    def __exit__(self, kind: type[BaseException] | None, *_: object) -> None:
        if kind is not None:
            end_quietly(kind, self.motion.destroy)

    def set(self, function: Callable[..., None], *values: Any) -> None:
        if None not in values:
            function(self.motion.robot.box, self.motion, *values)

    def set_three(self, function: Callable[..., None], values: ArrayLike | None) -> None:
        if values is not None:
            x, y, z = numpy.asarray(values, float)
            self.set(function, float(x), float(y), float(z))

    def set_tempo(self, speed: float | None, acceleration: float | None, deceleration: float | None,
                  jerk: float | None) -> None:
        self.set(raw.motion_command_speed_max_set, speed)
        self.set(raw.motion_command_acc_max_set, acceleration)
        self.set(raw.motion_command_dec_max_set, acceleration if deceleration is None else deceleration)
        self.set(raw.motion_command_jerk_percentage_set, jerk)

    def set_joining(self, blending: float | None, output: Output | None) -> None:
        if blending is not None:
            self.set(raw.motion_command_blending_motion_mode_set, True)
            self.set(raw.motion_command_radius_for_blending_set, blending)
        if output is not None:
            self.set(raw.motion_command_io_command_type_set, output.when, output.point, output.type, output.channel,
                     output.value)

    def set_points(self, points: ArrayLike) -> None:
        x, y, z = numpy.asarray(points, float).reshape(-1, 3).T
        if x.size > _points_most:
            raise ValueError(f"{x.size} points of a free path, of which there are {_points_most} at most")
        self.set(raw.motion_command_robot_tcp_free_path_points_set, x.size, x, y, z)


def make_joint_motion(robot: Robot, end: ArrayLike, *, speed: float | None, acceleration: float | None,
                      deceleration: float | None, jerk: float | None, blending: float | None,
                      output: Output | None) -> Motion:
    angles = numpy.asarray(end, float).ravel()
    with _Maker(robot, raw.motion_command_robot_joint_create, f"to joints {angles.tolist()}") as maker:
        for joint, angle in enumerate(angles):
            maker.set(raw.motion_command_robot_joint_angle_end_set, joint, angle)
        maker.set_tempo(speed, acceleration, deceleration, jerk)
        maker.set_joining(blending, output)
    return maker.motion


class Weave(NamedTuple):
    """A weave about a path. Amplitudes in millimetres, the frequency in hertz, stops in seconds, the tilt in degrees."""

    left_amplitude: float
    right_amplitude: float
    frequency: float
    pattern: WeldingWeavingPattern = WeldingWeavingPattern.ZIGZAG
    left_stop: float | None = None
    middle_stop: float | None = None
    right_stop: float | None = None
    plane_tilt: float | None = None


def make_tcp_motion(robot: Robot, end: ArrayLike | None, *, path: Interpolator, middle: ArrayLike | None,
                    radius: float | None, through: ArrayLike | None,
                    frame: RefCoordinate | None, relative: bool | None, orientation_mode: OrientationMode | None,
                    speed: float | None, acceleration: float | None, deceleration: float | None, jerk: float | None,
                    blending: float | None, output: Output | None, weave: Weave | None = None) -> Motion:
    create = raw.motion_command_robot_tcp_create if weave is None else raw.motion_command_robot_tcp_welding_create
    place = None if end is None else numpy.asarray(end, float).ravel()
    if place is not None and place.size not in (3, 6):
        raise ValueError(f"an end of {place.size} numbers is neither a position nor a pose")
    with _Maker(robot, create, f"of the TCP to {None if place is None else place.tolist()}") as maker:
        maker.set(raw.motion_command_robot_tcp_interpolator_set, path)
        maker.set(raw.motion_command_robot_tcp_coordinate_set, frame)
        maker.set(raw.motion_command_robot_tcp_offset_mode_set, relative)
        maker.set(raw.motion_command_robot_orientation_mode_set, orientation_mode)
        maker.set_three(raw.motion_command_robot_tcp_position_mid_set, middle)
        if place is not None:
            maker.set_three(raw.motion_command_robot_tcp_position_end_set, place[:3])
            if place.size == 6:
                maker.set_three(raw.motion_command_robot_tcp_orientation_end_set, place[3:])
        maker.set(raw.motion_command_robot_tcp_radius_set, radius)
        if through is not None:
            maker.set_points(through)
        maker.set_tempo(speed, acceleration, deceleration, jerk)
        maker.set_joining(blending, output)
        if weave is not None:
            _set_weave(maker, weave)
    return maker.motion


def _set_weave(maker: _Maker, weave: Weave) -> None:
    maker.set(raw.motion_command_robot_tcp_welding_weaving_motion_switch_set, True)
    maker.set(raw.motion_command_robot_tcp_welding_weaving_pattern_set, weave.pattern)
    maker.set(raw.motion_command_robot_tcp_welding_left_amplitude_set, weave.left_amplitude)
    maker.set(raw.motion_command_robot_tcp_welding_right_amplitude_set, weave.right_amplitude)
    maker.set(raw.motion_command_robot_tcp_welding_frequency_set, weave.frequency)
    maker.set(raw.motion_command_robot_tcp_welding_left_stop_settling_time_set, weave.left_stop)
    maker.set(raw.motion_command_robot_tcp_welding_middle_stop_settling_time_set, weave.middle_stop)
    maker.set(raw.motion_command_robot_tcp_welding_right_stop_settling_time_set, weave.right_stop)
    maker.set(raw.motion_command_robot_tcp_welding_plane_tilt_angle_set, weave.plane_tilt)
