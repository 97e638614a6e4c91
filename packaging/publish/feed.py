"""The update feed: RSS 2.0 with the elements of application-cast feeds."""

import datetime
import email.utils
import os
import re
import urllib.parse
import xml.etree.ElementTree as ElementTree

import signing

CAST = "http://www.andymatuschak.org/xml-namespaces/sparkle"
OWN = "urn:toolvane:feed"
ElementTree.register_namespace("sparkle", CAST)
ElementTree.register_namespace("toolvane", OWN)


def _add(parent, tag, text=None, **attributes):
    element = ElementTree.SubElement(parent, tag, attributes)
    element.text = text
    return element


def _date_after(earlier):
    """Now, but always later than the feed that is replaced: programs refuse an older one."""
    now = datetime.datetime.now(datetime.timezone.utc).replace(microsecond=0)
    return max(now, earlier + datetime.timedelta(seconds=1)) if earlier else now


def date_of(path):
    """The date of a feed that was built before; None when there is none."""
    if not os.path.exists(path):
        return None
    text = ElementTree.parse(path).findtext("channel/lastBuildDate")
    return email.utils.parsedate_to_datetime(text) if text else None


def _check(version):
    number = version.get("version", "")
    if not re.fullmatch(r"\d+(\.\d+)*", number):
        raise SystemExit(f"publish: a version is made of numbers and dots, and not {number!r}")
    if "file" not in version and not version.get("withdrawn"):
        raise SystemExit(f"publish: version {number} has no file and is not withdrawn")
    return number


def _add_file(item, version, files, address, key):
    path = os.path.join(files, version["file"])
    attributes = {
        "url": urllib.parse.urljoin(address, "files/" + urllib.parse.quote(version["file"])),
        "length": str(os.path.getsize(path)),
        "type": "application/octet-stream",
        f"{{{CAST}}}edSignature": signing.signature(path, key),
    }
    if "system" in version:
        attributes[f"{{{CAST}}}os"] = version["system"]
    ElementTree.SubElement(item, "enclosure", attributes)


def _add_item(channel, version, files, address, key):
    number = _check(version)
    item = _add(channel, "item")
    _add(item, "title", version.get("short", number))
    _add(item, f"{{{CAST}}}version", number)
    _add(item, f"{{{CAST}}}shortVersionString", version.get("short", number))
    if "minimum_system" in version:
        _add(item, f"{{{CAST}}}minimumSystemVersion", version["minimum_system"])
    if "channel" in version:
        _add(item, f"{{{CAST}}}channel", version["channel"])
    if "notes" in version:
        notes = _add(item, "description", version["notes"].strip())
        notes.set(f"{{{CAST}}}format", "plain-text")
    if version.get("withdrawn"):
        _add(item, f"{{{OWN}}}withdrawn")
    else:
        _add_file(item, version, files, address, key)


def build(versions, files, address, key, earlier, days):
    """The feed's bytes: its XML and, as the last line, the signature over all before."""
    date = _date_after(earlier)
    rss = ElementTree.Element("rss", {"version": "2.0"})
    channel = _add(rss, "channel")
    _add(channel, "title", "Toolvane")
    _add(channel, "link", address)
    _add(channel, "description", "Versions of Toolvane")
    _add(channel, "lastBuildDate", email.utils.format_datetime(date))
    _add(channel, f"{{{OWN}}}expires",
         email.utils.format_datetime(date + datetime.timedelta(days=days)))
    for version in versions:
        _add_item(channel, version, files, address, key)
    ElementTree.indent(rss)
    text = ElementTree.tostring(rss, encoding="utf-8", xml_declaration=True) + b"\n"
    signature = signing.signature_of_bytes(text, key)
    return text + f"<!-- edSignature: {signature} -->\n".encode()
