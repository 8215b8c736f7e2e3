Item {}
