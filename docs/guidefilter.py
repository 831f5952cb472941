#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
"""Prepare a guide for Doxygen, which calls this for every guide with its file name.

The guides are written for readers of the files: a link names a file, and a heading on it as `#words-of-the-heading`.
Doxygen knows pages and headings by labels. A guide called x.md becomes the page `guide-x`, its headings get the labels
`guide-x-words-of-the-heading`, and links are made to point there. The guides listed in reference.md become its subpages,
in that order. Examples that a guide links to are printed at its end.
"""
import pathlib
import re
import sys

MAIN_PAGE = "reference"
LINK = re.compile(r"\[([^\]]+)\]\(([^)\s]+)\)")
SUBPAGE = re.compile(r"(?<=^- )\[(.+)\]\((.+)\.md\)", re.MULTILINE)
HEADING = re.compile(r"^(##+) (.+)$", re.MULTILINE)
CODE = re.compile(r"(^```.*?^```$|^    .*?$)", re.MULTILINE | re.DOTALL)
EXAMPLE = re.compile(r"\.\./examples/(\w+)/main\.cpp")


def page(name):
    return f"guide-{name}"


def heading_label(name, text):
    """The label of a heading: its words as in a link, without punctuation."""
    words = re.sub(r"[^\w\- ]", "", re.sub(LINK, r"\1", text).lower()).replace(" ", "-")
    return f"{page(name)}-{words}"


def main():
    path = pathlib.Path(sys.argv[1])
    name = path.stem
    examples = []

    def link(match):
        text, target = match.groups()
        example = EXAMPLE.fullmatch(target)
        if example:
            if example[1] not in examples:
                examples.append(example[1])
            return f"[{text}](@ref {page(name)}-example-{example[1]})"
        file, _, anchor = target.partition("#")
        if "/" in file or not (file.endswith(".md") or (not file and anchor)):
            return match[0]
        other = file[:-len(".md")] if file else name
        return f"[{text}](@ref {page(other)}{'-' + anchor if anchor else ''})"

    def subpage(match):
        title, guide = match.groups()
        return f'\\subpage {page(guide)} "{title}"'

    def heading(match):
        marks, text = match.groups()
        return f"{marks} {text} {{#{heading_label(name, text)}}}"

    def prose(text):
        if name == MAIN_PAGE:
            text = SUBPAGE.sub(subpage, text)
        return LINK.sub(link, HEADING.sub(heading, text))

    title, _, text = path.read_text(encoding="utf-8").partition("\n")
    print(title if name == MAIN_PAGE else f"{title} {{#{page(name)}}}")
    # Blocks of code remain as they are.
    parts = CODE.split(text)
    print("".join(part if index % 2 else prose(part) for index, part in enumerate(parts)))
    for example in examples:
        print(f"\n## examples/{example}/main.cpp {{#{page(name)}-example-{example}}}\n\n\\include {example}/main.cpp")


main()
