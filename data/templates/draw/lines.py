"""The lines of items 3 to 12 as the paper has them: number, caption, the names of the values of the three columns.

An item that stands on two pages is told here once. `|` in a caption starts a further line on paper. The wording is
that of the screen (src/ui/amount_captions.cpp and src/pages/schedules/item3_lines.cpp): correct both together.
"""
from typing import NamedTuple

NAMES = {
    3: 'กำไรสุทธิที่ต้องเสียภาษีหรือขาดทุนสุทธิ',
    4: 'ต้นทุนขายหรือรายจ่ายเพื่อคำนวณกำไรขั้นต้น',
    5: 'ต้นทุนผลิต',
    6: 'รายได้อื่น',
    7: 'รายจ่ายอื่น',
    8: 'รายจ่ายในการขายและบริหาร',
    9: 'รายจ่ายที่ไม่ให้ถือเป็นรายจ่ายตามประมวลรัษฎากร',
    10: 'รายได้ที่ได้รับยกเว้นภาษีเงินได้|หรือรายจ่ายที่มีสิทธิหักได้เพิ่มขึ้น',
    11: 'ขาดทุนสุทธิที่มีสิทธินำมาหักตามกฎหมาย',
    12: 'รายละเอียดสินทรัพย์ หนี้สิน และส่วนของผู้ถือหุ้น',
}


class Line(NamedTuple):
    number: str
    caption: str
    names: tuple
    computed: bool = False
    isPart: bool = False  # of the numbered line above it


def title(item, remark=''):
    return f'รายการที่ {item} {NAMES[item]}' + (f' {remark}' if remark else '')


def columns(item, entry, length):
    """A line whose three amounts stand one column's length apart."""
    return tuple(f'lblFld{item}_{entry + column * length:02d}' for column in range(3))


def row(item, entry):
    """A line whose three amounts follow each other."""
    return tuple(f'lblFld{item}_{entry + column:02d}' for column in range(3))


def lettered(prefix, number):
    """A line whose three amounts were packed into one entry: A, B and C of a number."""
    return tuple(f'{prefix}{letter}{number}' for letter in 'ABC')


# Item 3. Lines 3, 9 and 22 carry ticks for profit and loss, line 17 is a heading over its thirteen parts, and line 22
# is one amount for both businesses.

def _item3(number, caption, names=None, computed=False):
    return Line(f'{number}.', caption, names or columns(3, number - 1, 20), computed)


def _partOf17(number, caption, names=None):
    return Line(f'75.{number}', caption, names or lettered('lblFld3_', 19 + number), isPart=True)


ITEM3 = (
    _item3(1, 'รายได้โดยตรงจากการประกอบกิจการ'),
    _item3(2, 'หัก ต้นทุนขายหรือรายจ่ายเพื่อคำนวณกำไรขั้นต้น (จากรายการที่ 4    9.)'),
    _item3(3, '', computed=True),
    _item3(4, 'บวก รายได้อื่น (จากรายการที่ 6    7.)'),
    _item3(5, 'รวม (3. + 4.)', computed=True),
    _item3(6, 'หัก รายจ่ายอื่น (จากรายการที่ 7   5.)'),
    _item3(7, 'รวม (5. - 6.)', computed=True),
    _item3(8, 'หัก รายจ่ายในการขายและบริหาร (จากรายการที่ 8    35.)'),
    _item3(9, '', computed=True),
    _item3(10, 'บวก รายได้ที่ให้ถือเป็นรายได้ตามประมวลรัษฏากร'),
    _item3(11, 'บวก รายจ่ายที่ไม่ให้ถือเป็นรายจ่ายตามประมวลรัษฏากร|(จากรายการที่ 9   7.)'),
    _item3(12, 'รวม (9. + 10. + 11.)', computed=True),
    _item3(13, 'หัก รายได้ที่ได้รับการยกเว้นภาษีเงินได้หรือ|รายจ่ายที่มีสิทธิหักได้เพิ่มขึ้น (จากรายการที่ 10   5.)'),
    _item3(14, 'รวม (12. - 13.)', computed=True),
    _item3(15, 'หัก ขาดทุนสุทธิที่มีสิทธินำมาหักตามกฏหมาย|(จากรายการที่ 11 หรือ รายการที่ 2 ของใบแนบ ก.ข.ค.77)'),
    _item3(16, 'รวม (14. - 15.)', computed=True),
    _item3(17, 'บวก รายจ่ายส่วนที่เกินร้อยละ 10 ของกำไรสุทธิ:', (None, None, None)),
    _partOf17(1, 'รายจ่ายเพื่อสนับสนุนการศึกษา', columns(3, 16, 20)),
    _partOf17(2, 'รายจ่ายในการจัดหาหนังสือหรือสื่ออิเล็กทรอนิกส์เพื่อสถานศึกษา'),
    _partOf17(3, 'รายจ่ายเพื่อพัฒนาครู คณาจารย์ และบุคลากรทางการศึกษา'),
    _partOf17(4, 'รายจ่ายบริจาคให้แก่สถานศึกษา'),
    _partOf17(5, 'รายจ่ายบริจาคให้แก่องค์กรกีฬา'),
    _partOf17(6, 'รายจ่ายเพื่อโครงการฝึกอบรมอาชีพฯ'),
    _partOf17(7, 'รายจ่ายเพื่อสนับสนุนด้านการเรียนรู้และนันทนาการ'),
    _partOf17(8, 'รายจ่ายบริจาคให้แก่กองทุนส่งเสริมงานวัฒนธรรมฯลฯ'),
    _partOf17(9, 'รายจ่ายในการจัดตั้งศูนย์พัฒนาเด็กเล็กในสังกัด อปท.'),
    _partOf17(10, 'รายจ่ายในการจัดให้คนพิการได้รับสิทธิประโยชน์'),
    _partOf17(11, 'รายจ่ายเพื่อส่งเสริมการดำเนินกิจการของ SMEs'),
    _partOf17(12, 'รายจ่ายเพื่อส่งเสริมการลงทุนในชนบท'),
    _partOf17(13, 'รายจ่ายอื่นส่วนที่เกินร้อยละ 10 ของกำไรสุทธิ'),
    _item3(18, 'บวก รายจ่ายเพื่อสนับสนุนการกีฬาตามโครงการฯ|ส่วนที่เกินร้อยละ 20 ของกำไรสุทธิ'),
    _item3(19, 'บวก รายจ่ายเพื่อการกุศลสาธารณะฯ ส่วนที่เกินร้อยละ 2 ของกำไรสุทธิ'),
    _item3(20, 'บวก รายจ่ายเพื่อการศึกษาหรือเพื่อการกีฬา|ส่วนที่เกินร้อยละ 2 ของกำไรสุทธิ', row(3, 67)),
    _item3(21, 'รวม (16.+17.+18.+19.+20.) ถ้าขาดทุน (16.- 17.-18.-19.-20.)', columns(3, 19, 20), True),
    _item3(22, '', (None, None, 'lblFld3_60'), True),
)

# What page 2 shows of item 3.
ITEM3_HEAD = ITEM3[:14]

# What is ticked for a profit and for a loss, and what the line says behind its ticks.
ITEM3_TICKS = {
    '3.': (('lblFld3_61', 'กำไรขั้นต้น'), ('lblFld3_62', 'ขาดทุนขั้นต้น'), ''),
    '9.': (('lblFld3_63', 'กำไรสุทธิ'), ('lblFld3_64', 'ขาดทุนสุทธิ'), 'ตามบัญชีกำไรขาดทุน'),
    '22.': (('lblFld3_65', 'กำไรสุทธิที่ต้องเสียภาษี'), ('lblFld3_66', 'ขาดทุนสุทธิ'), ''),
}


# Items 4 to 10.

class Cell(NamedTuple):
    """A line of a schedule by its cell on the page; a number of 0 is a line that the paper does not number."""
    number: int
    cell: int
    caption: str
    computed: bool = False


def _line(cell, names, isPart=False):
    return Line(f'{cell.number}.' if cell.number else '', cell.caption, names, cell.computed, isPart)


def _schedule(cells, names, parts=()):
    return tuple(_line(cell, names(cell.cell), cell.cell in parts) for cell in cells)


def _plain(item, length, *captions, computed=()):
    """An item whose line n is its cell n - 1; the last line, its total, is computed like those named."""
    cells = [Cell(number, number - 1, caption, number in computed or number == length)
             for number, caption in enumerate(captions, 1)]
    return _schedule(cells, lambda cell: columns(item, cell, length))


ITEM4 = _plain(
    4, 9,
    'สินค้าคงเหลือต้นรอบระยะเวลาบัญชี',
    'บวก ซื้อสินค้าสุทธิ',
    'บวก ต้นทุนผลิต (จากรายการที่ 5   17.)',
    'บวก ค่าใช้จ่ายในการซื้อสินค้า',
    'บวก รายจ่ายอื่นเพื่อคำนวณกำไรขั้นต้น',
    'รวม (3. + 4. + 5.)',
    'รวม (1. + 2. + 3. + 4. + 5.)',
    'หัก สินค้าคงเหลือปลายรอบระยะเวลาบัญชี',
    'ต้นทุนขายหรือรายจ่ายเพื่อคำนวณกำไรขั้นต้น (7. - 8.)',
    computed=(6, 7))

ITEM5 = _plain(
    5, 17,
    'วัตถุดิบคงเหลือต้นรอบระยะเวลาบัญชี',
    'บวก ซื้อวัตถุดิบสุทธิ',
    'บวก ค่าใช้จ่ายในการซื้อวัตถุดิบ',
    'รวม (1. + 2. + 3.)',
    'บวก วัสดุประกอบและวัสดุสิ้นเปลืองใช้ไปในการผลิต',
    'รวม (4. + 5.)',
    'ค่าแรงงานทางตรง',
    'เงินเดือนและค่าแรงงานทางอ้อม',
    'ค่าเชื้อเพลิง ค่าไฟฟ้า และค่าน้ำประปา',
    'ค่าซ่อมแซมและบำรุงรักษา',
    'ค่าสึกหรอและค่าเสื่อมราคา',
    'ค่าเช่าและค่าเบี้ยประกันภัยโรงงาน',
    'ค่าใช้จ่ายในการผลิตอื่น',
    'รวมค่าใช้จ่ายในการผลิต (8. ถึง 13.)',
    'รวม (6. + 7. + 14.)',
    'หัก งานระหว่างทำคงเหลือปลายรอบระยะเวลาบัญชี',
    'ต้นทุนผลิต (15. - 16.)',
    computed=(4, 6, 14, 15))

# What page 3 shows of item 5, and page 4 of item 8.
ITEM5_HEAD = ITEM5[:9]

ITEM6 = _plain(
    6, 7,
    'กำไรจากการจำหน่ายสินทรัพย์',
    'กำไรจากอัตราแลกเปลี่ยนเงินตรา',
    'ดอกเบี้ยรับ',
    'เงินปันผลและเงินส่วนแบ่งของกำไร',
    'ค่าเช่าและค่าสิทธิรับ',
    'รายได้อื่นนอกจาก 1. ถึง 5.',
    'รวมรายได้อื่น (1. ถึง 6.)')

ITEM7 = _plain(
    7, 5,
    'ขาดทุนจากการจำหน่ายสินทรัพย์',
    'ขาดทุนจากอัตราแลกเปลี่ยนเงินตรา',
    'ดอกเบี้ยจ่าย',
    'รายจ่ายอื่นนอกจาก 1. ถึง 3.',
    'รวมรายจ่ายอื่น (1. ถึง 4.)')

TOTAL = -1  # the cell of a total


def _item8Names(cell):
    """The paper put later lines between the older ones; their amounts stand behind the three columns."""
    if cell >= 30:
        return tuple(f'lblFld{letter}_{cell}' for letter in 'ABC')
    return row(8, 72) if cell == 23 else columns(8, 23 if cell == TOTAL else cell, 24)


ITEM8 = _schedule((
    Cell(1, 0, 'รายจ่ายเกี่ยวกับพนักงาน'),
    Cell(2, 1, 'ค่าตอบแทนกรรมการ'),
    Cell(3, 2, 'ค่าไฟฟ้า ค่าน้ำประปา ค่าโทรศัพท์'),
    Cell(4, 3, 'ค่าพาหนะเดินทางและค่าที่พัก'),
    Cell(5, 4, 'ค่าระวาง ค่าขนส่ง'),
    Cell(6, 5, 'ค่าเช่า'),
    Cell(7, 6, 'ค่าซ่อมแซมและบำรุงรักษา'),
    Cell(8, 7, 'ค่ารับรอง'),
    Cell(9, 8, 'ค่านายหน้า ค่าโฆษณา ค่าส่งเสริมการขาย'),
    Cell(10, 9, 'ภาษีธุรกิจเฉพาะ'),
    Cell(11, 10, 'ภาษีและค่าธรรมเนียมอื่น'),
    Cell(12, 11, 'ดอกเบี้ยจ่าย'),
    Cell(13, 12, 'ค่าสอบบัญชีและค่าทำบัญชี'),
    Cell(14, 13, 'ค่าที่ปรึกษาและค่าธรรมเนียมวิชาชีพ'),
    Cell(15, 14, 'รายจ่ายเพื่อการกุศลสาธารณะหรือเพื่อการสาธารณประโยชน์'),
    Cell(16, 15, 'รายจ่ายเพื่อการศึกษาหรือเพื่อการกีฬา'),
    Cell(17, 30, 'รายจ่ายเพื่อสนับสนุนการศึกษา'),
    Cell(18, 31, 'รายจ่ายในการจัดหาหนังสือหรือสื่ออิเล็กทรอนิกส์เพื่อสถานศึกษา'),
    Cell(19, 32, 'รายจ่ายเพื่อพัฒนาครู คณาจารย์ และบุคลากรทางการศึกษา'),
    Cell(20, 33, 'รายจ่ายบริจาคให้แก่สถานศึกษา'),
    Cell(21, 34, 'รายจ่ายบริจาคให้แก่องค์กรกีฬา'),
    Cell(22, 35, 'รายจ่ายเพื่อโครงการฝึกอบรมอาชีพฯ'),
    Cell(23, 36, 'รายจ่ายเพื่อสนับสนุนด้านการเรียนรู้และนันทนาการ'),
    Cell(24, 37, 'รายจ่ายบริจาคให้แก่กองทุนส่งเสริมงานวัฒนธรรมฯลฯ'),
    Cell(25, 38, 'รายจ่ายในการจัดตั้งศูนย์พัฒนาเด็กเล็กในสังกัด อปท.'),
    Cell(26, 39, 'รายจ่ายในการจัดให้คนพิการได้รับสิทธิประโยชน์'),
    Cell(27, 23, 'ค่าธรรมเนียมการบริหารและบริการจากบริษัทในเครือ'),
    Cell(28, 16, 'หนี้สูญ'),
    Cell(29, 17, 'ค่าสึกหรอและค่าเสื่อมราคา'),
    Cell(30, 18, 'เงินสำรองต่าง ๆ'),
    Cell(31, 19, 'ขาดทุนจากการตีราคาสินค้าคงเหลือ'),
    Cell(32, 20, 'ค่าเบี้ยประกันภัย'),
    Cell(33, 21, 'ค่าเครื่องเขียน แบบพิมพ์ และวัสดุสิ้นเปลือง'),
    Cell(34, 22, 'รายจ่ายอื่นนอกจาก 1. ถึง 33.'),
    Cell(0, 40, 'รายจ่ายอื่นตามกฎหมายที่ออกภายหลัง'),
    Cell(35, TOTAL, 'รวมรายจ่ายในการขายและบริหาร (1. ถึง 34. และรายจ่ายอื่น)', True),
), _item8Names)

ITEM8_HEAD = ITEM8[:14]


def _item9Names(cell):
    return row(9, 18) if cell == 5 else columns(9, 5 if cell == TOTAL else cell, 6)


ITEM9 = _schedule((
    Cell(1, 0, 'ภาษีเงินได้ของบริษัทหรือห้างหุ้นส่วนนิติบุคคล'),
    Cell(2, 1, 'เงินสำรองและหนี้สูญที่ไม่เป็นไปตามเงื่อนไข'),
    Cell(3, 2, 'รายจ่ายส่วนตัวและการให้โดยเสน่หา'),
    Cell(4, 3, 'ค่ารับรองส่วนที่เกินกว่าที่กฎหมายกำหนด'),
    Cell(5, 5, 'รายจ่ายเพื่อการกุศล การศึกษา และการกีฬา|(จากรายการที่ 8   15. ถึง 26.)'),
    Cell(6, 4, 'รายจ่ายต้องห้ามอื่น'),
    Cell(7, TOTAL, 'รวม (1. ถึง 6.)', True),
), _item9Names)

# Item 10. Cells 39 to 41 have no line on paper, but count in the total.
BEFORE_5 = 42  # the row behind cells 11 to 14, which the screen does not show but the file keeps

_item10Cells = (
    Cell(1, 0, 'รายได้ที่ได้รับยกเว้น ตามที่แสดงในบัญชี (ไม่นับรวม)'),
    Cell(2, 1, 'เงินปันผลและเงินส่วนแบ่งของกำไร'),
    Cell(3, 2, 'ดอกเบี้ยที่ได้รับยกเว้นภาษีเงินได้'),
    Cell(4, 3, 'รายได้ของกิจการที่ได้รับส่งเสริมการลงทุน'),
    Cell(5, 4, 'รายได้อื่นที่ได้รับยกเว้นภาษีเงินได้'),
    Cell(6, 5, 'รายจ่ายเพื่อการวิจัยและพัฒนาเทคโนโลยี'),
    Cell(7, 6, 'รายจ่ายเพื่อการฝึกอบรมลูกจ้าง'),
    Cell(8, 7, 'ค่าจ้างคนพิการและผู้สูงอายุ'),
    Cell(9, 8, 'รายจ่ายจัดสิ่งอำนวยความสะดวกแก่คนพิการ'),
    Cell(10, 9, 'รายจ่ายเพื่อการศึกษา การกีฬา และสาธารณประโยชน์|(รวมรายการข้างล่าง)', True),
    Cell(0, 15, 'รายจ่ายเพื่อสนับสนุนการศึกษา'),
    Cell(0, 16, 'รายจ่ายในการจัดหาหนังสือหรือสื่ออิเล็กทรอนิกส์เพื่อสถานศึกษา'),
    Cell(0, 17, 'รายจ่ายเพื่อพัฒนาครู คณาจารย์ และบุคลากรทางการศึกษา'),
    Cell(0, 18, 'รายจ่ายบริจาคให้แก่สถานศึกษา'),
    Cell(0, 19, 'รายจ่ายบริจาคให้แก่องค์กรกีฬา'),
    Cell(0, 20, 'รายจ่ายเพื่อโครงการฝึกอบรมอาชีพฯ'),
    Cell(0, 21, 'รายจ่ายเพื่อสนับสนุนด้านการเรียนรู้และนันทนาการ'),
    Cell(0, 22, 'รายจ่ายบริจาคให้แก่กองทุนส่งเสริมงานวัฒนธรรมฯลฯ'),
    Cell(0, 23, 'รายจ่ายในการจัดตั้งศูนย์พัฒนาเด็กเล็กในสังกัด อปท.'),
    Cell(0, 24, 'รายจ่ายในการจัดให้คนพิการได้รับสิทธิประโยชน์'),
    Cell(0, 25, 'รายจ่ายเพื่อส่งเสริมการดำเนินกิจการของ SMEs'),
    Cell(0, 26, 'รายจ่ายเพื่อส่งเสริมการลงทุนในชนบท'),
    Cell(11, 10, 'รายจ่ายอื่นที่มีสิทธิหักได้เพิ่มขึ้น'),
    Cell(0, 11, 'ยอดตามกฎหมายฉบับก่อน 1 (ไม่นับรวม)'),
    Cell(0, 12, 'ยอดตามกฎหมายฉบับก่อน 2 (ไม่นับรวม)'),
    Cell(0, 13, 'ยอดตามกฎหมายฉบับก่อน 3 (ไม่นับรวม)'),
    Cell(0, 14, 'ยอดตามกฎหมายฉบับก่อน 4 (ไม่นับรวม)'),
    Cell(0, BEFORE_5, 'ยอดตามกฎหมายฉบับก่อน 5 (ไม่นับรวม)'),
    Cell(0, 27, 'รายจ่ายเพื่อการลงทุนในเครื่องจักรและโปรแกรมคอมพิวเตอร์'),
    Cell(0, 28, 'รายจ่ายเพื่อการลงทุนในอาคารถาวร'),
    Cell(0, 29, 'รายจ่ายเพื่ออุปกรณ์รับชำระเงินทางอิเล็กทรอนิกส์'),
    Cell(0, 30, 'ค่าธรรมเนียมการรับชำระเงินด้วยบัตรเดบิต'),
    Cell(0, 31, 'ค่าอบรมสัมมนาและการท่องเที่ยวภายในประเทศ'),
    Cell(0, 32, 'ค่าซื้อสินค้าและบริการตามโครงการของรัฐ'),
    Cell(0, 33, 'รายจ่ายเพื่อการวิจัยและพัฒนาส่วนที่เพิ่มขึ้น'),
    Cell(0, 34, 'รายจ่ายในเขตพัฒนาเศรษฐกิจพิเศษ'),
    Cell(0, 35, 'รายจ่ายในเขตพัฒนาพิเศษเฉพาะกิจจังหวัดชายแดนภาคใต้'),
    Cell(0, 36, 'ค่าติดตั้งระบบกล้องโทรทัศน์วงจรปิด'),
    Cell(0, 37, 'ค่าซ่อมแซมทรัพย์สินที่เสียหายจากภัยธรรมชาติ'),
    Cell(0, 38, 'เงินบริจาคเพื่อช่วยเหลือผู้ประสบภัย'),
    Cell(0, TOTAL, 'รวม (2. ถึง 11. และรายจ่ายที่มีสิทธิหักได้เพิ่มขึ้นข้างต้น) *', True),
)

ITEM10_NOTE = '* รวมรายการที่มีสิทธิหักได้เพิ่มขึ้นตามกฎหมาย ซึ่งไม่มีบรรทัดในหน้านี้ (ถ้ามี)'


def _item10Names(cell):
    if cell == TOTAL:
        return columns(10, 11, 12)
    if cell == BEFORE_5:
        return row(10, 48)
    if cell >= 15:
        return lettered('lblFld10_', cell - 14)
    return row(10, 36 + 3 * (cell - 11)) if cell >= 11 else columns(10, cell, 12)


ITEM10 = _schedule(_item10Cells, _item10Names, parts=range(15, 27))


def _shortItem10(*cells):
    """Page 5 repeats eight lines of item 10 under letters of their own, numbered from 1."""
    byCell = {cell.cell: cell for cell in _item10Cells}
    return tuple(_line(byCell[cell], lettered('lblFld10_', number)) for number, cell in enumerate(cells, 1))


ITEM10_SHORT = _shortItem10(0, 33, 28, 3, 5, 13, 19, 14)


# Item 11: thirteen earlier periods. The first eight may hold results of an exempt business beside the taxable one.

ITEM11_ROWS = 13
ITEM11_EXEMPT_ROWS = 8
ITEM11_CARRIED = 'lblFld11_68'


def item11Dates(row_):
    return f'lblFld11_{row_:02d}', f'lblFld11_{ITEM11_ROWS + row_:02d}'


def item11Results(row_):
    """Profit and loss of the exempt business, profit and loss of the taxable one; None where a row has no place."""
    if row_ < ITEM11_EXEMPT_ROWS:
        return tuple(f'lblFld11_{26 + 4 * row_ + cell}' for cell in range(4))
    first = 58 + 2 * (row_ - ITEM11_EXEMPT_ROWS)
    return None, None, f'lblFld11_{first}', f'lblFld11_{first + 1}'


# Item 12: one column. A line without a name is a heading.

def _item12(number, caption, name=None, computed=False):
    return Line(number, caption, (name,), computed)


ITEM12 = (
    _item12('1.', 'สินทรัพย์'),
    _item12('1.1', 'เงินสดและรายการเทียบเท่าเงินสด', 'lblFld00'),
    _item12('1.2', 'ลูกหนี้การค้าและตั๋วเงินรับสุทธิ', 'lblFld01'),
    _item12('1.3', 'สินค้าคงเหลือ', 'lblFld02'),
    _item12('1.4', 'เงินให้กู้ยืมแก่กรรมการ ผู้ถือหุ้น หรือลูกจ้าง', 'lblFld03'),
    _item12('1.5', 'สินทรัพย์หมุนเวียนอื่น', 'lblFld04'),
    _item12('1.6', 'เงินลงทุนและเงินให้กู้ยืมระยะยาว', 'lblFld05'),
    _item12('1.7', 'ที่ดิน อาคาร และอุปกรณ์สุทธิ', 'lblFld06'),
    _item12('1.8', 'สินทรัพย์ไม่มีตัวตนสุทธิ', 'lblFld07'),
    _item12('1.9', 'สินทรัพย์ไม่หมุนเวียนอื่น', 'lblFld08'),
    _item12('', 'รวมสินทรัพย์ (1.1 ถึง 1.9)', 'lblFld09', True),
    _item12('2.', 'หนี้สิน'),
    _item12('2.1', 'เงินเบิกเกินบัญชีและเงินกู้ยืมระยะสั้นจากสถาบันการเงิน', 'lblFld10'),
    _item12('2.2', 'เจ้าหนี้การค้าและตั๋วเงินจ่าย', 'lblFld11'),
    _item12('2.3', 'เงินกู้ยืมจากกรรมการ ผู้ถือหุ้น หรือลูกจ้าง', 'lblFld12'),
    _item12('2.4', 'หนี้สินหมุนเวียนอื่น', 'lblFld13'),
    _item12('2.5', 'เงินกู้ยืมระยะยาว', 'lblFld14'),
    _item12('2.6', 'หนี้สินไม่หมุนเวียนอื่น', 'lblFld15'),
    _item12('', 'รวมหนี้สิน (2.1 ถึง 2.6)', 'lblFld16', True),
    _item12('3.', 'ส่วนของผู้ถือหุ้น'),
    _item12('3.1', 'ทุนจดทะเบียน', 'lblFld17'),
    _item12('3.2', 'ทุนที่ออกและชำระแล้ว', 'lblFld18'),
    _item12('3.3', 'ส่วนของผู้ถือหุ้นอื่น', 'lblFld19'),
    _item12('3.4', 'กำไรหรือขาดทุนสะสม', 'lblFld20'),
    _item12('', 'รวมส่วนของผู้ถือหุ้น (3.1 ถึง 3.4)', 'lblFld21', True),
    _item12('', 'รวมหนี้สินและส่วนของผู้ถือหุ้น (2. + 3.)', 'lblFld22', True),
)

# Line 3.4 says whether it is a profit or a loss.
ITEM12_RESULT = 'lblFld20'
ITEM12_TICKS = (('lblFld23', 'กำไร'), ('lblFld24', 'ขาดทุน'))
