"""A toolvane-records of the tests' own, and a client that speaks as the application does.
The first argument of each test program is the build folder."""

import base64
import http.client
import json
import os
import re
import signal
import subprocess
import sys
import tempfile
import urllib.parse
from pathlib import Path

BUILD = Path(sys.argv.pop(1))
PROGRAM = BUILD / "bin/toolvane-records"
IS_SANITIZED = any(name in PROGRAM.read_bytes() for name in (b"__asan_init", b"__tsan_init"))
os.environ.pop("LD_PRELOAD", None)  # the sanitizer's runtime would have to come first
SANDBOX = Path(os.environ["TOOLVANE_TEST_SANDBOX"])  # never outside of it
KEPT = "!*'();/?:@&=+$,#-._~"  # what the application's escaping leaves alone
USER = {"ID": "0", "ShopID": "0", "UserGroupID": "1", "User": "u", "Password": "p", "Memo": ""}
GROUP = {"ID": "0", "ShopID": "0", "Name": "g", "Permission": "B1", "Memo": ""}


def run(*arguments, **options):
    return subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True,
                          timeout=60, **options)


def new_folder():
    return Path(tempfile.mkdtemp(dir=SANDBOX))


class Service:
    """Serves until the end of a `with`. Files are in `folder`, the log in `folder`/log."""

    def __init__(self, *arguments, folder=None, writer="writer", prefix=()):
        self.folder = folder or new_folder()
        self.accounts = {writer: "secret", "reader": "hidden"}
        self.database = self.folder / "records.sqlite3"
        self.log_path = self.folder / "log"
        if not (self.folder / "accounts").exists():
            for name, password in self.accounts.items():
                role = "reader" if name == "reader" else "writer"
                made = run("account", "add", name, "--role", role, "--accounts",
                           self.folder / "accounts", input=password + "\n")
                assert made.returncode == 0, made.stderr
        self.command = [*prefix, PROGRAM, "serve", "--listen", "127.0.0.1:0", "--database",
                        f"sqlite:{self.database}", "--accounts", self.folder / "accounts",
                        *arguments]
        self.start()

    def start(self):
        with open(self.log_path, "ab") as log:
            self.process = subprocess.Popen(list(map(str, self.command)), stderr=log,
                                            stdout=subprocess.PIPE, text=True)
        line = self.process.stdout.readline()
        ready = re.search(r"ready: (https?)://.*:(\d+)/", line)
        assert ready, line + self.log()
        self.port = int(ready[2])

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.stop()

    def stop(self, number=signal.SIGTERM):
        """Its status."""
        if self.process.poll() is None:
            self.process.send_signal(number)
        self.process.stdout.close()
        return self.process.wait(30)

    def log(self):
        return self.log_path.read_text()

    def memory(self):
        """The most that it ever held, in MB."""
        status = Path(f"/proc/{self.process.pid}/status").read_text()
        return int(re.search(r"VmHWM:\s+(\d+)", status)[1]) / 1024


class Client:
    """One kept connection."""

    def __init__(self, service, account="writer", password="secret"):
        self.connection = http.client.HTTPConnection("127.0.0.1", service.port, timeout=30)
        self.headers = {}
        if account:
            token = base64.b64encode(f"{account}:{password}".encode()).decode()
            self.headers["Authorization"] = f"Basic {token}"

    def request(self, target, body=b"", method="POST", headers=None):
        """The status of HTTP and the body."""
        self.connection.request(method, target, body, self.headers | (headers or {}))
        reply = self.connection.getresponse()
        return reply.status, reply.read()

    def number(self, target, body=b"", **more):
        """The number before a reply to a write, and the status of HTTP."""
        status, text = self.request(target, body, **more)
        return int(re.match(rb"\d+", text)[0]), status

    def write(self, operation, table, record):
        return self.number(f"/records/{table}?OPERATION={operation}", json.dumps(record))[0]

    def insert(self, table="User", **values):
        return self.write("INSERT", table, (USER if table != "UserGroup" else GROUP) | values)

    def update(self, table="User", **values):
        return self.write("UPDATE", table, (USER if table != "UserGroup" else GROUP) | values)

    def delete(self, clause, table="User"):
        return self.number(f"/records/{table}?OPERATION=DELETE&CLAUSE={escaped(clause)}")

    def select(self, clause, table="User", page=""):
        """The records; a text if it was refused."""
        status, text = self.request(
            f"/records/{table}?OPERATION=SELECT&CLAUSE={escaped(clause)}{page}")
        reply = json.loads(text)
        assert (status == 200) == ("ERROR" not in reply), (status, text)
        return reply["ERROR"] if "ERROR" in reply else reply["RESULT"]


def escaped(text):
    return urllib.parse.quote(text, safe=KEPT)
