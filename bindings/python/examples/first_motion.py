"""Moves a robot: all joints to where lines can begin, then the TCP along a square.

    first_motion.py [ADDRESS]
"""
import sys

import qorin

READY = [0, 20, 60, 0, 100, 0]  # degrees; the arm bent, its tool downwards
CORNERS = [(0, 80, 0), (0, 80, -80), (0, 0, -80), (0, 0, 0)]  # millimetres from where the square begins


def main(address: str) -> None:
    with qorin.connect(address) as box, box.control():
        box.create_system()
        with box.create_robot(qorin.RobotModel.ARM_C, replace=True) as robot:
            robot.servo = True
            robot.move_joints(READY, speed=90, acceleration=300, timeout=30)
            begin = robot.tcp[:3]
            for corner in CORNERS:
                robot.move_line(begin + corner, speed=200, acceleration=800, timeout=30)
                print("TCP at", *(f"{value:.1f}" for value in robot.tcp[:3]))


if __name__ == "__main__":
    try:
        main(*sys.argv[1:2] or ["127.0.0.1"])
    except (qorin.QorinError, TimeoutError) as error:
        sys.exit(f"first_motion: {error}")
