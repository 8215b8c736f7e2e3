"""Every program that scripts and tests start is brought by a package of tools/setup.

tools/setup/programs.txt says for each program which package has it. The package stands in one of
the lists beside it, or every Debian has it. What is started is read from scripts (the first word of
a command), from Python (calls that start processes) and from the C++ of the tests; a program whose
name is computed is not seen.
"""

import ast
import re

from tree import CPP, Finding

RULE = "programs"
TABLE = "tools/setup/programs.txt"
FOLDERS = ("tests", "tools", "bench", "packaging", ".ci")
COMMANDS = ("run", "test", "measure", "prove")

# Essential packages, and the installer: no Debian is without them.
ALWAYS_THERE = {"-", "apt", "base-files", "base-passwd", "bash", "bsdutils", "coreutils", "dash",
                "debianutils", "diffutils", "dpkg", "findutils", "grep", "gzip", "hostname",
                "init-system-helpers", "libc-bin", "login", "mawk", "mount", "ncurses-bin",
                "passwd", "perl-base", "sed", "sysvinit-utils", "tar", "util-linux"}

BUILTINS = set("""
    alias bg break builtin caller cd command continue declare dirs disown do done echo elif else
    enable esac eval exec exit export false fg fi for function getopts hash help history if in jobs
    kill let local logout mapfile popd printf pushd pwd read readarray readonly return select set
    shift shopt source suspend test then time times trap true type typeset ulimit umask unalias
    unset until wait while case""".split())
# Words that a command may follow, with how many words stand between: `timeout 3 command`.
BEFORE_COMMANDS = {"if": 0, "elif": 0, "else": 0, "then": 0, "do": 0, "while": 0, "until": 0,
                   "exec": 0, "command": 0, "xargs": 0, "nice": 0, "env": 0, "timeout": 1,
                   "sudo": 0, "setpriv": 0, "setsid": 0, "faketime": 0, "unshare": 0,
                   "start": 1, "await": 1, "holdsWithin": 1}
OPTIONS_WITH_VALUE = {"-n", "-f", "-k", "-o", "--pdeathsig", "--propagation"}

PROGRAM = re.compile(r"(?:/usr)?/s?bin/[\w.+-]+|/usr/libexec/[\w.+-]+|[A-Za-z][\w.+-]*")
FUNCTION = re.compile(r"^\s*([\w-]+)\s*\(\)", re.MULTILINE)
HEREDOC = re.compile(r"(<<-?\s*(['\"]?)(\w+)\2[^\n]*\n)(.*?\n)?([ \t]*\3\n)", re.DOTALL)
SCRIPT_IN_QUOTES = re.compile(r"(\b(?:bash|sh)(?: -\w+)* -\w*c )(?:'([^']*)'|\"([^\"]*)\")")
QUOTED = re.compile(r"'[^']*'|\"(?:\\.|\$\((?:[^()]|\([^()]*\))*\)|[^\"\\])*\"", re.DOTALL)
ARRAY = re.compile(r"\w+\+?=\((?:[^()]|\([^()]*\))*\)")
CASE = re.compile(r"(^|\bin|;;)([ \t]*)[^\s()|;&]+(?:[ \t]*\|[ \t]*[^\s()|;&]+)*\)(?=\s)",
                  re.MULTILINE)
COMMAND_AT = re.compile(
    r"(?:^|[|;&({])\s*"
    r"(?:!\s+)?(?:\w+=[^\s(]*\s+)*(?P<words>[^|;&(){}<>\n]+)")

CPP_START = re.compile(
    r"\b(?:run|outputOf|startCommand|start|execute|setProgram|collect|collected|startDetached)"
    r"\s*\(\s*\{?\s*(?:(?:QStringLiteral|q|text)\()?\s*\"([^\"\s]+)[^\"]*\"")


def table_of(tree):
    """program -> (package, line)."""
    entries = {}
    for line, text in tree.lines(TABLE) if tree.exists(TABLE) else ():
        words = text.split("#")[0].split()
        if words:
            entries[words[0]] = (words[1] if len(words) > 1 else "", line)
    return entries


def _listed_packages(tree):
    return {text.split("#")[0].strip()
            for path in tree.files((".txt",), ("tools/setup",)) if path != TABLE
            for _, text in tree.lines(path)}


# -- shell

def _bare(script):
    """The script with what is no command blanked out; its lines keep their numbers."""
    def lines_of(text):
        return "\n" * (text or "").count("\n")

    script = script.replace("\\\n", " \n\0")  # a line that goes on; \0 is taken out below
    script = HEREDOC.sub(lambda m: m[1] + lines_of(m[4]) + "\n", script)
    script = re.sub(r"(^|\s)#[^\n]*", r"\1", script)
    script = re.sub(r"\$\(\(.*?\)\)|\$\{[^{}]*\}|\(\([^\n]*?\)\)", "0", script)
    script = re.sub(r"\[\[.*?\]\]", "test", script)
    script = SCRIPT_IN_QUOTES.sub(lambda m: f"{m[1]};{m[2] or m[3]}", script)
    script = QUOTED.sub(_quoted, script)
    script = ARRAY.sub(lambda m: _quoted(m) + "=0", script)
    script = CASE.sub(r"\1 ;", script)
    return re.sub(r" \n\0", "  ", script)


def _quoted(match):
    """Of a text only the commands whose output stands in it, and its line ends."""
    text = match[0]
    inside = [] if text.startswith("'") else \
        re.findall(r"\$\(((?:[^()]|\([^()]*\))*)\)", text)
    return " ".join(["_", *(f"$({one})" for one in inside)]) + "\n" * text.count("\n")


def programs_of_shell(script):
    """(program, line) of each command of a shell script."""
    own = set(FUNCTION.findall(script))
    for line, text in enumerate(_bare(script).splitlines(), 1):
        if text.lstrip().startswith("for "):
            text = text.partition(";")[2]
        for match in COMMAND_AT.finditer(text):
            yield from ((word, line) for word in _started(match["words"].split(), own))


def _started(words, own):
    while words:
        word = words.pop(0)
        if word == "!":
            continue
        if not PROGRAM.fullmatch(word) or word.startswith("tools/"):
            return
        if word not in BUILTINS | own:
            yield word
        if word not in BEFORE_COMMANDS:
            return
        between = BEFORE_COMMANDS[word]
        while words and (words[0].startswith("-") or "=" in words[0] or between):
            between -= not words[0].startswith("-") and "=" not in words[0]
            if words.pop(0) in OPTIONS_WITH_VALUE and words:
                words.pop(0)


# -- Python

STARTERS = {"run", "Popen", "call", "check_call", "check_output", "execvp", "execv", "tool",
            "_asked"}


def _texts(node, constants):
    """The words of a command as far as they are constant; None for the others."""
    if isinstance(node, ast.Constant):
        return [node.value if isinstance(node.value, str) else None]
    if isinstance(node, (ast.List, ast.Tuple)):
        return [text for one in node.elts for text in _texts(one, constants)]
    if isinstance(node, ast.Name) and node.id in constants:
        return _texts(constants[node.id], {})
    if isinstance(node, ast.Starred):
        return _texts(node.value, constants)
    if isinstance(node, ast.JoinedStr):
        return ["".join(part.value if isinstance(part, ast.Constant) else "x"
                        for part in node.values)]
    if isinstance(node, ast.BinOp) and isinstance(node.op, ast.Add):
        return _texts(node.left, constants) + _texts(node.right, constants)
    return [None]


def _starts(call):
    function = call.func
    if isinstance(function, ast.Attribute) and function.attr == "open":
        return "desktop" in ast.unparse(function.value)
    return isinstance(function, ast.Attribute) and function.attr in STARTERS


def programs_of_python(source):
    """(program, line) of each process that a Python file starts."""
    parsed = ast.parse(source)
    constants = {target.id: node.value for node in parsed.body if isinstance(node, ast.Assign)
                 for target in node.targets if isinstance(target, ast.Name)}
    for node in ast.walk(parsed):
        if not isinstance(node, ast.Call) or not node.args or not _starts(node):
            continue
        words = [text for one in node.args for text in _texts(one, constants)]
        if words[0] and PROGRAM.fullmatch(words[0]):
            yield words[0], node.lineno
        for option, script in zip(words, words[1:]):
            if option in ("-c", "-e") and script and words[0] in ("bash", "sh", "xterm"):
                yield from ((program, node.lineno) for program, _ in programs_of_shell(script))


# -- all

def _in_cmake(tree, path):
    for line, text in tree.lines(path):
        for match in re.finditer(r"\bCOMMAND\s+([a-z][\w.+-]*)|find_program\(\w+ ([\w.+-]+)", text):
            program = match[1] or match[2]
            if not program.startswith(("vantle", "test_")):
                yield program, line


def _in_file(tree, path):
    text = tree.text(path)
    first = text.partition("\n")[0]
    if path.endswith(".py") or re.match(r"#!.*python", first):
        return programs_of_python(text)
    if re.match(r"#!.*\b(?:ba)?sh\b", first):
        return programs_of_shell(text)
    if path.endswith("CMakeLists.txt"):
        return _in_cmake(tree, path)
    if path.endswith(CPP):
        return ((match[1], text.count("\n", 0, match.start(1)) + 1)
                for match in CPP_START.finditer(text) if PROGRAM.fullmatch(match[1]))
    return ()


def started(tree):
    """(path, line, program) of everything that is started."""
    suffixes = CPP + (".py", "CMakeLists.txt")
    for path in tree.files("", FOLDERS) + [name for name in COMMANDS if tree.exists(name)]:
        if path.endswith(suffixes) or "." not in path.rpartition("/")[2]:
            for program, line in _in_file(tree, path):
                yield path, line, program.rpartition("/")[2]


def check(tree):
    table, packages = table_of(tree), _listed_packages(tree) | ALWAYS_THERE
    seen = set()
    for path, line, program in started(tree):
        seen.add(program)
        if program not in table:
            yield Finding(path, line, RULE, f"{program}: {TABLE} does not say which package has it")
    for program, (package, line) in table.items():
        if program not in seen:
            yield Finding(TABLE, line, RULE, f"nothing starts {program}: take it off the list")
        elif package not in packages:
            yield Finding(TABLE, line, RULE, f"no list of tools/setup has {package or 'nothing'}")
