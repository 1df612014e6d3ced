"""All functions of the interface, by their names without `qorin_rpc_`.

Arguments are those of the C function, its outputs are what is returned: one as it is, several as a tuple with names.
All that is no OK is raised. In place of ids, connections and robots may stand themselves. Made from the public headers.
"""
from qorin import _native

_functions = {name: value for name, value in vars(_native.raw).items() if not name.startswith("_")}
globals().update(_functions)
__all__ = sorted(_functions)
