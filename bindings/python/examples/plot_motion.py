"""Records joint angles and speeds while a robot moves, and plots them.

    plot_motion.py [ADDRESS [FILE]]

With a file the picture goes there, else it is shown.
"""
import sys
import time

import matplotlib.pyplot as plt
import numpy

import qorin


def record(robot: qorin.Robot, motion: qorin.Motion, period: float = 0.004) -> tuple[qorin.Array, qorin.Array, qorin.Array]:
    """Times in seconds, and a row of joint angles and of joint speeds for each, until the motion ends."""
    times, angles, speeds = [], [], []
    begin = time.monotonic()
    motion.start()
    while not motion.has_ended() and time.monotonic() - begin < 30:
        times.append(time.monotonic() - begin)
        angles.append(robot.joints)
        speeds.append(robot.joint_speeds)
        time.sleep(period)
    return numpy.array(times), numpy.array(angles), numpy.array(speeds)


def plot(times: qorin.Array, angles: qorin.Array, speeds: qorin.Array) -> None:
    figure, (above, below) = plt.subplots(2, sharex=True)
    for joint in range(angles.shape[1]):
        above.plot(times, angles[:, joint], label=f"joint {joint}")
        below.plot(times, speeds[:, joint])
    above.set_ylabel("degrees")
    above.legend(loc="upper right", fontsize="small")
    below.set_ylabel("degrees a second")
    below.set_xlabel("seconds")
    figure.tight_layout()


def main(address: str = "127.0.0.1", file: str = "") -> None:
    with qorin.connect(address) as box, box.control():
        box.create_system()
        with box.create_robot(qorin.RobotModel.ARM_C, replace=True) as robot:
            robot.servo = True
            robot.move_joints([0, 20, 60, 0, 100, 0], speed=90, timeout=30)
            with robot.joint_motion([60, 0, 90, 30, 70, -90], speed=90, acceleration=200) as motion:
                times, angles, speeds = record(robot, motion)
    print(f"{len(times)} samples in {times[-1]:.1f} s, the fastest joint at {abs(speeds).max():.0f} degrees a second")
    plot(times, angles, speeds)
    if file:
        plt.savefig(file)
    else:
        plt.show()


if __name__ == "__main__":
    try:
        main(*sys.argv[1:3])
    except (qorin.QorinError, TimeoutError) as error:
        sys.exit(f"plot_motion: {error}")
