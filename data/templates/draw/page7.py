#!/usr/bin/env python3
"""Draws page 7: item 12, the balance sheet in short."""
import lines
from paper import BOTTOM, FORM, FORM_TITLE, LEFT, WIDTH, Ledger, Page, baseIn

TITLE = 9
COLUMN_WIDTH = 50
SIZE = 3.8


def drawTicks(ledger):
    """Whether the result of earlier years is a profit or a loss; without a tick its amount does not count."""
    page = ledger.page
    x = ledger.edges[0] - 46
    base = baseIn(ledger.y, ledger.rowHeight, SIZE)
    for name, caption in lines.ITEM12_TICKS:
        page.choice(name, x, base, caption, SIZE)
        x += 20


def main():
    page = Page('rptLodgePage7', f'{FORM_TITLE} {FORM} หน้า 7')
    y = page.head(7, 'สำหรับบริษัทหรือห้างหุ้นส่วนนิติบุคคล')
    with page.group('item12'):
        row = (BOTTOM - y - TITLE) / len(lines.ITEM12)
        ledger = Ledger(page, y, columns=1, x=LEFT, width=WIDTH, columnWidth=COLUMN_WIDTH, rowHeight=row, size=SIZE,
                        moneySize=4, numberWidth=13, inset=3)
        ledger.heading(lines.title(12), ('จำนวนเงิน (บาท)',), TITLE, SIZE, 4.2)
        for line in lines.ITEM12:
            if line.names == (lines.ITEM12_RESULT,):
                drawTicks(ledger)
            heading = line.names == (None,)
            ledger.line(line.number, line.caption, line.names, line.computed, bold=heading)
        ledger.end()
    page.foot(7)
    page.save()


if __name__ == '__main__':
    main()
