#!/usr/bin/env python3
"""The subcommands of `qorin` that look at a control box and record it, driven as a user does, on a terminal and without
one."""
import contextlib
import csv
import fcntl
import json
import os
import pathlib
import pty
import re
import resource
import select
import signal
import socket
import sqlite3
import struct
import subprocess
import sys
import tempfile
import termios
import time
import unittest
import xml.etree.ElementTree

BIN = pathlib.Path(sys.argv.pop(1)).resolve()
SCENES = pathlib.Path(sys.argv.pop(1)).resolve()
PID = os.getpid()
ADDRESS = f"127.{64 + (PID >> 16 & 31)}.{PID >> 8 & 255}.{PID & 255}"
CONTROL_PORT = 7701


class box_test(unittest.TestCase):
    """Each case has a box of its own, with two robots at rest."""

    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.directory = pathlib.Path(directory.name)
        self.box = subprocess.Popen([BIN / "qorin_cbox_sim", "--address", ADDRESS, "--control", str(CONTROL_PORT),
                                     "--load", SCENES / "welding_cell.toml"], stdout=subprocess.PIPE, text=True)
        self.addCleanup(self.end_box)
        while "listening" not in self.box.stdout.readline():
            pass

    def end_box(self):
        self.box.kill()
        self.box.wait()
        self.box.stdout.close()

    def world(self, line):
        with socket.create_connection((ADDRESS, CONTROL_PORT)) as link:
            link.sendall(line.encode() + b"\n")
            self.assertEqual(b"ok", link.recv(100).strip())

    def command(self, *arguments):
        return [str(BIN / "qorin"), *map(str, arguments)]

    def at_box(self, subcommand, *arguments):
        return self.command(subcommand, "--address", ADDRESS, *arguments)

    def start(self, *arguments, **settings):
        program = subprocess.Popen(arguments, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, **settings)
        self.addCleanup(lambda: (program.kill(), program.communicate()))
        return program

    def start_at_box(self, *arguments, **settings):
        """Waits for its three links: a box tells clients apart by the order in which links come."""
        program = self.start(*self.at_box(*arguments), **settings)
        box = socket.inet_aton(ADDRESS)[::-1].hex().upper() + ":1E14"
        for _ in range(1000):
            with contextlib.suppress(FileNotFoundError):
                files = [f"/proc/{program.pid}/fd/{name}" for name in os.listdir(f"/proc/{program.pid}/fd")]
                sockets = {os.readlink(file) for file in files}
                rows = [line.split() for line in pathlib.Path("/proc/net/tcp").read_text().splitlines()]
                if sum(row[2:4] == [box, "01"] and f"socket:[{row[9]}]" in sockets for row in rows) == 3:
                    return program
            time.sleep(0.01)
        self.fail("no links")

    def expect(self, status, text, program, limit=20):
        """It ends within a limit, with one line on standard error that has the text."""
        output, errors = program.communicate(timeout=limit)
        self.assertEqual(status, program.returncode, errors)
        self.assertRegex(errors, rf"\A(qorin: showing .*\n|Connection Failed\n)?.*{text}.*\n\Z")
        return output


class terminal:
    """A program on a pseudo terminal of its own."""

    def __init__(self, arguments, rows, columns, environment=None):
        self.pid, self.file = pty.fork()
        if self.pid == 0:
            self.resize(rows, columns, 0)
            os.execve(arguments[0], arguments, {"TERM": "xterm-256color", **(environment or {})})
        self.settings = termios.tcgetattr(self.file)

    def resize(self, rows, columns, file=None):
        fcntl.ioctl(self.file if file is None else file, termios.TIOCSWINSZ, struct.pack("HHHH", rows, columns, 0, 0))

    def read(self, seconds, until="nothing that it writes"):
        """What it writes within so many seconds, until it ends or has written a text."""
        output = b""
        end = time.monotonic() + seconds
        with contextlib.suppress(OSError):
            while until.encode() not in output and (left := end - time.monotonic()) > 0 and select.select([self.file], [], [], left)[0]:
                output += os.read(self.file, 65536)
        return output.decode()

    def wait(self):
        return os.waitstatus_to_exitcode(os.waitpid(self.pid, 0)[1])


def lines_of(output):
    """The lines that a page writes, by their rows, without colours."""
    places = re.findall(r"\x1b\[(\d+);1H\x1b\[2K(.*?)(?=\x1b\[\d+;1H|\x1b\[\?)", output, re.S)
    return {int(row): re.sub(r"\x1b\[[\d;]*m", "", text) for row, text in places}


class looking(box_test):
    def test_status_tells_box_and_robots_of_another_program(self):
        told = json.loads(subprocess.check_output(self.at_box("status", "--json")))
        self.assertEqual(("3GEN_SIM", 8, 4.2), tuple(told["cbox"][key] for key in
                                                     ("model", "digital_inputs", "analog_input0")))
        self.assertEqual(["ARM_C", "ARM_E"], [told[f"robot{id}"]["model"] for id in (0, 1)])
        self.assertEqual([0, 0, 90, 0, 90, 0], [told["robot0"][f"joint{joint}"]["angle"] for joint in range(6)])
        self.assertEqual(told["library"], told["control_software"])
        self.world("set emergency_button 0 = 1")
        page = subprocess.check_output(self.at_box("status"), text=True)
        self.assertRegex(page, r"buttons +emergency pushed, power released\n")
        self.assertRegex(page, r"Robot 1  ARM_E   servo off   \w+.*\n(.*\n)*angle deg +0\.000 +0\.000 +90\.000")
        self.assertNotIn("\x1b", page)

    def test_colours_are_on_a_terminal_unless_they_are_not_wanted(self):
        for environment, has_colours in (({}, True), ({"NO_COLOR": "1"}, False), ({"TERM": "dumb"}, False)):
            program = terminal(self.at_box("status"), 60, 100, environment)
            self.assertEqual(has_colours, "\x1b[" in program.read(20), environment)
            self.assertEqual(0, program.wait())

    def test_watch_stays_in_its_window_and_gives_the_terminal_back(self):
        program = terminal(self.at_box("watch"), 24, 80)
        first = program.read(20, "\x1b[?2026l")
        self.assertTrue(first.startswith("\x1b[?1049h\x1b[?25l"), first[:40])
        page = lines_of(first)
        self.assertLessEqual(max(page), 24)
        self.assertLessEqual(max(map(len, page.values())), 80)
        for text in ("Control box " + ADDRESS, "Robot 0  ARM_C", "Robot 1  ARM_E", "TCP mm, deg"):
            self.assertTrue(any(text in line for line in page.values()), text)
        self.assertEqual({}, lines_of(program.read(1)), "nothing changes and yet lines are written")
        self.world("set emergency_button 0 = 1")
        changed = lines_of(program.read(20, "EMG_PUSHED") + program.read(0.5))
        self.assertIn("emergency pushed", "".join(changed.values()))
        self.assertIn("CONTROL_BOX_BUTTON_CHANGED_EMG_PUSHED", "".join(changed.values()))
        program.resize(9, 40)
        small = lines_of(program.read(20, "\x1b[2J") + program.read(1))
        self.assertEqual((9, 40), (max(small), max(map(len, small.values()))))
        os.write(program.file, b"\x03")
        self.assertTrue(program.read(20).endswith("\x1b[?25h\x1b[?1049l"))
        self.assertEqual(0, program.wait())
        self.assertEqual(program.settings, termios.tcgetattr(program.file))

    def test_watch_without_a_terminal_writes_a_line_a_second(self):
        output = subprocess.check_output(self.at_box("watch", "--seconds", "2.5"), text=True)
        self.assertIn(len(output.splitlines()), (2, 3), output)
        for line in output.splitlines():
            self.assertRegex(line, r"^[\d:.]+ EtherCAT connected, .*robot 0: servo off, idle, safe, joints 0\.000 ")

    def test_events_come_with_name_sender_and_advice(self):
        everything = self.start_at_box("events", "--follow", "--json")
        buttons = self.start_at_box("events", "--seconds", 4, "--group", "button")
        for program in everything, buttons:
            self.assertIn("those before now are not known", program.stderr.readline())
        self.world("set emergency_button 0 = 1")
        self.world("set redundant_input 0 2 = 1")
        self.assertRegex(buttons.communicate(timeout=10)[0],
                         r"\A[\d:.]+  CONTROL_BOX_BUTTON_CHANGED_EMG_PUSHED  sender 0\n\Z")
        everything.send_signal(signal.SIGINT)
        events = [json.loads(line) for line in everything.communicate(timeout=10)[0].splitlines()]
        self.assertEqual(0, everything.returncode)
        self.assertEqual((307003, "CONTROL_BOX_BUTTON_CHANGED"), (events[0]["code"], events[0]["group"]))

    def test_a_box_that_stands_still_is_given_up(self):
        programs = [self.start_at_box("watch"), self.start_at_box("events", "--follow")]
        programs[0].stdout.readline()
        programs[1].stderr.readline()
        self.box.send_signal(signal.SIGSTOP)
        for program in programs:
            self.expect(1, "has sent nothing for 5 seconds", program, 10)
        self.expect(1, "sends no status", self.start(*self.at_box("status")), 10)

    def test_a_box_that_ends_is_told(self):
        program = self.start(*self.at_box("watch"))
        program.stdout.readline()
        self.box.kill()
        self.expect(1, "has closed the links", program, 3)
        self.expect(1, f"no control box at {ADDRESS}: ", self.start(*self.at_box("status")), 5)

    def test_arguments_that_make_no_sense_are_told(self):
        for arguments, text in ((("events", "--group", "robot"), "more than one event group: ROBOT; groups are ERROR, "),
                                (("events", "--seconds", 1, "--follow"), "--follow"),
                                (("watch", "--seconds", "-1"), "--seconds")):
            self.expect(2, text, self.start(*self.at_box(*arguments)), 5)


def csv_rows(path):
    """The rows of a recording by their columns, and its comments."""
    lines = path.read_text().splitlines()
    comments = [line[2:] for line in lines if line.startswith("# ")]
    return list(csv.DictReader(line for line in lines if not line.startswith("#"))), comments


class recording(box_test):
    def record(self, file, *arguments, **settings):
        return self.start_at_box("record", self.directory / file, *arguments, **settings)

    def wait_for_file(self, file):
        """A recording begins when the connection stands."""
        while not (self.directory / file).exists():
            time.sleep(0.05)
        time.sleep(0.2)

    def plot(self, file, *arguments, environment=None):
        return self.start(*self.command("plot", self.directory / file, *arguments), env=environment)

    def test_both_forms_keep_a_session_of_another_program(self):
        config = self.directory / "config.ini"
        config.write_text(f"[client]\nlog_save_path={self.directory}\nlog_print_out=off\n"
                          f"kinematics_path={BIN.parent}/lib/qorin/kinematics\n"
                          "[server]\nlog_trans=off\n[common]\ntransfer_protocol=tcp\n")
        programs = [self.record(file, "--rate", 100) for file in ("run.sqlite", "run.csv")]
        self.wait_for_file("run.csv")
        subprocess.check_output([BIN / "two_robots", ADDRESS, config])
        for program in programs:
            program.send_signal(signal.SIGINT)
            self.assertRegex(program.communicate(timeout=5)[0], r"seconds, \d+ samples, 1\d events")
            self.assertEqual(0, program.returncode)
        rows, comments = csv_rows(self.directory / "run.csv")
        database = sqlite3.connect(self.directory / "run.sqlite")
        angle = '"robot0.joint0.angle"'
        for told in ([float(row["robot0.joint0.angle"]) for row in rows if row["robot0.joint0.angle"]],
                     [value for value, in database.execute(f"SELECT {angle} FROM status WHERE {angle} NOT NULL")]):
            self.assertGreater(len(told), 200)
            self.assertAlmostEqual(60, max(told), delta=0.1)
        events = [name for name, in database.execute("SELECT event FROM events ORDER BY time")]
        self.assertEqual([row["event"] for row in rows if row["event"]][-6:], events[-6:])
        self.assertEqual("NOTIFICATION_CONTROL_RELEASE", events[-1])
        self.assertEqual({"MOVING", "IDLE"}, {row["robot1.moving"] for row in rows} - {""})
        # The robots of the scene, then those of the program.
        self.assertEqual([(0, "ARM_C"), (1, "ARM_E")],
                         database.execute("SELECT robot, model FROM robots ORDER BY time LIMIT 2").fetchall())
        self.assertEqual((0, 262, 0, -90), database.execute("SELECT dh_1, dh_2, dh_3, dh_4 FROM robot_joints"
                                                            " WHERE robot = 0 AND joint = 0").fetchone())
        self.assertIn("0,ARM_C,6,0,-90,-90,0,0,180,262,", "".join(comments))
        self.assertEqual([("deg",)], database.execute(f"SELECT unit FROM fields WHERE name = {angle[1:-1]!r}").fetchall())
        for file in "run.sqlite", "run.csv":
            text = self.plot(file, "robot0.joint0.angle", "robot0.moving").communicate(timeout=10)[0]
            self.assertRegex(text, r"MOVING \|.*[\u2801-\u28ff]")
            self.assertRegex(text, r"robot0\.joint0\.angle +-?[0-9.e-]+ to 60 deg\n")
        for picture, beginning in ("run.png", b"\x89PNG"), ("run.svg", b"<?xml"):
            program = self.plot("run.sqlite", "*.angle", "robot0.moving", "--events", "-o", self.directory / picture)
            self.assertEqual(("", ""), program.communicate(timeout=20))
            self.assertTrue((self.directory / picture).read_bytes().startswith(beginning))
        texts = "".join(xml.etree.ElementTree.parse(self.directory / "run.svg").getroot().itertext())
        for text in "robot1.joint5.angle", "MOVING", "deg", "NOTIFICATION_CONTROL_RELEASE", "time, s":
            self.assertIn(text, texts)

    def test_fields_are_chosen_and_files_are_not_lost(self):
        self.record("a.csv", "--seconds", 0.5, "--fields", "cbox.d*", "robot?.joint1.safety_*").communicate(timeout=10)
        rows, _ = csv_rows(self.directory / "a.csv")
        self.assertEqual({"cbox.digital_inputs": "8", "robot1.joint1.safety_speed": "140"},
                         {name: rows[0][name] for name in ("cbox.digital_inputs", "robot1.joint1.safety_speed")})
        self.assertEqual(1 + 2 + 2 * 4 + 8, len(rows[0]))
        self.assertEqual(25, sum(not row["event"] for row in rows))
        for status, text, arguments in ((1, "is there already; --force replaces it", ("a.csv",)),
                                        (2, "ends in .csv, .sqlite or .db", ("a.txt",)),
                                        (2, "no field is called robot2", ("b.db", "--fields", "robot2.*")),
                                        (1, "nowhere/b.csv: No such file", ("nowhere/b.csv",)),
                                        (1, "nowhere/b.db: unable to open", ("nowhere/b.db",)),
                                        (2, "--rate", ("b.csv", "--rate", "0"))):
            program = self.start(*self.at_box("record", self.directory / arguments[0], *arguments[1:]))
            self.expect(status, text, program)
        self.assertEqual(0, self.record("a.csv", "--seconds", 0.2, "--force").wait(10))

    def test_what_was_recorded_outlasts_every_end(self):
        (self.directory / "full.csv").symlink_to("/dev/full")
        self.expect(1, "full.csv: No space left on device", self.record("full.csv", "--force"))
        limit = {"preexec_fn": lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (400000, 400000))}
        limited = self.record("limited.sqlite", "--rate", 200, **limit)
        killed = {file: self.record(file) for file in ("killed.sqlite", "killed.csv")}
        self.expect(1, r"limited.sqlite: .*; .* has the \d\.\d seconds before", limited)
        self.wait_for_file("killed.csv")
        time.sleep(2)
        for program in killed.values():
            program.kill()
            program.wait()
        left = {file: self.record(file) for file in ("left.db", "left.csv")}
        self.wait_for_file("left.csv")
        time.sleep(2)
        self.box.kill()
        for program in left.values():
            self.expect(1, "has closed the links; .* has the [1-9].* seconds before", program)
        for file in ("limited.sqlite", *killed, *left):
            output = self.plot(file, "--list").communicate(timeout=10)[0]
            self.assertRegex(output, r"duration +[1-9][0-9.]* s\nrobot0 +ARM_C, 6 joints", file)
            self.assertEqual(0, self.plot(file).wait(20), file)

    def test_what_is_no_recording_is_told(self):
        good = "# qorin recording 1\n# units: s,deg\ntime,a,event_group,event,sender," + \
            ",".join(f"parameter_{i}" for i in range(1, 6)) + "\n0.5,7,,,,,,,,\n"
        for name, text, complaint in (("missing.csv", None, "missing.csv: No such file"),
                                      ("missing.db", None, "missing.db: unable to open"),
                                      ("empty.csv", "", "no recording of qorin"),
                                      ("other.csv", "time,a\n0,1\n", "no recording of qorin"),
                                      ("head.csv", good[:40], "head.csv:"),
                                      ("columns.csv", good.replace("time,a", "a"), "columns.csv:3: no names of"),
                                      ("units.csv", good.replace("s,deg", "s"), "units.csv:3: 2 columns with 1 units"),
                                      ("word.csv", good.replace(",7,", ",seven,"), 'word.csv:4: "seven" is no number'),
                                      ("short.csv", good.replace(",7,,", ","), "short.csv:4: 8 columns instead of 10"),
                                      ("quote.csv", good.replace("7", '"7'), "quote.csv:4: a quotation"),
                                      ("robot.csv", good + "# robot: 1,0,ARM\n", "robot.csv:5: a robot"),
                                      ("empty.db", "", "no recording of qorin"),
                                      ("text.db", good * 10, "text.db: file is not a database")):
            with self.subTest(name):
                if text is not None:
                    (self.directory / name).write_text(text)
                self.expect(1, complaint, self.plot(name, "a"), 5)
        (self.directory / "good.csv").write_text(good + "0.6,8")  # cut short by a crash
        self.assertIn("7 to 7 deg", self.plot("good.csv", "a").communicate()[0])
        self.expect(1, "gnuplot is not installed", self.plot("good.csv", "a", "-o", "x.png", environment={"PATH": "/"}))
        self.expect(1, "/nowhere/x.png: No such file", self.plot("good.csv", "a", "-o", "/nowhere/x.png"))
        self.expect(2, "ends in .svg or .png", self.plot("good.csv", "a", "-o", "x.jpg"))


if __name__ == "__main__":
    unittest.main()
