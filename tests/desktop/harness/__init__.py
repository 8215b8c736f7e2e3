"""What the desktop tests and the played scene share: a desktop, the real program, its tray."""
