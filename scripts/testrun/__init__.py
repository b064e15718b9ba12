"""The parts of ./test: numbered steps, their tally, test reports, a display, a package's host."""
