"""What the command-line checks share: running iconwright-cli, collecting problems, its
JSON listing, icotool's listing, and the closing report."""
import json
import re
import subprocess

problems = []


def run(cli, *args):
    return subprocess.run([cli, *args], capture_output=True, text=True)


def expect(condition, what):
    if not condition:
        problems.append(what)


def info(cli, path):
    """iconwright-cli's info --json of `path`; an empty listing (and a problem) on failure."""
    out = run(cli, "info", "--json", path)
    expect(out.returncode == 0, f"info {path}: {out.stderr}")
    return json.loads(out.stdout) if out.returncode == 0 else {"images": [], "groups": []}


def icotool_list(path):
    """icotool's view: a list of dicts in file order, or None when icotool refuses the file."""
    out = subprocess.run(["icotool", "-l", path], capture_output=True, text=True)
    if out.returncode != 0 or not out.stdout.strip():
        return None
    images = []
    for line in out.stdout.splitlines():
        fields = {k: int(v) for k, v in re.findall(r"--([a-z-]+)=(\d+)", line)}
        images.append({"cursor": line.startswith("--cursor"), "width": fields["width"],
                       "height": fields["height"], "bpp": fields["bit-depth"],
                       "hotspot": [fields.get("hotspot-x", 0), fields.get("hotspot-y", 0)]})
    return images


def report(label, summary, failed=False):
    """Prints the problems and the summary; the exit status of the check."""
    for problem in problems:
        print(label, problem)
    print(summary)
    return 1 if problems or failed else 0
