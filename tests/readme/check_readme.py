"""The README cannot lie: run against a build tree, this checks that

- every code block marked <!-- example: PATH --> is the file PATH, byte for byte,
  and every one marked <!-- excerpt: PATH --> lines of it (indentation aside);
- every block marked <!-- output of: PATH --> is what PATH prints once built
  and run (C, C++, Java, Python);
- every ```console block marked <!-- session --> prints, command by command
  ("$ " lines), the lines shown after each;
- the table marked <!-- prompt counts --> gives what `vela prompts` counts.

usage: check_readme.py SOURCE_DIR BUILD_DIR
"""

import os
import re
import subprocess
import sys
import tempfile

MARKED_BLOCK = re.compile(r"<!-- (example|excerpt|output of|session): ?(\S*) -->\n```[a-z]*\n(.*?)```\n", re.S)
COUNT_TABLE = re.compile(r"<!-- prompt counts -->\n(\|.*\|)\n\|[-| ]+\|\n(\|.*\|)\n")


def run(command, **kwargs):
    done = subprocess.run(command, capture_output=True, text=True, **kwargs)
    if done.returncode != 0:
        raise AssertionError(f"{command} exited with {done.returncode}: {done.stderr}")
    return done.stdout


class Checker:
    def __init__(self, source, build):
        self.source, self.build = source, build
        self.work = tempfile.mkdtemp(prefix="vela-readme-")
        self.env = dict(os.environ, PATH=build + os.pathsep + os.environ["PATH"],
                        PYTHONPATH=os.path.join(source, "python"),
                        VELA_LIBRARY=os.path.join(build, "libvela.so"),
                        LD_LIBRARY_PATH=build, LC_ALL="C.UTF-8")
        self.failures = []

    def check(self, what, expected, actual):
        if expected != actual:
            self.failures.append(f"{what}: the README says\n{expected}but it gives\n{actual}")

    def output_of(self, path):
        """Builds and runs one example; returns what it prints."""
        source = os.path.join(self.source, path)
        program = os.path.join(self.work, os.path.basename(path) + ".run")
        include, library = os.path.join(self.source, "include"), ["-L" + self.build, "-lvela"]
        if path.endswith(".c"):
            run(["cc", "-std=c11", "-Wall", "-Werror", "-I" + include, source, *library, "-ldl", "-o", program])
            return run([program, os.path.join(self.build, "libvela.so")], env=self.env)
        if path.endswith(".cpp"):
            run(["c++", "-std=c++17", "-Wall", "-Werror", "-I" + include, source, *library, "-o", program])
            return run([program], env=self.env)
        if path.endswith(".java"):
            jar = os.path.join(self.build, "vela.jar")
            run(["javac", "-cp", jar, "-d", self.work, source])
            name = os.path.splitext(os.path.basename(path))[0]
            return run(["java", "-Djava.library.path=" + self.build, "-cp", jar + os.pathsep + self.work, name],
                       env=self.env)
        if path.endswith(".py"):
            return run([sys.executable, source], env=self.env)
        raise AssertionError(f"no way to run {path}")

    def session(self, block):
        """Runs each "$ " command of a console block; compares its output."""
        commands = re.split(r"^\$ ", block, flags=re.M)[1:]
        for entry in commands:
            command, _, shown = entry.partition("\n")
            actual = run(["bash", "-c", command], env=self.env, cwd=self.source)
            self.check(f"$ {command}", shown, actual)

    def prompt_counts(self, readme):
        table = COUNT_TABLE.search(readme)
        if table is None:
            self.failures.append("no <!-- prompt counts --> table")
            return
        columns = [cell.strip() for cell in table.group(1).strip("|").split("|")]
        counts = [cell.strip() for cell in table.group(2).strip("|").split("|")]
        for column, count in zip(columns, counts):
            tag, *mode = column.split()
            names = run([os.path.join(self.build, "vela"), "prompts", "-l", tag, *mode], env=self.env)
            self.check(f"prompt count of {column}", count + "\n", f"{len(names.splitlines())}\n")

    def readme(self):
        with open(os.path.join(self.source, "README.md"), encoding="utf-8") as file:
            readme = file.read()
        blocks = MARKED_BLOCK.findall(readme)
        for kind, path, block in blocks:
            if kind == "example":
                with open(os.path.join(self.source, path), encoding="utf-8") as file:
                    self.check(f"the example {path}", file.read(), block)
            elif kind == "excerpt":
                with open(os.path.join(self.source, path), encoding="utf-8") as file:
                    lines = "\n".join(line.strip() for line in file.read().splitlines())
                shown = "\n".join(line.strip() for line in block.splitlines())
                if shown not in lines:
                    self.failures.append(f"the excerpt of {path} is not in it:\n{block}")
            elif kind == "output of":
                self.check(f"the output of {path}", block, self.output_of(path))
            else:
                self.session(block)
        self.prompt_counts(readme)
        return len(blocks)


def main():
    checker = Checker(os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2]))
    blocks = checker.readme()
    for failure in checker.failures:
        print(failure)
    print(f"readme: {blocks} marked blocks and the prompt counts, {len(checker.failures)} wrong")
    return 1 if checker.failures or blocks == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
