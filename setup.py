"""Builds the Python package with CMake: the module, and in the package the library with its template and texts."""
import pathlib
import subprocess
import sys

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext
from setuptools.errors import SetupError

TOP = pathlib.Path(__file__).resolve().parent
ROOT = "vellox/_root"  # of the library and its resources, in the package

NOT_EDITABLE = """vellox can't be installed in editable form: most of it is compiled. Use `pip install .`; or, to work on it,
build it with `cmake --preset sanitizers` and let PYTHONPATH name the folder build/sanitizers/python."""


class CMakeBuild(build_ext):
    """Installs the runtime half of the library into the package."""

    def run(self):
        if self.editable_mode:
            raise SetupError(NOT_EDITABLE)
        build = pathlib.Path(self.build_temp).resolve()
        package = pathlib.Path(self.build_lib).resolve()
        options = {
            "CMAKE_BUILD_TYPE": "Release",
            "CMAKE_INSTALL_LIBDIR": f"{ROOT}/lib",
            "CMAKE_INSTALL_DATADIR": f"{ROOT}/share",
            "Python3_EXECUTABLE": sys.executable,
            "VELLOX_PYTHON": "ON",
            "VELLOX_PYTHON_DIR": ".",
            "VELLOX_TESTS": "OFF",
            "VELLOX_EXAMPLES": "OFF",
            "VELLOX_CLI": "OFF",
            "VELLOX_TOOLS": "OFF",
            "VELLOX_OCTAVE": "OFF",
        }
        definitions = [f"-D{name}={value}" for name, value in options.items()]
        self.call("cmake", "-S", TOP, "-B", build, "-G", "Ninja", *definitions)
        self.call("cmake", "--build", build)
        for component in ("runtime", "python"):
            self.call("cmake", "--install", build, "--prefix", package, "--component", component)
        self.drop_links(package / ROOT / "lib")

    @staticmethod
    def call(*command):
        subprocess.run([str(word) for word in command], check=True)

    @staticmethod
    def drop_links(folder):
        """A wheel holds no links: the file takes the one name that the loader asks for."""
        for link in [file for file in folder.iterdir() if file.is_symlink()]:
            link.resolve().rename(link)


setup(ext_modules=[Extension("vellox.ppt", [])], cmdclass={"build_ext": CMakeBuild})
