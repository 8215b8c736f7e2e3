"""What the threads of a process are at, for the report of a case in which it hangs."""

import shutil
import subprocess
from pathlib import Path


def threads_of(pid):
    """Each thread's name, the call it is in and where the kernel holds it; with a debugger on this
    machine, their stacks as well."""
    told = []
    for thread in sorted(Path(f"/proc/{pid}/task").iterdir()):
        told.append(" ".join([thread.name, *(_read(thread / name) for name in
                                             ("comm", "wchan", "syscall", "stack"))]))
    if shutil.which("gdb"):
        debugger = subprocess.run(
            ["gdb", "-p", str(pid), "-batch", "-ex", "thread apply all bt 40"], check=False,
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        told.append(debugger.stdout.decode(errors="replace"))
    return "\n".join(told)


def _read(path):
    try:
        return path.read_text().strip()
    except OSError:
        return "?"
