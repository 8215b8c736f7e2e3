"""What the user shall see."""
TEXT = "Somebody logged in"  # anyone
def test_nobody_waits(): pass
