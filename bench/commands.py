"""What whole commands cost, from their start to their end: commands.py XRPT FOLDER, with the files bench_model leaves."""
import os
import pathlib
import subprocess
import sys
import time


def run(command):
    """Milliseconds and the most memory (MB) of the fastest of several runs."""
    best, peak = 1e9, 0.0
    for _ in range(7):
        start = time.perf_counter()
        process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        usage = os.wait4(process.pid, 0)[2]
        best = min(best, (time.perf_counter() - start) * 1000.0)
        peak = max(peak, usage.ru_maxrss / 1024.0)
    return best, peak


def main():
    xrpt, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    rows = [("true (the floor of a start)", ["true"], None), ("xrpt --version", [xrpt, "--version"], None)]
    for name in ("page", "mixed", "labels"):
        file = folder / f"{name}.xrpt"
        rows.append((f"cat {name}", ["cat", str(file)], file))
        rows.append((f"xrpt info {name}", [xrpt, "info", str(file)], file))
        rows.append((f"xrpt resave {name}", [xrpt, "resave", str(file), "-o", str(folder / "copy.xrpt")], file))
    for name, command, file in rows:
        time_ms, peak = run(command)
        size = file.stat().st_size / 1048576.0 if file else 0.0
        ratio = f", {peak / size:5.2f} of the file's {size:.1f} MB" if file else ""
        print(f"  {name:<28} {time_ms:8.1f} ms | at most {peak:7.1f} MB{ratio}")


main()
