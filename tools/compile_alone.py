#!/usr/bin/env python3
"""Does every source and every header compile by itself, without the precompiled header?

    compile_alone.py BUILD                  check all files, as many at a time as there are processors
    compile_alone.py BUILD --built OTHER    the same but for the sources that OTHER compiled without that header
    compile_alone.py BUILD --database DIR   only write DIR/compile_commands.json without that header, for other tools

BUILD is a configured and built folder: its compile commands say how. Prints the compiler's words about each file that
does not compile; exit status 1 when there is one.
"""
import argparse
import concurrent.futures
import json
import os
import pathlib
import shlex
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent


def alone(command):
    """The compiler and its options: no wrapper, no precompiled header, no files."""
    words = shlex.split(command)
    compiler = next(i for i, word in enumerate(words) if pathlib.Path(word).name.startswith(("c++", "g++", "clang++")))
    kept, at = [words[compiler]], compiler + 1
    while at < len(words):
        takes_next = words[at] in ("-o", "-MT", "-MF", "-c") or (words[at] == "-include" and "cmake_pch" in words[at + 1])
        if not takes_next and words[at] not in ("-Winvalid-pch", "-fpch-preprocess", "-MD"):
            kept.append(words[at])
        at += 2 if takes_next else 1
    return kept


def commands_of(build, without_header=False):
    """Options by source, of the project's own sources; only those compiled without the header, if asked."""
    entries = json.loads((build / "compile_commands.json").read_text())
    own = [e for e in entries if pathlib.Path(e["file"]).is_relative_to(ROOT) and "cmake_pch" not in e["file"]
           and not pathlib.Path(e["file"]).is_relative_to(build)]
    if without_header:
        own = [e for e in own if "cmake_pch" not in e["command"]]
    return {pathlib.Path(e["file"]): (alone(e["command"]), e["directory"]) for e in own}


def write_database(commands, folder):
    folder.mkdir(parents=True, exist_ok=True)
    entries = [{"file": str(file), "directory": directory, "command": shlex.join(options + ["-c", str(file)])}
               for file, (options, directory) in commands.items()]
    (folder / "compile_commands.json").write_text(json.dumps(entries, indent=1))


def headers(commands):
    """Each header with the options of a source of its folder, or of any source for a folder that has none."""
    listed = subprocess.run(["git", "ls-files", "src/**.h", "tests/**.h"], cwd=ROOT, capture_output=True, text=True, check=True)
    by_folder = {file.parent: how for file, how in commands.items()}
    tests = next((how for file, how in commands.items() if file.is_relative_to(ROOT / "tests")), None)
    for name in listed.stdout.split():
        how = by_folder.get((ROOT / name).parent) or tests
        if how and not name.endswith("Precompiled.h"):
            yield ROOT / name, how


def check(task):
    file, (options, directory) = task
    source = ["-include", str(file), "/dev/null"] if file.suffix == ".h" else [str(file)]
    done = subprocess.run(options + ["-fsyntax-only", "-x", "c++"] + source, cwd=directory, capture_output=True, text=True)
    return None if done.returncode == 0 else f"{file.relative_to(ROOT)} does not compile by itself:\n{done.stderr[:2000]}"


def main():
    ask = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    ask.add_argument("build", type=pathlib.Path)
    ask.add_argument("--built", type=pathlib.Path)
    ask.add_argument("--database", type=pathlib.Path)
    options = ask.parse_args()
    commands = commands_of(options.build.resolve())
    if options.database:
        write_database(commands, options.database)
        return 0
    done = commands_of(options.built.resolve(), without_header=True) if options.built else {}
    tasks = [item for item in commands.items() if item[0] not in done] + list(headers(commands))
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        faults = [fault for fault in pool.map(check, tasks) if fault]
    print("\n".join(faults) or f"{len(tasks)} files compile by themselves")
    return 1 if faults else 0


sys.exit(main())
