"""docs/performance.md, from the figures of bench/run.py."""

import statistics

NAMES = {
    "ours": "**this library (L)**",
    "mapping": "**the mapping alone (W)**",
    "malloc-floor": "malloc floor",
    "bump-floor": "bump floor",
    "libxml2": "libxml2 walk",
    "libyang": "libyang2, direct",
    "libxslt": "libxslt",
}
WAYS = {"forward": "forward", "back": "way back"}


def table(head, rows):
    lines = ["| " + " | ".join(head) + " |", "|" + " --- |" * len(head)]
    return "\n".join(lines + ["| " + " | ".join(str(cell) for cell in row) + " |" for row in rows])


def met(holds):
    return {True: "met", False: "**not met**", None: "not measured"}[holds]


class Figures:
    def __init__(self, figures):
        self.all = figures
        self.sizes = list(figures["times"]["ours"]["forward"])

    def has(self, peer):
        return peer in self.all["times"]

    def ratio(self, peer, other, way, neighbors=10_000, of_other=None):
        """The median of the rounds' ratios: what else the machine does meets the peers of a round alike."""
        times = self.all["times"]
        runs = [times[peer][way][str(neighbors)]["runs"], times[other][way][str(of_other or neighbors)]["runs"]]
        return statistics.median(a / b for a, b in zip(*runs, strict=False))

    def slope(self, peer, way):
        few, many = self.all["instructions"][peer][way].values()
        return many / few


# ---- Gates and goals ------------------------------------------------------------------------


def faster_row(figures, peer, way, gate, goal):
    name = f"L against {NAMES[peer]}, {WAYS[way]}, 10,000"
    asked = [f"{gate} times faster", f"{goal} times"]
    if not figures.has(peer):
        return [name, "-", asked[0], met(None), asked[1], met(None)]
    times = figures.ratio(peer, "ours", way)
    return [name, f"{times:.2f} times faster", asked[0], met(times >= gate), asked[1], met(times >= goal)]


def within_row(name, value, gate, goal, form="{:.2f}", unit=" times"):
    return [name, form.format(value) + unit, f"at most {gate:,}{unit}", met(value <= gate), f"{goal:,}{unit}",
            met(value <= goal)]


def libxml2_row(figures, way):
    ratios = {int(size): figures.ratio("ours", "libxml2", way, size) for size in figures.sizes}
    shown = " / ".join(f"{ratio:.2f}" for ratio in ratios.values())
    return [f"L against libxml2 walk, {WAYS[way]}, every N", f"{shown} of its time", "no slower",
            met(max(ratios.values()) <= 1), "0.6 from 10,000 on",
            met(max(ratio for size, ratio in ratios.items() if size >= 10_000) <= 0.6)]


def slope_row(figures, peer, label, way):
    slope = figures.slope(peer, way)
    return [f"instructions a neighbor of {label}, 10,000 to 1,000, {WAYS[way]}", f"{slope:.4f}", "within 0.01 of 1",
            met(abs(slope - 1) <= 0.01), "within 0.002", met(abs(slope - 1) <= 0.002)]


def mapping_memory_row(figures):
    held = [bytes_held for way in WAYS for bytes_held in figures.all["heap"]["mapping"][way].values()]
    grows = any(max(of_way.values()) > min(of_way.values()) for of_way in figures.all["heap"]["mapping"].values())
    holds = not grows and max(held) <= 64 * 1024
    asked = "does not grow with N, at most 64 KiB"
    return ["memory of the mapping itself (W)", f"{max(held):,.0f} bytes at every N" if not grows else
            f"{min(held):,.0f} to {max(held):,.0f} bytes", asked, met(holds), "the same", met(holds)]


def find_row(figures):
    counts = [find["instructions"] for find in figures.all["finds"]["ordered"].values()]
    counts += [find["instructions"] for find in figures.all["finds"]["scattered"].values()]
    flat = max(counts) <= 1.1 * min(counts)
    return ["keyed find among 1,000 to 100,000 list entries", f"{min(counts):.0f} to {max(counts):.0f} instructions",
            "flat", met(flat), "flat", met(flat)]


def trip_row(figures):
    seconds = figures.all["trip"]["wall"]["median"]
    return ["whole trip in `ocbgp`, 10,000 neighbors", f"{seconds:.2f} s", "under 3 s", met(seconds < 3), "under 1 s",
            met(seconds < 1)]


def goals(figures):
    heap = figures.all["heap"]["target"]["ours"]
    slopes = {way: figures.ratio("ours", "ours", way, 100_000, 10_000) for way in WAYS}
    return [
        faster_row(figures, "libxslt", "forward", 5, 8),
        faster_row(figures, "libxslt", "back", 8, 12),
        faster_row(figures, "libyang", "forward", 3.5, 5),
        faster_row(figures, "libyang", "back", 3.5, 5),
        within_row("L against malloc floor, forward, 10,000", figures.ratio("ours", "malloc-floor", "forward"), 2.0, 1.5),
        within_row("L against malloc floor, way back, 10,000", figures.ratio("ours", "malloc-floor", "back"), 1.7, 1.3),
        libxml2_row(figures, "forward"),
        libxml2_row(figures, "back"),
        within_row("W against malloc floor, forward, 10,000", figures.ratio("mapping", "malloc-floor", "forward"), 1.3,
                   0.9),
        within_row("W against malloc floor, way back, 10,000", figures.ratio("mapping", "malloc-floor", "back"), 0.65,
                   0.45),
        slope_row(figures, "ours", "L", "forward"),
        slope_row(figures, "ours", "L", "back"),
        *(within_row(f"CPU time a neighbor, 100,000 to 10,000, {WAYS[way]}", slopes[way], 1.05, 1.02, "{:.3f}", "")
          for way in WAYS),
        within_row("target bytes a neighbor at the peak, forward", heap["forward"], 9_801, 5_100, "{:,.0f}", ""),
        within_row("target bytes a neighbor at the peak, way back", heap["back"], 17_545, 9_400, "{:,.0f}", ""),
        mapping_memory_row(figures),
        find_row(figures),
        trip_row(figures),
    ]


# ---- Tables of figures ----------------------------------------------------------------------


def times_table(figures, way):
    rows = []
    for peer, times in figures.all["times"].items():
        rows.append([NAMES[peer], *(f"{cell['median']:.2f} ({cell['minimum']:.2f})" for cell in times[way].values())])
    return table([WAYS[way], *(f"{int(size):,}" for size in figures.sizes)], rows)


def instructions_table(figures):
    rows = []
    for peer, counts in figures.all["instructions"].items():
        row = [NAMES[peer]]
        for way in WAYS:
            few, *many = counts[way].values()
            floor = next(iter(figures.all["instructions"]["malloc-floor"][way].values()))
            row += [f"{few:,.0f}", f"{few / floor:.2f}", f"{many[0] / few:.4f}" if many else "-"]
        rows.append(row)
    head = ["peer"]
    for way in WAYS.values():
        head += [way, "times the malloc floor", "10,000 to 1,000"]
    return table(head, rows)


def heap_table(figures):
    head = ["peer"]
    for way in WAYS.values():
        head += [f"{way}, bytes", "page faults"]
    faults = figures.all["heap"]["page_faults"]
    return table(head, [[NAMES[peer], *(cell for way in WAYS for cell in (f"{held[way]:,.0f}", f"{faults[peer][way]:.2f}"))]
                        for peer, held in figures.all["heap"]["target"].items()])


def finds_table(figures):
    rows = [[order, f"{int(entries):,}", f"{find['instructions']:.0f}", f"{find['median']:.0f} ({find['minimum']:.0f})"]
            for order, finds in figures.all["finds"].items() for entries, find in finds.items()]
    return table(["asked for", "entries", "instructions", "nanoseconds"], rows)


def threads_table(figures):
    return table(["way", "one thread", "two threads", "times"],
                 [[WAYS[way], f"{rate['1']:,.0f}", f"{rate['2']:,.0f}", f"{rate['2'] / rate['1']:.2f}"]
                  for way, rate in figures.all["threads"].items()])


def calls_table(figures):
    names = list(next(iter(figures.all["profiles"].values()))["calls"])
    shown = {"vmf_map_do_these_match": "comparisons", "vmf_debug_should_log": "log tests"}
    rows = [[profile, *(f"{of['calls'][name]:.0f}" for name in names)]
            for profile, of in figures.all["profiles"].items() if profile.startswith("ours")]
    return table(["", *(shown.get(name, name) for name in names)],
                 [[WAYS[row[0].split()[1]], *row[1:]] for row in rows])


def profile_table(profile):
    rows = [[f"`{short(name)}`", f"{cost:,.0f}", f"{share:.1%}"] for name, cost, share in profile["functions"]]
    return table(["function, without what it calls", "instructions a neighbor", "share"], rows)


def short(function):
    """A function's name without its arguments."""
    name, bracket, _ = function.replace("(anonymous namespace)", "{anonymous}").partition("(")
    return name + ("()" if bracket else "")


# ---- The document ---------------------------------------------------------------------------


def markdown(raw, notes):
    figures = Figures(raw)
    on = raw["machine"]
    runs, runs_of_most = (len(raw["times"]["ours"]["forward"][size]["runs"]) for size in figures.sizes[::2])
    trip = raw["trip"]
    profiles = "\n\n".join(f"{NAMES[name.split()[0]]}, {WAYS[name.split()[1]]}:\n\n{profile_table(profile)}"
                           for name, profile in raw["profiles"].items())
    own_words = notes.read_text().strip() + "\n\n" if notes.exists() else ""
    return f"""# Performance

What the mapping costs, beside other ways to do the same work. Everything here is written by `make bench`; what is said
by hand lies in `performance-notes.md`.

Measured on {on['date']}, commit {on['commit']}: {on['cpu']}, {on['cores']} cores, Linux {on['kernel']}, load
{on['load']:.1f} at the start; {on['compiler']}, {on['build']};
{on['libraries']}.

## The work

N neighbors, as an operator has them: key, configuration of five leaves, three timers, three leaves of transport,
multihop, graceful restart with three leaves, and two families with their policies and prefix limits. That is 54 nodes in
and 52 native nodes out for a neighbor, and on the way back 51 native nodes in and 97 out. Both trees of a peer are in
memory; nothing is freed, printed or bound by the loader while the clock runs.

- **L** is the library as a shared object with the embedded platform; every log test stands, both channels are off.
- **W** is the same library over tree operations that do nothing: the mapping alone. L and W are never mixed.
- The floors are a walk written by hand for these nodes alone, over the same records: with malloc (arrays that double,
  a copy of each text), and with a bump allocator.
- The same walk by hand builds a libxml2 document, and a libyang2 tree by direct creation of children. libxslt runs a
  stylesheet of XSLT 1.0.

A test compares the trees of all of them with the library's.

![time a neighbor against N](performance.svg)

## Gates and goals

{table(["", "measured", "gate", "", "goal", ""], goals(figures))}

{own_words}## CPU time

Microseconds a neighbor: the median of {runs} runs in fresh processes ({runs_of_most} of 100,000), which took turns, with
the minimum in brackets. A ratio above is the median of the rounds' ratios.

{times_table(figures, "forward")}

{times_table(figures, "back")}

## Instructions

Of a neighbor among 1,000, counted by callgrind; they repeat exactly. `make test` holds the ratios of L and W to the
malloc floor.

{instructions_table(figures)}

What L asks of the platform for a neighbor:

{calls_table(figures)}

## Memory

Bytes of the target a neighbor at the peak, of 10,000 neighbors, as malloc lays its blocks out. Memory that a process has
not touched before comes page by page out of the kernel, in every peer's time: beside each are the page faults a
neighbor.

{heap_table(figures)}

## Keyed find

A list entry found by its key, one after the other or all over the list. The instructions say what the platform does;
the time of finds all over a large list is that of the processor's caches.

{finds_table(figures)}

## Two cores

Neighbors a second, each thread with a request of its own of {trip['neighbors']:,} neighbors.

{threads_table(figures)}

## The whole trip

`ocbgp edit` of a document of {trip['neighbors']:,} neighbors into a fresh router folder, from the start of the process
to its end, with the configuration durable on disk: {trip['wall']['median']:.2f} s (at best {trip['wall']['minimum']:.2f} s),
of them {trip['cpu']['median']:.2f} s on the processor.

## Where the instructions go

{profiles}
"""
