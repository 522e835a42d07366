"""The page about embedding tells every operation of the platform, and no other.

check_contract.py HEADER DOCUMENT
"""

import pathlib
import re
import sys


def declared(header):
    """The functions that a header declares."""
    text = re.sub(r"//.*", "", header.read_text())
    text = re.sub(r"__attribute__\(\(.*?\)\)\)?", "", text, flags=re.S)
    return set(re.findall(r"^[\w ]+[ *](\w+)\(", text, re.M))


def told(document):
    """The names in the first column of its tables of operations."""
    operations = document.read_text().split("## The operations of the platform")[1].split("\n## ")[0]
    rows = re.findall(r"^\| (`\w+`(?:, `\w+`)*) \|", operations, re.M)
    return {name for row in rows for name in re.findall(r"`(\w+)`", row)}


def main(header, document):
    operations, rows = declared(header), told(document)
    for name in sorted(operations - rows):
        print(f"{document} does not tell {name}")
    for name in sorted(rows - operations):
        print(f"{document} tells {name}, which is not declared")
    print(f"{len(operations)} operations")
    return 1 if operations != rows or not operations else 0


if __name__ == "__main__":
    sys.exit(main(*(pathlib.Path(name) for name in sys.argv[1:])))
