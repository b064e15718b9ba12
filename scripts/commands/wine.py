"""Windows programs, as the commands start them."""

from pathlib import Path

RUN = Path(__file__).resolve().parents[1] / "wine_run.sh"


def windows_path(path):
    """A path as a Windows program sees it: the whole Linux tree stands under drive Z."""
    return "Z:" + str(path).replace("/", "\\")
