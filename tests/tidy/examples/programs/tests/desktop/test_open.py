import subprocess

LAUNCHER = "/usr/libexec/launcher"


def work(desktop, path):
    desktop.tool("xdotool", "key", "a")
    desktop.open("xterm", "-e", f"tr a b > {path}")
    subprocess.Popen([LAUNCHER, "--now"])
    path.open("wb")
    subprocess.run([path, "xeyes"])
