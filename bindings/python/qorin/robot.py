"""Robots: status, motions, limits, recordings, conversions.

Joints are arrays of angles in degrees, from the base on. Poses are arrays of six: x, y, z in millimetres, rx, ry, rz in
degrees, with the rotation Rz(rz) * Ry(ry) * Rx(rx).
"""
from __future__ import annotations

import time
from typing import TYPE_CHECKING, Any, Callable, NamedTuple

import numpy
from numpy.typing import ArrayLike

from qorin import raw
from qorin.enumerations import (Direction, DriveControlMode, Interpolator, MovingState, OrientationMode, PoseType,
                                RecordingInterpolation, RefCoordinate, RobotModel)
from qorin.errors import QorinError
from qorin.motion import Motion, Output, Weave, end_quietly, make_joint_motion, make_tcp_motion

if TYPE_CHECKING:
    from qorin.box import Box

Array = numpy.ndarray[Any, numpy.dtype[numpy.float64]]


class Payload(NamedTuple):
    """What the tool carries: kilograms, and where its centre of mass is, in millimetres."""

    mass: float
    x: float = 0
    y: float = 0
    z: float = 0


class Plane(NamedTuple):
    """The points p with normal * p = distance; the distance in millimetres."""

    normal_x: float
    normal_y: float
    normal_z: float
    distance: float


class Robot:
    """A robot of a control box, made by `Box.create_robot()` or `Box.robot()`.

    What is read comes from the latest status frame at once. What is done waits for the control box to answer.
    """

    def __init__(self, box: Box, number: int, owned: bool) -> None:
        self.box = box
        self.id = number
        self._owned = owned
        self.limits = SafetyLimits(self)

    def __index__(self) -> int:
        return self.id

    def __enter__(self) -> Robot:
        return self

    def __exit__(self, kind: type[BaseException] | None, *_: object) -> None:
        if self._owned:
            end_quietly(kind, self.destroy)

    def __repr__(self) -> str:
        try:
            model = self.model.name
        except QorinError:
            model = "no model"
        return f"<Robot {self.id} {model} of {self.box!r}>"

    def destroy(self) -> None:
        """Has the control box destroy it. A second time does nothing."""
        raw.robot_destroy(self.box, self)
        self._owned = False

    # Power, speed and rest.

    @property
    def servo(self) -> bool:
        """Whether the motors are under power. To be set, too."""
        return bool(raw.robot_servo_switch_get(self.box, self))

    @servo.setter
    def servo(self, on: bool) -> None:
        raw.robot_servo_switch_set(self.box, self, on)

    @property
    def speed_factor(self) -> float:
        """Factor on the speed of running and future motions, 1 for their own. To be set, too."""
        return raw.robot_speed_factor_get(self.box, self)

    @speed_factor.setter
    def speed_factor(self, factor: float) -> None:
        raw.robot_speed_factor_set(self.box, self, factor)

    def stop(self, within: float | None = None) -> None:
        """Ends motions and jogs; the time for that, in seconds, is the control box's unless it is told."""
        if within is None:
            raw.robot_stop_auto_time(self.box, self)
        else:
            raw.robot_stop(self.box, self, within)

    def emergency_stop(self, within: float) -> None:
        """Stops within seconds, through the network and the control software: it replaces no button."""
        raw.robot_emergency_stop(self.box, self, within)

    def pause(self, within: float | None = None) -> None:
        """Holds a motion; the time for that, in seconds, is the control box's unless it is told."""
        if within is None:
            raw.robot_pause_auto_time(self.box, self)
        else:
            raw.robot_pause(self.box, self, within)

    def resume(self) -> None:
        """Goes on with a motion that was paused."""
        raw.robot_resume(self.box, self)

    def reset(self) -> None:
        """Resets the robot after a fault."""
        raw.robot_reset(self.box, self)

    def direct_teaching(self, on: bool) -> None:
        """Lets the robot be led by hand."""
        raw.robot_direct_teaching_switch_set(self.box, self, on)

    def detect_collisions(self, on: bool) -> None:
        raw.robot_collision_detection_switch_set(self.box, self, on)

    # Status.

    @property
    def model(self) -> RobotModel:
        return raw.robot_model_name_get(self.box, self)

    @property
    def joint_count(self) -> int:
        return raw.robot_number_of_joints_get(self.box, self)

    @property
    def moving(self) -> MovingState:
        return raw.robot_state_moving_get(self.box, self)

    @property
    def control_mode(self) -> DriveControlMode:
        return raw.robot_control_mode_get(self.box, self)

    @property
    def joints(self) -> Array:
        """Measured joint angles in degrees, from the base on."""
        return self._of_joints(raw.robot_joint_angle_actual_get)

    @property
    def joints_commanded(self) -> Array:
        """Commanded joint angles in degrees, from the base on."""
        return self._of_joints(raw.robot_joint_angle_command_get)

    @property
    def joint_speeds(self) -> Array:
        """Measured joint speeds in degrees a second, from the base on."""
        return self._of_joints(raw.robot_joint_speed_actual_get)

    @property
    def joint_torques(self) -> Array:
        """Measured joint torques in newton metres, from the base on."""
        return self._of_joints(raw.robot_joint_torque_actual_get)

    @property
    def joint_temperatures(self) -> Array:
        """Temperatures of the joints in degrees Celsius, from the base on."""
        return self._of_joints(raw.robot_joint_temperature_get)

    @property
    def tcp(self) -> Array:
        """Measured pose of the TCP in the base frame: x, y, z in millimetres, rx, ry, rz in degrees."""
        return numpy.array(raw.robot_tcp_pose_actual_get(self.box, self))

    @property
    def tcp_commanded(self) -> Array:
        """Commanded pose of the TCP in the base frame: x, y, z in millimetres, rx, ry, rz in degrees."""
        return numpy.array(raw.robot_tcp_pose_command_get(self.box, self))

    @property
    def flange(self) -> Array:
        """Measured pose of the flange in the base frame: x, y, z in millimetres, rx, ry, rz in degrees."""
        return numpy.array(raw.robot_flange_pose_actual_get(self.box, self))

    @property
    def tcp_speed(self) -> Array:
        """Measured speed of the TCP along x, y, z in millimetres a second."""
        return numpy.array(raw.robot_tcp_pos_speed_actual_get(self.box, self))

    def _of_joints(self, getter: Callable[[Any, Any, int], float]) -> Array:
        return numpy.array([getter(self.box, self, joint) for joint in range(self.joint_count)])

    def _await_status(self) -> None:
        """Until the frames show a robot that the control box has just created."""
        end = time.monotonic() + 1
        while time.monotonic() < end:
            try:
                raw.robot_model_name_get(self.box, self)
                return
            except QorinError:
                time.sleep(0.001)

    # Tool.

    @property
    def tool(self) -> Array:
        """Pose of the TCP in the frame of the flange: x, y, z in millimetres, rx, ry, rz in degrees. To be set, too."""
        return numpy.array(raw.robot_tcp_from_flange_get(self.box, self))

    @tool.setter
    def tool(self, pose: ArrayLike) -> None:
        x, y, z, rx, ry, rz = numpy.asarray(pose, float)
        raw.robot_tcp_from_flange_set(self.box, self, x, y, z, rx, ry, rz)

    @property
    def payload(self) -> Payload:
        """What the tool carries: kilograms, and its centre of mass in millimetres. To be set, too."""
        return Payload(*raw.robot_tcp_payload_get(self.box, self))

    @payload.setter
    def payload(self, payload: Payload) -> None:
        raw.robot_tcp_payload_set(self.box, self, *payload)

    def digital_input(self, channel: int) -> bool:
        return raw.robot_tool_io_digital_input_get(self.box, self, channel) != 0

    def digital_output(self, channel: int) -> bool:
        return raw.robot_tool_io_digital_output_get(self.box, self, channel) != 0

    def set_digital_output(self, channel: int, on: bool) -> None:
        raw.robot_tool_io_digital_output_set(self.box, self, channel, int(on))

    def analog_input(self, channel: int) -> float:
        """Volts or milliamperes, as the mode of the channel says."""
        return raw.robot_tool_io_analog_input_get(self.box, self, channel)

    # Motions.

    def joint_motion(self, end: ArrayLike, *, speed: float | None = None, acceleration: float | None = None,
                     deceleration: float | None = None, jerk: float | None = None, blending: float | None = None,
                     output: Output | None = None) -> Motion:
        """A motion of all joints. What is not told is left to the control box.

        end: joint angles in degrees.
        speed, acceleration, deceleration: degrees a second, and that a second; the deceleration is as the acceleration
            unless it is told.
        jerk: percent.
        blending: degrees ahead of the end within which the next motion begins.
        """
        return make_joint_motion(self, end, speed=speed, acceleration=acceleration, deceleration=deceleration,
                                 jerk=jerk, blending=blending, output=output)

    def tcp_motion(self, end: ArrayLike | None = None, *, path: Interpolator = Interpolator.LINEAR,
                   middle: ArrayLike | None = None, radius: float | None = None,
                   through: ArrayLike | None = None, frame: RefCoordinate | None = None,
                   relative: bool | None = None, orientation_mode: OrientationMode | None = None,
                   speed: float | None = None, acceleration: float | None = None, deceleration: float | None = None,
                   jerk: float | None = None, blending: float | None = None, output: Output | None = None,
                   weave: Weave | None = None) -> Motion:
        """A motion of the TCP. What is not told is left to the control box.

        end: a position in millimetres, or a pose with rx, ry, rz in degrees behind it; a position keeps the
            orientation.
        middle: of an arc, in millimetres.
        radius: of an arc, in millimetres.
        through: positions of a free path in millimetres, 16 at most with the end.
        relative: the end is told from the start.
        speed, acceleration, deceleration: millimetres a second, and that a second; the deceleration is as the
            acceleration unless it is told.
        jerk: percent.
        blending: millimetres ahead of the end within which the next motion begins.
        weave: makes it a motion of welding.
        """
        return make_tcp_motion(self, end, path=path, middle=middle, radius=radius, through=through, frame=frame,
                               relative=relative, orientation_mode=orientation_mode, speed=speed,
                               acceleration=acceleration, deceleration=deceleration, jerk=jerk, blending=blending,
                               output=output, weave=weave)

    def welding_motion(self, end: ArrayLike, weave: Weave, **told: Any) -> Motion:
        """A motion of the TCP with a weave about it. Takes what `tcp_motion()` takes."""
        return self.tcp_motion(end, weave=weave, **told)

    def move_joints(self, end: ArrayLike, *, timeout: float | None = None, speed: float | None = None,
                    acceleration: float | None = None) -> None:
        """Moves all joints to angles in degrees, and waits for the end; see `joint_motion()` and `Motion.run()`."""
        with self.joint_motion(end, speed=speed, acceleration=acceleration) as motion:
            motion.run(timeout)

    def move_line(self, end: ArrayLike, *, timeout: float | None = None, speed: float | None = None,
                  acceleration: float | None = None) -> None:
        """Moves the TCP along a line to a position or a pose, and waits for the end; see `tcp_motion()`."""
        with self.tcp_motion(end, speed=speed, acceleration=acceleration) as motion:
            motion.run(timeout)

    def jog_joint(self, joint: int, direction: Direction, value_1: float = 0, value_2: float = 0) -> None:
        """Turns one joint until `stop()`. The control box defines both values; the simulated one takes speed and
        acceleration."""
        raw.robot_jog_joint(self.box, self, joint, direction, value_1, value_2)

    def jog_tcp(self, along: ArrayLike, frame: RefCoordinate = RefCoordinate.BASE, value_1: float = 0,
                value_2: float = 0) -> None:
        """Moves the TCP along a vector until `stop()`. Values as for `jog_joint()`."""
        x, y, z = numpy.asarray(along, float)
        raw.robot_jog_tcp_position(self.box, self, frame, x, y, z, value_1, value_2)

    def turn_tcp(self, about: ArrayLike, frame: RefCoordinate = RefCoordinate.BASE, value_1: float = 0,
                 value_2: float = 0) -> None:
        """Turns the TCP about a vector until `stop()`. Values as for `jog_joint()`."""
        rx, ry, rz = numpy.asarray(about, float)
        raw.robot_jog_tcp_orientation(self.box, self, frame, rx, ry, rz, value_1, value_2)

    def stream_joints(self, address: str | None = None) -> JointStream:
        """Has the robot follow joint targets, in a `with` block; the address is that of the box unless it is told."""
        return JointStream(self, address or self.box.address)

    # Conversions, by the kinematics module: nothing is sent.

    def pose_at(self, joints: ArrayLike, of: PoseType = PoseType.TCP) -> Array:
        """Where the arm has its TCP or flange when its joints are at angles in degrees."""
        return numpy.concatenate(raw.robot_util_joint_angle_to_pose_convert(self.box, self, of, joints))

    def joints_at(self, pose: ArrayLike, near: ArrayLike | None = None, of: PoseType = PoseType.TCP) -> Array:
        """Joint angles in degrees for a pose, those next to a reference: where the arm is, unless it is told."""
        place = numpy.asarray(pose, float)
        reference = self.joints if near is None else near
        return raw.robot_util_pose_to_joint_angle_convert(self.box, self, of, reference, place[:3], place[3:])

    def all_joints_at(self, flange: ArrayLike) -> Array:
        """All joint angles for a pose of the flange, a row for each posture from RobotPosture.FRONT_ABOVE_FLIP on. A
        row of a posture that does not reach it is NaN."""
        place = numpy.asarray(flange, float)
        joints, valid = raw.robot_util_pose_to_joint_all_possible_angle_convert(self.box, self, place[:3], place[3:])
        joints[~valid] = numpy.nan
        return joints

    def trajectory(self, start: ArrayLike, end: ArrayLike, count: int, of: PoseType = PoseType.TCP) -> Array:
        """Positions on the way between two sets of joint angles in degrees: `count` rows of x, y, z in millimetres."""
        columns = raw.robot_util_position_trajectory_get(self.box, self, self.joint_count, start, end, count, of)
        return numpy.column_stack(columns)

    # Recordings.

    def create_recording(self) -> Recording:
        """A buffer for what the robot does, destroyed at the end of a `with` block."""
        return Recording(self, raw.robot_recording_create(self.box, self))

    def load_recording(self, file: str) -> Recording:
        """A recording from a file of the control box."""
        return Recording(self, raw.robot_recording_create_from_file(self.box, self, file))


class Recording:
    """A recording buffer of the control box."""

    def __init__(self, robot: Robot, number: int) -> None:
        self.robot = robot
        self.id = number

    def __index__(self) -> int:
        return self.id

    def __enter__(self) -> Recording:
        return self

    def __exit__(self, kind: type[BaseException] | None, *_: object) -> None:
        end_quietly(kind, self.destroy)

    def __repr__(self) -> str:
        return f"<Recording {self.id} of {self.robot!r}>"

    def destroy(self) -> None:
        raw.robot_recording_destroy(self.robot.box, self.robot, self)

    def start(self) -> None:
        raw.robot_recording_start(self.robot.box, self.robot)

    def stop(self) -> None:
        raw.robot_recording_end(self.robot.box, self.robot, self)

    def trim(self) -> None:
        """Takes the rest at both ends away."""
        raw.robot_recording_trim(self.robot.box, self.robot, self)

    def interpolate(self, space: RecordingInterpolation, value_1: int, value_2: float) -> int:
        """The meaning of the values is the control box's."""
        return raw.robot_recording_interpolate(self.robot.box, self.robot, self, space, value_1, value_2)

    def play(self) -> int:
        """Returns when the control box has answered, not at the end. The robot must stand at `start_joints`."""
        return raw.robot_recording_playback(self.robot.box, self.robot, self)

    def save(self, file: str) -> None:
        """To a file of the control box."""
        raw.robot_recording_file_save(self.robot.box, self.robot, self, file)

    @property
    def start_joints(self) -> Array:
        """Joint angles at its start, in degrees."""
        return self._ask(raw.robot_recording_angle_start_get)

    @property
    def end_joints(self) -> Array:
        """Joint angles at its end, in degrees."""
        return self._ask(raw.robot_recording_angle_end_get)

    def _ask(self, function: Callable[[Any, Any, Any, int], float]) -> Array:
        return numpy.array([function(self.robot.box, self.robot, self, joint)
                            for joint in range(self.robot.joint_count)])


class JointStream:
    """A robot that follows a stream of joint targets. Its end takes 1.1 seconds, in which no command goes through.

    The first address of a robot counts for the life of the process.
    """

    def __init__(self, robot: Robot, address: str) -> None:
        self.robot = robot
        self.address = address

    def __enter__(self) -> JointStream:
        raw.robot_joint_chaser_ip_set(self.robot.box, self.robot, self.address)
        raw.robot_joint_chaser_switch_set(self.robot.box, self.robot, True)
        return self

    def __exit__(self, kind: type[BaseException] | None, *_: object) -> None:
        end_quietly(kind, lambda: raw.robot_joint_chaser_switch_set(self.robot.box, self.robot, False))

    def __repr__(self) -> str:
        return f"<JointStream to {self.address} of {self.robot!r}>"

    def send(self, joints: ArrayLike) -> None:
        """A target in degrees: one datagram, for which nobody answers. One that is refused ends the stream."""
        target = numpy.zeros(6)
        given = numpy.asarray(joints, float).ravel()
        target[:given.size] = given
        raw.robot_joint_chaser_move(self.robot.box, self.robot, given.size, target)


class SafetyLimits:
    """What the control box keeps a robot within. Degrees, millimetres and seconds."""

    def __init__(self, robot: Robot) -> None:
        self._robot = robot

    def __repr__(self) -> str:
        return f"<SafetyLimits of {self._robot!r}>"

    @property
    def on(self) -> bool:
        """Whether the limits hold. To be set, too."""
        return bool(raw.robot_safety_limit_switch_get(self._robot.box, self._robot))

    @on.setter
    def on(self, on: bool) -> None:
        raw.robot_safety_limit_switch_set(self._robot.box, self._robot, on)

    @property
    def joint_ranges(self) -> Array:
        """Least and greatest angle of each joint, in degrees: a row each."""
        return numpy.array([raw.robot_safety_limit_joint_angle_get(self._robot.box, self._robot, joint)
                            for joint in range(self._robot.joint_count)])

    def set_joint_range(self, joint: int, least: float, greatest: float) -> None:
        """Sets the least and the greatest angle of a joint, in degrees."""
        raw.robot_safety_limit_joint_angle_set(self._robot.box, self._robot, joint, least, greatest)

    @property
    def joint_speeds(self) -> Array:
        """Greatest speed of each joint, in degrees a second."""
        return self._robot._of_joints(raw.robot_safety_limit_joint_speed_max_get)

    def set_joint_speed(self, joint: int, most: float) -> None:
        """Sets the greatest speed of a joint, in degrees a second."""
        raw.robot_safety_limit_joint_speed_max_set(self._robot.box, self._robot, joint, most)

    @property
    def joint_accelerations(self) -> Array:
        """Greatest acceleration of each joint, in degrees a second squared."""
        return self._robot._of_joints(raw.robot_safety_limit_joint_acc_max_get)

    def set_joint_acceleration(self, joint: int, most: float) -> None:
        """Sets the greatest acceleration of a joint, in degrees a second squared."""
        raw.robot_safety_limit_joint_acc_max_set(self._robot.box, self._robot, joint, most)

    @property
    def tcp_speed(self) -> float:
        """Greatest speed of the TCP, in millimetres a second. To be set, too."""
        return raw.robot_safety_limit_tcp_speed_max_get(self._robot.box, self._robot)

    @tcp_speed.setter
    def tcp_speed(self, most: float) -> None:
        raw.robot_safety_limit_tcp_speed_max_set(self._robot.box, self._robot, most)

    @property
    def tcp_acceleration(self) -> float:
        """Greatest acceleration of the TCP, in millimetres a second squared. To be set, too."""
        return raw.robot_safety_limit_tcp_acc_max_get(self._robot.box, self._robot)

    @tcp_acceleration.setter
    def tcp_acceleration(self, most: float) -> None:
        raw.robot_safety_limit_tcp_acc_max_set(self._robot.box, self._robot, most)

    def add_plane(self, plane: Plane) -> int:
        """Adds a plane that the robot stays on one side of; returns its id."""
        return raw.robot_safety_limit_plane_create_with_norm_distance(self._robot.box, self._robot, *plane)

    def plane(self, number: int) -> Plane:
        return Plane(*raw.robot_safety_limit_plane_norm_distance_get(self._robot.box, self._robot, number))

    def remove_plane(self, number: int) -> None:
        raw.robot_safety_limit_plane_remove(self._robot.box, self._robot, number)

    def remove_all_planes(self) -> None:
        raw.robot_safety_limit_plane_remove_all(self._robot.box, self._robot)
