time.sleep(3)  # nobody touches anything
