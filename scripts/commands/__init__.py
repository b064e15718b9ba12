"""The parts of ./run and ./test: numbered steps, their tally, test reports, a package's hosts."""
