"""What pages 3 to 6 have in common: items as tables of three money columns, as many on a page as it can hold."""
from typing import NamedTuple

from lines import title
from paper import CAPTION_PITCH, DENSE, FORM, FORM_TITLE, TITLE_PITCH, Ledger, Page

COLUMNS = ('ช่อง 1|ได้รับยกเว้นภาษีเงินได้', 'ช่อง 2|ต้องเสียภาษีเงินได้', 'รวม|บาท')
COLUMNS_AGAIN = ('ช่อง 1', 'ช่อง 2', 'รวม')

HEAD = 5.4
TALL_HEAD = 8.6  # holds two lines of a column's caption
TITLE_SIZE = 3.1

# Wide enough for (9,999,999,999,999.99) at the size of the amounts, with the air that a slot leaves at its edges.
COLUMN_WIDTH = 33.5
MONEY_SIZE = 3.2
CAPTION_SIZE = 2.9
NUMBER_WIDTH = 2.21  # in parts of the caption's size
PART_INDENT = 3


class Table:
    """An item, or the part of it that a page shows, before it is drawn."""

    def __init__(self, item, lines, remark='', draw=None):
        self.item = item
        self.lines = lines
        self.caption = title(item, remark)
        self.draw = draw or drawLine

    def headHeight(self, first):
        height = TALL_HEAD if first else HEAD
        return max(height, HEAD + self.caption.count('|') * TITLE_PITCH * TITLE_SIZE)

    def furtherCaptionLines(self):
        return sum(line.caption.count('|') for line in self.lines)


def drawLine(ledger, line):
    ledger.line(line.number, line.caption, line.names, line.computed, PART_INDENT if line.isPart else 0)


def open_(number):
    """An empty page with its heading and foot; answers it and where its content begins."""
    page = Page(f'rptLodgePage{number}', f'{FORM_TITLE} {FORM} หน้า {number}', DENSE)
    y = page.slimHead(number)
    page.foot(number)
    return page, y


class Below(NamedTuple):
    """What a page draws itself below its tables: so many rows as high as theirs, and so much besides."""
    rows: int = 0
    height: float = 0


def fill(page, y, tables, size=CAPTION_SIZE, below=Below()):
    """Draws the tables from y downwards, with rows as high as the page allows; answers that height, and where the
    tables end."""
    fixed = below.height + sum(table.headHeight(table is tables[0]) + size * CAPTION_PITCH * table.furtherCaptionLines()
                               for table in tables)
    row = (page.bottom - y - fixed) / (sum(len(table.lines) for table in tables) + below.rows)
    for table in tables:
        first = table is tables[0]
        with page.group(f'item{table.item}'):
            ledger = Ledger(page, y, x=page.left, width=page.right - page.left, columnWidth=COLUMN_WIDTH,
                            rowHeight=row, size=size, moneySize=MONEY_SIZE, numberWidth=NUMBER_WIDTH * size, inset=1.2)
            ledger.heading(table.caption, COLUMNS if first else COLUMNS_AGAIN, table.headHeight(first), 2.9,
                           TITLE_SIZE)
            for line in table.lines:
                table.draw(ledger, line)
            y = ledger.end()
            page.line(page.left, y, page.right, y, .5)
    return row, y
