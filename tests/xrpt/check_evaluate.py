"""xrpt evaluate: fields, exit status and the formulas of a report. Takes the program and a work folder."""
import json
import pathlib
import subprocess
import sys

xrpt, work = sys.argv[1], pathlib.Path(sys.argv[2])
work.mkdir(parents=True, exist_ok=True)
report = work / "r.xrpt"
report.write_text("<reportLayout><formules><formule><name>A</name><text>2</text></formule>"
                  "<formule><name>B</name><text>A + [M.P] * 0</text></formule></formules></reportLayout>")
NOTHING = {"undefined": [], "variables": [], "error": "", "position": 0}


def evaluate(*arguments):
    done = subprocess.run([xrpt, "evaluate", "--format", "json", *arguments], capture_output=True, text=True,
                          env={"LC_ALL": "C.UTF-8", "HOME": str(work)})
    assert done.returncode in (0, 1), done
    found = json.loads(done.stdout)
    assert done.returncode == (0 if found["accepted"] else 1), done
    return found


def expect(arguments, **wanted):
    found = evaluate(*arguments)
    for key, value in wanted.items():
        assert found[key] == value, (arguments, key, found[key], value)
    return found


with_report = ["--report", str(report)]
whole = {"analysis": 0, "evaluation": 0, "type": 0, "value": 512, "textId": 0, "shown": "512", "accepted": True}
found = expect(["2^3^2"], **whole, **NOTHING)
assert list(found) == ["analysis", "evaluation", "type", "value", "undefined", "variables", "error", "position", "textId",
                       "shown", "accepted"], list(found)
expect(["--", "-2^2"], value=-4)
expect(["1 < 2"], analysis=1, evaluation=0, type=1, value=1, textId=32446, accepted=False)
expect(["1/0"], evaluation=0, value=None, shown="#", accepted=True)
expect(["1 +"], evaluation=None, type=None, value=None, position=4, textId=32446, accepted=False)
expect([""], textId=32449, accepted=False)
expect(["x + y"], evaluation=40, value=None, undefined=["x", "y"], textId=32447, accepted=True)
expect(["B", *with_report], evaluation=62, value=2, variables=["M.P"], shown="2 *", textId=0, accepted=True)
expect(["1", *with_report, "--name", ""], textId=32451, accepted=False)
expect(["1", *with_report, "--name", "A"], textId=32450, accepted=False)
expect(["1", *with_report, "--name", "A", "--was", "A"], shown="1", accepted=True)
expect(["B", *with_report, "--name", "A", "--was", "A"], textId=32445, accepted=False)
condition = subprocess.run([xrpt, "evaluate", "1 < 2"], capture_output=True, text=True)
assert condition.stdout.endswith("value: 1\n"), condition
missing = subprocess.run([xrpt, "evaluate", "1", "--report", str(work / "none.xrpt")], capture_output=True, text=True)
assert missing.returncode == 2 and "none.xrpt" in missing.stderr and not missing.stdout, missing
