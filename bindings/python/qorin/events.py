"""Events that a control box pushes: handlers, streams and waits.

The library hands events over on a thread that must never stand still. Here they go through a queue to a thread of
Python's own, `qorin-events`, which calls the handlers one after the other: a slow one holds up the others and nothing
else, and may command, register and wait as it likes.
"""
from __future__ import annotations

import asyncio
import atexit
import collections
import logging
import queue
import threading
from typing import TYPE_CHECKING, Any, Callable, NamedTuple

from qorin import _native
from qorin.enumerations import EventGrp, EventSubgrp

if TYPE_CHECKING:
    from qorin.box import Box

_log = logging.getLogger("qorin")
_Numbers = tuple[int, int, int, int, int, int, int, int]


class Event(NamedTuple):
    """What a control box has told.

    group, subgroup: what has happened.
    sender: whom it is about; the id of a motion, of a robot, ... as the event has it.
    values: five integers whose meaning depends on the event.
    """

    group: EventGrp
    subgroup: EventSubgrp
    sender: int
    values: tuple[int, int, int, int, int]

    def __repr__(self) -> str:
        return f"<Event {self.subgroup.name} of {self.sender} {self.values}>"


Handler = Callable[[Event], object]


class Filter(NamedTuple):
    """Which events are wanted: all, or those that have what is told."""

    group: int | None = None
    subgroup: int | None = None
    sender: int | None = None

    def lets_through(self, numbers: _Numbers) -> bool:
        return all(wanted in (None, got) for wanted, got in zip(self, numbers))


class Registration:
    """A handler at work, until `cancel()` or the end of a `with` block."""

    def __init__(self, box: Box, handler: Handler, wanted: Filter) -> None:
        self.handler = handler
        self.wanted = wanted
        self._box = box
        self.active = True
        _post.add(box.id, self)

    def cancel(self) -> None:
        """Takes the handler off. No call of it begins any more."""
        self.active = False
        _post.remove(self._box.id, self)

    def __enter__(self) -> Registration:
        return self

    def __exit__(self, *_: object) -> None:
        self.cancel()

    def __repr__(self) -> str:
        state = "active" if self.active else "cancelled"
        return f"<Registration of {self.handler!r} with {self._box!r}, {state}>"


class EventStream:
    """Events as they come, for `for` and `async for`, from the making of the stream on.

    Ends when the stream or the connection is closed. Raises LinkLostError when the link is lost.
    """

    def __init__(self, box: Box, wanted: Filter) -> None:
        self._box = box
        self._events: queue.SimpleQueue[Event | None] = queue.SimpleQueue()
        self._wake: Callable[[], object] = lambda: None
        self._registration = Registration(box, self._put, wanted)
        box._streams.add(self)

    def close(self) -> None:
        """Ends the stream, behind the events that it holds already."""
        self._registration.cancel()
        self._put(None)

    def _put(self, event: Event | None) -> None:
        self._events.put(event)
        self._wake()

    def __iter__(self) -> EventStream:
        return self

    def __next__(self) -> Event:
        while True:
            try:
                event = self._events.get(timeout=1)
                break
            except queue.Empty:
                self._box.check()
        if event is None:
            self._put(None)
            raise StopIteration
        return event

    def __aiter__(self) -> EventStream:
        return self

    async def __anext__(self) -> Event:
        loop = asyncio.get_running_loop()
        news = asyncio.Event()

        def wake() -> None:
            try:
                loop.call_soon_threadsafe(news.set)
            except RuntimeError:  # the loop is closed, and nobody waits
                pass

        self._wake = wake
        while self._events.empty():
            try:
                await asyncio.wait_for(news.wait(), 1)
            except asyncio.TimeoutError:
                await loop.run_in_executor(None, self._box.check)
        event = self._events.get_nowait()
        if event is None:
            self._put(None)
            raise StopAsyncIteration
        return event

    def __enter__(self) -> EventStream:
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    def __repr__(self) -> str:
        return f"<EventStream of {self._box!r}, {self._events.qsize()} waiting>"


class _PostOffice:
    """The thread of the handlers, from the first one on, and whom it serves."""

    def __init__(self) -> None:
        self._lock = threading.Lock()
        self._thread: threading.Thread | None = None
        self._listeners: dict[int, tuple[Registration, ...]] = collections.defaultdict(tuple)
        self._raw_handlers: list[Callable[..., object]] = []

    def add(self, box: int, registration: Registration) -> None:
        with self._lock:
            self._listeners[box] += (registration,)
            _native.listen(box, True)
            self._start()

    def remove(self, box: int, registration: Registration) -> None:
        with self._lock:
            left = tuple(one for one in self._listeners[box] if one is not registration)
            self._listeners[box] = left
            if not left:
                _native.listen(box, False)

    def target_of(self, handler: Callable[..., object]) -> int:
        """The number by which events come for a handler of the raw functions; it is kept for good."""
        with self._lock:
            if handler not in self._raw_handlers:
                self._raw_handlers.append(handler)
            self._start()
            return _native.boxes_most + self._raw_handlers.index(handler)

    def _start(self) -> None:
        if self._thread is None:
            self._thread = threading.Thread(target=self._deliver, name="qorin-events", daemon=True)
            self._thread.start()
            atexit.register(self._end)

    def _end(self) -> None:
        _native.end_deliveries()
        if self._thread is not None:
            self._thread.join(2)

    def _deliver(self) -> None:
        while (delivery := _native.next_delivery()) is not None:
            target, numbers = delivery
            if target >= _native.boxes_most:
                self._call(self._raw_handlers[target - _native.boxes_most], *numbers)
                continue
            event = event_of(numbers)
            for one in self._listeners[target]:
                if one.active and one.wanted.lets_through(numbers):
                    self._call(one.handler, event)

    @staticmethod
    def _call(handler: Callable[..., object], *arguments: Any) -> None:
        try:
            handler(*arguments)
        except BaseException:  # also the end of the program: it is not this thread's to decide
            _log.exception("a handler of events has failed: %r", handler)


def event_of(numbers: _Numbers) -> Event:
    group, subgroup, sender, *values = numbers
    p1, p2, p3, p4, p5 = values
    return Event(EventGrp(group), EventSubgrp(subgroup), sender, (p1, p2, p3, p4, p5))


_post = _PostOffice()
_target_of = _post.target_of
