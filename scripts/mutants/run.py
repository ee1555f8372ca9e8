"""run.py COUNT SEED AREA [build] [again] [from_behind]: see scripts/mutate, which starts it where the tests of the area
can run. build: no more than that. from_behind: so that two at work meet in the middle.

Exits with 75 when what it runs in doesn't let the tests pass any more: started anew it goes on."""
import collections
import concurrent.futures
import fcntl
import json
import os
import pathlib
import random
import re
import signal
import subprocess
import sys
import tempfile
import threading
import time

import points as finder
from areas import AREAS, ROOT
from schemata import mutated

MOST_MEMORY = 2 << 30  # Bytes; a mutant that takes more is caught.
FAST_TESTS = 40        # So many are asked first.
AT_ONCE = 12         # Mutants, before what has caught them is run without them.
BROKEN = 75


def say(text):
    print(text, file=sys.stderr, flush=True)


class Sample:
    """The chosen mutants: numbers are places in the shuffled list of all points. The list is kept, so that a source
    that changes leaves the others their mutants."""

    def __init__(self, area, count, seed):
        self.area, self.count = area, count
        self.sources = {file: (ROOT / "src" / file).read_text() for file in area.files()}
        by_key = {}
        for file, source in self.sources.items():
            alike = collections.Counter()
            for point in finder.points_of(file, source):
                key = point.key(source)
                alike[key] += 1
                by_key[f"{key}|{alike[key]}"] = point
        self.total = len(by_key)
        order_path = area.folder / f"order-{seed}.json"
        order = json.loads(order_path.read_text()) if order_path.exists() else []
        added = sorted(set(by_key) - set(order))
        random.Random(seed).shuffle(added)
        order += added
        order_path.write_text(json.dumps(order, indent=0))
        self.keys = {number: key for number, key in enumerate(order, 1) if key in by_key}
        self.points = {number: by_key[key] for number, key in self.keys.items()}
        self.dropped_path = area.folder / "dropped.json"
        self.dropped = set(json.loads(self.dropped_path.read_text())) if self.dropped_path.exists() else set()

    def key(self, number):
        return self.keys[number]

    def chosen(self):
        fit = [number for number in self.points if self.key(number) not in self.dropped]
        return fit[:self.count]

    def drop(self, numbers):
        self.dropped |= {self.key(number) for number in numbers}
        self.dropped_path.write_text(json.dumps(sorted(self.dropped), indent=0))

    def write(self):
        by_file = collections.defaultdict(list)
        for number in self.chosen():
            by_file[self.points[number].file].append((number, self.points[number]))
        for file, source in self.sources.items():
            path = self.area.folder / "src" / file
            text = mutated(source, by_file[file])
            if not path.exists() or path.read_text() != text:
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text)

    def blamed(self, log):
        """The mutants for which the compiler's errors are."""
        found, context = set(), []
        place = re.compile(rf"mutate/{self.area.name}/src/([\w/.]+):(\d+)")
        chosen = self.chosen()
        for line in log.splitlines():
            here = [(match[1], int(match[2])) for match in place.finditer(line)]
            if " error: " not in line:
                context += here
                continue
            hits = set()
            for file, number in here or context:
                for reach in (0, 1, 2, 4):
                    near = {n for n in chosen if self.points[n].file == file and self.lines(n, reach, number)}
                    if near:
                        hits |= near
                        break
            found |= hits
            context = []
        return found

    def lines(self, number, reach, line):
        point = self.points[number]
        last = point.line + self.sources[point.file].count("\n", point.begin, point.end)
        return point.line - reach <= line <= last + reach

    def build(self):
        area = self.area
        hook = ROOT / "scripts/mutants/hook.cmake"
        self.write()
        if not (area.binaries / "build.ninja").exists():
            subprocess.run(["cmake", "--preset", area.preset, "-B", area.binaries, f"-DCMAKE_PROJECT_INCLUDE={hook}",
                            f"-DPANELKIT_MUTANTS={area.folder}", f"-DPANELKIT_MUTANT_HEADERS={int(area.mutates_tests)}"], cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
        targets = [f"{program}_test" for program in area.programs]
        if area.preset == "windows":
            targets.append("keeper")
        for goal in (["panelkit"], targets):
            while True:
                self.write()
                say(f"building {' '.join(goal)} with {len(self.chosen())} mutants")
                done = subprocess.run(["cmake", "--build", area.binaries, "--target", *goal, "--", "-k", "0"],
                                      stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
                (area.folder / "build.log").write_text(done.stdout)
                if done.returncode == 0:
                    break
                guilty = self.blamed(done.stdout)
                if not guilty:
                    sys.exit(f"the build failed: {area.folder}/build.log")
                say(f"{len(guilty)} don't compile")
                self.drop(guilty)


class Runner:
    def __init__(self, area):
        self.area = area
        self.is_windows = area.preset == "windows"

    def run(self, program, tests, limit, mutant=0, **environment):
        """Runs tests of a program, up to the first that fails; None: passed, else the name of what failed."""
        binary = self.area.binaries / "bin" / (f"{program}_test" + (".exe" if self.is_windows else ""))
        command = [ROOT / "scripts/wine", binary] if self.is_windows else [binary]
        with tempfile.TemporaryDirectory(prefix="mutant") as folder:
            flags = pathlib.Path(folder) / "flags"
            flags.write_text("--gtest_color=no\n--gtest_filter=" + (":".join(tests) if tests else "*") + "\n" +
                             ("--gtest_fail_fast\n" if mutant >= 0 else ""))
            shown = f"Z:{flags}" if self.is_windows else flags
            with open(pathlib.Path(folder) / "out", "w+b") as out:
                environment = {**os.environ, "PANELKIT_MUTANT": str(mutant), "PANELKIT_CODEPAGE": "1252", **environment}
                if not self.is_windows:
                    environment["TMPDIR"] = folder
                process = subprocess.Popen([*command, f"--gtest_flagfile={shown}"], stdout=out, stderr=out,
                                           stdin=subprocess.DEVNULL, cwd=self.area.binaries, env=environment,
                                           start_new_session=True)
                ended = self.wait(process, out, limit)
                out.seek(0)
                said = out.read().decode("utf-8", "replace")
        failed = re.findall(r"^\[  FAILED  \] ([\w./]+\.[\w./]+)", said, re.MULTILINE)
        if ended == "0":
            return None
        if failed and ended == "1":
            return failed[0]
        begun = re.findall(r"^\[ RUN      \] (\S+)", said, re.MULTILINE)
        return f"{begun[-1] if begun else '*'} ({ended})"

    @staticmethod
    def wait(process, out, limit):
        """limit: the seconds that may pass until the next test begins."""
        until = time.monotonic() + limit
        ended, told = None, 0
        while ended is None:
            try:
                return str(process.wait(timeout=0.05))
            except subprocess.TimeoutExpired:
                pass
            try:
                pages = int(pathlib.Path(f"/proc/{process.pid}/statm").read_text().split()[1])
            except (OSError, IndexError):
                continue
            if os.fstat(out.fileno()).st_size != told:
                told, until = os.fstat(out.fileno()).st_size, time.monotonic() + limit
            if time.monotonic() > until:
                ended = "no end"
            elif pages * 4096 > MOST_MEMORY:
                ended = "memory"
        os.killpg(process.pid, signal.SIGKILL)
        process.wait()
        return ended

    def record(self, program):
        """Runs a whole program: by test, its seconds and the mutants that it reaches."""
        notes, report = self.area.folder / f"{program}.notes", self.area.folder / f"{program}.json"
        known = self.area.folder / f"{program}.tests"
        suffix = ".exe" if self.is_windows else ""
        newest = max(path.stat().st_mtime for path in (self.area.binaries / "bin").glob(f"{program}_test{suffix}"))
        if self.is_windows:
            newest = max(newest, (self.area.binaries / "bin/panelkit.dll").stat().st_mtime)
        if known.exists() and known.stat().st_mtime > newest:
            return json.loads(known.read_text())
        notes.write_text("")
        report.unlink(missing_ok=True)
        drive = "Z:" if self.is_windows else ""
        bad = self.run(program, [], 300, -1, PANELKIT_MUTANT_NOTES=f"{drive}{notes}", GTEST_OUTPUT=f"json:{drive}{report}")
        if not report.exists():
            sys.exit(f"{program} doesn't end without mutants: {bad}")
        reached, of_all, current = collections.defaultdict(set), set(), None
        for line in notes.read_text().splitlines():
            kind, _, what = line.partition(" ")
            if kind == "test":
                current = what
            elif kind == "mutant":
                (reached[current] if current else of_all).add(int(what))
        tests = {}
        for suite in json.loads(report.read_text())["testsuites"]:
            for test in suite["testsuite"]:
                name = f"{suite['name']}.{test['name']}"
                if test.get("failures"):
                    say(f"{name} fails without mutants: not asked")
                    continue
                tests[name] = {"seconds": float(test["time"].rstrip("s")), "mutants": sorted(reached[name] | of_all)}
        known.write_text(json.dumps(tests))
        return tests


class Judge:
    """Finds out which mutants are caught."""

    def __init__(self, sample, runner, tests):
        self.sample, self.runner, self.tests = sample, runner, tests
        self.results_path = sample.area.folder / "results.json"
        self.results = {}
        self.lock = threading.Lock()
        self.to_confirm = {}  # By result: what has failed, a program and a test.
        self.tried_path = sample.area.folder / "tried.json"
        self.tried = json.loads(self.tried_path.read_text()) if self.tried_path.exists() else []

    def batches(self, mutant):
        """(program, tests, seconds of the longest) that reach a mutant, the fastest first."""
        first, later = [], []
        for program, tests in self.tests.items():
            hit = sorted((test["seconds"], name) for name, test in tests.items() if mutant in test["mutants"])
            for part, into in ((hit[:FAST_TESTS], first), (hit[FAST_TESTS:], later)):
                if part:
                    into.append((sum(seconds for seconds, _ in part), program, [name for _, name in part], part[-1][0]))
        in_order = [part for batches in (first, later) for part in sorted(batches)]
        return [(program, tests, longest) for _, program, tests, longest in in_order]

    def judge(self, mutant):
        batches = self.batches(mutant)
        if not batches:
            return "not covered"
        for program, tests, seconds in batches:
            limit = 20 + 8 * seconds
            failed = self.runner.run(program, tests, limit, mutant)
            if failed is None:
                continue
            name = failed.split(" ")[0]
            caught = f"caught by {program}: {failed}"
            if name == failed:
                self.to_confirm[caught] = (program, name)
                return caught
            # What ends a program may have left something behind.
            return caught if self.runner.run(program, [name] if name != "*" else tests, limit) is None else None
        return "survived"

    def keep(self, forget=(), **found):
        """Brings the results up to date with what others who run beside this have found."""
        with open(self.results_path.with_suffix(".lock"), "w", encoding="utf-8") as lock:
            fcntl.flock(lock, fcntl.LOCK_EX)
            known = json.loads(self.results_path.read_text()) if self.results_path.exists() else {}
            self.results = {**known, **found}
            for key in forget:
                self.results.pop(key, None)
            if self.results != known:
                written = self.results_path.with_suffix(f".{os.getpid()}")
                written.write_text(json.dumps(self.results, indent=0))
                written.replace(self.results_path)

    def one(self, mutant):
        key = self.sample.key(mutant)
        with self.lock:
            self.keep()
        if key in self.results:
            return True
        result = self.judge(mutant)
        if result is None and key in self.tried:
            result = "unclear: a test fails without it as well"
        with self.lock:
            if result is None:
                self.tried_path.write_text(json.dumps([*self.tried, key]))
                return False
            self.keep(**{key: result})
        if not result.startswith("caught"):
            point = self.sample.points[mutant]
            say(f"{result}: src/{point.file}:{point.line}: {point.what}")
        return True

    def confirm(self):
        """A test that fails without a mutant as well has caught nothing. False: some has not."""
        by_program = collections.defaultdict(set)
        for program, name in self.to_confirm.values():
            by_program[program].add(name)
        for program, names in by_program.items():
            if self.runner.run(program, sorted(names), 60) is not None:
                self.keep([key for key, result in self.results.items() if result in self.to_confirm])
                return False
        self.to_confirm.clear()
        return True

    def run(self, again, from_behind):
        self.keep()
        if again:
            self.keep([key for key, result in self.results.items() if not result.startswith("caught")])
        todo = [mutant for mutant in self.sample.chosen() if self.sample.key(mutant) not in self.results]
        if from_behind:
            todo.reverse()
        jobs = 1 if self.runner.is_windows else len(os.sched_getaffinity(0))
        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            for begin in range(0, len(todo), AT_ONCE):
                if not all(pool.map(self.one, todo[begin:begin + AT_ONCE])) or not self.confirm():
                    say("a test fails without mutants: everything anew")
                    sys.exit(BROKEN)
                say(f"{min(begin + AT_ONCE, len(todo))} of {len(todo)}")

    def report(self):
        lines, counts = [], collections.Counter()
        chosen = sorted(self.sample.chosen(), key=lambda n: (self.sample.points[n].file, self.sample.points[n].begin))
        for mutant in chosen:
            point, result = self.sample.points[mutant], self.results[self.sample.key(mutant)]
            counts[result.split(" ")[0].rstrip(":")] += 1
            lines.append(f"{result.split(' by ')[0]}\tsrc/{point.file}:{point.line}:{point.column}\t{point.what}"
                         f"\t{result.partition(' by ')[2]}")
        lines.sort(key=lambda line: line.startswith("caught"))
        reached = len(chosen) - counts["not"]
        summary = (f"{self.sample.area.name}: {len(chosen)} mutants of {self.sample.total} points, {reached} reached, "
                   f"{counts['caught']} caught, {counts['survived']} survived, {counts['not']} not covered"
                   + (f", {counts['unclear']} unclear" if counts["unclear"] else ""))
        (self.sample.area.folder / "report.txt").write_text("\n".join([summary, *lines, ""]))
        print(summary)


def main():
    count, seed, area = int(sys.argv[1]), int(sys.argv[2]), AREAS[sys.argv[3]]
    again = "again" in sys.argv[4:]
    area.folder.mkdir(parents=True, exist_ok=True)
    sample = Sample(area, count, seed)
    if "build" in sys.argv[4:]:
        sample.build()
        return
    runner = Runner(area)
    tests = {}
    for program in area.programs:
        tests[program] = runner.record(program)
        say(f"{program}: {len(tests[program])} tests")
    judge = Judge(sample, runner, tests)
    judge.run(again, "from_behind" in sys.argv[4:])
    judge.report()


main()
