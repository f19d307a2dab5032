"""What the emitters share."""

import textwrap
from typing import Iterable, List

from .header import Comment, Function, plain

NOTICE = "Generated from include/planegeo.h by bindings/generate.py. Do not edit."


def wrapped(text: str, width: int, indent: str = "", hanging: str = "") -> List[str]:
    """Lines of a paragraph; one that is drawn keeps its lines."""
    if "\n" in text:
        return [indent + line for line in textwrap.dedent(text).split("\n")]
    return textwrap.wrap(plain(text), width, initial_indent=indent,
                         subsequent_indent=indent + hanging, break_long_words=False,
                         break_on_hyphens=False)


def description(comment: Comment, width: int) -> List[str]:
    lines: List[str] = []
    for paragraph in comment.paragraphs:
        lines += ([""] if lines else []) + wrapped(paragraph, width)
    return lines


def by_group(functions: Iterable[Function]) -> Iterable[object]:
    """The functions, with the name of a group before its first one."""
    group = ""
    for function in functions:
        if function.group != group:
            group = function.group
            yield group
        yield function
