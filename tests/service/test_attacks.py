"""Proves that clients who mean harm cost the service little memory, and that others are served
meanwhile; over plain HTTP and TLS.
usage: tests/support/isolated python3 test_attacks.py BUILD_FOLDER"""

import contextlib
import http.client
import socket
import ssl
import subprocess
import threading
import time
import unittest

from service import IS_SANITIZED, Client, Service, new_folder

MAX_MEMORY = 10_000 if IS_SANITIZED else 64  # MB


class Attackers:
    """Connections that are kept open until the end of a `with`."""

    def __init__(self, service):
        self.service = service
        self.sockets = []

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for one in self.sockets:
            one.close()

    def connect(self, count, beginning=b""):
        made = []
        for _ in range(count):
            one = socket.create_connection(("127.0.0.1", self.service.port), timeout=10)
            with contextlib.suppress(OSError):
                one.sendall(beginning)
            made.append(one)
        self.sockets += made
        return made


def is_closed(connection, seconds):
    """Whether the other side closes it in time."""
    connection.settimeout(seconds)
    with contextlib.suppress(ConnectionError):
        while True:
            try:
                if not connection.recv(65536):
                    return True
            except TimeoutError:
                return False
    return True


class Attacks(unittest.TestCase):
    def check_serves(self, service, client=None):
        began = time.monotonic()
        client = client or Client(service)
        self.assertIsInstance(client.select("ID=1"), list)
        self.assertLess(time.monotonic() - began, 5)

    def test_all_at_once(self):
        with Service() as service, Attackers(service) as attackers:
            kept = Client(service)
            kept.insert()
            attackers.connect(1000)  # idle
            self.check_serves(service, kept)
            slow = attackers.connect(100, b"POST /records/User?OPERATION=")
            stop = threading.Event()

            def drip():
                while not stop.wait(0.2):
                    for one in slow:
                        with contextlib.suppress(OSError):
                            one.send(b"x")
            thread = threading.Thread(target=drip)
            thread.start()
            try:
                attackers.connect(300, b"POST / HTTP/1.1\r\n" + b"X-Filler: " + b"y" * 63_000)
                self.check_serves(service)
                announced = attackers.connect(300, b"POST /records/User?OPERATION=INSERT HTTP/1.1\r\nHost: a\r\n"
                                              b"Content-Length: 1073741824\r\n\r\n" + b"z" * 10_000)
                self.check_serves(service)
                self.assertIn(b" 413 ", announced[-1].recv(1000))
                unauthorised = attackers.connect(200, b"POST /records/User?OPERATION=INSERT HTTP/1.1\r\nHost: a\r\n"
                                                 b"Content-Length: 900000\r\n\r\n" + b"z" * 100_000)
                self.check_serves(service)
                self.assertIn(b" 401 ", unauthorised[-1].recv(1000))
                attackers.connect(700)
                self.check_serves(service)
                self.assertTrue(all(is_closed(one, 15) for one in slow[:3]), "slow senders are cut off")
            finally:
                stop.set()
                thread.join()
            self.check_serves(service)
            self.assertLess(service.memory(), MAX_MEMORY)
            print("memory:", round(service.memory()), "MB")

    def test_readers_that_do_not_read(self):
        with Service() as service, Attackers(service) as attackers:
            kept = Client(service)
            for i in range(40):
                kept.insert("Stock", Memo="m" * 60_000)
            head = (f"POST /records/Stock?OPERATION=SELECT&CLAUSE=1=1 HTTP/1.1\r\nHost: a\r\n"
                    f"Authorization: {kept.headers['Authorization']}\r\n\r\n").encode()
            attackers.connect(8, head)
            self.check_serves(service, kept)


class Tls(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = new_folder()
        subprocess.run(["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes",
                        "-days", "2", "-subj", "/CN=localhost", "-addext", "subjectAltName=IP:127.0.0.1", "-keyout",
                        cls.folder / "key.pem", "-out", cls.folder / "certificate.pem"], check=True, capture_output=True)
        cls.options = ["--tls-certificate", cls.folder / "certificate.pem", "--tls-key", cls.folder / "key.pem"]

    def client(self, service):
        context = ssl.create_default_context(cafile=self.folder / "certificate.pem")
        client = Client(service)
        client.connection = http.client.HTTPSConnection("127.0.0.1", service.port, timeout=10, context=context)
        return client

    def test_handshakes_that_never_begin_or_never_end(self):
        with Service(*self.options) as service, Attackers(service) as attackers:
            kept = self.client(service)
            self.assertEqual(kept.insert(), 0)
            silent = attackers.connect(1000)
            attackers.connect(400, b"\x16\x03\x01\x02\x00\x01\x00\x01\xfc\x03\x03")  # and no more
            self.assertEqual(len(self.client(service).select("1=1")), 1)
            context = ssl._create_unverified_context()
            for one in attackers.connect(400):
                with contextlib.suppress(OSError):
                    attackers.sockets.append(context.wrap_socket(one))  # idle after the handshake
            self.assertEqual(len(self.client(service).select("1=1")), 1)
            self.assertTrue(is_closed(silent[-1], 15))
            self.assertLess(service.memory(), MAX_MEMORY)
            print("memory with TLS:", round(service.memory()), "MB")

    def test_old_versions_and_plain_http_are_refused(self):
        with Service(*self.options) as service:
            with socket.create_connection(("127.0.0.1", service.port), timeout=10) as plain:
                plain.sendall(b"POST /records/User?OPERATION=SELECT&CLAUSE=1=1 HTTP/1.1\r\nHost: a\r\n\r\n")
                self.assertNotIn(b"HTTP", plain.recv(1000))
            context = ssl._create_unverified_context()
            context.minimum_version = context.maximum_version = ssl.TLSVersion.TLSv1_1
            context.set_ciphers("ALL:@SECLEVEL=0")
            with socket.create_connection(("127.0.0.1", service.port), timeout=10) as old:
                with self.assertRaises(ssl.SSLError):
                    context.wrap_socket(old)

    def test_long_addresses_and_bodies_are_answered(self):
        with Service(*self.options) as service:
            for size in (70_000, 2_000_000):
                self.assertEqual(self.client(service).number(
                    "/records/User?OPERATION=DELETE&CLAUSE=" + "x" * size), (1, 414))


if __name__ == "__main__":
    unittest.main(verbosity=2)
