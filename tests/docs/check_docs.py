"""Proves that the documents lead nowhere wrong: links, tools, messages, named files and the version.
usage: check_docs.py SOURCE-FOLDER"""

import html
import re
import sys
from pathlib import Path

root = Path(sys.argv[1])
faults = []


def expect(condition, fault):
    if not condition:
        faults.append(fault)


def text_of(name):
    return (root / name).read_text(encoding="utf-8")


def without_code(text):
    return re.sub(r"^    .*$", "", re.sub(r"`[^`\n]*`", "", text), flags=re.MULTILINE)


def heading_marks(text):
    """The names that links to headings go by, as the usual viewers make them."""
    titles = re.findall(r"^#+ (.*)$", text, re.MULTILINE)
    return {re.sub(r"[^\w -]", "", title).lower().replace(" ", "-") for title in titles}


def check_links(document):
    text = without_code(document.read_text(encoding="utf-8"))
    for target in re.findall(r"\]\(([^)\s]+)\)", text):
        if re.match(r"[a-z]+:", target):
            continue
        path, _, mark = target.partition("#")
        file = document.parent / path if path else document
        expect(file.exists(), f"{document}: no such file: {target}")
        if mark and file.exists():
            expect(mark in heading_marks(file.read_text(encoding="utf-8")),
                   f"{document}: no such heading: {target}")


def english_texts():
    messages = re.findall(r'<message id="([^"]*)">.*?<translation[^>]*>(.*?)</translation>',
                          text_of("resources/localisation/toolvane_en.ts"), re.DOTALL)
    return {html.unescape(key): html.unescape(text) for key, text in messages}


def check_guide():
    """Each tool has its page, and each refusal and result that a page can show is explained."""
    texts = english_texts()
    index = text_of("docs/guide/README.md")
    tools = re.findall(r'\{QT_TRID_NOOP\("([^"]+)"\)', text_of("app/ToolList.cpp"))
    expect(len(tools) > 1, "no tools found in app/ToolList.cpp")
    for key in tools:
        expect(f"[{texts[key]}](" in index, f"docs/guide/README.md: no page for {texts[key]}")
    guide = "".join(page.read_text(encoding="utf-8") for page in (root / "docs/guide").glob("*.md"))
    code = "".join(file.read_text(encoding="utf-8") for folder in ("tools", "users")
                   for file in (root / folder).rglob("*.cpp"))
    shown = re.findall(r"(?:refuse\w*|showAlert)\((.*?);", code, re.DOTALL)
    keys = {key for call in shown for key in re.findall(r'"([^"]+)"', call) if key in texts}
    expect(len(keys) > 20, "hardly any messages found in the pages")
    # It is the label beside the password that is measured, so these two never come up.
    for key in sorted(keys - {"PasswordNullAlert", "PasswordOverLenAlert"}):
        expect(texts[key].strip() in guide, f"docs/guide: not explained: {texts[key]}")


documents = [*root.glob("*.md"), *root.glob("docs/**/*.md")]
for document in documents:
    check_links(document)
check_guide()
expect(len(text_of("README.md").splitlines()) < 150, "README.md: 150 lines or more")
for name in re.findall(r"`([\w./-]+/[\w.-]+\.(?:cpp|h))`", text_of("SECURITY.md")):
    expect((root / name).is_file(), f"SECURITY.md: no such file: {name}")
newest = re.search(r"^## \[([^\]]+)\]", text_of("CHANGELOG.md"), re.MULTILINE)
version = re.search(r"project\(\w+ VERSION ([\d.]+)", text_of("CMakeLists.txt"))
expect(newest and version and newest[1] == version[1],
       f"CHANGELOG.md begins with {newest and newest[1]}, CMakeLists.txt says {version and version[1]}")
print("\n".join(faults) or f"{len(documents)} documents, no fault")
sys.exit(1 if faults else 0)
