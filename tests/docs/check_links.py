"""No link of a document leads nowhere.

check_links.py [DOCUMENT...]    without documents: README.md, CONTRIBUTING.md, examples/README.md and all of docs/
"""

import pathlib
import sys
import urllib.parse

from documents import ROOT, anchors_of, links_of


def fault_of(document, target):
    """Why a link leads nowhere, or None. Other hosts are not asked."""
    if urllib.parse.urlparse(target).scheme:
        return None
    path, _, anchor = target.partition("#")
    file = (document.parent / urllib.parse.unquote(path)).resolve() if path else document
    if not file.exists():
        return "is not there"
    if anchor and file.suffix == ".md" and urllib.parse.unquote(anchor) not in anchors_of(file):
        return "has no such heading"
    return None


def documents():
    named = [ROOT / "README.md", ROOT / "CONTRIBUTING.md", ROOT / "examples/README.md"]
    return [file for file in named if file.exists()] + sorted(ROOT.glob("docs/**/*.md"))


def main(arguments):
    checked = faults = 0
    for document in [pathlib.Path(name).resolve() for name in arguments] or documents():
        for line, target in links_of(document):
            checked += 1
            if fault := fault_of(document, target):
                faults += 1
                print(f"{document}:{line}: {target} {fault}")
    print(f"{checked} links, {faults} dead")
    return 1 if faults or not checked else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
