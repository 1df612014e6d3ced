"""Whole sessions: robots, motions, I/O, faults, lost links."""
import os
import signal
import threading
import time

import numpy
import pytest

import qorin
from qorin import raw
from support import READY, Simulator, eventually


def test_a_robot_moves_and_everything_is_given_back(box):
    with box.create_robot(qorin.RobotModel.ARM_C, replace=True) as robot:
        robot.servo = True
        assert eventually(lambda: robot.servo) and robot.joint_count == 6 and box.in_control
        robot.move_joints(READY, speed=90, acceleration=300, timeout=20)
        assert numpy.allclose(robot.joints, READY, atol=0.01) and robot.moving != qorin.MovingState.MOVING
        assert numpy.allclose(robot.tcp, robot.pose_at(robot.joints), atol=0.01)

        goal = robot.tcp + [0, 40, -30, 0, 0, 0]
        with robot.tcp_motion(goal, speed=200, acceleration=500) as line:
            line.check()
            assert 0.1 < line.running_time < 5
            line.run(20)
        assert numpy.allclose(robot.tcp[:3], goal[:3], atol=0.05)
        with pytest.raises(qorin.MotionError) as gone:
            raw.motion_command_is_runnable(box, line)
        assert gone.value.code == qorin.ApiResult.ERROR_COULD_NOT_FIND_COMMAND_ID
        line.destroy()

        weave = qorin.Weave(3, 3, 2.5)
        with robot.welding_motion(goal[:3] - [0, 40, 0], weave, speed=50) as seam, seam.copy() as copy:
            assert raw.motion_command_robot_tcp_welding_frequency_get(box, seam) == 2.5
            assert copy.id != seam.id
        with pytest.raises(qorin.MotionError):
            robot.joint_motion(READY + [1])  # a seventh joint: nothing of the motion stays
        with robot.joint_motion(READY) as later, pytest.raises(qorin.MotionError, match="104002"):
            raw.motion_command_is_runnable(box, later.id - 1)
        nearest = robot.joints_at(robot.tcp)
        assert numpy.allclose(nearest, robot.joints, atol=0.01)
        every = robot.all_joints_at(robot.flange)
        assert every.shape == (8, 6) and numpy.nanmin(abs(every - nearest).max(axis=1)) < 0.01
        assert robot.trajectory(READY, robot.joints, 5).shape == (5, 3)
        with qorin.Robot(box, robot.id, owned=False):
            pass
        assert box.robot(robot.id).model == qorin.RobotModel.ARM_C
    with pytest.raises(qorin.RobotError):
        robot.joints
    assert "no model" in repr(robot)


def test_a_motion_that_nobody_awaits_any_more_is_stopped(robot):
    threading.Timer(1, os.kill, (os.getpid(), signal.SIGINT)).start()
    with robot.joint_motion([80, 0, 90, 0, 90, 0], speed=8) as motion:
        with pytest.raises(KeyboardInterrupt):
            motion.run(60)
        assert eventually(lambda: robot.moving == qorin.MovingState.STOPPED)
        assert 1 < robot.joints[0] < 40
        with pytest.raises(TimeoutError):
            motion.wait(0.01)
    robot.jog_joint(0, qorin.Direction.NEGATIVE)
    assert eventually(lambda: robot.joint_speeds[0] < -0.1)
    robot.stop()
    assert eventually(lambda: abs(robot.joint_speeds[0]) < 1e-6)


def test_what_is_set_is_read_back(box, robot):
    robot.speed_factor = 0.5
    robot.tool = [1, 2, 30, 0, 0, 90]
    robot.payload = qorin.Payload(1.5, 0, 0, 20)
    robot.limits.set_joint_range(1, -90, 80)
    robot.limits.set_joint_speed(2, 77)
    robot.limits.tcp_speed = 321
    plane = robot.limits.add_plane(qorin.Plane(0, 0, 1, -500))
    box.set_digital_output(7, True)
    box.set_analog_output(1, 2.5)
    robot.set_digital_output(0, True)
    raw.ts_cbox_io_digital_input_set(box, 3, 1)
    box.memory["part"], box.memory["mass"], box.memory["full"] = -7, 2.5, True
    box.memory["name"] = "nut"

    assert eventually(lambda: box.digital_input(3))
    assert [box.digital_input(4), box.digital_output(7), robot.digital_output(0)] == [False, True, True]
    assert box.analog_output(1) == 2.5 and robot.speed_factor == 0.5
    assert numpy.allclose(robot.tool, [1, 2, 30, 0, 0, 90]) and robot.payload == (1.5, 0, 0, 20)
    assert robot.limits.joint_ranges[1].tolist() == [-90, 80] and robot.limits.joint_speeds[2] == 77
    assert robot.limits.tcp_speed == 321 and robot.limits.plane(plane) == (0, 0, 1, -500)
    assert [box.memory["part"], box.memory["mass"], box.memory["full"]] == [-7, 2.5, True]
    with pytest.raises(TypeError):
        box.memory["name"]
    del box.memory["part"]
    assert "part" not in box.memory and "name" in box.memory
    with pytest.raises(KeyError):
        box.memory["part"]
    robot.limits.remove_all_planes()
    robot.speed_factor = 1


def test_a_recording_is_made_and_kept(robot):
    with robot.create_recording() as recording:
        recording.start()
        robot.move_joints(READY, speed=60, timeout=20)
        recording.stop()
        assert numpy.allclose(recording.end_joints, READY, atol=0.5)
        assert not numpy.allclose(recording.start_joints, READY, atol=0.5)


def test_errors_are_of_their_family(box):
    families = [(0, qorin.LinkLostError), (100003, qorin.ControlError), (100009, qorin.SystemFailure),
                (101005, qorin.CboxError), (102001, qorin.RobotError), (103001, qorin.RobotError),
                (104010, qorin.MotionError), (105000, KeyError), (106010, qorin.FieldbusError),
                (190003, qorin.InternalError), (200006, qorin.QorinWarning), (7, qorin.QorinError)]
    for code, family in families:
        error = qorin.errors.error_of(code, "asked")
        assert isinstance(error, family) and error.code == code and "asked" in repr(error)
        assert error.text and error.name in str(error) and (error.advice or code in (7, 100009))
    with pytest.raises(qorin.CboxError, match="101004 QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER"):
        box.set_digital_output(4000, True)


def test_other_threads_go_on_while_one_waits_for_the_box(box):
    done, turns = threading.Event(), 0
    sleeper = threading.Thread(target=lambda: (raw.rt_sleep(box, 500), done.set()))
    sleeper.start()
    while not done.is_set():
        turns += box.digital_input(0) is not None
        time.sleep(0.001)
    sleeper.join()
    assert turns > 20


def test_a_fault_of_the_box_is_told(logs):
    with Simulator(1, "--fault", "answer:qorin_rpc_robot_servo_switch_set:102035") as simulator:
        with qorin.connect(simulator.address) as box, box.control():
            box.create_system()
            with box.create_robot(qorin.RobotModel.ARM_C) as robot:
                with pytest.raises(qorin.RobotError) as refused:
                    robot.servo = True
                assert refused.value.code == qorin.ApiResult.ROBOT_ECAT_NOT_CONNECTED


def test_a_lost_link_ends_all_that_waits(box):
    with Simulator(2) as simulator:
        lost = qorin.connect(simulator.address)
        assert lost.id != box.id and str(lost.id) in repr(lost)
        stream = lost.events()
    for wait in (lost.check, lambda: lost.wait_for(timeout=30), lambda: next(stream)):
        begin = time.monotonic()
        with pytest.raises(qorin.LinkLostError) as error:
            wait()
        assert isinstance(error.value, ConnectionError) and time.monotonic() - begin < 5
    lost.close()
    assert list(stream) == []
    with pytest.raises(ValueError):
        lost.wait_for(timeout=30)
    box.check()


def test_other_versions_are_refused(python, logs):
    told, status = python("-c", "import qorin", LD_PRELOAD=os.environ["QORIN_OTHER_VERSION"])
    assert status == 1 and "ImportError: the library QORIN.v4.000.000.000 is newer than this package" in told
    program = "import qorin, sys; print(qorin.connect(sys.argv[1], log_directory=sys.argv[2], {}))"
    with Simulator(3, "--version-text", "QORIN.v3.007.000.000") as simulator:
        told, status = python("-c", program.format(""), simulator.address, logs)
        assert status == 1 and "VersionError" in told and "control box: QORIN.v3.007.000.000." in told
        told, status = python("-c", program.format("accept_other_versions=True"), simulator.address, logs)
        assert (status, told) == (0, f"<Box 0 at {simulator.address}>\n")
    with pytest.raises(qorin.CboxError):
        qorin.connect(simulator.address)
    with pytest.raises(FileNotFoundError):
        qorin.connect(simulator.address, "nowhere.ini")
    assert len(os.sched_getaffinity(0)) == os.cpu_count()


def test_help_and_repr_tell(box, robot):
    for entry in (qorin.Robot.joints, qorin.Robot.tcp, qorin.SafetyLimits.joint_ranges, qorin.Robot.payload):
        assert "degrees" in entry.__doc__ or "millimetres" in entry.__doc__
    with robot.joint_motion(READY) as motion, robot.create_recording() as recording, box.events() as stream:
        for thing in (box, robot, motion, recording, stream, robot.limits, robot.stream_joints(), box.memory,
                      box.control(), box.on(print), box.create_robot.__self__):
            assert box.address in repr(thing)
    assert repr(raw.robot_tcp_pose_actual_get(box, robot)).startswith("qorin.raw.RobotTcpPoseActual(x=")
