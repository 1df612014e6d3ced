"""What users copy: the examples, and the pages of the guide, on each of which the blocks are one program."""
import pathlib
import re

import pytest

from support import Simulator

ROOT = pathlib.Path(__file__).parents[3]
EXAMPLES = ROOT / "bindings/python/examples"


@pytest.fixture(scope="module")
def simulator():
    with Simulator(3) as simulator:
        yield simulator


def test_examples_run(python, simulator, tmp_path):
    told, status = python(EXAMPLES / "first_motion.py", simulator.address)
    assert status == 0 and told.splitlines()[-1] == "TCP at 523.7 17.0 619.8"
    told, status = python(EXAMPLES / "plot_motion.py", simulator.address, tmp_path / "motion.png")
    assert status == 0 and int(told.split()[0]) > 50, told
    assert (tmp_path / "motion.png").read_bytes().startswith(b"\x89PNG")
    told, status = python(EXAMPLES / "watch.py", simulator.address, 0.5)
    assert status == 0 and told.startswith("MODEL_3GEN_SIM, QORIN.v3.")
    for example in EXAMPLES.iterdir():
        told, status = python(example, "127.0.0.256")
        assert status == 1 and "101000" in told and "Traceback" not in told


@pytest.mark.parametrize("page", ["python.md", "four_ways.md"])
def test_the_blocks_of_the_guide_print_what_it_shows(python, simulator, tmp_path, page):
    text = (ROOT / "docs/guide" / page).read_text()
    blocks = re.findall(r"^```python\n(.*?)^```(?:\n+```text\n(.*?)^```)?", text, re.DOTALL | re.MULTILINE)
    program = "\n".join(block for block, _ in blocks)
    (tmp_path / "page.py").write_text(program.replace("127.0.0.1", simulator.address))
    told, status = python(tmp_path / "page.py")
    assert (told.replace(simulator.address, "127.0.0.1"), status) == \
        ("".join(shown for _, shown in blocks), 0)
