"""Shows the events of a control box as they come, until Ctrl-C or for some seconds.

    watch.py [ADDRESS [SECONDS]]
"""
import asyncio
import sys

import qorin


async def show(box: qorin.Box) -> None:
    async for event in box.events():
        print(f"{event.group.name:24} {event.subgroup.name}  from {event.sender}: {event.values}", flush=True)


async def watch(address: str, seconds: float | None) -> None:
    with qorin.connect(address) as box:
        print(f"{box.model}, {box.version}, emergency button {box.emergency_button}", flush=True)
        try:
            await asyncio.wait_for(show(box), seconds)
        except asyncio.TimeoutError:
            pass


if __name__ == "__main__":
    address, seconds = (sys.argv[1:] + ["127.0.0.1", "inf"][len(sys.argv) - 1:])[:2]
    try:
        asyncio.run(watch(address, None if seconds == "inf" else float(seconds)))
    except KeyboardInterrupt:
        pass
    except (qorin.QorinError, ValueError) as error:
        sys.exit(f"watch: {error}")
