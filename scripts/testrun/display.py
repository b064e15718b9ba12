"""A display for the windows of one run, so that they neither need nor disturb a desktop."""

import os
import subprocess
from contextlib import contextmanager


@contextmanager
def virtual_display(screen="1280x1024x24"):
    """Starts Xvfb, sets DISPLAY to it, and ends it and puts DISPLAY back afterwards."""
    read_end, write_end = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write_end), "-screen", "0", screen, "-nolisten", "tcp"],
        pass_fds=[write_end],
        stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL,
    )
    before = os.environ.get("DISPLAY")
    try:
        os.close(write_end)
        # Xvfb writes the number it found free once it takes connections, and nothing if it ends.
        with os.fdopen(read_end) as number:
            display = number.readline().strip()
        if not display:
            raise RuntimeError("Xvfb did not start")
        os.environ["DISPLAY"] = f":{display}"
        yield
    finally:
        server.terminate()
        server.wait()
        if before is None:
            os.environ.pop("DISPLAY", None)
        else:
            os.environ["DISPLAY"] = before
