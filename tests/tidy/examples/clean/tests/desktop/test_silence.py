time.sleep(3)  # no input
