"""Connections to control boxes, and what a control box is without its robots."""
from __future__ import annotations

import asyncio
import os
import pathlib
import tempfile
import time
import weakref
from typing import Iterator, MutableMapping, Union

from qorin import _native, raw
from qorin.enumerations import ApiResult, ButtonState, CboxModel, EcatConnState, RobotModel, UserDataType
from qorin.errors import MemoryKeyError, QorinWarning, RobotError, VersionError, error_of
from qorin.events import Event, EventStream, Filter, Handler, Registration, event_of
from qorin.motion import end_quietly
from qorin.robot import Robot

Path = Union[str, "os.PathLike[str]"]
Value = Union[bool, int, float, str]


def connect(address: str, config: Path | None = None, *, log_directory: Path | None = None,
            print_log: bool = False, kinematics_directory: Path | None = None, accept_other_versions: bool = False) -> Box:
    """Connects to a control box at an IPv4 address. Takes at least 2.3 seconds.

    config: a configuration file. Without one, what follows tells the configuration. There is one for the process, that
        of its first connection.
    log_directory: where each run makes directories of its own for its logs. That for temporary files if it is not told.
    print_log: writes them on standard output, too.
    kinematics_directory: where the kinematics modules are. Those that came with the library if it is not told.
    accept_other_versions: goes on although the control box is of another version than the library.

    A connection lasts until the process ends; `close()` takes handlers off. One thread at a time may connect.
    """
    cores = os.sched_getaffinity(0)  # the library pins the thread that connects, and Python would go on with one core
    memory = None
    try:
        if config is None:
            memory = os.memfd_create("qorin")
            modules = kinematics_directory or _native.kinematics_directory()
            os.write(memory, _configuration(log_directory or tempfile.gettempdir(), print_log, modules).encode())
            config = f"/proc/self/fd/{memory}"
        elif not os.access(config, os.R_OK):  # a second attempt would go on without a configuration
            raise FileNotFoundError(f"no configuration at {config}")
        code, number = _native.connect(os.fspath(config), address)
    finally:
        os.sched_setaffinity(0, cores)
        if memory is not None:
            os.close(memory)
    if code == ApiResult.ERROR_SW_VER_NOT_MATCHED and not accept_other_versions:
        error = VersionError(code, "qorin_rpc_system_cbox_connect")
        error.text += (f" Library: {_native.library_version()}, control box: "
                       f"{raw.system_control_sw_version_get(number)}.")
        raise error
    if code not in (ApiResult.OK, ApiResult.ERROR_SW_VER_NOT_MATCHED):
        raise error_of(code, "qorin_rpc_system_cbox_connect")
    return Box(number, address)


def _configuration(log_directory: Path, print_log: bool, kinematics_directory: Path) -> str:
    logs, modules = (pathlib.Path(one).absolute() for one in (log_directory, kinematics_directory))
    return (f"[client]\nlog_save_path={logs}\nlog_print_out={'on' if print_log else 'off'}\n"
            f"kinematics_path={modules}\n[server]\nlog_trans=off\n[common]\ntransfer_protocol=tcp\n")


class Control:
    """The control of a control box, in which one client is at a time: from `with` to its end."""

    def __init__(self, box: Box) -> None:
        self._box = box

    def take(self) -> None:
        raw.system_control_take(self._box)

    def release(self) -> None:
        raw.system_control_release(self._box)

    def __enter__(self) -> Control:
        self.take()
        return self

    def __exit__(self, kind: type[BaseException] | None, *_: object) -> None:
        end_quietly(kind, self.release)

    def __repr__(self) -> str:
        return f"<Control of {self._box!r}>"


class UserMemory(MutableMapping[str, Value]):
    """Values that a control box keeps by name, for its clients and programs to share.

    Texts can be kept, and not read back: the interface has no room for them. Names cannot be listed.
    """

    def __init__(self, box: Box) -> None:
        self._box = box

    def __setitem__(self, name: str, value: Value) -> None:
        if isinstance(value, bool):
            self._keep(name, UserDataType.TYPE_BOOL, truth=value)
        elif isinstance(value, int):
            self._keep(name, UserDataType.TYPE_INT, integer=value)
        elif isinstance(value, float):
            self._keep(name, UserDataType.TYPE_DOUBLE, real=value)
        else:
            self._keep(name, UserDataType.TYPE_STRING, text=value)

    def _keep(self, name: str, kind: UserDataType, integer: int = 0, text: str = "", truth: bool = False,
              real: float = 0) -> None:
        raw.set_user_memory(self._box, name, kind, integer, text, truth, real, 0)

    def __getitem__(self, name: str) -> Value:
        kept = raw.get_user_memory(self._box, name)
        if kept.type == UserDataType.TYPE_STRING:
            raise TypeError(f"{name!r} is a text, and the control box gives none back")
        values: dict[int, Value] = {UserDataType.TYPE_BOOL: bool(kept.char_value), UserDataType.TYPE_INT: kept.int_value,
                                    UserDataType.TYPE_DOUBLE: kept.double_value,
                                    UserDataType.TYPE_LONGLONG: kept.long_value}
        return values[kept.type]

    def __delitem__(self, name: str) -> None:
        raw.delete_user_memory(self._box, name)

    def __contains__(self, name: object) -> bool:
        try:
            raw.get_user_memory(self._box, str(name))
        except MemoryKeyError:
            return False
        return True

    def clear(self) -> None:
        raw.clear_user_memory(self._box)

    def __iter__(self) -> Iterator[str]:
        raise TypeError("the control box does not list the names of its user memory")

    def __len__(self) -> int:
        raise TypeError("the control box does not count its user memory")

    def __repr__(self) -> str:
        return f"<UserMemory of {self._box!r}>"


class Box:
    """A connection to a control box, made by `connect()`.

    Status is answered at once from the latest frame, all else waits for the control box. When the link is lost, every
    command raises LinkLostError and the status stands still.
    """

    def __init__(self, number: int, address: str) -> None:
        self.id = number
        self.address = address
        self.memory = UserMemory(self)
        self._closed = False
        self._streams: weakref.WeakSet[EventStream] = weakref.WeakSet()
        _native.open_box(number)

    def __index__(self) -> int:
        return self.id

    def __enter__(self) -> Box:
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    def __repr__(self) -> str:
        return f"<Box {self.id} at {self.address}{', closed' if self._closed else ''}>"

    def close(self) -> None:
        """Ends streams and waits. The connection itself stays until the process ends."""
        if self._closed:
            return
        self._closed = True
        for stream in list(self._streams):
            stream.close()
        _native.close_box(self.id)

    # System and control.

    @property
    def version(self) -> str:
        """Version of the control software, as the first connection of this process has met it."""
        return raw.system_control_sw_version_get(self) or ""

    def create_system(self, model: CboxModel = CboxModel.MODEL_3GEN_SIM, robots: int = 1, text: str = "") -> None:
        """Has the control software make its system. That it stands already is fine."""
        try:
            if robots == 1:
                raw.gen_system_create(self, text, model)
            else:
                raw.gen_multi_robot_system_create(self, text, model, robots)
        except QorinWarning as warning:
            if warning.code != ApiResult.WARNING_SYSTEM_ALREADY_CREATED:
                raise

    def destroy_system(self) -> None:
        raw.system_destroy(self)

    def reset(self) -> None:
        """Resets the system of the control software."""
        raw.system_reset(self)

    def control(self) -> Control:
        """The control of the box, for a `with` block."""
        return Control(self)

    @property
    def in_control(self) -> bool:
        """Whether this client may command. Asks the control box."""
        return bool(raw.system_controllable_get(self))

    def check(self) -> None:
        """Raises LinkLostError unless the control box answers."""
        raw.system_controllable_get(self)

    # Robots.

    def create_robot(self, model: RobotModel, replace: bool = False, text: str = "", value: int = 0) -> Robot:
        """Creates a robot, and destroys it at the end of a `with` block.

        replace: a robot that a program has left on the box, where there is room for no other, goes first.
        text, value: for the control software, which defines their meaning.
        """
        try:
            number = raw.robot_create(self, model, text, value)
        except RobotError as error:
            if not replace or error.code != ApiResult.ERROR_ROBOT_CREATION_FAILURE:
                raise
            raw.robot_destroy(self, 0)
            number = raw.robot_create(self, model, text, value)
        robot = Robot(self, number, owned=True)
        robot._await_status()
        return robot

    def robot(self, number: int = 0) -> Robot:
        """A robot that another program has created, and will destroy."""
        _native.robot_attach(self, number)
        return Robot(self, number, owned=False)

    # The queue of motions.

    def start_queue(self) -> None:
        """Starts what is queued, for all robots."""
        raw.motion_command_queue_flush(self)

    def clear_queue(self) -> None:
        raw.motion_command_queue_clear(self)

    # Status and I/O.

    @property
    def model(self) -> CboxModel:
        return raw.cbox_name_get(self)

    @property
    def emergency_button(self) -> ButtonState:
        return raw.cbox_emergency_button_state_get(self)

    @property
    def ecat_connection(self) -> EcatConnState:
        """State of the EtherCAT link to the devices."""
        return raw.cbox_ecat_connection_state_get(self)

    def digital_input(self, channel: int) -> bool:
        return raw.cbox_io_digital_input_get(self, channel) != 0

    def digital_output(self, channel: int) -> bool:
        return raw.cbox_io_digital_output_get(self, channel) != 0

    def set_digital_output(self, channel: int, on: bool) -> None:
        raw.cbox_io_digital_output_set(self, channel, int(on))

    def analog_input(self, channel: int) -> float:
        """Volts or milliamperes, as the mode of the channel says."""
        return raw.cbox_io_analog_input_get(self, channel)

    def analog_output(self, channel: int) -> float:
        """Volts or milliamperes, as the mode of the channel says."""
        return raw.cbox_io_analog_output_get(self, channel)

    def set_analog_output(self, channel: int, value: float) -> None:
        """Sets volts or milliamperes, as the mode of the channel says."""
        raw.cbox_io_analog_output_set(self, channel, value)

    # Events.

    def on(self, handler: Handler, group: int | None = None, subgroup: int | None = None,
           sender: int | None = None) -> Registration:
        """Calls a handler with each such event, on the thread of the handlers, until its registration is cancelled.

        An exception in a handler is logged and ends nothing.
        """
        return Registration(self, handler, Filter(group, subgroup, sender))

    def events(self, group: int | None = None, subgroup: int | None = None, sender: int | None = None) -> EventStream:
        """Such events from now on, for `for` and `async for`."""
        return EventStream(self, Filter(group, subgroup, sender))

    def forget_events(self) -> None:
        """Forgets past events, which waits would find."""
        _native.forget_events(self.id)

    def wait_for(self, group: int | None = None, subgroup: int | None = None, sender: int | None = None,
                 timeout: float | None = None) -> Event:
        """Blocks until such an event comes, or takes one of the latest 512 that nobody has taken; the oldest first.

        timeout: seconds. Then TimeoutError; LinkLostError when the link is lost meanwhile. Ctrl-C ends the wait.
        """
        end = time.monotonic() + (float("inf") if timeout is None else timeout)
        while True:
            left = max(0.0, end - time.monotonic())
            numbers = _native.take_event(self.id, group, subgroup, sender, int(min(left, 1) * 1000))
            if numbers is not None:
                return event_of(numbers)
            self._expect_open()
            if time.monotonic() >= end:
                raise TimeoutError(f"no such event within {timeout} s")
            self.check()

    async def wait(self, group: int | None = None, subgroup: int | None = None, sender: int | None = None,
                   timeout: float | None = None) -> Event:
        """As `wait_for()`, for asyncio."""
        async def take() -> Event:
            with self.events(group, subgroup, sender) as news:  # ahead of the look, so that none is missed
                while True:
                    numbers = _native.take_event(self.id, group, subgroup, sender, 0)
                    if numbers is not None:
                        return event_of(numbers)
                    self._expect_open()
                    await anext(news)

        try:
            return await asyncio.wait_for(take(), timeout)
        except asyncio.TimeoutError:
            raise TimeoutError(f"no such event within {timeout} s") from None

    def _expect_open(self) -> None:
        if self._closed:
            raise ValueError(f"{self!r} gives no events")
