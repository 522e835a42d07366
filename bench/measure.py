"""Runs the benchmark's programs, each time as a fresh process."""

import json
import os
import pathlib
import re
import subprocess
import tempfile

NODES = {"forward": (54, 52), "back": (51, 97)}
WAYS = tuple(NODES)
# Symbols are bound before the work begins: that is the loader's work, and once for a process.
ENVIRONMENT = {**os.environ, "LD_BIND_NOW": "1"}


class Build:
    """The programs of a build folder."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder).resolve()

    def program(self, name):
        return str(self.folder / "bin" / name)

    def peers(self):
        """Names of the peers that this build has, ours first, with the mapping alone last."""
        usage = subprocess.run([self.program("bench_peer")], capture_output=True, text=True, check=False).stderr
        return usage.split("peers:")[1].split() + ["mapping"]

    def command(self, peer, way, neighbors):
        program = "bench_mapping" if peer == "mapping" else "bench_peer"
        return [self.program(program), peer, way, str(neighbors)]

    def run(self, peer, way, neighbors, count_heap=False):
        """What a run says of itself; see bench/main.cpp."""
        preload = {"LD_PRELOAD": str(self.folder / "lib" / "libbench_heap.so")} if count_heap else {}
        done = subprocess.run(self.command(peer, way, neighbors), capture_output=True, text=True, check=True,
                              env={**ENVIRONMENT, **preload})
        said = json.loads(done.stdout)
        expected = NODES[way][0], 0 if peer == "mapping" else NODES[way][1]
        if (said["nodes_in"], said["nodes_out"]) != expected:
            raise RuntimeError(f"{peer} {way}: not the work that is measured: {said}")
        return said

    def heap_bytes(self, peer, way, neighbors):
        """What the heap holds of the target at its peak, bytes a neighbor."""
        return self.run(peer, way, neighbors, count_heap=True)["heap_bytes"]

    def profile(self, peer, way, neighbors):
        return profile(self.command(peer, way, neighbors))

    def instructions(self, peer, way, neighbors):
        """A neighbor's, exactly repeatable."""
        return self.profile(peer, way, neighbors).instructions / neighbors


class Profile:
    """What callgrind counted inside the work."""

    def __init__(self, text):
        self.instructions = 0
        self.by_function = {}
        self.calls = {}
        names = {}
        function = called = None
        skip = False
        for line in text.splitlines():
            if line.startswith("totals:"):
                self.instructions = int(line.split()[1])
            elif line.startswith(("fn=", "cfn=")):
                number, _, name = line.split("=", 1)[1].partition(" ")
                names.setdefault(number, re.sub(r"'\d+$", "", name))  # as deep as it may stand in itself
                if line.startswith("fn="):
                    function = names[number]
                else:
                    called = names[number]
            elif line.startswith("calls="):
                self.calls[called] = self.calls.get(called, 0) + int(line[6:].split()[0])
                skip = True  # the next line is the cost of the calls
            elif line[:1] in "0123456789+-*" and line:
                cost = 0 if skip else int(line.split()[1])
                skip = False
                self.by_function[function] = self.by_function.get(function, 0) + cost


def profile(command):
    with tempfile.TemporaryDirectory() as folder:
        out = pathlib.Path(folder) / "out"
        subprocess.run(["valgrind", "--tool=callgrind", "--toggle-collect=bench_work", f"--callgrind-out-file={out}",
                        *command], capture_output=True, check=True, env=ENVIRONMENT)
        return Profile(out.read_text())
