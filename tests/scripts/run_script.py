#!/usr/bin/env python3
"""Runs one action file through `xrpt edit` and checks what the lines that print say.

usage: run_script.py XRPT SCRIPT

The first line of a script names its report: `# report: two-labels.xrpt`, a file of this folder. Lines that follow a `print`,
or an action of a dialog, and start with `#=` each state one thing of what was printed:

    #= cards.a.x 13.229      a card's field, millimetres, to a thousandth
    #= cards a b             the cards, front to back
    #= selection a b         the selected cards, in selection order
    #= selection.a 100 100 138 138     a selected card's rectangle in pixels
    #= mouseState 7          any other value of the state
    #= menu.undo true
    #= formulas A B          what a list holds, by id or by name
    #= formulas.A.text 1 + 2 one of them
"""
import json
import math
import os
import re
import subprocess
import sys
import tempfile


PRINTING = re.compile(r"(print|search|replace|replace-all|(formula|device|goback)-\w+)\b")


def named(item):
    """What an object of a list goes by."""
    return [item[key] for key in ("id", "name") if key in item]


def printed_value(state, path):
    """What a path of an expectation names in a printed state."""
    head, *rest = path.split(".")
    value = state[head]
    for step in rest:
        if isinstance(value, list):
            value = next(item for item in value if step in named(item))
        else:
            value = value[step]
    if isinstance(value, list):
        return [named(item)[0] for item in value]
    if isinstance(value, dict) and "rect" in value:
        return value["rect"]
    return value.split() if isinstance(value, str) else [value]


def matches(wanted, found):
    if isinstance(found, bool):
        return wanted == ("true" if found else "false")
    if isinstance(found, (int, float)):
        return math.isclose(float(wanted), found, rel_tol=0, abs_tol=0.001)
    return wanted == str(found)


def check(state, line):
    """Empty when the expectation holds, otherwise what was found instead."""
    path, *wanted = line.split()
    found = printed_value(state, path)
    if len(found) == len(wanted) and all(map(matches, wanted, found)):
        return ""
    return f"{line}\n    found {' '.join(str(item) for item in found)}"


def expectations(text):
    """The lines to check, one list a `print`."""
    groups = []
    for number, line in enumerate(text.splitlines(), 1):
        if PRINTING.match(line):
            groups.append([])
        elif line.startswith("#="):
            groups[-1].append((number, line[2:].strip()))
    return groups


def main():
    xrpt, script = sys.argv[1:]
    with open(script, encoding="utf-8") as stream:
        text = stream.read()
    report = os.path.join(os.path.dirname(script), text.splitlines()[0].split(":")[1].strip())
    with tempfile.TemporaryDirectory() as folder:
        command = [xrpt, "edit", report, "-o", os.path.join(folder, "out.xrpt"), "--actions", script]
        run = subprocess.run(command, capture_output=True, text=True, timeout=60)
    if run.returncode != 0:
        sys.exit(f"{script}: xrpt edit ended with {run.returncode}\n{run.stderr}")
    states = [json.loads(line) for line in run.stdout.splitlines()]
    groups = expectations(text)
    if len(states) != len(groups) or not any(groups):
        sys.exit(f"{script}: {len(states)} states printed for {len(groups)} print lines, none or all unchecked")
    faults = []
    for state, lines in zip(states, groups):
        for number, line in lines:
            fault = check(state, line)
            if fault:
                faults.append(f"{script}:{number}: {fault}")
    if faults:
        sys.exit("\n".join(faults))


if __name__ == "__main__":
    main()
