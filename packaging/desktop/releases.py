"""Reads CHANGELOG.md, the source of the metainfo's releases and of the Debian changelog."""

import re
import sys
from pathlib import Path
from typing import NamedTuple


class Release(NamedTuple):
    version: str
    date: str  # ISO 8601
    changes: list  # one paragraph each


def read_releases(path):
    """The releases, newest first. Ends the program if none has a date."""
    parts = re.split(r"^## ", Path(path).read_text(encoding="utf-8"), flags=re.MULTILINE)
    releases = [release for part in parts[1:] if (release := _release(part))]
    if not releases:
        sys.exit(f"{path}: there is no heading such as '## [1.0.0] - 2026-01-31'")
    return releases


def _release(part):
    title, _, body = part.partition("\n")
    match = re.match(r"\[?(\d[\w.~+]*)\]? - (\d{4}-\d\d-\d\d)", title)
    return Release(match[1], match[2], _changes(body)) if match else None


def _changes(body):
    """The items of the lists: continued lines are joined, and Markdown's marks are removed."""
    items = re.findall(r"^[-*] (.+(?:\n[ \t]+\S.*)*)", body, flags=re.MULTILINE)
    return [_plain(" ".join(item.split())) for item in items]


def _plain(text):
    text = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", text)
    return re.sub(r"[*`]+", "", text)
