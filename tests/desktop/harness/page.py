"""The program as it is installed, with a ceremony page of its own."""

import os
import shutil
from pathlib import Path

from .case import EXECUTABLE

PAGE = Path(__file__).resolve().parents[1] / "pages" / "ceremony.html"
# What is installed, and where.
PARTS = {"vantle": "bin", "vantle-shortcuts": "bin", "vantle-webceremony.so": "lib/vantle/plugins"}


def install(desktop):
    """Installs a copy on the desktop; returns its program and where its page is to be."""
    prefix = desktop.directory / "installed"
    (prefix / "share" / "vantle").mkdir(parents=True)
    for part, folder in PARTS.items():
        (prefix / folder).mkdir(parents=True, exist_ok=True)
        shutil.copy(EXECUTABLE.parent / part, prefix / folder / part)
    if os.getuid() == 0:
        # The engine refuses to run its sandbox as root.
        desktop.env["QTWEBENGINE_DISABLE_SANDBOX"] = "1"
    return prefix / "bin" / "vantle", prefix / "share" / "vantle" / "ceremony.html"


def write_page(page, behaviour, address=""):
    """Writes the page of the tests, which is to behave so."""
    page.write_text(PAGE.read_text().replace("BEHAVIOUR", behaviour).replace("ADDRESS", address))
