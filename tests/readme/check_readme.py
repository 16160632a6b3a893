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
    assert done.returncode == 0, f"{command} exited with {done.returncode}: {done.stderr}"
    return done.stdout


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def output_of(path, source, build, env):
    """Builds and runs one example; returns what it prints."""
    work = tempfile.mkdtemp(prefix="vela-readme-")
    program, file, jar = os.path.join(work, "example"), os.path.join(source, path), os.path.join(build, "vela.jar")
    flags = ["-Wall", "-Werror", "-I" + os.path.join(source, "include"), file, "-L" + build, "-lvela", "-o", program]
    if path.endswith(".c"):
        run(["cc", "-std=c11", *flags, "-ldl"])
        return run([program, os.path.join(build, "libvela.so")], env=env)
    if path.endswith(".cpp"):
        run(["c++", "-std=c++17", *flags])
        return run([program], env=env)
    if path.endswith(".java"):
        run(["javac", "-cp", jar, "-d", work, file])
        main_class = os.path.basename(path)[:-len(".java")]
        return run(["java", "-Djava.library.path=" + build, "-cp", jar + os.pathsep + work, main_class], env=env)
    return run([sys.executable, file], env=env)


def check_readme(source, build):
    """Returns the number of marked blocks and what the README gets wrong."""
    env = dict(os.environ, PATH=build + os.pathsep + os.environ["PATH"], PYTHONPATH=os.path.join(source, "python"),
               VELA_LIBRARY=os.path.join(build, "libvela.so"), LD_LIBRARY_PATH=build, LC_ALL="C.UTF-8")
    wrong = []

    def compare(what, expected, actual):
        if expected != actual:
            wrong.append(f"{what}: the README says\n{expected}but it gives\n{actual}")

    readme = read(os.path.join(source, "README.md"))
    blocks = MARKED_BLOCK.findall(readme)
    for kind, path, block in blocks:
        if kind in ("example", "excerpt"):
            text = read(os.path.join(source, path))
            if kind == "example":
                compare(f"the example {path}", text, block)
            elif "\n".join(map(str.strip, block.splitlines())) not in "\n".join(map(str.strip, text.splitlines())):
                wrong.append(f"the excerpt of {path} is not in it:\n{block}")
        elif kind == "output of":
            compare(f"the output of {path}", block, output_of(path, source, build, env))
        else:
            for entry in re.split(r"^\$ ", block, flags=re.M)[1:]:
                command, _, shown = entry.partition("\n")
                compare(f"$ {command}", shown, run(["bash", "-c", command], env=env, cwd=source))
    table = COUNT_TABLE.search(readme)
    if table is None:
        wrong.append("no <!-- prompt counts --> table")
    for column, count in zip(*(row.strip("|").split("|") for row in (table.groups() if table else ()))):
        names = run([os.path.join(build, "vela"), "prompts", "-l", *column.split()], env=env)
        compare(f"prompt count of {column.strip()}", count.strip() + "\n", f"{len(names.splitlines())}\n")
    return len(blocks), wrong


if __name__ == "__main__":
    blocks, wrong = check_readme(os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2]))
    print("\n".join(wrong + [f"readme: {blocks} marked blocks and the prompt counts, {len(wrong)} wrong"]))
    sys.exit(1 if wrong or blocks == 0 else 0)
