"""Prints the package's changelog in Debian's format, made from CHANGELOG.md.
usage: make_debian_changelog.py CHANGELOG MAINTAINER"""

import sys
import textwrap
from datetime import datetime, timezone
from email.utils import format_datetime

from releases import read_releases

changelog, maintainer = sys.argv[1:]
for release in read_releases(changelog):
    date = datetime.fromisoformat(release.date).replace(tzinfo=timezone.utc)
    print(f"toolvane ({release.version}) unstable; urgency=medium\n")
    for change in release.changes or ["New version."]:
        print(textwrap.fill(change, 78, initial_indent="  * ", subsequent_indent="    "))
    print(f"\n -- {maintainer}  {format_datetime(date)}\n")
