# SPDX-License-Identifier: MIT
"""A copy of the project in which a mutation run changes, builds and tests."""
import os
import pathlib
import resource
import shutil
import signal
import subprocess
import time

LEFT_OUT = {"build", ".git"}
MEMORY = 8 << 30
FILE_SIZE = 4 << 30


def prepare():
    """Bounds what a changed program may fill, and lets it be interrupted though the run is in the background."""
    for number in (signal.SIGINT, signal.SIGQUIT, signal.SIGHUP):
        signal.signal(number, signal.SIG_DFL)
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_FSIZE, (FILE_SIZE, FILE_SIZE))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def run(command, seconds=None, log=None, **options):
    """The exit status of a command, or nothing if it took too long; none of its processes outlives it."""
    with open(log or os.devnull, "wb") as output:
        process = subprocess.Popen(command, stdout=output, stderr=subprocess.STDOUT,
                                   stdin=subprocess.DEVNULL, start_new_session=True, **options)
    try:
        return process.wait(seconds)
    except subprocess.TimeoutExpired:
        return None
    finally:
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        process.wait()


class Scratch:
    """The copy with its build, the logs and the temporary files, all below one folder."""

    def __init__(self, source, folder):
        self.source = source
        self.tree = folder / "tree"
        self.build_folder = self.tree / "build" / "dev"
        self.log_folder = folder / "log"
        self.temporary = folder / "tmp"
        self.programs = {}
        for made in (self.tree, self.log_folder, self.temporary):
            made.mkdir(parents=True, exist_ok=True)

    def refresh(self):
        """Makes the copy what the source is; files that are alike keep their times, so that little is built."""
        names = set(self._names(self.source))
        for name in set(self._names(self.tree)) - names:
            (self.tree / name).unlink()
        for name in names:
            new, old = self.source / name, self.tree / name
            if not old.exists() or old.read_bytes() != new.read_bytes():
                old.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(new, old)

    def configure(self):
        # As in any other checkout, so that a compiler cache has all but what is changed.
        return run(["cmake", "--preset", "dev"], log=self.log_folder / "configure", cwd=self.tree) == 0

    def build(self, program):
        command = ["cmake", "--build", self.build_folder, "--target", program]
        return run(command, log=self.log_folder / "build") == 0

    def test(self, program, seconds=None):
        """Runs a test program up to its first failure: its exit status, or nothing if it took too long."""
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8", TMPDIR=self.temporary)
        command = [self._path(program), "--gtest_fail_fast", "--gtest_brief=1"]
        status = run(command, seconds, self.log_folder / program, env=environment, cwd=self.temporary,
                     preexec_fn=prepare)
        self._clean()
        return status

    def time_of(self, program):
        """Seconds that an unchanged program takes, or nothing if it fails."""
        start = time.monotonic()
        return time.monotonic() - start if self.test(program) == 0 else None

    @staticmethod
    def _names(folder):
        for path, folders, files in os.walk(folder):
            folders[:] = [name for name in folders if name not in LEFT_OUT]
            yield from (pathlib.Path(path, name).relative_to(folder) for name in files)

    def _path(self, program):
        if program not in self.programs:
            found = [path for path in self.build_folder.rglob(program) if path.is_file()]
            self.programs[program] = found[0]
        return self.programs[program]

    def _clean(self):
        """A test that crashed has left its folders behind, some of them without permissions."""
        run(["chmod", "-R", "u+rwX", self.temporary])
        shutil.rmtree(self.temporary, ignore_errors=True)
        self.temporary.mkdir(exist_ok=True)
