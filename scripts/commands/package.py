"""Hosts outside the project, built against the installed package in every way it offers."""

import os
import re
import shutil
from pathlib import Path

from commands.steps import call
from commands.tally import Tally
from commands.wine import RUN, windows_path

C_COMPILERS = {"win64": "x86_64-w64-mingw32-gcc", "win32": "i686-w64-mingw32-gcc"}
COMPILERS = {"win64": "x86_64-w64-mingw32-g++-posix", "win32": "i686-w64-mingw32-g++-posix"}
TOOLCHAINS = {"win64": "mingw-w64-x86_64.cmake", "win32": "mingw-w64-i686.cmake"}
C_OPTIONS = ["-std=c11", "-Wall", "-Wextra", "-pedantic", "-Werror"]
CPP_OPTIONS = ["-Wall", "-Wextra", "-Werror"]


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

    def check_pages(self):
        """The installed pages name installed files."""
        return call([self._root / "scripts/check_package_pages.py", self._prefix])

    def build_with_cmake(self):
        """find_package(Tavix CONFIG) with Tavix::tavix and with Tavix::c."""
        return self._build_project(self._root / "tests/package", "cmake")

    def build_samples(self):
        """They wait for a user, so they are not run."""
        return self._build_project(self._prefix / "share/tavix/samples", "samples")

    def _build_project(self, source, name):
        work = self._work / name
        toolchain = self._root / "cmake" / TOOLCHAINS[self._preset]
        well, output = call(
            ["cmake", "-G", "Ninja", "-S", source, "-B", work, "-DCMAKE_BUILD_TYPE=Release"]
            + [f"-DCMAKE_TOOLCHAIN_FILE={toolchain}", f"-DCMAKE_PREFIX_PATH={self._prefix}"]
        )
        if well:
            well, output = call(["cmake", "--build", work])
        missing = sorted(self._missing_dlls(work)) if well else []
        return (False, f"not copied: {', '.join(missing)}") if missing else (well, output)

    def _missing_dlls(self, work):
        """The package's DLLs that a program in `work` needs and does not have beside it."""
        dlls = {path.name for path in (self._prefix / "bin").glob("*.dll")}
        for path in [*work.rglob("*.exe"), *work.rglob("*.dll")]:
            if "CMakeFiles" in path.parts:
                continue  # what CMake compiled to know the compiler
            _, listing = call(["x86_64-w64-mingw32-objdump", "-p", path])
            for name in re.findall(r"DLL Name: (\S+)", listing):
                if name in dlls and not path.with_name(name).exists():
                    yield f"{name} for {path.relative_to(work)}"

    def build_by_hand(self):
        """The compiler alone, without the UNICODE macros the CMake target brings along."""
        return self._compile_cpp("by_hand.exe", "tests/package/package_host.cpp", [])

    def build_with_framework(self):
        """A framework-style host, which names the folder of the framework's headers."""
        return self._compile_cpp(
            "framework.exe",
            "samples/minimal/minimal.cpp",
            [f"-I{self._prefix}/include/tavix-framework", "-mwindows"],
            ["-lframework_winmain"],
        )

    def _compile_cpp(self, program, source, options, libraries=()):
        return call(
            [COMPILERS[self._preset], *CPP_OPTIONS, f"-I{self._prefix}/include", *options]
            + [self._root / source, f"-L{self._prefix}/lib", *libraries]
            + ["-ltavix", "-lframework", "-o", self._work / program]
        )

    def build_in_c(self):
        """A C compiler alone; the host refuses a header of the framework on the search path."""
        return call(
            [C_COMPILERS[self._preset], *C_OPTIONS, f"-I{self._prefix}/include"]
            + [self._root / "tests/package/c_host.c", f"-L{self._prefix}/lib"]
            + ["-ltavix_c", "-o", self._work / "c_host.exe"]
        )

    def build_with_pkg_config(self):
        """The options of pkg-config after the package has been moved to another folder."""
        moved = self._work / "moved"
        shutil.copytree(self._prefix, moved)
        hosts = (
            ("tavix", COMPILERS, CPP_OPTIONS, "package_host.cpp", "pkg_config.exe"),
            ("tavix-c", C_COMPILERS, C_OPTIONS, "c_host.c", "pkg_config_c.exe"),
        )
        for name, compilers, warnings, source, program in hosts:
            environment = {**os.environ, "PKG_CONFIG_LIBDIR": str(moved / "lib/pkgconfig")}
            well, output = call(["pkg-config", "--cflags", "--libs", name], env=environment)
            if well:
                source = self._root / "tests/package" / source
                command = [compilers[self._preset], *warnings, source, *output.split()]
                well, output = call([*command, "-o", self._work / program])
            if not well:
                return well, output
        return well, output

    def run_beside(self, program):
        """Runs a host that has the package's DLLs beside it."""
        return call([RUN, self._work / program])

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
    hosts = ("cmake/package_host/package_host.exe", "cmake/c_host/c_host.exe")
    ways = (
        ("its pages", package.check_pages, package.run, ()),
        ("find_package", package.build_with_cmake, package.run_beside, hosts),
        ("compiler alone", package.build_by_hand, package.run, ("by_hand.exe",)),
        ("compiler alone, framework", package.build_with_framework, package.run, ()),
        ("C compiler alone", package.build_in_c, package.run, ("c_host.exe",)),
        ("pkg-config", package.build_with_pkg_config, package.run,
         ("pkg_config.exe", "pkg_config_c.exe")),
        ("samples", package.build_samples, package.run, ()),
    )
    for name, build, run, programs in ways:
        well, output = build()
        for program in programs if runs else ():
            if well:
                well, output = run(program)
        if well:
            tally.passed += 1
        else:
            tally.failures.append((f"{preset} package: {name}", output))
    return tally
