"""docs/performance.svg: time a neighbor against N, forward and back side by side."""

import math
from xml.sax.saxutils import escape

LABELS = {
    "ours": "this library (L)",
    "mapping": "mapping alone (W)",
    "malloc-floor": "malloc floor",
    "bump-floor": "bump floor",
    "libxml2": "libxml2 walk",
    "libyang": "libyang2 direct",
    "libxslt": "libxslt",
}
COLORS = {
    "ours": "#c1121f",
    "mapping": "#f08a24",
    "malloc-floor": "#3d405b",
    "bump-floor": "#8d99ae",
    "libxml2": "#2a9d8f",
    "libyang": "#3a6ea5",
    "libxslt": "#7b2cbf",
}
TITLES = {"forward": "forward: OpenConfig to native", "back": "way back: native to OpenConfig"}
WIDTH, HEIGHT = 1170, 520
PANEL_WIDTH, PANEL_HEIGHT, TOP = 330, 390, 70
LEFT = {"forward": 70, "back": 640}
LABEL_SPACE = 16


def text(x, y, words, **style):
    attributes = "".join(f' {name.replace("_", "-")}="{value}"' for name, value in style.items())
    return f'<text x="{x:.1f}" y="{y:.1f}"{attributes}>{escape(words)}</text>'


def line(x1, y1, x2, y2, color):
    return f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" stroke="{color}"/>'


class Scale:
    """Logarithmic."""

    def __init__(self, lowest, highest, start, end):
        self.lowest, self.highest = math.log10(lowest), math.log10(highest)
        self.start, self.end = start, end

    def __call__(self, value):
        return self.start + (math.log10(value) - self.lowest) / (self.highest - self.lowest) * (self.end - self.start)


def ticks(lowest, highest):
    """1, 2 and 5 of each decade."""
    steps = (base * 10.0**exponent for exponent in range(-3, 6) for base in (1, 2, 5))
    return [step for step in steps if lowest <= step <= highest]


def spread(positions, space):
    """The labels' heights, each at least so far from the next, as near to their lines as that leaves them."""
    placed = {}
    below = -math.inf
    for name, position in sorted(positions.items(), key=lambda item: item[1]):
        below = max(position, below + space)
        placed[name] = below
    excess = max(0.0, below - (TOP + PANEL_HEIGHT))
    return {name: position - excess for name, position in placed.items()}


def panel(way, times, sizes, lowest, highest):
    left = LEFT[way]
    x = Scale(sizes[0], sizes[-1], left, left + PANEL_WIDTH)
    y = Scale(lowest, highest, TOP + PANEL_HEIGHT, TOP)
    parts = [text(left, TOP - 18, TITLES[way], font_size=15, font_weight="bold")]
    for tick in ticks(lowest, highest):
        parts.append(line(left, y(tick), left + PANEL_WIDTH, y(tick), "#e3e3e3"))
        parts.append(text(left - 8, y(tick) + 4, f"{tick:g}", text_anchor="end"))
    for size in sizes:
        parts.append(line(x(size), TOP, x(size), TOP + PANEL_HEIGHT, "#e3e3e3"))
        parts.append(text(x(size), TOP + PANEL_HEIGHT + 20, f"{size:,}", text_anchor="middle"))
    parts.append(text(left + PANEL_WIDTH / 2, TOP + PANEL_HEIGHT + 42, "neighbors", text_anchor="middle"))
    ends = {}
    for peer, by_way in times.items():
        points = [(x(size), y(by_way[way][str(size)]["median"])) for size in sizes]
        width = 3 if peer in ("ours", "mapping") else 1.8
        path = " ".join(f"{px:.1f},{py:.1f}" for px, py in points)
        parts.append(f'<polyline points="{path}" fill="none" stroke="{COLORS[peer]}" stroke-width="{width}"/>')
        parts += [f'<circle cx="{px:.1f}" cy="{py:.1f}" r="3.2" fill="{COLORS[peer]}"/>' for px, py in points]
        ends[peer] = points[-1][1]
    for peer, height in spread(ends, LABEL_SPACE).items():
        value = times[peer][way][str(sizes[-1])]["median"]
        parts.append(line(left + PANEL_WIDTH + 5, ends[peer], left + PANEL_WIDTH + 18, height, COLORS[peer]))
        weight = "bold" if peer in ("ours", "mapping") else "normal"
        parts.append(text(left + PANEL_WIDTH + 22, height + 4, f"{LABELS[peer]}  {value:.1f}", fill=COLORS[peer],
                          font_weight=weight))
    return parts


def svg(times):
    sizes = [int(size) for size in times["ours"]["forward"]]
    values = [cell["median"] for by_way in times.values() for by_size in by_way.values() for cell in by_size.values()]
    lowest, highest = min(values) * 0.8, max(values) * 1.25
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {HEIGHT}" '
             'font-family="sans-serif" font-size="12" fill="#222">',
             f'<rect width="{WIDTH}" height="{HEIGHT}" fill="white"/>',
             text(20, 28, "CPU time a neighbor, microseconds (both axes logarithmic; the number is that of the largest N)",
                  font_size=14)]
    for way in TITLES:
        parts += panel(way, times, sizes, lowest, highest)
    return "\n".join([*parts, "</svg>"]) + "\n"
