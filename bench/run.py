#!/usr/bin/env python3
"""Measures everything and writes docs/performance.md and docs/performance.svg: `make bench`.

    bench/run.py --build build/release                   measure and write
    bench/run.py --build build/release --render-only     write anew from the last figures

Times are of fresh processes, which take turns; a quiet machine is needed for them, and for nothing else.
"""

import argparse
import datetime
import json
import os
import pathlib
import platform
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

import measure
import plot
import report

ROOT = pathlib.Path(__file__).resolve().parent.parent
NEIGHBORS = (1_000, 10_000, 100_000)
SLOPE = (1_000, 10_000)  # of instructions
PROFILED = 1_000
TRIP = 10_000
OWN = ("ours", "mapping")
COUNTED = (*OWN, "malloc-floor")


def first_line(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout.splitlines()[0]


def machine(build):
    cpu = [line.split(":")[1].strip() for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines()
           if line.startswith("model name")]
    cache = (build.folder / "CMakeCache.txt").read_text()
    setting = dict(line.split("=", 1) for line in cache.splitlines() if "=" in line and line[0] not in "#/")
    compiler = setting.get("CMAKE_CXX_COMPILER:FILEPATH") or setting.get("CMAKE_CXX_COMPILER:STRING", "c++")
    packages = ("libxslt1.1", "libyang2", "libxml2", "libc6")
    versions = subprocess.run(["dpkg-query", "-W", "-f", "${Package} ${Version}, ", *packages], capture_output=True,
                              text=True, check=False).stdout.strip(", ")
    return {"date": datetime.date.today().isoformat(), "cpu": cpu[0] if cpu else platform.machine(),
            "cores": os.cpu_count(), "kernel": platform.release(), "compiler": first_line(compiler, "--version"),
            "build": setting.get("CMAKE_BUILD_TYPE:STRING") or setting.get("CMAKE_BUILD_TYPE:UNINITIALIZED", "?"),
            "libraries": versions, "commit": first_line("git", "-C", str(ROOT), "rev-parse", "--short", "HEAD"),
            "load": os.getloadavg()[0]}


def median_and_minimum(values):
    return {"median": statistics.median(values), "minimum": min(values), "runs": values}


def say(text):
    print(f"[{time.strftime('%H:%M:%S')}] {text}", flush=True)


def measure_times(build, rounds):
    """{peer: {way: {neighbors: {median, minimum}}}}, microseconds a neighbor; the peers take turns. The gates are at
    10,000: up to there it takes a moment, and more runs are had."""
    peers = build.peers()
    runs = {}
    for number in range(3 * rounds):
        say(f"times, round {number + 1} of {3 * rounds}")
        for neighbors in NEIGHBORS if number < rounds else NEIGHBORS[:2]:
            for way in measure.WAYS:
                for peer in peers:
                    runs.setdefault((peer, way, neighbors), []).append(build.run(peer, way, neighbors)["us"])
    return {peer: {way: {neighbors: median_and_minimum(runs[peer, way, neighbors]) for neighbors in NEIGHBORS}
                   for way in measure.WAYS} for peer in peers}


def measure_instructions(build):
    """{peer: {way: {neighbors: count}}}, a neighbor's."""
    say("instructions")
    counts = {}
    for peer in build.peers():
        sizes = SLOPE if peer in COUNTED else SLOPE[:1]
        counts[peer] = {way: {neighbors: build.instructions(peer, way, neighbors) for neighbors in sizes}
                        for way in measure.WAYS}
    return counts


def measure_profiles(build, top=12):
    """What the functions of a run take themselves, and how often the platform is asked, each a neighbor's."""
    say("profiles")
    asked = ("vmf_map_do_these_match", "vmf_debug_should_log")
    profiles = {}
    for peer in OWN:
        for way in measure.WAYS:
            seen = build.profile(peer, way, PROFILED)
            functions = sorted(seen.by_function.items(), key=lambda item: -item[1])[:top]
            calls = {name: seen.calls.get(name, 0) / PROFILED for name in asked}
            calls["tree operations"] = sum(count for name, count in seen.calls.items() if name in (
                "vmf_map_datatree_add_subtree", "vmf_map_datatree_add_path", "vmf_map_datatree_add_path_common",
                "vmf_map_datatree_add_list_node")) / PROFILED
            profiles[f"{peer} {way}"] = {
                "functions": [[name, cost / PROFILED, cost / seen.instructions] for name, cost in functions],
                "calls": calls}
    return profiles


def measure_heap(build):
    """Bytes and page faults a neighbor, and of the mapping alone all bytes."""
    say("memory")
    target = {peer: {way: build.heap_bytes(peer, way, TRIP) for way in measure.WAYS}
              for peer in build.peers() if peer != "mapping"}
    mapping = {way: {neighbors: build.heap_bytes("mapping", way, neighbors) * neighbors for neighbors in NEIGHBORS}
               for way in measure.WAYS}
    faults = {peer: {way: build.run(peer, way, TRIP)["page_faults"] for way in measure.WAYS} for peer in target}
    return {"target": target, "mapping": mapping, "page_faults": faults}


def measure_finds(build, rounds):
    say("keyed finds")
    finds = {}
    for order in ("ordered", "scattered"):
        for entries in NEIGHBORS:
            command = [build.program("bench_find"), str(entries), order]
            runs = [json.loads(first_line(*command)) for _ in range(rounds)]
            finds.setdefault(order, {})[entries] = {
                **median_and_minimum([run["ns"] for run in runs]),
                "instructions": measure.profile(command).instructions / runs[0]["finds"]}
    return finds


def measure_threads(build, rounds):
    """{way: {threads: neighbors a second of all threads together}}"""
    say("threads")
    runs = {}
    for _ in range(rounds):
        for way in measure.WAYS:
            for threads in (1, 2):
                said = first_line(build.program("bench_threads"), str(threads), way, str(TRIP))
                runs.setdefault(way, {}).setdefault(threads, []).append(json.loads(said)["per_second"])
    return {way: {threads: statistics.median(values) for threads, values in of_way.items()}
            for way, of_way in runs.items()}


def measure_trip(build, rounds):
    """Seconds of `ocbgp edit` into a fresh router folder, on disk when it returns."""
    say("whole trips")
    wall, cpu = [], []
    with tempfile.TemporaryDirectory(dir=build.folder) as folder:
        document = pathlib.Path(folder) / "edit.xml"
        with document.open("w") as file:
            subprocess.run([build.program("bench_document"), str(TRIP)], stdout=file, check=True)
        for _ in range(2 * rounds):
            router = pathlib.Path(folder) / "router"
            subprocess.run([build.program("ocbgp"), "init", "--router", str(router)], check=True, capture_output=True)
            used = os.times()
            before = time.monotonic()
            subprocess.run([build.program("ocbgp"), "edit", "--router", str(router), str(document)], check=True,
                           capture_output=True)
            wall.append(time.monotonic() - before)
            now = os.times()
            cpu.append(now.children_user + now.children_system - used.children_user - used.children_system)
            shutil.rmtree(router)
    return {"neighbors": TRIP, "wall": median_and_minimum(wall), "cpu": median_and_minimum(cpu)}


def measure_all(build, rounds):
    return {
        "machine": machine(build),
        "times": measure_times(build, rounds),
        "instructions": measure_instructions(build),
        "profiles": measure_profiles(build),
        "heap": measure_heap(build),
        "finds": measure_finds(build, rounds),
        "threads": measure_threads(build, rounds),
        "trip": measure_trip(build, rounds),
    }


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", required=True, help="the build folder")
    parser.add_argument("--docs", default=ROOT / "docs", type=pathlib.Path, help="where the report goes")
    parser.add_argument("--rounds", default=5, type=int, help="fresh processes of each")
    parser.add_argument("--render-only", action="store_true", help="from the figures of the last run")
    asked = parser.parse_args()
    build = measure.Build(asked.build)
    figures_file = build.folder / "bench-figures.json"
    if not asked.render_only:
        figures_file.write_text(json.dumps(measure_all(build, asked.rounds), indent=1))
    figures = json.loads(figures_file.read_text())
    asked.docs.mkdir(exist_ok=True)
    (asked.docs / "performance.svg").write_text(plot.svg(figures["times"]))
    (asked.docs / "performance.md").write_text(report.markdown(figures, asked.docs / "performance-notes.md"))
    say(f"written: {asked.docs}/performance.md")


if __name__ == "__main__":
    sys.exit(main())
