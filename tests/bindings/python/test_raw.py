"""All functions of the interface, beside the table that they are made from."""
import inspect
import json
import os
import pathlib

import numpy
import pytest

import qorin
from qorin import raw
from support import READY, Simulator, eventually

TABLE = json.loads(pathlib.Path(os.environ["QORIN_FUNCTION_TABLE"]).read_text())
UNKNOWN_BOX = 4000


def arguments_for(row):
    """Something for each input that reaches the library, which does not know such a control box."""
    shapes = {"double": 0.5, "qorin_event_callback": print}
    for p in row["parameters"]:
        if p["direction"] == "in":
            shape = p["shape"] and [n if isinstance(n, int) else 2 for n in p["shape"]]
            yield UNKNOWN_BOX if p["name"] == "cbox_id" else "" if p["text"] else [1] * shape[0] if shape \
                else shapes.get(p["element"], 2)


def test_each_function_of_the_table_is_there_tells_of_itself_and_reaches_its_own():
    assert len(TABLE["functions"]) == 546
    silent = []
    for row in TABLE["functions"]:
        function = getattr(raw, row["name"].removeprefix("qorin_rpc_"))
        text = inspect.getdoc(function)
        assert row["brief"].split()[0] in text and row["header"] in text
        assert all(p["name"] in text for p in row["parameters"] if p["direction"] == "in")
        if row["name"] == "qorin_rpc_system_cbox_connect":
            continue
        try:
            function(*arguments_for(row))
            silent.append(row["name"])
        except qorin.QorinError as error:
            assert error.function == row["name"]
            assert isinstance(error, (qorin.CboxError, qorin.RobotError)) or "NO_SUPPORT" in error.name, error
    # What answers OK for every id, as its header tells, and what asks nobody.
    known = ("callback_", "wait_event", "event_queue_clear", "version_get", "quaternion", "divide_circumference",
             "joint_chaser_ip_set")
    assert [name for name in silent if not any(part in name for part in known)] == []
    assert not hasattr(raw, "internal_robot_joint_chaser_ip_set")


def test_enumerations_are_those_of_the_headers():
    for enumeration in TABLE["enumerations"]:
        name = "".join(part.capitalize() for part in enumeration["name"].split("_")[1:])
        members = getattr(qorin, name)
        assert {m.value for m in members} == {m["value"] for m in enumeration["members"]}
        for member in enumeration["members"]:
            assert member["name"].endswith(members(member["value"]).name)
    assert [bool(qorin.Switch.ON), bool(qorin.Switch.OFF)] == [True, False]
    assert repr(qorin.Switch(5)) == "<Switch.UNKNOWN_5: 5>"


def distinct_value(place, p):
    """A value that shows in which slot it arrives."""
    if p["text"]:
        return f"text {place}"
    if p["shape"]:
        count = p["shape"][0] if isinstance(p["shape"][0], int) else 6 if p["shape"] == ["joints"] else 3
        return [place + 1 + element % 50 for element in range(count)]
    if p["name"] in ("count", "size"):
        return 3
    return place + 0.5 if p["element"] == "double" else place + 10


def test_each_argument_of_each_command_arrives_in_its_slot(logs):
    """As the simulated box shows what it has read. Nearly all is refused then, since nobody has the control."""
    acting = ("qorin_rpc_system_control_take", "qorin_rpc_system_control_sw_exit", "qorin_rpc_rt_sleep")
    commands = [row for row in TABLE["functions"] if row["kind"] == "command" and row["name"] not in acting]
    sent, received = [], []
    with Simulator(4, "--log-level", "debug") as simulator:
        box = qorin.connect(simulator.address, log_directory=logs)
        for row in commands:
            values = [distinct_value(place, p) if p["direction"] == "in" else "&"
                      for place, p in enumerate(row["parameters"][1:])]
            shown = [f'"{value}"' if str(value).startswith("text") else str(value) for value in values]
            wire_name = row["name"].replace("qorin_rpc_", "qorin_")
            sent.append(f"{wire_name}({', '.join(shown)})")
            try:
                getattr(raw, wire_name.removeprefix("qorin_"))(box, *(value for value in values if value != "&"))
            except qorin.QorinError:
                pass
            while wire_name not in (line := simulator.process.stdout.readline()):
                assert line, f"{wire_name} has not arrived"
            received.append(line[line.index(wire_name):line.rindex("): ") + 1])
    assert len(sent) == 366 and received == sent


@pytest.mark.parametrize("call, error", [
    (lambda: raw.system_control_take(-1), TypeError),
    (lambda: raw.robot_speed_factor_set(0, 0, "fast"), TypeError),
    (lambda: raw.set_user_memory(0, "n" * 128, 0, 0, "", 0, 0, 0), ValueError),
    (lambda: raw.set_user_memory(0, "a\0b", 0, 0, "", 0, 0, 0), ValueError),
    (lambda: raw.robot_ext_move_joint(0, 0, 7, [1, 2, 3], 0), ValueError),
    (lambda: raw.robot_util_pose_to_joint_angle_convert(0, 0, 0, [0] * 7, [0] * 3, [0] * 3), ValueError),
    (lambda: raw.robot_tcp_divide_circumference_get(0, [1, 0], [0, 1, 0], [0, 0, 1], 4), ValueError),
])
def test_arguments_that_would_be_read_beyond_their_end_are_refused(call, error):
    with pytest.raises(error):
        call()


def test_arrays_come_and_go_in_the_places_that_the_interface_tells(box, robot):
    half = raw.robot_tcp_divide_circumference_get(box, [10, 0, 0], [0, 10, 0], [-10, 0, 0], 4)
    assert half.shape == (3, 3) and numpy.allclose(numpy.hypot(*half.T[:2]), 10)
    with pytest.raises(qorin.RobotError):
        raw.robot_tcp_divide_circumference_get(box, [10, 0, 0], [0, 10, 0], [-10, 0, 0], 0)

    raw.cbox_io_digital_output_multiple_set(box, 3, numpy.array([2, 5, 9], numpy.uint32), [1, 0, 1])
    assert eventually(lambda: box.digital_output(9))
    assert [box.digital_output(channel) for channel in (2, 5, 9)] == [True, False, True]
    robot.servo = False
    theta, d, a, alpha = raw.robot_kinematics_dh_parameter_get(box, robot, 6)
    raw.robot_kinematics_dh_parameter_set(box, robot, 6, theta, d + 1, a, alpha)
    assert numpy.allclose(raw.robot_kinematics_dh_parameter_get(box, robot, 6)[1], d + 1)
    raw.robot_kinematics_dh_parameter_set(box, robot, 6, theta, d, a, alpha)

    with robot.joint_motion(READY) as motion:
        motion.set_name("Ünit")
        assert raw.motion_command_name_get(box, motion) == "Üni"
        assert raw.motion_command_robot_joint_angle_end_get(box, motion, 2) == 60
    raw.robot_tool_io_rs485_io_tx_data_set(box, robot, 3, b"\1\2\3")
    assert eventually(lambda: raw.robot_tool_io_rs485_io_tx_data_get(box, robot, 3) == b"\1\2\3")
