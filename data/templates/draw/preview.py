#!/usr/bin/env python3
"""Fills every slot of a template with a long sample value, to see collisions: preview.py FILE.svg OUT.svg

The renderer of the program is the judge of how a value is set; this sets them near enough to look at a drawing.
"""
import sys
import xml.etree.ElementTree as ElementTree

import metrics
from paper import num

VALUE = '#0B2E6B'
PADDING = .8
LONG_TEXT = ('บริษัท อุตสาหกรรมอาหารและเครื่องดื่มแห่งประเทศไทยเพื่อการส่งออกและนำเข้า จำกัด (มหาชน) สาขานิคมอุตสาหกรรม'
             'ภาคตะวันออกเฉียงเหนือ ผู้ผลิตและจำหน่ายน้ำปลา น้ำตาล และที่เกี่ยวข้อง ')
MONTH = 'กุมภาพันธ์'
AMOUNTS = ('9,999,999,999,999.99', '(9,999,999,999,999.99)', '0.00', '124,250.00')


def sample(slot):
    """A long value of the kind that the slot's width and alignment tell of: a day, a date, a month name, or a text."""
    width = float(slot.get('width'))
    if slot.get('data-align') != 'middle':
        return LONG_TEXT
    return '31' if width < 15 else '31/12/2561' if width < 28 else MONTH


def fitted(text, size, width):
    """The text and its size, made smaller to 60% and then cut."""
    wide = metrics.width(text, size)
    if wide <= width:
        return text, size
    size *= max(.6, width / wide)
    if metrics.width(text, size) <= width + .01:
        return text, size
    while metrics.width(text + '…', size) > width + .01 and text:
        text = text[:-1]
        if metrics.width(text, size) <= width:
            return text + '…', size
    return text, size


def filled(slot, count):
    x, y, width, height = (float(slot.get(key)) for key in ('x', 'y', 'width', 'height'))
    kind, align = slot.get('data-kind', 'text'), slot.get('data-align', 'start')
    size = float(slot.get('data-size', 3.7))
    if kind == 'tick':
        yield (f'<path d="M{num(x + .6)} {num(y + 1.7)}l.8 1 1.4 -2" fill="none" stroke="{VALUE}" '
               'stroke-width="0.45"/>')
        return
    if kind == 'comb':
        cell = float(slot.get('data-cell'))
        for k, left in enumerate(map(float, slot.get('data-cells').split())):
            yield (f'<text x="{num(left + cell / 2)}" y="{num(y + height / 2 + size * .33)}" font-size="{num(size)}" '
                   f'text-anchor="middle">{k % 10}</text>')
        return
    if kind == 'money':
        text = AMOUNTS[count % len(AMOUNTS)]
        room = width - 2 * PADDING
        bracket = metrics.width(')', size)
        text, size = fitted(text, size, room if text.endswith(')') else room - bracket)
        right = x + width - PADDING - (0 if text.endswith(')') else bracket)
        yield (f'<text x="{num(right)}" y="{num(y + height / 2 + size * .33)}" font-size="{num(size)}" '
               f'text-anchor="end">{text}</text>')
        return
    lines = int(slot.get('data-lines', 1))
    each = height / lines
    for k in range(lines):
        text, set_ = fitted(sample(slot), size, width - 2 * PADDING)
        at = {'start': x + PADDING, 'middle': x + width / 2, 'end': x + width - PADDING}[align]
        yield (f'<text x="{num(at)}" y="{num(y + k * each + each / 2 + set_ * .3)}" font-size="{num(set_)}" '
               f'text-anchor="{align}">{text}</text>')


def main(source, target):
    tree = ElementTree.parse(source)
    slots = [rect for rect in tree.iter('{http://www.w3.org/2000/svg}rect') if rect.get('data-kind')]
    marks = []
    for count, slot in enumerate(slots):
        x, y, width, height = (slot.get(key) for key in ('x', 'y', 'width', 'height'))
        marks.append(f'<rect x="{x}" y="{y}" width="{width}" height="{height}" fill="#FFE9A8" opacity=".35"/>')
        marks += filled(slot, count)
    with open(source, encoding='utf-8') as file:
        drawing = file.read()
    sample = f'<g fill="{VALUE}">\n' + '\n'.join(marks) + '\n</g>\n</svg>\n'
    with open(target, 'w', encoding='utf-8') as file:
        file.write(drawing.replace('</svg>\n', sample))


if __name__ == '__main__':
    main(*sys.argv[1:3])
