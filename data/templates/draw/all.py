#!/usr/bin/env python3
"""Draws all ten report templates anew; with --check it only tells which of them are not as the scripts draw them."""
import contextlib
import filecmp
import io
import pathlib
import sys
import tempfile

import attach
import ihq
import page1
import page2
import page3
import page4
import page5
import page6
import page7
import page8
import paper

SHEETS = (page1, page2, page3, page4, page5, page6, page7, page8, ihq, attach)


def draw():
    for sheet in SHEETS:
        sheet.main()


def differing():
    """The names of the templates that differ from what the scripts draw, or that only one of both has."""
    templates = paper.FOLDER
    with tempfile.TemporaryDirectory() as folder, contextlib.redirect_stdout(io.StringIO()):
        paper.FOLDER = pathlib.Path(folder)
        draw()
        names = sorted({file.name for place in (templates, paper.FOLDER) for file in place.glob('*.svg')})
        return [name for name in names if name not in filecmp.cmpfiles(templates, folder, names, shallow=False)[0]]


if __name__ == '__main__':
    if sys.argv[1:] == ['--check']:
        sys.exit(''.join(f'{name} is not as its script draws it\n' for name in differing()) or None)
    draw()
