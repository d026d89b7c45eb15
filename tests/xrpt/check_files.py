#!/usr/bin/env python3
"""The actions new, open, save, save-as and rename: what they print, ask and leave in the folder.

usage: check_files.py XRPT FOLDER   (FOLDER is made anew)
"""
import json
import os
import shutil
import subprocess
import sys

xrpt, folder = sys.argv[1:]
config = os.path.join(folder, "config")


def report(name):
    return f"<reportLayout><id>ID-{name}</id><name>{name}</name><page/></reportLayout>"


def start():
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(config)
    for name in ("one", "two"):
        with open(os.path.join(config, f"ID-{name}.{name}.xrpt"), "w") as file:
            file.write(report(name))


def run(actions, *options, status=0, where=config):
    command = [xrpt, "edit", os.path.join(config, "ID-one.one.xrpt"), "--config", where, "--actions", "-",
               "-o", os.path.join(folder, "out.xrpt"), *options]
    done = subprocess.run(command, input="\n".join(actions), capture_output=True, text=True,
                          env={**os.environ, "XDG_STATE_HOME": os.path.join(folder, "state")})
    assert done.returncode == status, (actions, done.returncode, done.stderr)
    return [json.loads(line) for line in done.stdout.splitlines()]


def files():
    return sorted(name for name in os.listdir(config) if not name.startswith("."))


def check(got, **wanted):
    for key, value in wanted.items():
        assert got[key] == value, (key, got, wanted)


SAVE_CHANGES = 32472
TAKEN = 62223

# Unsaved changes are asked about; no lets them go, and the open report is not opened again.
start()
opened, same, renamed = run(["command AddPage", "open two", "open two", "rename three"])
check(opened, done=True, asked=[SAVE_CHANGES], name="two", id="ID-two", modified=False)
check(same, done=False, asked=[])
check(renamed, done=True, name="three", modified=True)
assert files() == ["ID-one.one.xrpt", "ID-two.two.xrpt"]

# Saving under a name makes a report of its own; without one the next free reportN keeps the identity.
start()
saved, named, fresh = run(["save-as three", "save-as", "new"])
check(saved, done=True, asked=[], name="three", modified=False)
check(named, done=True, name="report1", id=saved["id"])
check(fresh, done=True, name="", modified=False)
assert len(files()) == 4, files()

# A save that fails says so and ends the run.
start()
failed = run(["save", "print"], where=os.path.join(config, "ID-two.two.xrpt"), status=2)
assert len(failed) == 1, failed
check(failed[0], done=False, modified=True)

# With the desktop's options a report goes back to its file, and one of the same name is asked about first.
start()
saved, renamed, taken = run(["command AddPage", "save", "rename two", "save"], "--comfort", status=2)
check(saved, done=True, asked=[], modified=False)
check(taken, done=False, asked=[TAKEN], modified=True)
start()
replaced = run(["answer yes", "rename two", "save"], "--comfort")[1]
check(replaced, done=True, asked=[TAKEN], name="two", modified=False)
assert files() == ["ID-one.one.xrpt", "ID-two.two.xrpt"]
print("file actions as they should be")
