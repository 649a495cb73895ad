#!/usr/bin/env python3
"""The project's own #include lines: who includes whom, and what a file's meaning depends on.

As a program it reads file names from standard input and prints for each a digest over the file and every project header
that it includes, directly or not: what was found clean once need not be looked at again until its digest changes.
"""

import functools
import hashlib
import pathlib
import re
import sys

_INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?:"([^"]+)"|<([^>]+)>)', re.MULTILINE)


@functools.cache
def text_of(path):
    return pathlib.Path(path).read_text(encoding="utf-8")


@functools.cache
def all_included(path):
    """Every header that a file names: the project's own as paths from the root, the others in angle brackets."""
    return [own or f"<{foreign}>" for own, foreign in _INCLUDE.findall(text_of(path))]


@functools.cache
def included(path):
    """The project's own headers that a file names. A header beside the file may be named without its folder."""
    beside = pathlib.Path(path).parent
    found = []
    for name in all_included(path):
        place = next((each for each in (pathlib.Path(name), beside / name) if each.is_file()), None)
        if place is not None:
            found.append(place.as_posix())
    return found


@functools.cache
def digest(path):
    reached, waiting = set(), [path]
    while waiting:
        each = waiting.pop()
        if each not in reached:
            reached.add(each)
            waiting.extend(included(each))
    total = hashlib.sha256()
    for each in sorted(reached):
        total.update(f"{each}\0{text_of(each)}\0".encode())
    return total.hexdigest()[:32]


if __name__ == "__main__":
    for name in sys.stdin.read().split():
        print(digest(name), name)
