#!/usr/bin/env python3
"""Checks the includes of src/ against the module table (src/Modules.txt).

A file of a module may include the headers of its own module and of the modules the table
names as its dependencies, and no other; every dependency stands on a lower level, and
every dependency named is included somewhere (the table says what the code does). Files in
src/app and src/ui may include any module, and each other's headers. Nothing outside
src/app and src/ui includes Qt.

    check_includes.py <Modules.txt> <src folder>
    check_includes.py --self-test     (shows that each kind of fault is caught)
"""

import os
import re
import sys
import tempfile

TOP_FOLDERS = ("app", "ui")  # above every level; the only places where Qt may be included
SOURCE_SUFFIXES = (".h", ".hpp", ".cpp", ".cc", ".c")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
QT_HEADER = re.compile(r"^(Q[A-Z]\w*|Qt\w*/.*|Qt\w*)(\.h)?$")


def read_table(path):
    modules = {}
    with open(path, encoding="utf-8") as table:
        for number, line in enumerate(table, 1):
            line = line.split("#", 1)[0].split()
            if not line:
                continue
            if len(line) < 3 or not line[2].isdigit():
                raise ValueError(f"{path}:{number}: expected 'target folder level deps...'")
            target, folder, level, deps = line[0], line[1].strip("/"), int(line[2]), line[3:]
            modules[target] = {"folder": folder, "level": level, "deps": deps}
    return modules


def owner_of(relative, modules):
    """The module whose folder holds `relative` (deepest folder first), or None."""
    best = None
    for name, module in modules.items():
        folder = module["folder"] + "/"
        if relative.startswith(folder) and (best is None or len(folder) > len(modules[best]["folder"]) + 1):
            best = name
    return best


def check(table_path, src):
    modules = read_table(table_path)
    problems = []
    for name, module in modules.items():
        if not os.path.isdir(os.path.join(src, module["folder"])):
            problems.append(f"{name}: folder src/{module['folder']} does not exist")
        for dep in module["deps"]:
            if dep not in modules:
                problems.append(f"{name}: unknown dependency {dep}")
            elif modules[dep]["level"] >= module["level"]:
                problems.append(f"{name} (level {module['level']}) depends on {dep} "
                                f"(level {modules[dep]['level']}): not a lower level")
    used = {name: set() for name in modules}
    for folder, _, files in os.walk(src):
        for file in sorted(files):
            if not file.endswith(SOURCE_SUFFIXES):
                continue
            path = os.path.join(folder, file)
            relative = os.path.relpath(path, src).replace(os.sep, "/")
            top = relative.split("/", 1)[0] in TOP_FOLDERS
            owner = owner_of(relative, modules)
            if owner is None and not top:
                problems.append(f"src/{relative}: lies in no module of the table")
                continue
            with open(path, encoding="utf-8", errors="replace") as text:
                for number, line in enumerate(text, 1):
                    match = INCLUDE.match(line)
                    if not match:
                        continue
                    bracket, header = match.groups()
                    where = f"src/{relative}:{number}"
                    if bracket == "<":
                        if not top and QT_HEADER.match(header):
                            problems.append(f"{where}: includes Qt ({header}) in the core")
                        continue
                    if os.path.exists(os.path.join(folder, header)):
                        continue  # beside the file: its own module
                    if header.split("/", 1)[0] in TOP_FOLDERS:
                        if not top:
                            problems.append(f"{where}: the core includes {header} of src/"
                                            f"{header.split('/', 1)[0]}")
                        continue
                    target = owner_of(header, modules)
                    if target is None and top and header.split("/", 1)[0] in TOP_FOLDERS \
                            and os.path.exists(os.path.join(src, header)):
                        continue  # the program's shell, shared by its parts
                    if target is None:
                        problems.append(f"{where}: includes {header}, which is in no module")
                    elif top or target == owner:
                        continue
                    elif target in modules[owner]["deps"]:
                        used[owner].add(target)
                    else:
                        problems.append(f"{where}: {owner} includes {header} of {target}, "
                                        f"which it does not depend on")
    for name, module in modules.items():
        for dep in module["deps"]:
            if dep in modules and dep not in used[name]:
                problems.append(f"{name}: depends on {dep} but includes none of its headers")
    return problems


def self_test():
    """Builds small trees with one fault each and checks that every fault is reported."""
    table = ("low  low   0\n"
             "mid  mid   1  low\n"
             "high high  2  mid\n")
    clean = {
        "low/Low.h": "#pragma once\n#include <vector>\n",
        "mid/Mid.h": '#include "low/Low.h"\n#include "Local.h"\n',
        "mid/Local.h": "",
        "high/High.cpp": '#include "mid/Mid.h"\n#include "high/High.h"\n',
        "high/High.h": "",
        "app/Main.cpp": '#include <QApplication>\n#include "low/Low.h"\n#include "high/High.h"\n'
                        '#include "app/shared/Lent.h"\n'
                        '#include "ui/Window.h"\n',
        "app/shared/Lent.h": "",
        "ui/Window.h": '#include <QWidget>\n#include "mid/Mid.h"\n',
    }
    faults = {
        "includes a module it does not depend on": {"high/Skip.cpp": '#include "low/Low.h"\n'},
        "includes a higher level": {"low/Up.cpp": '#include "mid/Mid.h"\n'},
        "includes Qt in the core": {"mid/Widget.cpp": "#include <QtWidgets/QWidget>\n"},
        "includes Qt core classes in the core": {"low/Str.h": "#  include <QString>\n"},
        "includes a header of no module": {"mid/Odd.cpp": '#include "nowhere/Odd.h"\n'},
        "includes the program's shell in the core": {"mid/Up.cpp": '#include "app/shared/Lent.h"\n'},
        "lies outside every module": {"stray/Stray.cpp": ""},
        "includes the Qt layer in the core": {"high/Shows.cpp": '#include "ui/Window.h"\n'},
    }
    table_faults = {
        "a dependency on the same level": "low low 0\nmid mid 1 low\nhigh high 1 mid\n",
        "a dependency never included": "low low 0\nmid mid 1 low\nhigh high 2 mid low\n",
    }
    failures = []

    def run(files, table_text):
        with tempfile.TemporaryDirectory() as root:
            for relative, text in files.items():
                os.makedirs(os.path.dirname(os.path.join(root, relative)), exist_ok=True)
                with open(os.path.join(root, relative), "w", encoding="utf-8") as out:
                    out.write(text)
            with open(os.path.join(root, "Modules.txt"), "w", encoding="utf-8") as out:
                out.write(table_text)
            return check(os.path.join(root, "Modules.txt"), root)

    if run(clean, table):
        failures.append(f"the clean tree reports {run(clean, table)}")
    for what, extra in faults.items():
        if len(run({**clean, **extra}, table)) != 1:
            failures.append(f"a file that {what} is not reported exactly once")
    for what, bad_table in table_faults.items():
        if not run(clean, bad_table):
            failures.append(f"a table with {what} is not reported")
    for failure in failures:
        print("self-test:", failure)
    print(f"self-test: {len(faults) + len(table_faults) + 1 - len(failures)} passed, "
          f"{len(failures)} failed")
    return 1 if failures else 0


def main(argv):
    if argv[1:] == ["--self-test"]:
        return self_test()
    if len(argv) != 3:
        print(__doc__)
        return 2
    problems = check(argv[1], argv[2])
    for problem in problems:
        print(problem)
    print(f"{len(problems)} problem(s) in the includes of {argv[2]}")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
