#!/usr/bin/env python3
"""Draws page 6: item 10 whole, and item 11 with its earlier accounting periods."""
import lines
import schedule
from paper import BAND, HAIR, OFFICE, baseIn, headingBaseIn
from schedule import CAPTION_SIZE, COLUMN_WIDTH, HEAD, MONEY_SIZE, TITLE_SIZE

LEVEL = 4.3  # of the two levels of the column heads

GROUPS = ('กิจการที่ได้รับยกเว้น/สิทธิประโยชน์', 'กิจการที่ต้องเสียภาษีเงินได้')
RESULTS = ('กำไรสุทธิ', 'ขาดทุนสุทธิ')
PERIOD = 'รอบระยะเวลาบัญชี'
ENDS = ('ตั้งแต่วันที่', 'ถึงวันที่')
CARRIED = 'ผลขาดทุนสุทธิที่มีสิทธินำไปหักในรายการที่ 3'

# Widths of the row number, and of the word between two dates.
NUMBER = 7
RANGE = 5


class Item11:
    """Item 11 while it is drawn downwards: number, two dates and four results a row."""

    def __init__(self, page, y, row):
        self.page = page
        self.y = y
        self.row = row
        self.results = [page.right - COLUMN_WIDTH * (4 - n) for n in range(4)]
        self.dateWidth = (self.results[0] - page.left - NUMBER - RANGE) / 2
        self.dates = (page.left + NUMBER, self.results[0] - self.dateWidth)

    def caption(self, x, text, height, anchor='middle', bold=True):
        self.page.text(x, baseIn(self.y, height, CAPTION_SIZE), text, CAPTION_SIZE, bold, anchor)

    def head(self):
        page = self.page
        page.rect(page.left, self.y, page.right - page.left, HEAD + 2 * LEVEL, .25, BAND)
        page.text(page.left + 2, headingBaseIn(self.y, HEAD, TITLE_SIZE), lines.title(11), TITLE_SIZE, True)
        self.y += HEAD
        self.top = self.y
        page.line(page.left, self.y, page.right, self.y)
        self.caption((page.left + NUMBER + self.results[0]) / 2, PERIOD, LEVEL)
        for left, group in zip(self.results[::2], GROUPS):
            self.caption(left + COLUMN_WIDTH, group, LEVEL)
        self.y += LEVEL
        page.line(page.left + NUMBER, self.y, page.right, self.y)
        for left, end in zip(self.dates, ENDS):
            self.caption(left + self.dateWidth / 2, end, LEVEL)
        for left, result in zip(self.results, RESULTS * 2):
            self.caption(left + COLUMN_WIDTH / 2, result, LEVEL)
        self.y += LEVEL
        page.line(page.left, self.y, page.right, self.y)

    def period(self, number):
        page = self.page
        self.caption(page.left + 1.2, f'{number + 1}.', self.row, 'start', False)
        for left, name in zip(self.dates, lines.item11Dates(number)):
            page.slot(name, left, self.y, self.dateWidth, self.row, align='middle', size=MONEY_SIZE)
        self.caption(self.dates[1] - RANGE / 2, 'ถึง', self.row, bold=False)
        for left, name in zip(self.results, lines.item11Results(number)):
            if name:
                page.money(name, left, self.y, COLUMN_WIDTH, self.row, MONEY_SIZE)
        self.y += self.row

    def periods(self):
        """A row of the second block has no place for an exempt business; its empty cells are closed."""
        page = self.page
        exempt = self.y + lines.ITEM11_EXEMPT_ROWS * self.row
        closed = (lines.ITEM11_ROWS - lines.ITEM11_EXEMPT_ROWS) * self.row
        page.rect(self.results[0], exempt, 2 * COLUMN_WIDTH, closed, 0, OFFICE)
        for number in range(lines.ITEM11_ROWS):
            self.period(number)
            page.line(page.left, self.y, page.right, self.y, .12, HAIR)
        page.line(page.left, exempt, page.right, exempt)
        for left in (page.left + NUMBER, *self.results):
            page.line(left, self.top + (LEVEL if left in self.results[1::2] else 0), left, self.y)
        page.line(page.left, self.y, page.right, self.y)

    def carried(self):
        page, left = self.page, self.results[3]
        page.rect(page.left, self.y, page.right - page.left, self.row, 0, BAND)
        self.caption(left - 2, CARRIED, self.row, 'end')
        page.line(left, self.y, left, self.y + self.row)
        page.money(lines.ITEM11_CARRIED, left, self.y, COLUMN_WIDTH, self.row, MONEY_SIZE)


def main():
    page, y = schedule.open_(6)
    below = schedule.Below(lines.ITEM11_ROWS + 1, HEAD + 2 * LEVEL)
    row, y = schedule.fill(page, y, (schedule.Table(10, lines.ITEM10),), below=below)
    with page.group('item11'):
        table = Item11(page, y, row)
        table.head()
        table.periods()
        table.carried()
    page.text((page.left + page.right) / 2, page.bottom + 3.6, lines.ITEM10_NOTE, CAPTION_SIZE, anchor='middle')
    page.save()


if __name__ == '__main__':
    main()
