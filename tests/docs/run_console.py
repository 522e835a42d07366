"""Runs the blocks of a document that are marked `console`, and compares what they print with what stands there.

A line behind "$ " is a command, and goes on in lines behind "> ". What follows is its output, of both channels; "..."
stands for any lines. A command that fails is a fault, unless the next one is `echo $?`. All blocks of a document
run in one shell, in the repository's root, with a temporary folder of its own.

run_console.py FOLDER_OF_PROGRAMS DOCUMENT             compares
run_console.py --update FOLDER_OF_PROGRAMS DOCUMENT    writes the output into the document, to be read before it is
                                                       committed
"""

import dataclasses
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from documents import ROOT, blocks_of


@dataclasses.dataclass
class Command:
    line: int  # of the first line of its output, from 1
    text: str
    expected: list


@dataclasses.dataclass
class Ran:
    printed: list
    status: int


def commands_of(document):
    commands = []
    for block in blocks_of(document):
        if block.language != "console":
            continue
        for offset, line in enumerate(block.lines, block.line + 1):
            if line.startswith("$ "):
                commands.append(Command(offset + 1, line[2:], []))
            elif line.startswith("> ") and not commands[-1].expected:
                commands[-1].text += "\n" + line[2:]
                commands[-1].line = offset + 1
            else:
                commands[-1].expected.append(line)
    return commands


MARK = "\x01"  # what no program prints


def script_of(commands):
    lines = ["exec 2>&1 </dev/null", "status=0"]
    for command in commands:
        lines += ["(exit $status)", command.text, "status=$?", f"printf '\\n{MARK}%s\\n' $status"]
    return "\n".join(lines) + "\n"


def run(commands, programs):
    with tempfile.TemporaryDirectory() as scratch:
        environment = {
            "PATH": f"{programs}:/usr/bin:/bin",
            "HOME": scratch,
            "TMPDIR": scratch,
            "LC_ALL": "C.UTF-8",
            "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", ""),
        }
        done = subprocess.run(
            ["bash", "-c", script_of(commands)], capture_output=True, text=True, cwd=ROOT, env=environment, timeout=60
        )
    ran = []
    for printed, status in re.findall(rf"(.*?)\n{MARK}(\d+)\n", done.stdout, re.S):
        ran.append(Ran(printed.rstrip("\n").split("\n") if printed.strip("\n") else [], int(status)))
    if len(ran) != len(commands):
        raise RuntimeError(f"the shell ended early: {done.stdout[-500:]} {done.stderr[-500:]}")
    return ran


def agrees(expected, printed):
    if "..." not in expected:
        return expected == printed
    pattern = "".join(r"(?:.*\n)*?" if line == "..." else re.escape(line) + r"\n" for line in expected)
    return re.fullmatch(pattern, "".join(line + "\n" for line in printed)) is not None


def faults_of(commands, ran):
    faults = []
    for at, (command, result) in enumerate(zip(commands, ran)):
        is_told = at + 1 < len(commands) and commands[at + 1].text == "echo $?"
        if result.status != 0 and not is_told:
            faults.append((command, f"fails with {result.status}", result.printed))
        elif not agrees(command.expected, result.printed):
            faults.append((command, "prints something else", result.printed))
    return faults


def update(document, commands, ran):
    lines = document.read_text().splitlines()
    for command, result in reversed(list(zip(commands, ran))):
        if not agrees(command.expected, result.printed):
            lines[command.line - 1 : command.line - 1 + len(command.expected)] = result.printed
    document.write_text("\n".join(lines) + "\n")


def main(arguments):
    programs, document = (pathlib.Path(name).resolve() for name in arguments[-2:])
    commands = commands_of(document)
    ran = run(commands, programs)
    if arguments[0] == "--update":
        update(document, commands, ran)
    faults = faults_of(commands, ran)
    for command, what, printed in faults:
        print(f"{document}:{command.line - 1}: `{command.text}` {what}:")
        print("\n".join("    " + line for line in printed))
    print(f"{len(commands)} commands, {len(faults)} faults")
    return 1 if faults or not commands else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
