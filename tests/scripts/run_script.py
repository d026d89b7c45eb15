#!/usr/bin/env python3
"""Runs one action file through `xrpt edit` and checks what its `print` lines say.

usage: run_script.py XRPT SCRIPT

The first line of a script names its report: `# report: two-labels.xrpt`, a file of this folder. Lines that follow a `print`
and start with `#=` each state one thing of what was printed:

    #= cards.a.x 13.229      a card's field, millimetres, to a thousandth
    #= cards a b             the cards, front to back
    #= selection a b         the selected cards, in selection order
    #= selection.a 100 100 138 138     a selected card's rectangle in pixels
    #= mouseState 7          any other value of the state
    #= menu.undo true
"""
import json
import math
import os
import subprocess
import sys
import tempfile


def printed_value(state, path):
    """What a path of an expectation names in a printed state."""
    head, *rest = path.split(".")
    value = state[head]
    for step in rest:
        if isinstance(value, list):
            value = next(item for item in value if item["id"] == step)
        else:
            value = value[step]
    if isinstance(value, list):
        return [item["id"] for item in value]
    if isinstance(value, dict) and "rect" in value:
        return value["rect"]
    return [value]


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
        if line.split("#")[0].strip() == "print":
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
