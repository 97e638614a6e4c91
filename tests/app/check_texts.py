#!/usr/bin/env python3
"""Checks that every text that the program looks up is in each table, and that every text of a
table is looked up somewhere.

usage: check_texts.py SOURCE-FOLDER
"""
import re
import sys
from pathlib import Path
from xml.etree import ElementTree

# What a path or a size is put behind.
ENDING_IN_A_BLANK = {"Caches", "Logs", "Downloads", "Mail Download", "Trash", "Please authorize to "}
CALL = re.compile(r"(?:qtTrId|QT_TRID_NOOP|refuse)\(((?:[^()]|\([^()]*\))*)\)")
LITERAL = re.compile(r'"((?:[^"\\]|\\.)*)"')


def keys_in_code(root):
    """The literals of each call that takes a key; a choice between two keys names both."""
    for folder in ("app", "tools", "users", "util"):
        for path in [*(root / folder).rglob("*.cpp"), *(root / folder).rglob("*.h")]:
            for arguments in CALL.findall(path.read_text()):
                yield from LITERAL.findall(arguments)


def keys_in_interfaces(root, problems):
    for path in (root / "resources/interface").rglob("*.ui"):
        tree = ElementTree.parse(path)
        lists = {text for texts in tree.iter("stringlist") if texts.get("notr") == "true"
                 for text in texts}
        for text in tree.iter("string"):
            if text.get("notr") == "true" or text in lists:
                continue
            if not text.get("id"):
                problems.append(f"{path.name}: no key: {text.text}")
            yield text.get("id")


def check_table(path, used, problems):
    texts = {message.get("id"): message.findtext("translation") or ""
             for message in ElementTree.parse(path).iter("message")}
    for what, keys in (("lacks", used - texts.keys()), ("nobody uses", texts.keys() - used)):
        problems += [f"{path.name}: {what}: {key}" for key in sorted(keys, key=str)]
    for key, text in texts.items():
        if not text.strip():
            problems.append(f"{path.name}: empty: {key}")
        if key in ENDING_IN_A_BLANK and not re.search(r"\S $", text):
            problems.append(f"{path.name}: does not end in one blank: {key}")


def main():
    root, problems = Path(sys.argv[1]), []
    used = {*keys_in_code(root), *keys_in_interfaces(root, problems)}
    tables = sorted((root / "resources/localisation").glob("toolvane_*.ts"))
    if not tables or not {"ZipSuc", "ZipFail"} <= used:  # the search finds choices
        problems.append("nothing was found")
    for path in tables:
        check_table(path, used, problems)
    print("\n".join(problems) or f"{len(used)} texts in {len(tables)} tables")
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
