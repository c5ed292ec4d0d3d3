#!/usr/bin/env python3
"""Page 2: item 1, the promoted investment; item 2, the tax; and the head of item 3, down to line 14."""
import lines
import metrics
from paper import BAND, BOTTOM, CAPTION_PITCH, FORM, FORM_TITLE, HAIR, LEFT, RIGHT, WIDTH, Ledger, Page

# Where the amounts of item 2 stand, in line with the third column of item 3 below them.
MONEY = 40
EDGE = RIGHT - MONEY

PRIVILEGES = (
    '(1) ได้รับการลดหย่อนอัตราภาษีเงินได้ให้ร้อยละ 50 ของอัตราปกติ',
    '(2) ได้รับยกเว้นภาษีเงินได้ทั้งหมด',
    '(3) ได้รับยกเว้นภาษีเงินได้บางส่วน',
    '(4) อื่น ๆ (ระบุ)',
)

BASES = (
    '(1) กำไรสุทธิที่ต้องเสียภาษี',
    '(2) ขาดทุนสุทธิ',
    '(3) รายรับก่อนหักรายจ่าย (กรณีเสียภาษีจากยอดรายรับ)',
)

RATES = (
    (0, 0, 'rate_nomal.1', '(2.1) ทุนชำระแล้วไม่เกิน 5 ล้านบาท (SMEs)'),
    (62, 0, 'rate_nomal.2', '(2.2) ผู้ค้าน้ำมันเชื้อเพลิง'),
    (0, 1, 'rate_nomal.3', '(2.3) ศูนย์กลางการจัดหาสินค้าฯ'),
    (62, 1, 'rate_nomal.4', '(2.4) ROH'),
    (96, 1, 'rate_nomal.5', '(2.5) IHQ'),
    (0, 2, 'rate_nomal.6', '(2.6) เขตพัฒนาพิเศษเฉพาะกิจ'),
    (62, 2, 'rate_eco_584', 'พ.ร.ฎ. (ฉบับที่ 584)'),
    (96, 2, 'rate_eco_591', 'พ.ร.ฎ. (ฉบับที่ 591)'),
)

DEDUCTIONS = (
    '(1) ภาษีเงินได้ที่ได้รับยกเว้นตาม พระราชกฤษฎีกาฯ (ฉบับที่18) หรือ (ฉบับที่463)',
    '(2) ภาษีเงินได้ที่ได้รับยกเว้นตาม พระราชกฤษฎีกาฯ (ฉบับที่ 300)',
    '(3) ภาษีเงินได้หัก ณ ที่จ่าย และภาษีที่บุคคลอื่นเสียแทน',
    '(4) ภาษีที่ชำระแล้วตามแบบ ก.ข.ค.78',
    '(5) ภาษีในส่วนที่ได้รับการลดหย่อนอัตราให้ร้อยละ 50 ของอัตราปกติ',
    '(6) ภาษีที่ชำระแล้วตามแบบ ก.ข.ค.77 (กรณียื่นเพิ่มเติม)',
)

# The lines of item 3 that stand on this page: from the income to the total of line 14.
ITEM3 = lines.ITEM3_HEAD

HEAD = 9.5
SIZE = 3


def investment(page, y):
    years, begin, end = LEFT + 108, LEFT + 126, LEFT + 156
    with page.group('item-1'):
        page.band(LEFT, y, WIDTH, 'รายการที่ 1   กิจการที่ได้รับการส่งเสริมการลงทุน', 5.8)
        page.text(LEFT + 3, y + 10.6, '1.  ตามบัตรส่งเสริมการลงทุนเลขที่', 3.3)
        page.written('lblFld1_00', LEFT + 52, y + 10.6, 66, height=5.6)
        page.text(LEFT + 122, y + 10.6, 'ลงวันที่', 3.3)
        page.written('lblFld1_01', LEFT + 134, y + 10.6, 49, 'middle', height=5.6)
        page.text(LEFT + 3, y + 17.2, '2.  กิจการที่ได้รับการส่งเสริม', 3.3)
        page.written('lblFld1_02', LEFT + 46, y + 17.2, 67, height=5.6)
        page.text(LEFT + 116, y + 17.2, 'สำหรับเจ้าหน้าที่ รหัส ISIC', 3.3)
        page.comb('lblFld1_03', LEFT + 155.4, y + 12.8, (6,), 4.6, 5.6)
    with page.group('privileges'):
        y += 19.6
        page.rect(LEFT, y, WIDTH, 5.4, .25, BAND)
        page.text(LEFT + 3, y + 3.9, '3.  การส่งเสริมที่ได้รับ', 3.3)
        for middle, caption in ((117, 'เวลา (ปี)'), (141, 'ตั้งแต่วัน เดือน ปี'), (171, 'ถึงวัน เดือน ปี')):
            page.text(LEFT + middle, y + 3.8, caption, 3.1, anchor='middle')
        for n, caption in enumerate(PRIVILEGES):
            top = y + 5.4 + n * 5.4
            page.choice(f'lblFld1_0{4 + n}', LEFT + 8, top + 3.9, caption, 3.2)
            page.slot(f'lblFld1_{9 + n:02}', years, top, 18, 5.4, align='middle')
            page.slot(f'lblFld1_{13 + n}', begin, top, 30, 5.4, align='middle')
            page.slot(f'lblFld1_{17 + n}', end, top, 30, 5.4, align='middle')
            page.line(LEFT, top + 5.4, RIGHT, top + 5.4, .12, HAIR)
        page.written('lblFld1_08', LEFT + 37, y + 5.4 * 4 + 3.9, 69, height=5.2)
        for edge in (years, begin, end):
            page.line(edge, y, edge, y + 27)
        page.text(LEFT + 3, y + 31.4, '4.  กรณีบริษัทฯ ประกอบกิจการอื่นที่ไม่ได้รับการส่งเสริมการลงทุนด้วย (ระบุ)', 3.3)
        page.written('lblFld1_21', LEFT + 8, y + 41.6, WIDTH - 11, height=10.6, lines=2)
    return y + 44.4


def amount(page, name, y, height):
    page.money(name, EDGE, y, MONEY, height)


def lineOne(page, y):
    with page.group('item-2-line-1'):
        page.band(LEFT, y, WIDTH, 'รายการที่ 2   การคำนวณภาษี', 5.8)
        page.text(RIGHT - MONEY / 2, y + 4.1, 'จำนวนเงิน (บาท)', 3.2, True, 'middle')
        y += 5.8
        page.text(LEFT + 3, y + 3.9, '1.', 3.3)
        for n, caption in enumerate(BASES):
            page.choice(f'lblFld2_0{n}', LEFT + 9, y + 4 + n * 4.9, caption, 3.2)
        page.text(EDGE - 3, y + 4, '(จากรายการที่ 3  22.)', 3.1, anchor='end')
        amount(page, 'lblFld2_10', y + 4.8, 5.4)
        return rowEnd(page, y + 15.2)


def rowEnd(page, y):
    page.line(LEFT, y, RIGHT, y, .12, HAIR)
    return y


def lineTwo(page, y):
    with page.group('item-2-line-2'):
        page.text(LEFT + 3, y + 4, '2.', 3.3)
        page.choice('lblFld2_03', LEFT + 9, y + 4, '(1) กรณีทั่วไป', 3.2)
        page.choice('lblFld2_04', LEFT + 44, y + 4, '(2) กรณีลดอัตราภาษี', 3.2)
        page.text(LEFT + 84, y + 4, 'อัตราที่เลือก', 3.1)
        page.written('lblFld2_22', LEFT + 101, y + 4, 42, 'middle', 3.4, 4.8)
        for x, row, name, caption in RATES:
            page.choice(name, LEFT + 15 + x, y + 9.2 + row * 4.6, caption, 3)
        page.choice('lblFld2_05', LEFT + 9, y + 23.4, '(3) กรณีได้รับอนุมัติจากกรมภาษีกลางให้เสียภาษีจากยอดรายรับ', 3.2)
        page.text(EDGE - 3, y + 23.4, 'ภาษีที่คำนวณได้', 3.2, anchor='end')
        amount(page, 'lblFld2_11', y + 19.7, 5.4)
        return rowEnd(page, y + 25.4)


def lineThree(page, y):
    with page.group('item-2-line-3'):
        page.text(LEFT + 3, y + 3.9, '3.', 3.3)
        page.text(LEFT + 9, y + 3.9, 'หัก', 3.2)
        for n, caption in enumerate(DEDUCTIONS):
            page.text(LEFT + 16, y + 3.9 + n * 5.4, caption, 3.2)
            amount(page, f'lblFld2_{12 + n}', y + n * 5.4, 5.4)
            rowEnd(page, y + (n + 1) * 5.4)
        y += 32.4
        page.rect(LEFT, y, WIDTH, 5.4, 0, BAND)
        page.text(EDGE - 3, y + 3.9, 'รวม', 3.2, True, 'end')
        amount(page, 'lblFld2_18', y, 5.4)
        return rowEnd(page, y + 5.4)


def linesFourToSix(page, y):
    rows = (
        ('4.', 'คงเหลือภาษีที่', ('lblFld2_06', 'lblFld2_07'), 'lblFld2_19', True),
        ('5.', 'บวกเงินเพิ่ม (ถ้ามี)', (), 'lblFld2_20', False),
        ('6.', 'รวมภาษีที่', ('lblFld2_08', 'lblFld2_09'), 'lblFld2_21', True),
    )
    with page.group('item-2-lines-4-to-6'):
        for number, caption, boxes, name, computed in rows:
            if computed:
                page.rect(LEFT, y, WIDTH, 5.4, 0, BAND)
            page.text(LEFT + 3, y + 3.9, number, 3.3, computed)
            page.text(LEFT + 9, y + 3.9, caption, 3.2, computed)
            for n, box in enumerate(boxes):
                page.choice(box, LEFT + 44 + n * 34, y + 4.1, ('(1) ชำระเพิ่มเติม', '(2) ชำระไว้เกิน')[n], 3.2)
            amount(page, name, y, 5.4)
            y = rowEnd(page, y + 5.4)
    return y


def broken(caption, room):
    """A caption whose origin in another item moves onto a line of its own where both do not fit."""
    return caption if metrics.width(caption, SIZE) <= room or '|' in caption else caption.replace(' (จาก', '|(จาก')


def itemThree(page, y):
    with page.group('item-3'):
        captions = [broken(line.caption, 76) for line in ITEM3]
        further = sum(caption.count('|') for caption in captions) * SIZE * CAPTION_PITCH
        row = (BOTTOM - y - HEAD - further) / len(ITEM3)
        table = Ledger(page, y, columnWidth=33.6, rowHeight=row, size=SIZE, moneySize=3.2, numberWidth=7)
        table.heading('รายการที่ 3   กำไรสุทธิหรือขาดทุนสุทธิ',
                      ('ช่อง 1|ยกเว้นภาษีเงินได้', 'ช่อง 2|ต้องเสียภาษีเงินได้', 'รวม'), HEAD)
        for line, caption in zip(ITEM3, captions):
            top = table.y
            table.line(line.number, caption, line.names, line.computed)
            if line.number in lines.ITEM3_TICKS:
                profit, loss, after = lines.ITEM3_TICKS[line.number]
                page.choice(profit[0], LEFT + 7, top + 4.25, profit[1], 3)
                page.choice(loss[0], LEFT + 29, top + 4.25, loss[1], 3)
                page.text(LEFT + 52, top + 3.9, after, 3)
        return table.end()


def main():
    page = Page('rptLodgePage2', f'{FORM_TITLE} {FORM} หน้า 2')
    y = page.head(2, 'การส่งเสริมการลงทุน   การคำนวณภาษี   และกำไรสุทธิหรือขาดทุนสุทธิ')
    y = investment(page, y)
    top = y
    y = lineOne(page, y)
    y = lineTwo(page, y)
    y = lineThree(page, y)
    y = linesFourToSix(page, y)
    page.line(EDGE, top, EDGE, y)
    itemThree(page, y)
    page.foot(2)
    page.save()


if __name__ == '__main__':
    main()
