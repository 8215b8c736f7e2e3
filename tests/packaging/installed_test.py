#!/usr/bin/python3
"""installed_test.py <source tree> <build tree> <version>: what `cmake --install` makes of a prefix.

Needs everything built, and appstreamcli and man to ask.
"""

import configparser
import gzip
import json
import os
import re
import struct
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from xml.etree import ElementTree

ID = "local.vantle.Vantle"
SIZES = (16, 22, 24, 32, 48, 64, 96, 128, 256, 512)
ACTIONS = ["toggle", "note", "keep", "discard", "dashboard", "wrapped", "notes"]
CALL = (f"gdbus call --session --dest {ID} --object-path /{ID.replace('.', '/')}"
        " --method org.freedesktop.Application.")

SOURCE, BUILD, VERSION = Path(), Path(), ""


def entry_at(path):
    """A file of keys in groups, as desktop entries and D-Bus services are."""
    parser = configparser.ConfigParser(delimiters="=", interpolation=None)
    parser.optionxform = str
    parser.read(path, encoding="utf-8")
    return parser


class Installed(unittest.TestCase):

    @classmethod
    def setUpClass(cls):
        cls._directory = tempfile.TemporaryDirectory(prefix="vantle-installed.")
        cls.addClassCleanup(cls._directory.cleanup)
        cls.prefix = Path(cls._directory.name).resolve() / "usr"
        subprocess.run(["cmake", "--install", BUILD, "--prefix", cls.prefix, "--component",
                        "vantle"], check=True, stdout=subprocess.DEVNULL)
        cls.share = cls.prefix / "share"

    def test_everything_is_in_its_place_and_nothing_else_is_there(self):
        files = {path.relative_to(self.prefix).as_posix()
                 for path in self.prefix.rglob("*") if not path.is_dir()}
        icons = "share/icons/hicolor"
        self.assertEqual(files, {
            "bin/vantle", "bin/vantle-shortcuts",
            f"share/applications/{ID}.desktop",
            f"share/dbus-1/services/{ID}.service",
            *(f"share/gnome-shell/extensions/{form}@vantle.local/{part}"
              for form in ("frontmost", "frontmost-44")
              for part in ("extension.js", "metadata.json")),
            "share/doc/vantle/changelog.gz", "share/doc/vantle/copyright",
            f"{icons}/scalable/apps/{ID}.svg", f"{icons}/symbolic/apps/{ID}-symbolic.svg",
            "share/man/man1/vantle.1.gz", "share/man/man1/vantle-shortcuts.1.gz",
            f"share/metainfo/{ID}.metainfo.xml",
            "share/dbus-1/interfaces/local.vantle.Session1.xml",
            *(f"share/vantle/bars/{name}" for name in ("clock", "i3blocks.conf", "polybar.ini",
                                                       "vantle.1s.sh", "waybar.jsonc")),
            "share/vantle/shortcuts/Do Not Disturb on",
            "share/vantle/shortcuts/Do Not Disturb off",
        } | {f"{icons}/{size}x{size}/apps/{ID}.png" for size in SIZES})

    def test_icons_have_the_size_of_their_folder(self):
        for size in SIZES:
            path = self.share / f"icons/hicolor/{size}x{size}/apps/{ID}.png"
            head = path.read_bytes()[:24]
            self.assertEqual(head[:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(struct.unpack(">II", head[16:]), (size, size))

    def test_bus_starts_the_program_that_was_installed(self):
        service = entry_at(self.share / f"dbus-1/services/{ID}.service")["D-BUS Service"]
        self.assertEqual(service["Name"], ID)
        *launcher, program = service["Exec"].split()
        self.assertEqual(launcher, ["/usr/bin/env", "VANTLE_AUTOSTART=1"])
        self.assertEqual(Path(program), self.prefix / "bin/vantle")
        self.assertTrue(os.access(program, os.X_OK))

    def test_menu_entry_and_its_actions_call_the_program_over_the_bus(self):
        groups = entry_at(self.share / f"applications/{ID}.desktop")
        entry = groups["Desktop Entry"]
        self.assertEqual(entry["DBusActivatable"], "true")
        self.assertEqual(entry["Icon"], ID)
        self.assertIn(CALL + "Activate {}", entry["Exec"])
        self.assertEqual(entry["Actions"].rstrip(";").split(";"), ACTIONS)
        for action in ACTIONS:
            self.assertEqual(groups[f"Desktop Action {action}"]["Exec"],
                             f"{CALL}ActivateAction {action} [] {{}}")

    def test_shortcuts_that_come_along_are_listed_and_run_by_the_tool_that_was_installed(self):
        with tempfile.TemporaryDirectory() as config:
            tool = [self.prefix / "bin/vantle-shortcuts"]
            env = {**os.environ, "XDG_CONFIG_HOME": config, "DBUS_SESSION_BUS_ADDRESS": "disabled:"}
            listed = subprocess.run([*tool, "list"], env=env, capture_output=True, text=True,
                                    check=True).stdout
            self.assertEqual(listed, "Do Not Disturb off\nDo Not Disturb on\n")
            for name in listed.splitlines():
                ran = subprocess.run([*tool, "run", name], env=env, capture_output=True, text=True,
                                     check=False)
                self.assertEqual((ran.returncode, ran.stdout, ran.stderr), (0, "", ""))

    def test_menu_and_software_centres_speak_each_language_of_the_program(self):
        catalogues = (SOURCE / "resources/translations").glob("vantle_*.ts")
        languages = {file.stem.removeprefix("vantle_") for file in catalogues} - {"en"}
        groups = entry_at(self.share / f"applications/{ID}.desktop")
        info = ElementTree.parse(self.share / f"metainfo/{ID}.metainfo.xml")
        of_language = "{http://www.w3.org/XML/1998/namespace}lang"
        for language in languages:
            for name, group in groups.items():
                for key in {"Name", "GenericName", "Comment", "Keywords"} & group.keys():
                    if group[key] not in ("Vantle", "Wrapped"):
                        self.assertIn(f"{key}[{language}]", group, name)
            for place in (".", "description", "description/ul", "screenshots/screenshot"):
                for part in info.iterfind(place):
                    for tag in ("summary", "p", "li", "caption"):
                        texts = [one.get(of_language) for one in part.iterfind(tag)]
                        self.assertEqual(texts.count(language), texts.count(None), (place, tag))

    def test_software_centres_find_the_parts_in_agreement(self):
        asked = subprocess.run(["appstreamcli", "validate-tree", "--no-net", self.prefix.parent],
                               capture_output=True, text=True, check=False)
        self.assertEqual(asked.returncode, 0, asked.stdout)

    def test_software_centres_are_told_the_version_and_pictures_that_exist(self):
        info = ElementTree.parse(self.share / f"metainfo/{ID}.metainfo.xml")
        self.assertEqual(info.find("releases/release").get("version"), VERSION)
        home = info.findtext("url[@type='homepage']")
        pictures = [image.text for image in info.iterfind("screenshots/screenshot/image")]
        self.assertGreater(len(pictures), 2)
        for picture in pictures:
            self.assertTrue(picture.startswith(f"{home}/"))
            self.assertTrue((SOURCE / picture.removeprefix(f"{home}/")).is_file(), picture)

    def test_manual_pages_are_well_formed(self):
        for name in ("vantle", "vantle-shortcuts"):
            page = self.share / f"man/man1/{name}.1.gz"
            shown = subprocess.run(["man", "--warnings", "-l", "-Tutf8", page],
                                   env={**os.environ, "LC_ALL": "C.UTF-8", "MANROFFOPT": "-ww"},
                                   capture_output=True, text=True, check=True)
            self.assertEqual(shown.stderr, "")
            self.assertIn(f"Vantle {VERSION}", shown.stdout)


class Packages(unittest.TestCase):

    def test_changelog_begins_with_this_version(self):
        with gzip.open(BUILD / "packaging/changelog.gz", "rt", encoding="utf-8") as changelog:
            self.assertTrue(changelog.readline().startswith(f"vantle ({VERSION}) "))

    def test_licence_is_whole(self):
        def words(text):
            return re.sub(r"^ \.$", "", text, flags=re.MULTILINE).split()
        told = words((SOURCE / "packaging/debian/copyright").read_text("utf-8"))
        licence = words((SOURCE / "LICENSE").read_text("utf-8").partition("\n\n")[2]
                        .partition("\n\n")[2])
        self.assertIn(" ".join(licence), " ".join(told))

    def test_flatpak_manifest_names_the_program_and_options_that_exist(self):
        manifest = json.loads((SOURCE / f"packaging/flatpak/{ID}.json").read_text("utf-8"))
        self.assertEqual(manifest["id"], ID)
        self.assertEqual(manifest["command"], "vantle")
        last = manifest["modules"][-1]
        self.assertEqual((SOURCE / "packaging/flatpak" / last["sources"][0]["path"]).resolve(),
                         SOURCE)
        options = (SOURCE / "CMakeLists.txt").read_text("utf-8")
        for option in last["config-opts"]:
            name = option.removeprefix("-D").partition("=")[0]
            if name.startswith("VANTLE_"):
                self.assertIn(f"option({name} ", options)


if __name__ == "__main__":
    SOURCE, BUILD = (Path(path).resolve() for path in sys.argv[1:3])
    VERSION = sys.argv[3]
    unittest.main(argv=sys.argv[:1])
