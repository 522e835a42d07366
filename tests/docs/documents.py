"""Reads the project's Markdown: code blocks with what stands above them, headings, links."""

import dataclasses
import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parents[2]


@dataclasses.dataclass
class Block:
    document: pathlib.Path
    line: int  # of the opening fence
    language: str
    note: str  # the text of the comment <!-- ... --> right above the block
    lines: list


def blocks_of(document):
    """The fenced code blocks of a document, in order."""
    blocks, block, note = [], None, ""
    for number, line in enumerate(document.read_text().splitlines(), 1):
        if block is not None:
            if line == "```":
                blocks.append(block)
                block = None
            else:
                block.lines.append(line)
        elif line.startswith("```"):
            block = Block(document, number, line[3:].strip(), note, [])
            note = ""
        elif line.strip():
            comment = re.fullmatch(r"<!-- (.*) -->", line)
            note = comment.group(1) if comment else ""
    if block is not None:
        raise ValueError(f"{document}:{block.line}: the block does not end")
    return blocks


def prose_of(document):
    """(number, line) of each line that lies in no code block."""
    in_block = False
    for number, line in enumerate(document.read_text().splitlines(), 1):
        if line.startswith("```"):
            in_block = not in_block
        elif not in_block:
            yield number, line


def anchors_of(document):
    """What a link behind "#" can name: the headings, as the usual renderers name them, and explicit ids."""
    seen, anchors = {}, set()
    for _, line in prose_of(document):
        anchors.update(re.findall(r'<a id="([^"]+)">', line))
        heading = re.fullmatch(r"#+ (.*)", line)
        if not heading:
            continue
        text = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", heading.group(1))
        slug = re.sub(r"[^\w\- ]", "", text.strip().lower()).replace(" ", "-")
        anchors.add(slug if slug not in seen else f"{slug}-{seen[slug]}")
        seen[slug] = seen.get(slug, 0) + 1
    return anchors


def links_of(document):
    """(number, target) of each link in the prose."""
    for number, line in prose_of(document):
        line = re.sub(r"`[^`]*`", "", line)
        for target in re.findall(r"\]\(([^)\s]+)\)", line):
            yield number, target
