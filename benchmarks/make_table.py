#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 QLx Controls contributors
# SPDX-License-Identifier: MIT
"""Writes the performance document from the JSON files of one or more benchmark programs.

Benchmark names are paths, FAMILY/ROW/...; FAMILIES says how each family becomes a section. Give a new
family of benchmarks an entry there.
"""

import argparse
import json
import statistics
import sys
from dataclasses import dataclass
from pathlib import Path
from typing import Callable

HEAD = """\
<!--
SPDX-FileCopyrightText: 2026 QLx Controls contributors
SPDX-License-Identifier: MIT
-->

# Performance

The build target `performance-table` measures everything below and writes this document; changes by hand
are lost.

- Processor: {cpu_model}
- Compiler: {compiler}, {build_type} build
- Qt: {qt_version}
- Every figure is the median of {repetitions} repetitions, in processor time where nothing
  else is said.

The figures belong to that machine and to how busy it was. What counts is the ratios within one run.
"""


@dataclass
class Result:
    nanoseconds: float
    items_per_second: float


Results = dict[tuple[str, ...], Result]  # by the name's parts after the family


def markdown_table(header: list[str], rows: list[list[str]]) -> str:
    lines = [header, ["---"] + ["---:"] * (len(header) - 1), *rows]
    return "\n".join("| " + " | ".join(line) + " |" for line in lines) + "\n"


def distinct(values) -> list[str]:
    return list(dict.fromkeys(values))


def comparison_table(results: Results) -> str:
    """For the names ROW/SIZE/ours and ROW/SIZE/plain: both times and their ratio."""
    rows = distinct(row for row, _, _ in results)
    sizes = distinct(size for _, size, _ in results)
    header = [""]
    for size in sizes:
        header += [f"{size}: ours, µs", "plain, µs", "ratio"]
    body = []
    largest: dict[str, tuple[float, str]] = {}
    for row in rows:
        line = [row]
        for size in sizes:
            ours = results[row, size, "ours"].nanoseconds
            plain = results[row, size, "plain"].nanoseconds
            line += [f"{ours / 1e3:.1f}", f"{plain / 1e3:.1f}", f"{ours / plain:.3f}"]
            largest[size] = max(largest.get(size, (0.0, "")), (ours / plain, row))
        body.append(line)
    summary = ", ".join(f"{ratio:.3f} at {size} ({row})" for size, (ratio, row) in largest.items())
    return markdown_table(header, body) + f"\nLargest ratios: {summary}.\n"


def rate_table(results: Results) -> str:
    """For the names ROW/STATE: how many a second, and the time for one, in each state."""
    states = distinct(state for _, state in results)
    header = [""]
    for state in states:
        header += [f"{state.replace('_', ' ')}: million/s", "ns each"]
    body = []
    for row in distinct(row for row, _ in results):
        line = [f"`{row}`"]
        for state in states:
            rate = results[row, state].items_per_second
            line += [f"{rate / 1e6:.1f}", f"{1e9 / rate:.1f}"]
        body.append(line)
    return markdown_table(header, body)


def plane_table(results: Results) -> str:
    """For the names ROW/SIZE/COLUMN: a table for each size, and how often ours goes into the plain one."""
    text = ""
    for size in distinct(size for _, size, _ in results):
        columns = distinct(column for _, of, column in results if of == size)
        ours = [column for column in columns if column.startswith("ours")]
        best = next(column for column in columns if column.startswith("plain"))
        body = []
        for row in distinct(row for row, of, _ in results if of == size):
            times = [results.get((row, size, column)) for column in columns]
            cells = [f"{time.nanoseconds / 1e3:.1f}" if time else "" for time in times]
            ratio = ""
            if (row, size, best) in results:
                ratio = f"{results[row, size, best].nanoseconds / results[row, size, ours[-1]].nanoseconds:.0f}"
            body.append([row, *cells, ratio])
        header = ["", *(f"{column.replace('_', ' ')}, µs" for column in columns), "times as fast"]
        text += f"{size}:\n\n{markdown_table(header, body)}\n"
    return text.rstrip("\n") + "\n"


def peer_table(results: Results) -> str:
    """For the names ROW/SIZE: the times, and how they compare with the first row's."""
    sizes = distinct(size for _, size in results)
    rows = distinct(row for row, _ in results)
    body = []
    for row in rows:
        line = [row]
        for size in sizes:
            time = results[row, size].nanoseconds
            line += [f"{time / 1e3:.0f}", f"{time / results[rows[0], size].nanoseconds:.1f}"]
        body.append(line)
    header = [""]
    for size in sizes:
        header += [f"{size}, µs", "relative"]
    return markdown_table(header, body)


def side_table(results: Results) -> str:
    """For the names ROW/COLUMN, the first column ours: the times, and how ours compare with each other column's."""
    columns = distinct(column for _, column in results)
    header = ["", f"{columns[0]}, µs"]
    for column in columns[1:]:
        header += [f"{column}, µs", "ratio"]
    body = []
    for row in distinct(row for row, _ in results):
        ours = results[row, columns[0]].nanoseconds
        line = [row, f"{ours / 1e3:.1f}"]
        for column in columns[1:]:
            other = results.get((row, column))
            line += [f"{other.nanoseconds / 1e3:.1f}", f"{ours / other.nanoseconds:.2f}"] if other else ["", ""]
        body.append(line)
    return markdown_table(header, body)


def row_table(results: Results) -> str:
    """For the names ROW: the times, and how they compare with the last row's."""
    last = list(results.values())[-1].nanoseconds
    body = [[row.replace("_", " "), f"{time.nanoseconds / 1e3:.1f}", f"{time.nanoseconds / last:.2f}"]
            for (row,), time in results.items()]
    return markdown_table(["", "µs", "relative"], body)


@dataclass
class Family:
    title: str
    text: str
    table: Callable[[Results], str]


FAMILIES = {
    "slider": Family(
        "Painting a slider",
        """\
Painting a whole enabled `QLxColorSlider` into an image, beside a plain widget that paints the same
picture, pixel for pixel, with one pen and one line for each column and each colour from the public
conversions. The ratio is ours to plain; the aim is at most 0.25 at 400x20 in every mode.""",
        comparison_table),
    "plane": Family(
        "Filling a plane of the colour field",
        """\
Filling an image with each of the nine planes, by each kind of kernel that this processor runs (the last is the
one in use), beside a plain version that evaluates one pixel at a time with `QColor` and `setPixel` and gives the
same pixels. "Clean" and "after painting" are states of the processor, explained under Conversions; the last column
counts against the plain version at its best, the clean one.""",
        plane_table),
    "field": Family(
        "Repainting the colour field",
        """\
A whole `QLxColorField` repainted in a running application (offscreen), beside the plain version of its plane
alone at its best. The aim is a ratio of at most 1/12, 0.083.""",
        comparison_table),
    "peer": Family(
        "Beside other colour planes",
        """\
Widgets that show the plane of hue and saturation for a new value and repaint at once: ours, the loop that
QColorDialog fills its plane with, re-created, and the `Color2DSlider` of libqt-color-widgets.""",
        peer_table),
    "spinbox": Family(
        "Typing into a double spin box",
        """\
A text validated; a text put into the line edit of a box that showed 0 and committed with Return, on which Qt has
it validated three times and evaluated once; and another scene unit shown by 1000 hidden boxes. Beside it a
QDoubleSpinBox with the same settings, as far as it can do the same (for the unit, `setSuffix`), and the floor for
whatever needs a script engine: a bare QScriptEngine that is made, evaluates the text once and is destroyed.
Validating a number, or an operator with a number, needs none; committing a number does.""",
        side_table),
    "dialog": Family(
        "One edit in the colour dialog",
        """\
A control of the visible dialog moved (offscreen), until all the others have followed and everything is painted:
ten sliders, nine spin boxes, the field, a swatch and nine labels. Beside it Qt's own dialog taking one colour.""",
        row_table),
    "pipette": Family(
        "The pipette",
        """\
Time that passes in the GUI thread, waiting for the display included, on a virtual X display under a window manager: a
tick of the timer with the pointer moved and at rest, and a pick, from the release of the button until the dialog
shows the colour. Beside it one pixel grabbed. The aims are 500 µs for a tick and 5000 µs for a pick.""",
        row_table),
    "conversion": Family(
        "Conversions",
        """\
One call for each of many different colours of the RGB gamut. `SrgbQuantizer` encodes one channel to 8 bits
by table, `quantizeLinear(linearToSrgb)` gives the same result by evaluating the curve.

"Clean" and "after painting" are states of the processor, on x86 with AVX2. Qt's AVX2 code returns from
filling an image with the upper halves of the vector registers in use, and SSE code like this library's
then runs slower until they are cleared.""",
        rate_table),
}


def read(paths: list[Path]) -> tuple[dict[str, Results], dict[str, str]]:
    """The medians of all files by family, and what they were taken with."""
    families: dict[str, Results] = {}
    context: dict[str, str] = {}
    for path in paths:
        report = json.loads(path.read_text(encoding="utf-8"))
        # In the order of registration; a run may interleave them at random.
        runs = sorted(report["benchmarks"], key=lambda run: run["family_index"])
        repetitions = max((run["repetitions"] for run in runs), default=0)
        taken_with = {key: report["context"][key]
                      for key in ("cpu_model", "compiler", "build_type", "qt_version")}
        taken_with["repetitions"] = str(repetitions)
        if context and taken_with != context:
            sys.exit(f"{path}: not taken like the other files: {taken_with}, {context}")
        context = taken_with
        for run in runs:
            if run.get("error_occurred"):
                sys.exit(f"{path}: {run['name']}: {run['error_message']}")
        by_name: dict[str, list[dict]] = {}
        for run in runs:
            if run.get("aggregate_name", "median") == "median":
                by_name.setdefault(run["run_name"], []).append(run)
        for name, found in by_name.items():
            # One median, or all repetitions, or both.
            found = [run for run in found if "aggregate_name" in run] or found
            # Where a benchmark takes the time itself, that is what counts.
            clock = "real_time" if name.endswith("/manual_time") else "cpu_time"
            family, *parts = name.removesuffix("/manual_time").split("/")
            if family not in FAMILIES:
                sys.exit(f"{path}: no table for {name}")
            unit = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}
            families.setdefault(family, {})[tuple(parts)] = Result(
                statistics.median(run[clock] * unit[run["time_unit"]] for run in found),
                statistics.median(run.get("items_per_second", 0.0) for run in found))
    return families, context


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--output", type=Path, required=True, help="the Markdown file to write")
    parser.add_argument("files", type=Path, nargs="+", help="what --benchmark_out wrote")
    arguments = parser.parse_args()
    families, context = read(arguments.files)
    document = HEAD.format(**context)
    for name, family in FAMILIES.items():
        if name in families:
            document += f"\n## {family.title}\n\n{family.text}\n\n{family.table(families[name])}"
    arguments.output.write_text(document, encoding="utf-8")


if __name__ == "__main__":
    main()
