"""The program's pages and its tables of texts, for the desktop integration files."""

import re
import xml.etree.ElementTree as xml
from pathlib import Path

TOOL_LIST = Path(__file__).parents[2] / "app/ToolList.cpp"


def pages():
    """{what `toolvane PAGE` takes: key of the page's name}, in the sidebar's order."""
    tools = re.findall(r'\{QT_TRID_NOOP\("([^"]+)"\),\s*"[^"]*",\s*"([^"]+)"',
                       TOOL_LIST.read_text(encoding="utf-8"))
    if not tools:
        raise ValueError(f"no tools found in {TOOL_LIST}")
    return {command_name: key for key, command_name in tools}


def read_tables(folder):
    """{language: {key: text}}, English first, then by name, without the languages of tests (XA…XZ)."""
    tables = {}
    for path in sorted(Path(folder).glob("toolvane_*.ts")):
        language = path.stem.removeprefix("toolvane_")
        if re.fullmatch(r"[a-z]{2,3}(_(?!X)[A-Z]{2})?", language):
            tables[language] = _read_table(path)
    return {"en": tables.pop("en"), **tables}


def _read_table(path):
    table = {}
    for message in xml.parse(path).iter("message"):
        if text := (message.findtext("translation") or "").strip():
            table[message.get("id")] = text
    return table


def phrase(text):
    """A sentence as menus and software centres expect it: without its full stop."""
    return text.rstrip(".。।")


def translated(tables, text_of):
    """(language, text) for each language whose text is not the English one."""
    english = text_of(tables["en"])
    yield "en", english
    for language, table in list(tables.items())[1:]:
        try:
            text = text_of(table)
        except KeyError:  # not translated yet; English is used
            continue
        if text != english:
            yield language, text
