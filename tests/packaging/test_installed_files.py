"""Proves that the files by which a desktop knows the program agree with the program, with each
other and with CHANGELOG.md, as they are installed.
usage: python3 test_installed_files.py SOURCES BUILD-FOLDER VERSION"""

import configparser
import os
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

SOURCES, BUILD = (Path(argument) for argument in sys.argv[1:3])
VERSION = sys.argv[3]
STAGE = tempfile.TemporaryDirectory()
TREE = Path(STAGE.name)
SHARE = TREE / "usr/share"


def run(*command, **options):
    return subprocess.run(command, capture_output=True, text=True, timeout=60, **options)


def known_pages():
    """What the program names when it is asked for a page that it does not have."""
    answer = run(SOURCES / "tests/support/isolated", BUILD / "bin/toolvane", "no-such-page",
                 env=os.environ | {"LC_ALL": "C.UTF-8"})
    listed = re.search(r"These are the pages: (.*)\.", answer.stderr)
    return listed[1].split(", ") if listed and answer.returncode == 64 else answer.stderr


def completions(word):
    line = f'. "$1"; COMP_WORDS=(toolvane "{word}"); COMP_CWORD=1; _toolvane; echo "${{COMPREPLY[@]}}"'
    script = SHARE / "bash-completion/completions/toolvane"
    return run("bash", "-c", line, "bash", script, check=True).stdout.split()


class InstalledFiles(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        run("cmake", "--install", BUILD, "--component", "desktop", "--prefix", TREE / "usr", check=True)
        cls.metainfo = xml.parse(next(SHARE.glob("metainfo/*.metainfo.xml"))).getroot()
        cls.desktop = configparser.ConfigParser(interpolation=None, delimiters="=")
        cls.desktop.optionxform = str
        cls.desktop.read(SHARE / "applications/toolvane.desktop", encoding="utf-8")

    def test_the_fields_own_judges_are_content(self):
        verdict = run(SOURCES / "packaging/check/descriptions", TREE)
        self.assertEqual(verdict.returncode, 0, verdict.stdout + verdict.stderr)

    def test_menu_completion_and_manual_name_the_pages_that_the_program_knows(self):
        pages = known_pages()
        self.assertEqual(self.desktop["Desktop Entry"]["Actions"].strip(";").split(";"), pages)
        for page in pages:
            self.assertEqual(self.desktop[f"Desktop Action {page}"]["Exec"], f"toolvane {page}")
        self.assertEqual(completions(""), pages + ["--help", "--version"])
        self.assertEqual(completions("u"), [page for page in pages if page.startswith("u")])
        manual = run("mandoc", "-T", "ascii", "-I", "os=", SHARE / "man/man1/toolvane.1.gz").stdout
        plain = re.sub(".\b", "", manual)
        self.assertEqual([page for page in pages if not re.search(rf"^     {page} ", plain, re.M)], [])

    def test_each_language_of_the_program_has_menu_and_software_centre_texts(self):
        entry = self.desktop["Desktop Entry"]
        tables = (SOURCES / "resources/localisation").glob("toolvane_*.ts")
        language = "{http://www.w3.org/XML/1998/namespace}lang"
        summaries = {element.get(language) for element in self.metainfo.iter("summary")}
        for name in (path.stem.removeprefix("toolvane_") for path in tables):
            if name != "en":
                self.assertIn(f"Comment[{name}]", entry)
                self.assertIn(name, summaries)

    def test_versions_agree(self):
        heading = re.search(r"^## \[(\d\S*)\]", (SOURCES / "CHANGELOG.md").read_text(), re.MULTILINE)
        newest = next(self.metainfo.iter("release")).get("version")
        log = SHARE / "doc/toolvane/changelog.gz"
        packed = subprocess.run(f"gzip -dc '{log}' | dpkg-parsechangelog -l - -S Version", shell=True,
                                capture_output=True, text=True, check=True).stdout.strip()
        self.assertEqual({heading[1], newest, packed}, {VERSION})

    def test_the_guide_that_help_opens_is_installed(self):
        guide = SHARE / "doc/toolvane/guide"
        self.assertIn("kelp", (guide / "records.md").read_text())
        self.assertTrue((guide / "README.md").is_file())

    def test_pictures_are_there_and_as_large_as_said(self):
        for image in self.metainfo.iter("image"):
            name = image.text.rpartition("/")[2]
            self.assertTrue((SOURCES / "docs/pictures" / name).exists(), name)
        icons = list(SHARE.glob("icons/hicolor/*x*/apps/toolvane.png"))
        self.assertEqual(len(icons), 9)
        for icon in icons:
            size = icon.parts[-3].replace("x", " x ")
            self.assertIn(f"PNG image data, {size},", run("file", icon).stdout)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
