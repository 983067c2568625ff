# SPDX-License-Identifier: MIT
"""Judges whether what was sampled over time grows: a line is fitted to each column, and its slope is compared with the
interval in which it lies in 95 of 100 runs."""
import csv
import math
import statistics

# The start is not watched: fonts, the script engine and the first frames of every kind come in here.
WARM_UP_SHARE = 0.2
WARM_UP_SECONDS = 600.0
# What certainly grows, by more than the first number in an hour and the second while it was watched, is a fault. Shared
# memory is shown and not judged: it changes with who else uses the same libraries.
MEMORY, COUNT = (64.0, 512.0), (0.5, 2.0)
BOUNDS = {"rss_kib": MEMORY, "own_kib": MEMORY, "pss_kib": None, "server_kib": MEMORY, "pixmap_kib": MEMORY,
          "descriptors": COUNT, "threads": COUNT, "resources": COUNT}


def student(freedom):
    """The quantile of Student's distribution that leaves out 2.5 % on each side (Cornish-Fisher)."""
    z = statistics.NormalDist().inv_cdf(0.975)
    return z + (z**3 + z) / (4 * freedom) + (5 * z**5 + 16 * z**3 + 3 * z) / (96 * freedom**2)


def slope(times, values):
    """The slope of the line of least squares, and half the width of its interval; infinite when too little is known.

    Samples that follow each other resemble each other, so they count less than their number: by how much, the
    correlation of neighbouring residuals tells."""
    mean_time, mean_value = statistics.fmean(times), statistics.fmean(values)
    spread = sum((t - mean_time)**2 for t in times)
    found = sum((t - mean_time) * (v - mean_value) for t, v in zip(times, values)) / spread
    residuals = [v - mean_value - found * (t - mean_time) for t, v in zip(times, values)]
    squares = sum(r * r for r in residuals)
    if squares < 1e-9 * len(values):
        return found, 0.0
    neighbours = max(0.0, sum(a * b for a, b in zip(residuals, residuals[1:])) / squares)
    freedom = len(values) * (1 - neighbours) / (1 + neighbours) - 2
    if freedom < 2:
        return found, math.inf
    return found, student(freedom) * math.sqrt(squares / freedom / spread)


def settled(rows):
    """The samples after the warm-up."""
    last = float(rows[-1]["seconds"])
    begin = min(WARM_UP_SECONDS, WARM_UP_SHARE * last)
    return [row for row in rows if float(row["seconds"]) >= begin]


def report(path):
    """Prints the slope of each column of each clock; 1 when one certainly grows by more than its bound, else 0."""
    with open(path, newline="", encoding="utf-8") as file:
        rows = list(csv.DictReader(file))
    failed = 0
    for clock in sorted({row["clock"] for row in rows}):
        chosen = settled([row for row in rows if row["clock"] == clock])
        hours = [float(row["seconds"]) / 3600 for row in chosen]
        if len(chosen) < 10:
            print(f"{clock}: too few samples yet")
            continue
        watched = hours[-1] - hours[0]
        print(f"{clock}: {len(chosen)} samples over {watched:.2f} hours\n"
              f"  {'':12} {'first':>8} {'last':>8} {'growth an hour':>15}   95 % interval")
        for column, bounds in BOUNDS.items():
            if not chosen[0][column]:
                continue
            values = [float(row[column]) for row in chosen]
            growth, half = slope(hours, values)
            grows = bool(bounds) and growth - half > 0 and growth > bounds[0] and growth * watched > bounds[1]
            failed |= grows
            print(f"  {column:12} {values[0]:8.0f} {values[-1]:8.0f} {growth:15.2f}   "
                  f"{growth - half:.2f} to {growth + half:.2f}{'   GROWS' if grows else ''}")
    return int(failed)
