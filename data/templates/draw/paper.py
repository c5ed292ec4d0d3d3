"""The drawing library of the report templates: shapes, captions and slots of one A4 page, all measures in millimetres.

A page keeps what it drew, and `save` refuses a drawing in which a caption runs into its neighbour, into a value's slot
or over a rule: a collision on paper is found when the template is made, not by the accountant who signs it.
"""
import contextlib
import pathlib
from xml.sax.saxutils import escape, quoteattr

import metrics

INK = '#14202C'
LINE = '#2B3E52'
BAND = '#E4EBF2'
HAIR = '#8796A5'
SOFT = '#5E6A78'
OFFICE = '#F4F6F9'
PAPER = '#FFFFFF'

FORM = 'ก.ข.ค.77'
FORM_TITLE = 'แบบแสดงรายการภาษีเงินได้นิติบุคคล'

# The frame that every page stands in.
LEFT = 12
WIDTH = 186
RIGHT = LEFT + WIDTH
TOP = 10
BOTTOM = 287

# The frame of a page with so many lines that they need the margins as well; a printer still reaches all of it.
DENSE = (9.5, 6.5, 200.5, 289)

TIN_GROUPS = (1, 4, 5, 2, 1)

# How far Thai letters with their usual marks reach above and below the line, in parts of the font size.
ASCENT = .72
DESCENT = .18

# Captions may touch a slot's edge by this much: slots leave some air of their own.
SLACK = .15

# Between the marks of one line of a caption and those of the next there is at least so much white.
AIR = .2

# From one line to the next in parts of the size, for a heading and for the caption of a table's line.
TITLE_PITCH = 1.4
CAPTION_PITCH = 1.35

FOLDER = pathlib.Path(__file__).resolve().parent.parent


def num(value):
    """A measure as short as it can be written: 0.25 mm is '0.25', 12.0 is '12'."""
    text = f'{value:.2f}'.rstrip('0').rstrip('.')
    return '0' if text in ('-0', '') else text


class Page:
    """One template. Drawn parts stand in groups by name, the slots in a last group of their own."""

    def __init__(self, name, title, frame=(LEFT, TOP, RIGHT, BOTTOM)):
        self.name = name
        self.title = title
        self.left, self.top, self.right, self.bottom = frame
        self.drawn = []
        self.slots = []
        self.framed = False
        self.depth = 1
        self.ids = set()
        self.texts = []   # (left, top, right, bottom, caption)
        self.inks = []    # for each text: the number of its caption, its text, the boxes of its letters
        self.dotted = []  # (x1, x2, y)
        self.places = []  # (left, top, right, bottom, slot)
        self.rules = []   # (x1, y1, x2, y2)

    # --- Shapes ---

    def _put(self, element):
        self.drawn.append('  ' * self.depth + element)

    def _claim(self, name):
        if name in self.ids:
            raise SystemExit(f'{self.name}: two elements are called {name}')
        self.ids.add(name)

    @contextlib.contextmanager
    def group(self, name):
        """A named part of the drawing; the name says what a person sees there."""
        self._claim(name)
        self._put(f'<g id="{name}">')
        self.depth += 1
        yield
        self.depth -= 1
        self._put('</g>')

    def text(self, x, y, caption, size=3.4, bold=False, anchor='start', colour=INK, pitch=None, within=None):
        """A caption on the base line y; `|` starts a further line, `pitch` below. With `within`, the text is made
        smaller until it is no wider than that, down to 2.9 mm, the smallest that reads well on paper."""
        number = len(self.texts)
        for n, line in enumerate(caption.split('|')):
            lineSize = self._fitted(line, size, bold, within)
            style = ' font-weight="700"' if bold else ''
            style += f' text-anchor="{anchor}"' if anchor != 'start' else ''
            style += f' fill="{colour}"' if colour != INK else ''
            base = y + n * (pitch or size * 1.3)
            kept = ' xml:space="preserve"' if '  ' in line else ''
            self._put(f'<text x="{num(x)}" y="{num(base)}" font-size="{num(lineSize)}"{style}{kept}>{escape(line)}</text>')
            wide = metrics.width(line, lineSize, bold)
            left = {'start': x, 'middle': x - wide / 2, 'end': x - wide}[anchor]
            self.texts.append((left, base - ASCENT * lineSize, left + wide, base + DESCENT * lineSize, line))
            self.inks.append((number, line, [(left + x1, base + y1, left + x2, base + y2)
                                             for x1, y1, x2, y2 in metrics.ink(line, lineSize, bold)]))

    def _fitted(self, line, size, bold, within):
        if not within:
            return size
        wide = metrics.width(line, size, bold)
        fitted = size if wide <= within else int(size * within / wide * 20) / 20
        if fitted < 2.9:
            raise SystemExit(f'{self.name}: "{line}" does not fit into {num(within)} mm')
        return fitted

    def rect(self, x, y, width, height, stroke=.25, fill='none', colour=LINE):
        """A frame; with a stroke of 0 a plain area."""
        paint = f'stroke="{colour}" stroke-width="{num(stroke)}"' if stroke else 'stroke="none"'
        self._put(f'<rect x="{num(x)}" y="{num(y)}" width="{num(width)}" height="{num(height)}" fill="{fill}" {paint}/>')
        if stroke:
            for x1, y1, x2, y2 in ((x, y, x + width, y), (x, y + height, x + width, y + height),
                                   (x, y, x, y + height), (x + width, y, x + width, y + height)):
                self.rules.append((x1, y1, x2, y2))

    def line(self, x1, y1, x2, y2, stroke=.25, colour=LINE):
        self._put(f'<path d="M{num(x1)} {num(y1)}L{num(x2)} {num(y2)}" fill="none" stroke="{colour}" '
                  f'stroke-width="{num(stroke)}"/>')
        self.rules.append((x1, y1, x2, y2))

    def dots(self, x1, x2, y):
        """The dotted line that a hand, or a value, writes on."""
        self._put(f'<path d="M{num(x1)} {num(y)}L{num(x2)} {num(y)}" fill="none" stroke="{LINE}" stroke-width="0.2" '
                  'stroke-dasharray="0.2 0.9"/>')
        self.dotted.append((x1, x2, y))

    def circle(self, x, y, radius, stroke=.3, colour=LINE, dashes=None):
        dash = f' stroke-dasharray="{dashes}"' if dashes else ''
        self._put(f'<circle cx="{num(x)}" cy="{num(y)}" r="{num(radius)}" fill="none" stroke="{colour}" '
                  f'stroke-width="{num(stroke)}"{dash}/>')

    def path(self, shape, stroke=.3):
        self._put(f'<path d="{shape}" fill="none" stroke="{LINE}" stroke-width="{num(stroke)}"/>')

    def band(self, x, y, width, caption, height=6, size=3.6):
        """The shaded head of a part."""
        self.rect(x, y, width, height, .25, BAND)
        self.text(x + 2, baseIn(y, height, size), caption, size, True, within=width - 4)

    # --- Slots ---

    def slot(self, name, x, y, width, height, kind='text', align='start', size=None, lines=1, cells=None, cell=None):
        """The place of one value, by its name in the field map; `Audit.3` is a tick that is set by the value 3."""
        self._claim(name)
        more = f' data-size="{num(size)}"' if size else ''
        more += f' data-lines="{lines}"' if lines > 1 else ''
        if cells:
            more += f' data-cells="{" ".join(num(c) for c in cells)}" data-cell="{num(cell)}"'
        self.slots.append(f'    <rect id={quoteattr(name)} x="{num(x)}" y="{num(y)}" width="{num(width)}" '
                          f'height="{num(height)}" fill="none" data-kind="{kind}" data-align="{align}"{more}/>')
        self.places.append((x, y, x + width, y + height, name))

    def money(self, name, x, y, width, height=6, size=3.7):
        """The place of an amount, without a frame of its own: a column of a table."""
        self.slot(name, x, y, width, height, 'money', 'end', None if size == 3.7 else size)

    def moneyBox(self, name, x, y, width, height=6, size=3.7):
        """A framed amount with its unit behind it."""
        self.rect(x, y, width, height, .3, PAPER)
        self.money(name, x, y, width, height, size)
        self.text(x + width + 2, y + height / 2 + 1.2, 'บาท', 3.4)

    def written(self, name, x, y, width, align='start', size=None, height=6, lines=1):
        """A value on a dotted line, or on several of which y is the last; y is the base line of the caption before it."""
        for line in reversed(range(lines)):
            self.dots(x, x + width, y + .8 - line * height / lines)
        self.slot(name, x, y + 1.4 - height, width, height, 'text', align, size, lines)

    def box(self, name, x, y, size=3.2):
        """A tick box; its upper left corner."""
        self.rect(x, y, size, size, .3, PAPER)
        self.slot(name, x, y, size, size, 'tick', 'middle')

    def choice(self, name, x, y, caption, size=3.4, gap=5, pitch=None, within=None):
        """A tick box with its caption on the base line y."""
        self.box(name, x, y - 2.85)
        self.text(x + gap, y, caption, size, pitch=pitch, within=within)

    def comb(self, name, x, y, groups=TIN_GROUPS, cell=4.6, height=6.2, size=4.6):
        """A box for each character of a number, in groups; answers the right edge."""
        cells = []
        left = x
        for count in groups:
            cells += [left + k * cell for k in range(count)]
            self._put(f'<rect x="{num(left)}" y="{num(y)}" width="{num(count * cell)}" height="{num(height)}" '
                      f'fill="{PAPER}" stroke="{LINE}" stroke-width="0.3"/>')
            for k in range(1, count):
                self._put(f'<path d="M{num(left + k * cell)} {num(y)}v{num(height)}" fill="none" stroke="{LINE}" '
                          'stroke-width="0.15"/>')
            left += count * cell + 1.5
        right = left - 1.5
        self.slot(name, x, y, right - x, height, 'comb', 'middle', size, cells=cells, cell=cell)
        return right

    def day(self, names, x, y, caption, captionWidth, width=92, label=3.4):
        """A date in words: caption, day, month, year on dotted lines. `width` is the room for all of it."""
        self.text(x, y, caption, label)
        left = x + captionWidth
        room = width - captionWidth - 20
        self.written(names[0], left, y, room * .2, 'middle')
        self.text(left + room * .2 + 1.5, y, 'เดือน', label)
        self.written(names[1], left + room * .2 + 11, y, room * .5, 'middle')
        self.text(left + room * .7 + 12.5, y, 'พ.ศ.', label)
        self.written(names[2], left + room * .7 + 20, y, room * .3, 'middle')

    # --- Standing parts ---

    def frame(self):
        """The frame is drawn last of all, so that no shade covers half of its line."""
        self.framed = True

    def head(self, number, subtitle='', height=14):
        """The heading of a page after the first: the form's title, what the page holds, form name and page number;
        without a number it heads an attachment. Answers where the page's own content begins."""
        with self.group('heading'):
            self.frame()
            self.text(LEFT + 3, TOP + 6.1, FORM_TITLE, 4.6, True)
            self.text(LEFT + 3, TOP + 11.4, subtitle, 3.4)
            self.text(RIGHT - 41, TOP + 8.9, f'หน้า {number}' if number else 'ใบแนบ', 3.8, anchor='end')
            self.rect(RIGHT - 38, TOP + 2, 35, height - 4, .5)
            self.text(RIGHT - 20.5, TOP + height / 2 + 2.4, FORM, 7, True, 'middle')
            self.line(LEFT, TOP + height, RIGHT, TOP + height, .5)
        return TOP + height

    def slimHead(self, number, height=7):
        """The heading in one line, for a page that needs its height for lines of figures. Answers where it ends."""
        base = self.top + height / 2 + 1.5
        with self.group('heading'):
            self.frame()
            self.text(self.left + 2, base, FORM_TITLE, 4, True)
            self.text(self.right - 31, base, f'หน้า {number}', 3.6, anchor='end')
            self.rect(self.right - 27, self.top + 1, 26, height - 2, .4)
            self.text(self.right - 14, base + .2, FORM, 5, True, 'middle')
            self.line(self.left, self.top + height, self.right, self.top + height, .5)
        return self.top + height

    def signature(self, x, y, width, role='', space=9):
        """Where a person signs: signature, name in brackets, and the role below; answers the lowest base line."""
        middle = x + width / 2
        self.text(x, y, 'ลงชื่อ')
        self.dots(x + 11, x + width - 3, y + .8)
        self.text(x + 9, y + space - 1.5, '(')
        self.dots(x + 11, x + width - 3, y + space - .7)
        self.text(x + width - 2.4, y + space - 1.5, ')')
        if role:
            self.text(middle + 4, y + 2 * space - 3, role, 3.2, anchor='middle')
        return y + 2 * space - 3

    def stamp(self, x, y, radius=11):
        """Where the company's seal goes."""
        self.circle(x, y, radius, .3, HAIR, '1 0.9')
        self.text(x, y - .6, 'ประทับตรา', 3.1, anchor='middle', colour=SOFT)
        self.text(x, y + 3.4, '(ถ้ามี)', 3.1, anchor='middle', colour=SOFT)

    def certificate(self, y):
        """Where the company answers for an attachment; takes 45 mm."""
        with self.group('signature'):
            self.line(LEFT, y, RIGHT, y, .5)
            self.text(LEFT + 3, y + 6.4, 'ข้าพเจ้าขอรับรองว่า รายการที่แสดงไว้ในใบแนบนี้ถูกต้องและครบถ้วนทุกประการ', 3.5, True)
            self.signature(LEFT + 6, y + 20, 78, 'กรรมการหรือผู้เป็นหุ้นส่วนหรือผู้จัดการ', 11)
            self.stamp(LEFT + 107, y + 26)
            self.text(LEFT + 128, y + 31, 'วันที่')
            self.dots(LEFT + 137, RIGHT - 6, y + 31.8)

    def foot(self, number):
        with self.group('foot'):
            base = self.bottom + (4.3 if self.bottom == BOTTOM else 3.6)
            self.text(self.left, base, f'หน้า {number}' if isinstance(number, int) else number, 3.2)
            self.text(self.right, base, f'{FORM} (2561)', 3.2, anchor='end')

    # --- Result ---

    def _collisions(self):
        for i, one in enumerate(self.texts):
            if one[0] < self.left - SLACK or one[2] > self.right + SLACK:
                yield f'"{one[4]}" leaves the frame'
            for other in self.texts[i + 1:]:
                if meet(one, other):
                    yield f'"{one[4]}" runs into "{other[4]}"'
            for place in self.places:
                if meet(one, place):
                    yield f'"{one[4]}" runs into the slot {place[4]}'
            for rule in self.rules:
                if crosses(rule, one):
                    yield f'"{one[4]}" is crossed by the rule {", ".join(map(num, rule))}'
        yield from self._touches()
        for i, one in enumerate(self.places):
            if (one[0] < self.left - SLACK or one[2] > self.right + SLACK
                    or one[1] < self.top - SLACK or one[3] > self.bottom + SLACK):
                yield f'the slot {one[4]} leaves the frame'
            for other in self.places[i + 1:]:
                if meet(one, other):
                    yield f'the slots {one[4]} and {other[4]} overlap'
            for rule in self.rules:
                if crosses(rule, one):
                    yield f'the slot {one[4]} is crossed by the rule {", ".join(map(num, rule))}'

    def _touches(self):
        """Marks that run into those of another caption, that come near the next line of their own, or that stand on
        a dotted line."""
        for i, (number, text, ink) in enumerate(self.inks):
            for otherNumber, otherText, otherInk in self.inks[i + 1:]:
                air = AIR if otherNumber == number else -SLACK
                if any(near(letter, other, air) for letter in ink for other in otherInk):
                    yield f'marks of "{text}" touch "{otherText}"'
            for x1, x2, y in self.dotted:
                if any(near(letter, (x1, y, x2, y), .1) for letter in ink):
                    yield f'marks of "{text}" touch the dotted line at {num(y)}'

    def save(self):
        if self.framed:
            self.rect(self.left, self.top, self.right - self.left, self.bottom - self.top, .5)
        faults = list(self._collisions())
        if faults:
            raise SystemExit('\n'.join(f'{self.name}: {fault}' for fault in faults))
        body = '\n'.join(self.drawn)
        slots = '\n'.join(self.slots)
        (FOLDER / f'{self.name}.svg').write_text(
            '<?xml version="1.0" encoding="UTF-8"?>\n'
            '<svg xmlns="http://www.w3.org/2000/svg" width="210mm" height="297mm" viewBox="0 0 210 297" '
            f'font-family="{metrics.FAMILY}" fill="{INK}">\n'
            f'  <title>{escape(self.title)}</title>\n'
            f'  <rect width="210" height="297" fill="{PAPER}"/>\n'
            f'{body}\n  <g id="slots" stroke="none">\n{slots}\n  </g>\n</svg>\n', encoding='utf-8')
        print(f'{self.name}.svg: {len(self.slots)} slots')


def meet(one, other):
    """Whether two boxes share more than a touch."""
    return (one[0] + SLACK < other[2] and other[0] + SLACK < one[2]
            and one[1] + SLACK < other[3] and other[1] + SLACK < one[3])


def near(one, other, air):
    """Whether two boxes stand above each other with less white between them than that."""
    return (one[0] < other[2] and other[0] < one[2]
            and one[1] - air < other[3] and other[1] - air < one[3])


def crosses(rule, box):
    """Whether an upright or level rule runs through the inside of a box."""
    x1, y1, x2, y2 = rule
    return (min(x1, x2) < box[2] - SLACK and max(x1, x2) > box[0] + SLACK
            and min(y1, y2) < box[3] - SLACK and max(y1, y2) > box[1] + SLACK)


def baseIn(y, height, size):
    """The base line of a caption in the middle of a row: room for two marks above a letter and for one below."""
    return y + (height + size * .8) / 2


def headingBaseIn(y, height, size):
    """The base line of a heading between two rules: the highest mark above as far from its rule as the lowest below."""
    return y + height / 2 + size * .45


class Ledger:
    """A table of numbered lines with money columns at its right; rules between the columns are drawn by `end`."""

    def __init__(self, page, y, columns=3, x=LEFT, width=WIDTH, columnWidth=34, rowHeight=4.8, size=3, moneySize=3.2,
                 numberWidth=8, inset=1.5):
        self.page = page
        self.x = x
        self.y = y
        self.top = y
        self.width = width
        self.columnWidth = columnWidth
        self.rowHeight = rowHeight
        self.size = size
        self.moneySize = moneySize
        self.numberWidth = numberWidth
        self.inset = inset
        self.ruled = []  # where `end` rules across the table, over the shades
        self.edges = [x + width - columnWidth * (columns - n) for n in range(columns)]

    def heading(self, caption, captions, height=6, size=3, titleSize=3.6):
        """The shaded first row; `|` starts a further line in a column's caption."""
        self.page.rect(self.x, self.y, self.width, height, .25, BAND)
        pitch = titleSize * TITLE_PITCH
        first = headingBaseIn(self.y, height - caption.count('|') * pitch, titleSize)
        self.page.text(self.x + 2, first, caption, titleSize, True, pitch=pitch, within=self.edges[0] - self.x - 4)
        for left, column in zip(self.edges, captions):
            count = column.count('|') + 1
            base = self.y + height / 2 + size * .36 - (count - 1) * size * .62
            self.page.text(left + self.columnWidth / 2, base, column, size, True, 'middle', pitch=size * 1.24,
                           within=self.columnWidth - 1.5)
        self.y += height
        self.ruled.append(self.y)

    def line(self, number, caption, names, computed=False, indent=0, height=None, bold=False):
        """One line; `names` has a slot name for each column, None where the column takes no value and is closed."""
        height = height or self.rowHeight + caption.count('|') * self.size * CAPTION_PITCH
        bold = bold or computed
        if computed:
            self.page.rect(self.x, self.y, self.width, height, 0, BAND)
        # A line of several caption lines carries its amounts beside the last one, as the paper forms do.
        last = baseIn(self.y + height - self.rowHeight, self.rowHeight, self.size)
        first = last - caption.count('|') * self.size * CAPTION_PITCH
        if number:
            self.page.text(self.x + self.inset, first, number, self.size, bold)
        left = self.x + self.numberWidth + indent
        self.page.text(left, first, caption, self.size, bold, pitch=self.size * CAPTION_PITCH,
                       within=self.edges[0] - left - 1)
        for edge, name in zip(self.edges, names):
            if name:
                self.page.money(name, edge, self.y + height - self.rowHeight, self.columnWidth, self.rowHeight,
                                self.moneySize)
            else:
                self.page.rect(edge, self.y, self.columnWidth, height, 0, OFFICE)
        self.y += height
        self.page.line(self.x, self.y, self.x + self.width, self.y, .12, HAIR)

    def end(self):
        """Draws the column rules and the closing rule; answers where the table ends."""
        for edge in self.edges:
            self.page.line(edge, self.top, edge, self.y, .25)
        for y in (*self.ruled, self.y):
            self.page.line(self.x, y, self.x + self.width, y, .25)
        return self.y
