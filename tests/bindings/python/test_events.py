"""Events: handlers, streams, waits, and what becomes of them."""
import asyncio
import os
import signal
import textwrap
import threading
import time

import pytest

import qorin
from qorin import raw
from support import Simulator, eventually

GROUP = qorin.EventGrp.NOTIFICATION
SUBGROUP = qorin.EventSubgrp.NOTIFICATION_FT_SENSOR_STATUS


def send(box, sender, *values):
    raw.ts_event_echo(box, GROUP, SUBGROUP, sender, *(values or (1, -2, 3, -4, 5)))


def event(sender, *values):
    return (GROUP, SUBGROUP, sender, values or (1, -2, 3, -4, 5))


def test_handlers_get_what_they_asked_for_until_they_are_cancelled(box, caplog):
    every, some, raw_ones, threads = [], [], [], set()

    def fail(_):
        raise SystemExit("not this thread's to decide")

    def command(arrived):  # a handler may do what an event thread must not
        threads.add(threading.current_thread().name)
        with box.on(print):
            box.check()
        some.append(arrived)

    registrations = [box.on(fail), box.on(every.append, GROUP, SUBGROUP), box.on(command, subgroup=SUBGROUP, sender=70)]
    raw.system_event_group_subgroup_callback_add(box, lambda *numbers: raw_ones.append(numbers), GROUP, SUBGROUP)
    for sender in (70, 71):
        send(box, sender)
    assert eventually(lambda: len(every) == 2 and len(raw_ones) == 2)
    assert every == [event(70), event(71)] and some == [event(70)]
    assert raw_ones[1] == (GROUP, SUBGROUP, 71, 1, -2, 3, -4, 5)
    assert threads == {"qorin-events"} and "a handler of events has failed" in caplog.text

    raw.system_event_group_subgroup_callback_remove(box, print, GROUP, SUBGROUP)
    for registration in registrations:
        registration.cancel()
    send(box, 72)
    box.wait_for(sender=72, timeout=5)
    time.sleep(0.05)
    assert [len(every), len(some), len(raw_ones)] == [2, 1, 2]


def test_a_wait_takes_the_oldest_of_past_events_once(box):
    box.forget_events()
    for value in range(600):
        send(box, 80, value, 0, 0, 0, 0)
    send(box, 81)
    assert box.wait_for(sender=81, timeout=5) == event(81)
    first = box.wait_for(GROUP, SUBGROUP, 80, timeout=0).values[0]
    assert 89 <= first < 99  # of 512 events, some of which the box may have had to tell by itself
    with pytest.raises(TimeoutError):
        box.wait_for(sender=81, timeout=0.05)
    threading.Timer(0.2, send, (box, 82)).start()
    assert box.wait_for(GROUP, timeout=5, sender=82) == event(82)


def test_ctrl_c_ends_waits(box):
    waits = [lambda: box.wait_for(sender=99), lambda: next(box.events(sender=99)),
             lambda: raw.system_wait_event_group_subgroup_sender_id(box, GROUP, SUBGROUP, 99, 60_000, 1)]
    for wait in waits:
        begin = time.monotonic()
        threading.Timer(0.3, os.kill, (os.getpid(), signal.SIGINT)).start()
        with pytest.raises(KeyboardInterrupt):
            wait()
        assert time.monotonic() - begin < 3
    assert raw.system_wait_event_group(box, qorin.EventGrp.MODBUS_NOTI, 120, 0) is False


def test_streams_give_what_comes_after_them(box):
    send(box, 89)
    with box.events(GROUP, sender=90) as stream:
        for value in range(3):
            send(box, 90, value, 0, 0, 0, 0)
        assert [next(stream).values[0] for _ in range(3)] == [0, 1, 2]
        threading.Timer(0.2, stream.close).start()
        assert list(stream) == []


def test_asyncio_awaits_events_side_by_side(box):
    box.forget_events()

    async def session():
        async def collect():
            seen = []
            async for arrived in box.events(sender=95):
                seen.append(arrived.values[0])
                if len(seen) == 3:
                    return seen

        collector = asyncio.create_task(collect())
        waiters = [asyncio.create_task(box.wait(GROUP, sender=96, timeout=5)) for _ in range(2)]
        given_up = asyncio.create_task(box.wait(sender=97))
        await asyncio.sleep(0.1)
        given_up.cancel()
        for value in range(3):
            send(box, 95, value, 0, 0, 0, 0)
        for value in (7, 8):
            send(box, 96, value, 0, 0, 0, 0)
        assert await asyncio.wait_for(collector, 5) == [0, 1, 2]
        assert {(await waiter).values[0] for waiter in waiters} == {7, 8}
        assert (await box.wait(sender=95, timeout=5)).values[0] == 0  # that nobody has taken
        with pytest.raises(TimeoutError):
            await box.wait(sender=97, timeout=0.1)

    asyncio.run(session())


def test_asyncio_hears_of_a_lost_link():
    async def session(box):
        with pytest.raises(qorin.LinkLostError):
            await box.wait(timeout=30)

    with Simulator(4) as simulator:
        box = qorin.connect(simulator.address)
    asyncio.run(session(box))
    box.close()


def test_a_program_ends_in_the_middle_of_events(python, logs):
    program = textwrap.dedent("""
        import sys, threading, qorin
        box = qorin.connect(sys.argv[1], log_directory=sys.argv[2])
        box.on(lambda event: None)
        threading.Thread(target=lambda: box.wait_for(sender=1), daemon=True).start()
        threading.Thread(target=lambda: [qorin.raw.ts_event_echo(box, 308000, 308010, 7, 1, 2, 3, 4, 5)
                                         for _ in range(10**6)], daemon=True).start()
        box.wait_for(sender=7, timeout=5)
        print("end")
    """)
    with Simulator(5) as simulator:
        for _ in range(2):
            assert python("-c", program, simulator.address, logs) == ("end\n", 0)
