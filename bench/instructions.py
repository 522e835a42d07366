#!/usr/bin/env python3
"""Holds the cost of a neighbor: instructions and bytes, which repeat exactly on any load.

Compares the library (`ours`) and the mapping alone (`mapping`) with the malloc floor, against the ratios in
instructions.json, with 10% room. After a change that is meant to cost what it costs, write them anew:

    bench/instructions.py --build build/release --write
"""

import argparse
import concurrent.futures
import json
import os
import pathlib
import sys

import measure

COMMITTED = pathlib.Path(__file__).with_name("instructions.json")
ROOM = 1.10
FEW, MANY = 1_000, 10_000  # neighbors
SLOPE_ROOM = 0.01
PEAK_BYTES = {"forward": 9_801, "back": 17_545}  # a neighbor
MAPPING_BYTES = 64 * 1024


def count(build):
    """{(peer, way, neighbors): instructions a neighbor}"""
    wanted = [(peer, way, FEW) for peer in ("ours", "mapping", "malloc-floor") for way in measure.WAYS]
    wanted += [("ours", way, MANY) for way in measure.WAYS]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return dict(zip(wanted, pool.map(lambda run: build.instructions(*run), wanted)))


def ratios(counted):
    return {f"{peer} {way}": round(counted[peer, way, FEW] / counted["malloc-floor", way, FEW], 3)
            for peer in ("ours", "mapping") for way in measure.WAYS}


def check(build, counted):
    """Lines that say what does not hold."""
    committed = json.loads(COMMITTED.read_text())
    for name, ratio in ratios(counted).items():
        print(f"{name}: {ratio} times the malloc floor's instructions, committed {committed[name]}")
        if ratio > committed[name] * ROOM:
            yield f"{name}: {ratio} times the malloc floor's instructions, more than {committed[name]} and a tenth"
    for way in measure.WAYS:
        slope = counted["ours", way, MANY] / counted["ours", way, FEW]
        print(f"ours {way}: instructions a neighbor of {MANY} to those of {FEW}: {slope:.4f}")
        if abs(slope - 1) > SLOPE_ROOM:
            yield f"ours {way}: a neighbor of {MANY} takes {slope:.4f} times the instructions of one of {FEW}"
        peak = build.heap_bytes("ours", way, MANY)  # chunks of the pool do not show
        print(f"ours {way}: {peak:.0f} bytes a neighbor at the peak")
        if peak > PEAK_BYTES[way]:
            yield f"ours {way}: {peak:.0f} bytes a neighbor at the peak, more than {PEAK_BYTES[way]}"
        held = [build.heap_bytes("mapping", way, neighbors) * neighbors for neighbors in (FEW, MANY)]
        if max(held) > MAPPING_BYTES or held[1] > held[0]:
            yield f"mapping {way}: holds {held[0]:.0f} bytes for {FEW} neighbors, {held[1]:.0f} for {MANY}"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", required=True, help="the build folder")
    parser.add_argument("--write", action="store_true", help="write the ratios of this build")
    asked = parser.parse_args()
    build = measure.Build(asked.build)
    counted = count(build)
    if asked.write:
        COMMITTED.write_text(json.dumps(ratios(counted), indent=2) + "\n")
        return 0
    broken = list(check(build, counted))
    for line in broken:
        print("NOT MET:", line, file=sys.stderr)
    return 1 if broken else 0


if __name__ == "__main__":
    sys.exit(main())
