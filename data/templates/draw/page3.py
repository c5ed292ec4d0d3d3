#!/usr/bin/env python3
"""Draws page 3: item 3 whole, item 4, and the first lines of item 5."""
import lines
import metrics
import schedule
from paper import baseIn

PART_NUMBER_WIDTH = 8.6

TICK = 2.8
TICK_GAP = 1.2
TICKED = 22  # from one short caption to the next tick box, so that those of lines 3 and 9 stand in one column


def drawTicks(ledger, line):
    """The ticks that say whether the line is a profit or a loss, in place of a caption."""
    page = ledger.page
    top = ledger.y + (ledger.rowHeight - TICK) / 2
    base = baseIn(ledger.y, ledger.rowHeight, ledger.size)
    ledger.line(line.number, '', line.names, line.computed)
    x = ledger.x + ledger.numberWidth
    profit, loss, remark = lines.ITEM3_TICKS[line.number]
    for name, caption in (profit, loss):
        page.box(name, x, top, TICK)
        page.text(x + TICK + TICK_GAP, base, caption, ledger.size, True)
        x += TICK + TICK_GAP + max(TICKED, metrics.width(caption, ledger.size, True) + 6)
    page.text(x, base, remark, ledger.size, True)


def drawLine(ledger, line):
    if line.number in lines.ITEM3_TICKS:
        drawTicks(ledger, line)
    elif line.isPart:
        ledger.page.text(ledger.x + ledger.numberWidth, baseIn(ledger.y, ledger.rowHeight, ledger.size), line.number,
                         ledger.size)
        ledger.line('', line.caption, line.names, indent=PART_NUMBER_WIDTH)
    else:
        schedule.drawLine(ledger, line)


def main():
    page, y = schedule.open_(3)
    schedule.fill(page, y, (
        schedule.Table(3, lines.ITEM3, draw=drawLine),
        schedule.Table(4, lines.ITEM4),
        schedule.Table(5, lines.ITEM5_HEAD, '(ข้อ 1. ถึง 9. ดูหน้า 4)'),
    ))
    page.save()


if __name__ == '__main__':
    main()
