"""Ed25519 keys and signatures, made by the openssl program."""

import base64
import os
import subprocess
import tempfile


def _openssl(*arguments, data=None):
    done = subprocess.run(["openssl", *arguments], input=data, capture_output=True, check=False)
    if done.returncode != 0:
        raise SystemExit("publish: openssl: " + done.stderr.decode(errors="replace").strip())
    return done.stdout


def make_key(path):
    """Makes a private key that only its owner may read. Never replaces another one."""
    key = _openssl("genpkey", "-algorithm", "ed25519")
    try:
        target = os.open(path, os.O_WRONLY | os.O_CREAT | os.O_EXCL, 0o600)
    except OSError as error:
        raise SystemExit(f"publish: {path}: {error.strerror}") from None
    with os.fdopen(target, "wb") as file:
        file.write(key)


def public_key(path):
    """The public key in Base64: what the program is built with."""
    der = _openssl("pkey", "-in", path, "-pubout", "-outform", "DER")
    return base64.b64encode(der[-32:]).decode()  # the key ends its DER form (RFC 8410)


def signature(path, key):
    """The key's signature over a file's bytes, in Base64."""
    return base64.b64encode(
        _openssl("pkeyutl", "-sign", "-rawin", "-inkey", key, "-in", path)).decode()


def signature_of_bytes(data, key):
    # openssl needs the size of what it signs beforehand, so a pipe does not work.
    with tempfile.NamedTemporaryFile() as file:
        file.write(data)
        file.flush()
        return signature(file.name, key)
