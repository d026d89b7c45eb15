"""xrpt search and replace: what is found where, and that replacing leaves every other byte. Takes the program, the folder
of scripts and a work folder."""
import json
import pathlib
import shutil
import subprocess
import sys

xrpt, scripts, work = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])
shutil.rmtree(work, ignore_errors=True)
work.mkdir(parents=True)
report = work / "texts.xrpt"
original = (scripts / "texts.xrpt").read_bytes()
# Spellings of other programs: line ends, comments, quotes, sections, attributes, elements nobody knows.
odd = original.replace(b"\n", b"\r\n").replace(b"<textStr>aaaa", b"<textStr note='a > b'>aaaa &quot;caf\xc3\xa9&quot;")
odd = odd.replace(b"an inner A", b"an <!-- A --><![CDATA[inner A]]>").replace(b"<page>", b"<page><unknown>aa</unknown>")
REVISION = b"33333333-3333-4333-8333-333333333333"


def run(*arguments, status=0):
    done = subprocess.run([xrpt, *map(str, arguments)], capture_output=True, text=True, timeout=60,
                          env={"LC_ALL": "C.UTF-8", "HOME": str(work)})
    assert done.returncode == status, (arguments, done)
    return done.stdout


def found(*arguments, status=1):
    return json.loads(run(*arguments, "--format", "json", status=status))


def replaced(before, *arguments):
    """The bytes after a replace, with the revision of before."""
    report.write_bytes(before)
    run("replace", *arguments, report, status=1)
    after = report.read_bytes()
    begin = after.find(b"<revision>") + len(b"<revision>")
    assert after[begin:begin + len(REVISION)] != REVISION, "a changed report has a revision of its own"
    return after[:begin] + REVISION + after[begin + len(REVISION):]


report.write_bytes(original)
hits = found("search", "a", report)
assert list(hits[0]) == ["file", "page", "id", "tag", "field", "position", "text"], hits[0]
assert [(hit["id"], hit["tag"], hit["field"], hit["position"]) for hit in hits if hit["page"] == 1] == [
    ("a", "label", "textStr", 0), ("a", "label", "textStr", 1), ("a", "label", "textStr", 2), ("a", "label", "textStr", 3),
    ("f", "formule", "value", 2), ("f", "formule", "value", 17), ("f", "formule", "value", 30),
    ("c", "conditioned", "condition", 2), ("inner", "label", "textStr", 0), ("inner", "label", "textStr", 9)], hits
assert hits[0]["text"] == "aaaa & B" and hits[0]["file"] == str(report)
assert [(hit["page"], hit["id"], hit["tag"], hit["field"]) for hit in found("search", "SITE", work)] == [
    (1, "f", "formule", "value"), (2, "g", "reportGraph", "id"), (0, "Peak", "formule", "text")]
assert found("search", "--case", "SITE", work, status=0) == [] == found("search", "", work, status=0)
assert len(found("search", "&", report)) == 1, "texts are searched as they read, not as they are spelled"
(work / "broken.xrpt").write_text("<reportLayout>")
assert len(found("search", "--case", "Site", work, status=2)) == 3, "a file that cannot be read hides no other"
(work / "broken.xrpt").unlink()

diff = run("replace", "--dry-run", "aa", "<b>", report, status=1)
assert "-        <textStr>aaaa &amp; &#66;</textStr>\n+        <textStr>&lt;b&gt;&lt;b&gt; &amp; &#66;</textStr>\n" in diff
assert report.read_bytes() == original, "a dry run writes nothing"
if shutil.which("patch"):
    patched = subprocess.run(["patch", "-s", "-o", "-", report], input=diff, capture_output=True, text=True)
    assert patched.stdout.encode() == original.replace(b"aaaa", b"&lt;b&gt;&lt;b&gt;"), patched
run("replace", "nowhere", "x", report, status=0)
assert report.read_bytes() == original, "nothing to replace, nothing written"

assert replaced(original, "aa", "x") == original.replace(b"aaaa", b"xx")
assert replaced(original, "Site", "S\u00fcd & \"West\"") == original.replace(
    b"VIRTUAL_Site.", "VIRTUAL_S\u00fcd &amp; &quot;West&quot;.".encode())
assert replaced(original, "& b", "") == original.replace(b"&amp; &#66;", b"")
assert replaced(odd, "aa", "x") == odd.replace(b">aaaa", b">xx")
assert replaced(odd, "\u00c9\"", "!") == odd.replace(b"\xc3\xa9&quot;", b"!")
assert replaced(odd, "inner", "other") == odd.replace(b"an <!-- A --><![CDATA[inner A]]>", b"an other A")
wide = original.decode().replace("UTF-8", "UTF-16").encode("utf-16")
report.write_bytes(wide)
run("replace", "aa", "x", report, status=2)
assert report.read_bytes() == wide, "what cannot be changed in place is left alone"
