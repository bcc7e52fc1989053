"""Lets a wheel that carries the shared library be one for its platform, and for every Python 3."""

from pathlib import Path

from setuptools import Distribution, setup
from wheel.bdist_wheel import bdist_wheel


class Carrying(Distribution):
    def has_ext_modules(self):
        return True


class ForEveryPython(bdist_wheel):
    def get_tag(self):
        return "py3", "none", super().get_tag()[2]


if (Path(__file__).parent / "src/quillet/libquillet.so.1").exists():
    setup(distclass=Carrying, cmdclass={"bdist_wheel": ForEveryPython})
else:
    setup()
