"""What a document shows of a file is what stands in the file.

A block below <!-- all of FILE --> is the whole file; one below <!-- from FILE --> stands in it as it is, line by line.

check_quotes.py DOCUMENT...             compares
check_quotes.py --update DOCUMENT...    puts whole files into the documents anew
"""

import pathlib
import re
import sys

from documents import ROOT, blocks_of


def stands_in(lines, file_lines):
    ends = range(len(file_lines) - len(lines) + 1)
    return bool(lines) and any(file_lines[i : i + len(lines)] == lines for i in ends)


def fault_of(block):
    """Why a block is no quotation, or None. A block without a note quotes nothing."""
    quoted = re.fullmatch(r"(all of|from) (\S+)", block.note)
    if not quoted:
        return None
    file = ROOT / quoted.group(2)
    if not file.exists():
        return f"{quoted.group(2)} is not there"
    file_lines = file.read_text().splitlines()
    agrees = block.lines == file_lines if quoted.group(1) == "all of" else stands_in(block.lines, file_lines)
    return None if agrees else f"differs from {quoted.group(2)}"


def update(document):
    lines = document.read_text().splitlines()
    for block in reversed(blocks_of(document)):
        if block.note.startswith("all of "):
            lines[block.line : block.line + len(block.lines)] = (ROOT / block.note[7:]).read_text().splitlines()
    document.write_text("\n".join(lines) + "\n")


def main(arguments):
    quotes = faults = 0
    for name in arguments:
        document = pathlib.Path(name).resolve()
        if "--update" in arguments and name != "--update":
            update(document)
        for block in blocks_of(document) if name != "--update" else []:
            quotes += bool(block.note)
            if fault := fault_of(block):
                faults += 1
                print(f"{document}:{block.line}: {fault}")
    print(f"{quotes} quotations, {faults} differ")
    return 1 if faults or not quotes else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
