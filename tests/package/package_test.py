"""Runs ./package in a copy of the plug-in with a repository of its own. Argument: the root of the sources."""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest
import zipfile

SOURCES = pathlib.Path(sys.argv.pop(1)).resolve()
BUILT_OR_LOCAL = ("Binaries", "Intermediate", "Saved", "Logs", "__pycache__", "*.swp")


class Package(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name) / "a copy"
        self.plugin = self.root / "kestrin-unreal"
        shutil.copytree(SOURCES / "kestrin-unreal", self.plugin, ignore=shutil.ignore_patterns(*BUILT_OR_LOCAL))
        shutil.copy2(SOURCES / "package", self.root)
        self.git("init", "-q")
        self.git("add", "-A")
        self.version = json.loads((self.plugin / "Kestrin.uplugin").read_text())["VersionName"]
        self.target = self.root / "build" / f"kestrin-unreal-{self.version}.zip"

    def git(self, *arguments):
        subprocess.run(["git", "-C", self.root, *arguments], check=True)

    def package(self, *arguments):
        return subprocess.run([self.root / "package", *arguments], cwd="/", capture_output=True, text=True)

    def write(self):
        done = self.package()
        self.assertEqual(done.returncode, 0, done.stderr)
        return self.target.read_bytes()

    def entries(self):
        with zipfile.ZipFile(self.target) as archive:
            return archive.namelist()

    def test_holds_what_git_knows_and_nothing_else(self):
        files = sorted(str(file.relative_to(self.root)) for file in self.plugin.rglob("*") if file.is_file())
        for stray in ("Source/Kestrin/Private/.Stray.cpp.swp", "Source/Stray.cpp", "Binaries/Linux/lib.so", "Logs/a.log", "notes.txt"):
            path = self.plugin / stray
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text("stray")
        # Known, but no part of what is installed.
        self.git("add", "-f", "kestrin-unreal/notes.txt", "kestrin-unreal/Binaries")
        self.write()
        self.assertEqual(self.entries(), files)
        for expected in ("Kestrin.uplugin", "README.md", "Resources/PlaceholderButtonIcon.svg", "Source/Kestrin/Kestrin.Build.cs"):
            self.assertIn("kestrin-unreal/" + expected, files)
        with zipfile.ZipFile(self.target) as archive:
            for name in files:
                self.assertEqual(archive.read(name), (self.root / name).read_bytes(), name)

    def test_the_same_files_give_the_same_bytes(self):
        first = self.write()
        for file in self.plugin.rglob("*"):
            os.utime(file, (1e9, 1e9))
        (self.plugin / "README.md").chmod(0o755)
        self.assertEqual(self.write(), first)
        (self.plugin / "README.md").write_text("changed")
        self.assertNotEqual(self.write(), first)
        self.assertEqual(list(self.target.parent.iterdir()), [self.target])

    def test_refuses_what_would_be_half_a_plugin(self):
        kept = self.write()
        (self.plugin / "Resources" / "PlaceholderButtonIcon.svg").unlink()
        done = self.package()
        self.assertEqual(done.returncode, 1)
        self.assertIn("kestrin-unreal/Resources/PlaceholderButtonIcon.svg", done.stderr)
        self.git("rm", "-q", "--cached", "-r", "kestrin-unreal/README.md")
        done = self.package()
        self.assertEqual(done.returncode, 1)
        self.assertIn("kestrin-unreal/README.md is not known to git", done.stderr)
        shutil.rmtree(self.root / ".git")
        done = self.package()
        self.assertEqual(done.returncode, 1)
        self.assertIn("git can't list", done.stderr)
        self.assertEqual(self.target.read_bytes(), kept)

    def test_options(self):
        self.assertEqual(self.package("--help").returncode, 0)
        self.assertEqual(self.package("--fast").returncode, 2)
        self.assertFalse(self.target.exists())


if __name__ == "__main__":
    unittest.main()
