"""What may stand in its home only: clock, timers, writing files, the display, printing, waiting."""

import re
from dataclasses import dataclass

from tree import CPP, Finding

RULE = "banned"


@dataclass(frozen=True)
class Ban:
    pattern: str
    instead: str
    folders: tuple = ("src",)
    suffixes: tuple = CPP
    homes: tuple = ()  # paths, or folders with a slash at the end
    everywhere: bool = False  # in comments and literals too


BANS = (
    Ban(r"\bQ(?:Date|Time|DateTime)::current\w+"
        r"|\b(?:system|steady|high_resolution)_clock::now\b|\bQElapsedTimer\b|\bQDeadlineTimer\b",
        "only a Clock tells the time", homes=("src/base/",)),
    Ban(r"\bQ(?:Basic|Chrono)?Timer\b|\bstartTimer\s*\(", "only a Scheduler makes timers",
        homes=("src/base/",)),
    Ban(r"\bQSaveFile\b|\bQIODevice(?:Base)?::(?:WriteOnly|ReadWrite|Append|NewOnly|Truncate)\b"
        r"|\bQFile::(?:open|remove|rename|copy|link|setPermissions|moveToTrash)\b"
        r"|\bQDir\b.*(?:\.|::)(?:mkpath|mkdir|rmpath|rmdir|remove|removeRecursively|rename)\s*\("
        r"|\bstd::(?:basic_)?[of]?fstream\b|\bf(?:re)?open\s*\(",
        "data files are written through FileSystem only",
        homes=("src/platform/posix/", "src/platform/applications/", "src/platform/session/")),
    Ban(r"(?i)\bX(?:11|cb|wayland)|\bX server\b|wayland|\bQT_QPA_\w+",
        "only the platform and the launch code know the display",
        suffixes=CPP + (".qml",), homes=("src/platform/", "src/launch/"), everywhere=True),
    Ban(r"\bQCursor::pos\b", "PanelHost and Screens know where the pointer is",
        homes=("src/platform/",)),
    Ban(r"\b(?:setGeometry|setFramePosition|BypassWindowManagerHint)\b",
        "PanelHost places what floats, WindowManager what it manages",
        homes=("src/platform/",)),
    Ban(r"(?:\.|->)(?:setProperty|property)\s*\(|\bQQmlProperty\b"
        r"|\binvokeMethod\s*\([^,]*,\s*\"|\b(?:SIGNAL|SLOT)\s*\(",
        "what crosses to a view is a member of a typed item", homes=("src/platform/",)),
    Ban(r"\bq(?:C?Debug|C?Info|C?Warning|C?Critical)\b", "the program prints nothing",
        folders=("src", "tests", "demo")),
    Ban(r"\bstd::(?:cout|cerr|clog)\b|\b(?:std::)?(?:v?f?printf|puts|putchar|fputs)\s*\(",
        "the program prints nothing"),
    Ban(r"\bsetContextProperty\b", "views get typed required properties",
        folders=("src", "demo", "tests")),
    Ban(r"\bproperty\s+var\b", "a property says its type", folders=("src", "demo", "tests"),
        suffixes=(".qml",)),
    # Calls of functions, with a time: a screen of ours may sleep(). The cases in tests/desktop are
    # about the time that passes on the wall.
    Ban(r"(?<![\w.>])(?:u|nano|clock_nano)?sleep\s*\(\s*[^\s)]|\bsleep_(?:for|until)\b"
        r"|\bQThread::[mu]?sleep\b|\bQTest::q(?:Sleep|Wait)\b|\btime\.sleep\b",
        "tests wait for what they expect, or use virtual time", folders=("tests",),
        suffixes=CPP + (".py", ".qml"), homes=("tests/desktop/",)),
)


def check(tree):
    for ban in BANS:
        pattern = re.compile(ban.pattern)
        for path in tree.files(ban.suffixes, ban.folders):
            if path.startswith(ban.homes):
                continue
            whole = ban.everywhere or path.endswith(".py")
            lines = tree.lines(path) if whole else tree.code(path)
            for line, text in lines:
                match = pattern.search(text)
                if match:
                    name = match.group().split("(")[0].strip()
                    yield Finding(path, line, RULE, f"{name}: {ban.instead}")
