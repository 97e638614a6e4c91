"""Prints the AppStream metainfo: a template, filled with texts in every language and the releases.
usage: make_metainfo.py TEMPLATE FOLDER-OF-TABLES CHANGELOG WEB-SITE"""

import sys
from pathlib import Path
from xml.sax.saxutils import escape

from releases import read_releases
from texts import pages, phrase, read_tables, translated


def element(name, tables, text_of, indent="  "):
    for language, text in translated(tables, text_of):
        attribute = "" if language == "en" else f' xml:lang="{language}"'
        yield f"{indent}<{name}{attribute}>{escape(text)}</{name}>"


def keywords(tables):
    yield "  <keywords>"
    for key in pages().values():
        yield from element("keyword", tables, lambda table: table[key], indent="    ")
    yield "  </keywords>"


def languages(tables):
    """How much of the English table each language has, in per cent."""
    yield "  <languages>"
    for language, table in tables.items():
        share = 100 * len(table.keys() & tables["en"].keys()) // len(tables["en"])
        yield f'    <lang percentage="{share}">{language}</lang>'
    yield "  </languages>"


def release_notes(changelog):
    yield "  <releases>"
    for release in read_releases(changelog):
        yield f'    <release version="{release.version}" date="{release.date}">'
        if release.changes:
            yield "      <description>\n        <ul>"
            yield from (f"          <li>{escape(change)}</li>" for change in release.changes)
            yield "        </ul>\n      </description>"
        yield "    </release>"
    yield "  </releases>"


template, folder, changelog, web_site = sys.argv[1:]
tables = read_tables(folder)
text = Path(template).read_text(encoding="utf-8")
for mark, lines in {
    "@SUMMARY@": element("summary", tables, lambda table: phrase(table["CommandLine.Description"])),
    "@KEYWORDS@": keywords(tables),
    "@LANGUAGES@": languages(tables),
    "@RELEASES@": release_notes(changelog),
    "@WEB_SITE@": [escape(web_site)],
}.items():
    text = text.replace(mark, "\n".join(lines))
print(text, end="")
