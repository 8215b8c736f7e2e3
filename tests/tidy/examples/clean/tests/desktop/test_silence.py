time.sleep(3)  # the user touches anything
