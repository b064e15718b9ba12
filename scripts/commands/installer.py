"""What cpack makes: the same bytes twice, and an installer that removes what it installed."""

import os
import shutil
import zipfile

from commands.steps import call
from commands.tally import Tally
from commands.wine import RUN, windows_path

FOLDER = r"C:\Tavix of the test"
USERS_FILE = "bin/notes of the user.txt"
KEY = r"HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\Tavix"
SHORTCUT = "ProgramData/Microsoft/Windows/Start Menu/Programs/Tavix/Tavix sample host.lnk"
# The folder stands last and without quotation marks, blanks or not.
INSTALL = rf'"{{setup}}" /S /D={FOLDER}'
# The uninstaller goes on as a copy of itself, since no program can remove its own file. This waits
# for the file to go, which is the last one.
REMOVE = (
    rf'"{FOLDER}\uninstall.exe" /S' + "\n"
    rf'for /L %%i in (1,1,300) do @if exist "{FOLDER}\uninstall.exe" cmd /c rem'
)


def make_packages(root, preset):
    """Runs cpack twice; (the folder of the packages, what is wrong)."""
    folders = [root / "build/packages" / preset / run for run in ("first", "second")]
    for folder in folders:
        folder.mkdir(parents=True, exist_ok=True)
        for old in folder.glob("tavix-*"):
            old.unlink()
        config = root / "build" / preset / "CPackConfig.cmake"
        well, output = call(["cpack", "--config", config], cwd=folder)
        if not well:
            return folders[0], output
    # Beside them cpack leaves a description of the layout.
    made = sorted(path.name for path in folders[0].glob("tavix-*") if path.suffix != ".json")
    if [name.rpartition(".")[2] for name in made] != ["exe", "zip"]:
        return folders[0], f"cpack made {made}"
    differ = [name for name in made if len({(f / name).read_bytes() for f in folders}) > 1]
    return folders[0], f"not the same twice: {', '.join(differ)}" if differ else ""


class Installation:
    """The installer of a package, run silently in the first test desk's Wine."""

    def __init__(self, root, setup, package):
        self._setup = setup
        self._drive = root / "build/wine-desks/1/drive_c"
        self._folder = self._drive / FOLDER.rpartition("\\")[2]
        with zipfile.ZipFile(package) as archive:
            entries = [entry for entry in archive.infolist() if not entry.is_dir()]
            # Without the folder that the ZIP has at its root.
            self._files = {e.filename.partition("/")[2]: archive.read(e) for e in entries}

    def _run(self, *command):
        # One desk, so that all programs see the same drive and registry.
        return call([RUN, *command], env={**os.environ, "TAVIX_DESKS": "1"})

    def _run_batch(self, lines):
        # In a file: quotation marks do not outlive a command line.
        batch = self._setup.with_name("step.cmd")
        batch.write_text(lines.replace("\n", "\r\n"), encoding="utf-8", newline="")
        return self._run("cmd", "/c", windows_path(batch))

    def _present(self):
        files = (path for path in self._folder.rglob("*") if path.is_file())
        return {path.relative_to(self._folder).as_posix(): path.read_bytes() for path in files}

    def install(self):
        """What is wrong after a silent installation."""
        shutil.rmtree(self._folder, ignore_errors=True)
        well, output = self._run_batch(INSTALL.format(setup=windows_path(self._setup)))
        if not well:
            yield f"the installer failed: {output}"
        present = self._present()
        present.pop("uninstall.exe", None) or (yield "no uninstall.exe")
        for name in sorted(self._files.keys() | present.keys()):
            if self._files.get(name) != present.get(name):
                yield f"{name} is not what the ZIP holds"
        if not (self._drive / SHORTCUT).exists():
            yield "no entry in the start menu"
        _, values = self._run("reg", "query", KEY)
        for name in ("DisplayName", "DisplayVersion", "Publisher", "UninstallString"):
            if name not in values:
                yield f"the entry among the apps has no {name}:\n{values}"

    def remove(self):
        """What is wrong after a silent removal; a file of the user's own stays."""
        (self._folder / USERS_FILE).write_text("kept", encoding="utf-8")
        self._run_batch(REMOVE)
        left = sorted(self._present())
        if left != [USERS_FILE]:
            yield f"files after the removal: {left}"
        folders = sorted(path.name for path in self._folder.iterdir())
        if folders != ["bin"]:
            yield f"folders after the removal: {folders}"
        if (self._drive / SHORTCUT).parent.exists():
            yield "the entry in the start menu is still there"
        if self._run("reg", "query", KEY)[0]:
            yield "the entry among the apps is still there"


def check_packages(root, preset, runs):
    """Makes the packages of `preset`; where programs run, installs and removes them."""
    folder, wrong = make_packages(root, preset)
    if wrong:
        return Tally(failures=[(f"{preset} packages", wrong)])
    tally = Tally(passed=1)
    setup, package = (next(folder.glob(name)) for name in ("tavix-*-setup.exe", "tavix-*.zip"))
    if "The Tavix authors".encode("utf-16-le") not in setup.read_bytes():
        tally.failures.append((f"{preset} packages", "the installer's properties name no company"))
    if runs:
        installation = Installation(root, setup, package)
        for check in (installation.install, installation.remove):
            found = list(check())
            if found:
                name = f"{preset} installer, {check.__name__}"
                tally.failures.append((name, "\n".join(found)))
                break
            tally.passed += 1
    return tally
