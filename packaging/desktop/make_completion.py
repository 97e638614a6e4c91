"""Prints the completion for bash, with the names of the pages.
usage: make_completion.py TEMPLATE"""

import sys
from pathlib import Path

from texts import pages

template = Path(sys.argv[1]).read_text(encoding="utf-8")
print(template.replace("@PAGES@", " ".join(pages())), end="")
