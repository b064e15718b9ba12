"""A host outside the project, built against the installed package the two usual ways."""

import os
import shutil
from pathlib import Path

from commands.steps import call
from commands.tally import Tally
from commands.wine import RUN, windows_path

C_COMPILERS = {"win64": "x86_64-w64-mingw32-gcc", "win32": "i686-w64-mingw32-gcc"}
COMPILERS = {"win64": "x86_64-w64-mingw32-g++-posix", "win32": "i686-w64-mingw32-g++-posix"}
TOOLCHAINS = {"win64": "mingw-w64-x86_64.cmake", "win32": "mingw-w64-i686.cmake"}


class Package:
    """The package of one preset, installed below the build folder."""

    def __init__(self, root, preset):
        self._root = root
        self._preset = preset
        self._prefix = root / "build/package" / preset
        self._work = root / "build/package-host" / preset

    def install(self):
        """A fresh layout each time: a file that is no longer installed must not help a host."""
        shutil.rmtree(self._prefix, ignore_errors=True)
        shutil.rmtree(self._work, ignore_errors=True)
        self._work.mkdir(parents=True)
        build = self._root / "build" / self._preset
        return call(["cmake", "--install", build, "--prefix", self._prefix])

    def build_with_cmake(self):
        """find_package(Tavix CONFIG) and Tavix::tavix."""
        return self._build_project("tests/package", self._work)

    def build_sample(self):
        """The complete host that the README begins with; it waits for a user, so it is not run."""
        return self._build_project("samples/minimal", self._work / "minimal")

    def _build_project(self, source, work):
        toolchain = self._root / "cmake" / TOOLCHAINS[self._preset]
        well, output = call(
            ["cmake", "-G", "Ninja", "-S", self._root / source, "-B", work]
            + [f"-DCMAKE_TOOLCHAIN_FILE={toolchain}", f"-DCMAKE_PREFIX_PATH={self._prefix}"]
        )
        return call(["cmake", "--build", work]) if well else (well, output)

    def build_by_hand(self):
        """The compiler alone, without the UNICODE macros the CMake target brings along."""
        return call(
            [COMPILERS[self._preset], "-Wall", "-Wextra", "-Werror", f"-I{self._prefix}/include"]
            + [self._root / "tests/package/package_host.cpp", f"-L{self._prefix}/lib"]
            + ["-ltavix", "-lframework", "-o", self._work / "by_hand.exe"]
        )

    def build_in_c(self):
        """A C compiler alone, and no header of the framework in sight."""
        return call(
            [C_COMPILERS[self._preset], "-std=c11", "-Wall", "-Wextra", "-pedantic", "-Werror"]
            + [f"-I{self._prefix}/include", self._root / "tests/package/c_host.c"]
            + [f"-L{self._prefix}/lib", "-ltavix_c", "-o", self._work / "c_host.exe"]
        )

    def run(self, program):
        """Runs a host with the package's DLLs and the compiler's own on its search path."""
        folders = [self._prefix / "bin", *self._runtime_folders()]
        environment = {**os.environ, "WINEPATH": ";".join(map(windows_path, folders))}
        return call([RUN, self._work / program], env=environment)

    def _runtime_folders(self):
        names = ("libstdc++-6.dll", "libwinpthread-1.dll")
        ask = [[COMPILERS[self._preset], f"-print-file-name={name}"] for name in names]
        return [Path(call(command)[1].strip()).parent for command in ask]


def check_hosts(root, preset, runs):
    """Installs the package of `preset` and counts each way to use it as one check."""
    package = Package(root, preset)
    well, output = package.install()
    if not well:
        return Tally(failures=[(f"{preset} package: installing", output)])
    tally = Tally()
    ways = (
        ("find_package", package.build_with_cmake, "package_host.exe"),
        ("compiler alone", package.build_by_hand, "by_hand.exe"),
        ("C compiler alone", package.build_in_c, "c_host.exe"),
        ("minimal sample", package.build_sample, None),
    )
    for name, build, program in ways:
        well, output = build()
        if well and runs and program:
            well, output = package.run(program)
        if well:
            tally.passed += 1
        else:
            tally.failures.append((f"{preset} package: {name}", output))
    return tally
