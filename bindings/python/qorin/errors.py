"""What is raised when the control box, or the library, answers otherwise than with OK."""
from __future__ import annotations

import functools
import html
import pathlib
import re
import tempfile

from qorin import _native
from qorin.enumerations import ApiResult


class QorinError(Exception):
    """A call that did not succeed.

    code: the result, 0 when the link is lost.
    name: its name.
    text: what it says, in a sentence.
    advice: what to do about it.
    function: the function of the C interface that gave it.
    """

    def __init__(self, code: int, function: str = "") -> None:
        self.code = ApiResult(code)
        self.function = function
        self.name = _native.result_name(code)
        self.text = _native.result_text(code)
        if self.name == "Not Found":  # the library's catalogue has not all of them
            self.name = f"QORIN_API_RESULT_{self.code.name}"
            self.text = "No description."
        super().__init__(code, function)

    @property
    def advice(self) -> str:
        return _advice().get(int(self.code), "")

    def __str__(self) -> str:
        told = f"{self.function}: {int(self.code)} {self.name}: {self.text}"
        return f"{told} {self.advice}".rstrip()

    def __repr__(self) -> str:
        return f"{type(self).__name__}({int(self.code)}, {self.function!r}): {self.name}"


class LinkLostError(QorinError, ConnectionError):
    """The command link to the control box is gone for good. What remains is a new connection."""

    def __init__(self, code: int = 0, function: str = "") -> None:
        super().__init__(code, function)
        self.name = "LINK_LOST"
        self.text = "The command link to the control box is lost."

    @property
    def advice(self) -> str:
        return "Connect again: the new connection has a new id."


class SystemFailure(QorinError):
    """Of the system: its creation, its software, its configuration. Codes from 100000 on."""


class ControlError(SystemFailure):
    """Somebody else has the control, or nobody."""


class VersionError(SystemFailure):
    """Package, library and control box are not of one version."""


class CboxError(QorinError):
    """Of the control box and its I/O, or an id that is not connected. Codes from 101000 on."""


class RobotError(QorinError):
    """Of a robot, its joints, its tool or its recordings. Codes from 102000 on."""


class MotionError(QorinError):
    """Of a motion command. Codes from 104000 on."""


class MemoryKeyError(QorinError, KeyError):
    """Of the user memory. Codes from 105000 on."""

    __str__ = QorinError.__str__


class FieldbusError(QorinError):
    """Of a fieldbus or a device on it. Codes from 106000 on."""


class InternalError(QorinError):
    """Of the library or the control software themselves. Codes from 190000 on."""


class QorinWarning(QorinError):
    """Something was not as it should be, and may have been done all the same. Codes from 200000 on."""


_SINGLE: dict[int, type[QorinError]] = {
    0: LinkLostError,
    ApiResult.ERROR_CONTROL_TAKE_FAILURE: ControlError,
    ApiResult.ERROR_YOU_DONT_HAVE_THE_CONTROL: ControlError,
    ApiResult.WARNING_YOU_DONT_HAVE_THE_CONTROL: ControlError,
    ApiResult.ERROR_SW_VER_NOT_MATCHED: VersionError,
}
_FAMILIES: dict[int, type[QorinError]] = {
    100: SystemFailure, 101: CboxError, 102: RobotError, 103: RobotError, 104: MotionError, 105: MemoryKeyError,
    106: FieldbusError, 190: InternalError, 200: QorinWarning,
}


def error_of(code: int, function: str) -> QorinError:
    """The exception for a result code, of the class of its family."""
    kind: type[QorinError] = _SINGLE.get(code, _FAMILIES.get(code // 1000, QorinError))
    return kind(code, function)


@functools.cache
def _advice() -> dict[int, str]:
    """The library tells most of its advice in the form of a file alone."""
    with tempfile.TemporaryDirectory() as directory:
        path = pathlib.Path(directory, "results.xml")
        _native.save_results(str(path))
        catalogue = path.read_text(encoding="utf-8", errors="replace")
    rows = re.findall(r"<Code>(\d+)</Code>.*?<HowToHandle>(.*?)</HowToHandle>", catalogue, re.DOTALL)
    return {int(code): html.unescape(advice).strip() for code, advice in rows}
