"""xrpt style: what each operation leaves in the folder, prints and ends with. Takes the program and a work folder."""
import json
import pathlib
import shutil
import subprocess
import sys

xrpt, work = sys.argv[1], pathlib.Path(sys.argv[2])
shutil.rmtree(work, ignore_errors=True)
(work / "other").mkdir(parents=True)


def style(*arguments, folder=work, expect=0, text=None):
    done = subprocess.run([xrpt, "style", *arguments, "--config", str(folder)], capture_output=True, text=True, input=text,
                          env={"LC_ALL": "C.UTF-8", "HOME": str(work)})
    assert done.returncode == expect, (arguments, done)
    return done.stdout


def shown(name):
    return json.loads(style("show", name, "--format", "json"))


def identifier(name):
    return next(work.glob(f"*.{name}.XSTY")).name.split(".")[0]


style("set", "Title", "--face", "Times", "--size", "14", "--style", "ITALICBOLD", "--color", "C01000", "--orientation", "30")
assert shown("Title") == {"name": "Title", "face": "Times", "style": "ITALICBOLD", "orientation": 30, "size": 14,
                          "color": "C01000"}
assert "<color>0010C0</color>" in next(work.glob("*.Title.XSTY")).read_text(), "files hold blue first"

# What is not named stays; a new name keeps the identifier and moves the file.
former = identifier("Title")
style("set", "Heading", "--was", "Title", "--size", "16")
assert shown("Heading")["face"] == "Times" and shown("Heading")["size"] == 16
assert identifier("Heading") == former and not list(work.glob("*.Title.XSTY"))

# Refusals say the dialog's number and change nothing.
style("set", "Plain")
assert style("set", "Plain", "--was", "Heading", expect=1).startswith("717 ")
assert style("set", "Plain", "--size", "0", expect=1).startswith("725 ")
assert style("set", "a/b", expect=1).startswith("32764 ")
assert style("set", "", expect=1).startswith("724 ")
assert style("list") == "Heading\nPlain\n"
style("set", "Plain", "--was", "Heading", "--overwrite")
assert style("list") == "Plain\n" and shown("Plain")["size"] == 16

# The clipboard, within a folder and between two.
copied = style("copy", "Plain")
assert copied.startswith("<styleClipboard>") and copied.strip().endswith("</styleClipboard>"), copied
assert style("paste", "-", text=copied) == "Plain_1\n"
assert style("paste", "-", text=copied) == "Plain_2\n"
assert style("paste", "-", text=copied, folder=work / "other") == "Plain\n"
style("paste", "-", text="<other/>", expect=1)
style("paste", str(work / "none"), expect=2)

style("remove", "Plain_1", "Plain_2")
assert [one["name"] for one in json.loads(style("list", "--format", "json"))] == ["Plain"]
style("remove", "None", expect=2)
style("show", "None", expect=2)
