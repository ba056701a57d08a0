#!/usr/bin/env python3
"""Small trees that break one rule each, to see that check_includes.py finds it."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

import check_includes

# Who includes what, and what has to be said; None: nothing.
ARROWS = [
    ("frame/a.h", "frame/b.h", None),
    ("host/a.h", "frame/b.h", None),
    ("host/a.h", "drawing/b.h", None),
    ("module/a.cpp", "persistence/b.h", None),
    ("persistence/a.cpp", "module/b.h", None),
    ("catalog/a.cpp", "properties/b.h", None),
    ("host/integration/a.cpp", "catalog/b.h", None),
    ("ui/a.cpp", "host/integration/b.h", None),
    ("module/entry/a.cpp", "ui/b.h", None),
    ("module/loadable/a.cpp", "module/entry/b.h", None),
    ("drafton/engine/a.cpp", "drafton/render/b.h", None),
    ("drafton/engine/a.cpp", "host/services.h", None),
    ("drafton/engine/a.cpp", "drawing/b.h", None),
    ("drafton/a.cpp", "frame/b.h", None),
    ("tpal/a.cpp", "module/entry/b.h", None),
    ("tpal/a.cpp", "catalog/b.h", None),
    ("tpal/a.cpp", "drafton/previews/b.h", None),
    ("tpal/a.cpp", "drafton/icons/b.h", None),
    ("frame/a.h", "drawing/b.h", "layer 1 (frame) includes drawing/b.h of layer 2 (drawing)"),
    ("drawing/a.h", "module/b.h", "layer 2 (drawing) includes module/b.h of layer 3 (module)"),
    ("host/a.h", "persistence/b.h", "layer 2 (host) includes"),
    ("host/a.h", "host/integration/b.h", "layer 2 (host) includes host/integration/b.h of layer 6"),
    ("module/a.cpp", "properties/b.h", "layer 3 (module) includes"),
    ("module/a.cpp", "module/entry/b.h", "of layer 8 (module/entry)"),
    ("persistence/a.cpp", "catalog/b.h", "layer 3 (persistence) includes"),
    ("images/a.cpp", "tools/b.h", "layer 4 (images) includes"),
    ("properties/a.cpp", "catalog/b.h", "layer 4 (properties) includes"),
    ("tools/a.cpp", "host/integration/b.h", "layer 5 (tools) includes"),
    ("catalog/a.cpp", "ui/b.h", "layer 5 (catalog) includes"),
    ("host/integration/a.cpp", "ui/b.h", "layer 6 (host/integration) includes"),
    ("ui/a.cpp", "module/entry/b.h", "layer 7 (ui) includes"),
    ("catalog/a.cpp", "drafton/engine/b.h", "the module includes drafton/engine/b.h of a program"),
    ("frame/a.cpp", "tpal/b.h", "the module includes tpal/b.h of a program"),
    ("ui/a.cpp", "tests/support/b.h", "tests/support/b.h stands in no layer"),
    ("drafton/engine/a.cpp", "module/b.h", "the host includes module/b.h"),
    ("drafton/engine/a.cpp", "catalog/b.h", "the host includes catalog/b.h"),
    ("drafton/engine/a.cpp", "host/integration/b.h", "the host includes host/integration/b.h"),
    ("drafton/engine/a.cpp", "host/host_locator.h", "which is the module's own"),
    ("drafton/engine/a.cpp", "tpal/b.h", "the host includes tpal/b.h"),
    ("tpal/a.cpp", "drafton/engine/b.h", "tpal includes drafton/engine/b.h"),
]

LIBRARIES = [
    ("persistence/a.h", "<tinyxml.h>", None),
    ("catalog/a.cpp", "<tinyxml.h>", "<tinyxml.h> belongs to persistence/ alone"),
    ("catalog/a.cpp", '"tinyxml.h"', "<tinyxml.h> belongs to persistence/ alone"),
    ("tpal/a.cpp", "<tinyxml/tinyxml.h>", "belongs to persistence/ alone"),
    ("ui/a.cpp", "<QWidget>", None),
    ("ui/window/a.cpp", "<QtWidgets/QLabel>", None),
    ("drafton/desktop/a.cpp", "<QWidget>", None),
    ("drafton/engine/a.cpp", "<QWidget>", "<QWidget> is a widget"),
    ("catalog/a.cpp", "<QtWidgets/QLabel>", "<QtWidgets/QLabel> is a widget"),
    ("module/entry/a.cpp", "<QWidget>", "<QWidget> is a widget"),
    ("catalog/a.cpp", "<QString>", None),
]


class Tree:
    """A tree of files that lives as long as the `with` block."""

    def __init__(self, files):
        self.files = files

    def __enter__(self):
        self.folder = tempfile.TemporaryDirectory()
        root = pathlib.Path(self.folder.name)
        for name, text in self.files.items():
            (root / name).parent.mkdir(parents=True, exist_ok=True)
            (root / name).write_text(text, encoding="utf-8")
        return root

    def __exit__(self, *_):
        self.folder.cleanup()


def problems_of(files):
    with Tree(files) as root:
        return check_includes.check(root, frozenset({"QWidget", "QLabel"}))[0]


class Includes(unittest.TestCase):
    def expect(self, source, include, expected):
        problems = problems_of(source)
        if expected is None:
            self.assertEqual(problems, [], include)
        else:
            self.assertEqual(len(problems), 1, problems)
            self.assertIn(expected, problems[0])
            self.assertTrue(problems[0].startswith(include), problems[0])

    def test_arrows_between_folders(self):
        for source, target, expected in ARROWS:
            with self.subTest(source=source, target=target):
                files = {source: f'#pragma once\n#include "{target}"\n', target: "#pragma once\n"}
                self.expect(files, f"{source}:2:", expected)

    def test_outside_libraries(self):
        for source, name, expected in LIBRARIES:
            with self.subTest(source=source, name=name):
                self.expect({source: f"#include {name}\n"}, f"{source}:1:", expected)

    def test_loop_of_two(self):
        problems = problems_of({"ui/a.h": '#include "ui/b.h"\n', "ui/b.h": '#include "ui/a.h"\n'})
        self.assertEqual(problems, ["ui/a.h:1: includes itself in a loop: ui/a.h, ui/b.h"])

    def test_loop_of_three_across_folders_of_one_layer(self):
        problems = problems_of({
            "tools/a.h": '#include "catalog/b.h"\n',
            "catalog/b.h": '#include "catalog/c.h"\n',
            "catalog/c.h": '#include "tools/a.h"\n',
        })
        self.assertEqual(
            problems,
            ["catalog/b.h:1: includes itself in a loop: catalog/b.h, catalog/c.h, tools/a.h"])

    def test_file_that_includes_itself(self):
        self.assertEqual(len(problems_of({"ui/a.h": '#include "ui/a.h"\n'})), 1)

    def test_diamond_is_no_loop(self):
        self.assertEqual(problems_of({
            "ui/a.h": '#include "ui/b.h"\n#include "ui/c.h"\n',
            "ui/b.h": '#include "ui/d.h"\n',
            "ui/c.h": '#include "ui/d.h"\n',
            "ui/d.h": "",
        }), [])

    def test_include_beside_the_file_and_odd_spelling(self):
        problems = problems_of({
            "catalog/sub/a.cpp": '  #  include   "b.h"\n#include "../../ui/c.h"\n',
            "catalog/sub/b.h": "",
            "ui/c.h": "",
        })
        self.assertEqual(len(problems), 1)
        self.assertIn("catalog/sub/a.cpp:2", problems[0])

    def test_program_tells_by_its_exit_code(self):
        script = pathlib.Path(check_includes.__file__)

        def run(files):
            with Tree(files) as root:
                return subprocess.run([sys.executable, script, root], capture_output=True,
                                      text=True, check=False)

        good = run({"frame/a.h": ""})
        self.assertEqual((good.returncode, good.stdout), (0, ""))
        bad = run({"frame/a.h": '#include "ui/b.h"\n', "ui/b.h": ""})
        self.assertEqual(bad.returncode, 1)
        self.assertIn("frame/a.h:1: layer 1 (frame) includes ui/b.h", bad.stdout)
        self.assertEqual(run({"elsewhere/a.h": ""}).returncode, 1)


if __name__ == "__main__":
    unittest.main()
