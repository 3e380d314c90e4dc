#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""run.py [--counts] [--list] [ROW...]: runs the rows of all groups; see script/bench."""
import argparse
import importlib.util
import json
import os
import re
import shlex
import subprocess
import sys
import tempfile
from fnmatch import fnmatch
from pathlib import Path

here = Path(__file__).resolve().parent
root = here.parent
build = root / "build/bench"
sys.dont_write_bytecode = True
sys.path.insert(0, str(here))
import report  # noqa: E402: it stands beside this file
import table  # noqa: E402

limit = 300  # seconds that one round of one contender may take


def groups():
    for file in sorted(here.glob("*/rows.py")):
        spec = importlib.util.spec_from_file_location(f"rows_{file.parent.name}", file)
        module = importlib.util.module_from_spec(spec)
        spec.loader.exec_module(module)
        yield file.parent.name, module.ROWS


def all_rows():
    return {row.name: (group, row) for group, rows in groups() for row in rows}


def chosen(patterns):
    rows = all_rows()
    for pattern in patterns:
        if not any(fnmatch(name, pattern) or group == pattern for name, (group, _) in rows.items()):
            sys.exit(f"bench: no row or group is named {pattern}; script/bench --list tells them")
    return [(group, row) for name, (group, row) in rows.items()
            if not patterns or any(fnmatch(name, pattern) or group == pattern for pattern in patterns)]


def output(command):
    done = subprocess.run(command, capture_output=True, text=True, timeout=limit)
    if done.returncode:
        sys.exit(f"bench: {shlex.join(map(str, command))} ended with {done.returncode}\n{done.stdout}{done.stderr}")
    return done


def printed(text):
    return {name: float(value) for name, value in re.findall(r"^(\S+) (-?[\d.]+(?:e[+-]?\d+)?)$", text, re.M)}


def round_of(group, command, size):
    places = {"bin": build / "benchmarks" / group, "here": here / group, "size": size}
    return printed(output(shlex.split(command.format(**places))).stdout)


def instructions_of(group, command, size, metric):
    with tempfile.TemporaryDirectory() as folder:
        places = {"bin": build / "benchmarks" / group, "here": here / group, "size": size}
        done = output(["valgrind", "--tool=callgrind", "--instr-atstart=no", f"--callgrind-out-file={folder}/out",
                       *shlex.split(command.format(**places))])
    collected = int(re.search(r"Collected : (\d+)", done.stderr).group(1))
    return {metric.name: collected / printed(done.stdout)["operations"]}


def measure(group, row):
    """A list of rounds; each is {size: {contender: {metric: value}}}. All contenders have their turn in each round."""
    timed = [metric for metric in row.metrics if not metric.counted]
    plain = [metric for metric in row.metrics if not metric.callgrind]
    rounds = []
    for number in range(max(7, row.rounds) if timed else 1):
        rounds.append({})
        for size in row.sizes:
            rounds[-1][str(size)] = values = {name: {} for name in row.contenders}
            for name, command in row.contenders.items():
                if plain:
                    values[name].update(round_of(group, command, size))
                for metric in row.metrics:
                    if metric.callgrind and number == 0:
                        values[name].update(instructions_of(group, command, size, metric))
    return rounds


def measured(group, row, counts):
    """Measures here, or on a private desktop when the row asks for one."""
    if row.session is None or "ZO_BENCH_INSIDE" in os.environ:
        return measure(group, row)
    with tempfile.TemporaryDirectory() as folder:
        file = Path(folder) / "rounds.json"
        command = [root / "script/session", *row.session, "--", "env", "ZO_BENCH_INSIDE=1", sys.executable, __file__,
                   "--into", file, row.name] + (["--counts"] if counts else [])
        if subprocess.run(command).returncode:
            sys.exit(f"bench: {row.name} failed on its desktop")
        return json.loads(file.read_text())


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--counts", action="store_true", help="only what is counted and does not vary")
    parser.add_argument("--list", action="store_true", help="tell the names of all rows")
    parser.add_argument("--into", help=argparse.SUPPRESS)
    parser.add_argument("rows", nargs="*", metavar="ROW", help="a row's name, a pattern of names, or a group")
    options = parser.parse_args()
    rows = chosen(options.rows)
    if options.list:
        print("\n".join(f"{group}: {row.name}: {row.title}" for group, row in rows))
        return 0
    if options.counts:
        rows = [(group, counted) for group, row in rows if (counted := table.asserted(row))]
    lines = []
    for group, row in rows:
        print(f"bench: {row.title}", file=sys.stderr, flush=True)
        rounds = measured(group, row, options.counts)
        if options.into:
            Path(options.into).write_text(json.dumps(rounds))
            return 0
        lines += report.lines_of(row, rounds)
    report.show(lines)
    if not options.rows and not options.counts:
        report.write(root / "docs/benchmarks.md", [row for _, row in rows], lines)
    return 0 if all(line.reached for line in lines) else 1


if __name__ == "__main__":
    sys.exit(main())
