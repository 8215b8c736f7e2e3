time.sleep(1)
