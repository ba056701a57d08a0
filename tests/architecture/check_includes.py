#!/usr/bin/env python3
"""Reads the #include lines of the tree and names every one that points the wrong way.

Usage: check_includes.py ROOT [--widgets DIR]

ROOT is the top of the tree. DIR is the folder of Qt's widget headers; without it only includes that
name QtWidgets are known for widgets. Prints one line for each broken rule, "file:line: reason", and
exits with 1 if there is any.
"""

import argparse
import pathlib
import re
import sys

# A file includes only from its own layer or from one below. The longest folder that fits counts.
LAYERS = {
    "frame": 1,
    "drawing": 2,
    "host": 2,
    "module": 3,
    "persistence": 3,
    "images": 4,
    "properties": 4,
    "tools": 5,
    "catalog": 5,
    "host/integration": 6,
    "ui": 7,
    "module/entry": 8,
    "module/loadable": 8,
}

# Programs stand outside the layers. What the host may include: the module is loaded at run time, so
# it knows the interfaces in host/ but not the file by which the module finds a host.
HOST_MAY_INCLUDE = {"frame", "drawing", "host", "drafton"}
MODULES_OWN = {"host/host_locator.h"}
PROGRAMS = ("drafton", "tpal")

# The catalog tool shows and makes pictures of tools as the host does.
TPAL_MAY_INCLUDE = ("drafton/icons", "drafton/previews")

PARSER_FOLDER = "persistence"
WIDGET_FOLDERS = ("ui", "drafton/desktop")

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def folder_of(path):
    """The layer folder of a path below ROOT, or its first folder if that is no layer."""
    parts = path.split("/")[:-1]
    for length in range(len(parts), 0, -1):
        if "/".join(parts[:length]) in LAYERS:
            return "/".join(parts[:length])
    return parts[0] if parts else ""


def is_below(path, folders):
    return any(path.startswith(folder + "/") for folder in folders)


def sources(root):
    tops = {folder.split("/")[0] for folder in LAYERS} | set(PROGRAMS)
    for top in sorted(tops):
        for path in sorted((root / top).rglob("*")):
            if path.suffix in (".h", ".cpp") and path.is_file():
                yield path.relative_to(root).as_posix()


def includes_of(root, source):
    text = (root / source).read_text(encoding="utf-8", errors="replace")
    for number, line in enumerate(text.splitlines(), 1):
        found = INCLUDE.match(line)
        if found:
            yield number, found.group(1), found.group(2)


def resolved(root, source, name):
    """The included file below ROOT, or None if it is not of this tree."""
    beside = (pathlib.PurePosixPath(source).parent / name).as_posix()
    for candidate in (name, beside):
        if (root / candidate).is_file():
            return (root / candidate).resolve().relative_to(root.resolve()).as_posix()
    return None


def wrong_arrow(source, target):
    """Why `source` may not include `target`, or None if it may."""
    here, there = folder_of(source), folder_of(target)
    if here == "drafton":
        if there not in HOST_MAY_INCLUDE:
            return f"the host includes {target}; of the module it may know the interfaces in host/"
        if target in MODULES_OWN:
            return f"the host includes {target}, which is the module's own"
        return None
    if here == "tpal":
        is_foreign = there == "drafton" and not is_below(target, TPAL_MAY_INCLUDE)
        return f"tpal includes {target}" if is_foreign else None
    if there in PROGRAMS:
        return f"the module includes {target} of a program"
    if there not in LAYERS:
        return f"{target} stands in no layer"
    if LAYERS[there] > LAYERS[here]:
        return (f"layer {LAYERS[here]} ({here}) includes {target} of layer {LAYERS[there]} ({there})")
    return None


def wrong_library(source, name, widgets):
    """Why `source` may not include the outside header `name`, or None if it may."""
    if pathlib.PurePosixPath(name).name.lower() in ("tinyxml.h", "tinystr.h"):
        if folder_of(source) != PARSER_FOLDER:
            return f"<{name}> belongs to {PARSER_FOLDER}/ alone"
    parts = name.split("/")
    if parts[0] == "QtWidgets" or (len(parts) == 1 and name in widgets):
        if not is_below(source, WIDGET_FOLDERS):
            return f"<{name}> is a widget; widgets belong to " + ", ".join(WIDGET_FOLDERS)
    return None


def loops(graph):
    """Groups of files that include each other, each in a fixed order (Tarjan, without recursion)."""
    index, low, on_stack, stack, found = {}, {}, set(), [], []
    for start in sorted(graph):
        if start in index:
            continue
        work = [(start, iter(sorted(graph[start])))]
        index[start] = low[start] = len(index)
        stack.append(start)
        on_stack.add(start)
        while work:
            node, targets = work[-1]
            for target in targets:
                if target not in index:
                    index[target] = low[target] = len(index)
                    stack.append(target)
                    on_stack.add(target)
                    work.append((target, iter(sorted(graph.get(target, ())))))
                    break
                if target in on_stack:
                    low[node] = min(low[node], index[target])
            else:
                work.pop()
                if work:
                    low[work[-1][0]] = min(low[work[-1][0]], low[node])
                if low[node] == index[node]:
                    group = []
                    while not group or group[-1] != node:
                        group.append(stack.pop())
                        on_stack.discard(group[-1])
                    if len(group) > 1 or node in graph.get(node, ()):
                        found.append(sorted(group))
    return found


def check(root, widgets=frozenset()):
    """All broken rules of the tree, as lines of text; and how many files were read."""
    problems, graph = [], {}
    for source in sources(root):
        graph[source] = set()
        for number, _, name in includes_of(root, source):
            target = resolved(root, source, name)
            if target:
                graph[source].add(target)
                reason = wrong_arrow(source, target)
            else:
                reason = wrong_library(source, name, widgets)
            if reason:
                problems.append(f"{source}:{number}: {reason}")
    for group in loops(graph):
        problems.append(f"{group[0]}:1: includes itself in a loop: " + ", ".join(group))
    return problems, len(graph)


def widget_headers(folder):
    return frozenset(path.name for path in pathlib.Path(folder).iterdir()) if folder else frozenset()


def main():
    parser = argparse.ArgumentParser(description="Checks who includes whom.")
    parser.add_argument("root", type=pathlib.Path)
    parser.add_argument("--widgets", help="the folder of Qt's widget headers")
    arguments = parser.parse_args()
    problems, count = check(arguments.root, widget_headers(arguments.widgets))
    for problem in problems:
        print(problem)
    if count == 0:
        print(f"{arguments.root}: there are no sources")
    sys.exit(1 if problems or count == 0 else 0)


if __name__ == "__main__":
    main()
