#!/usr/bin/env python3
"""The attachment of an international headquarters: its privilege, its income by kind and its losses brought forward."""
from paper import BAND, FORM, HAIR, LEFT, RIGHT, WIDTH, Ledger, Page

INCOME = (
    'รายได้จากการให้บริการด้านบริหารหรือด้านเทคนิค|การให้บริการสนับสนุน หรือการบริหารเงิน'
    '|(ไม่รวมดอกเบี้ยและกำไรจากอัตราแลกเปลี่ยนเงินตรา)',
    'กำไรจากอัตราแลกเปลี่ยนเงินตรา',
    'ดอกเบี้ยรับ',
    'ค่าสิทธิ',
    'เงินปันผลหรือส่วนแบ่งกำไร',
    'รายได้จากการโอนหุ้นของวิสาหกิจในเครือ',
    'รายได้จากการจัดซื้อและขายสินค้าในต่างประเทศ',
    'รายได้จากการให้บริการที่เกี่ยวข้องกับการค้า|ระหว่างประเทศ',
)

LOSS_YEARS = 5

# The columns of item 2: row number, two dates, then profit and loss of both kinds of business.
NUMBER = 7
DATE = 20.6
ROW = 9.4
MONEY = (WIDTH - NUMBER - 2 * DATE) / 4


def privilege(page, y):
    dates = (
        (('CDAY', 'CMON', 'CYEAR'), '1. วันที่ได้รับอนุมัติ'),
        (('SDAY', 'SMON', 'SYEAR'), '2. วันที่สิทธิเริ่มต้น'),
        (('EDAY', 'EMON', 'EYEAR'), '3. วันที่สิทธิสิ้นสุด'),
    )
    with page.group('privilege'):
        page.text(LEFT + 3, y + 8.4, 'เลขประจำตัวผู้เสียภาษีอากร', 3.6, True)
        page.comb('NID', LEFT + 3, y + 13)
        page.line(LEFT + 76, y, LEFT + 76, y + 31)
        for n, (names, caption) in enumerate(dates):
            page.day(names, LEFT + 79, y + 8.4 + n * 8.4, caption, 32, 104)
    return y + 31


def income(page, y):
    with page.group('item-1'):
        page.band(LEFT, y, WIDTH, 'รายการที่ 1   รายได้ของกิจการสำนักงานใหญ่ข้ามประเทศ (IHQ)', 6.4)
        y += 6.4
        table = Ledger(page, y, columnWidth=36, rowHeight=8.4, size=3.1, moneySize=3.4, numberWidth=8)
        table.heading('ประเภทรายได้', ('ช่อง 1 กิจการที่ได้รับ|ยกเว้นภาษีเงินได้',
                                       'ช่อง 2 กิจการที่ต้อง|เสียภาษีเงินได้', 'รวม'), 9.4)
        for n, caption in enumerate(INCOME, 1):
            table.line(f'{n}.', caption, [f'{column}{n}' for column in 'ABC'])
        table.line('9.', 'รวม 1. ถึง 8.', ('ASUM', 'BSUM', 'CSUM'), True)
        return table.end()


def losses(page, y):
    """Profits and losses of up to five earlier periods, the oldest first."""
    with page.group('item-2'):
        page.band(LEFT, y, WIDTH, 'รายการที่ 2   ขาดทุนสุทธิที่ปรับปรุงตามประมวลรัษฎากรแล้วยกมาไม่เกิน 5 รอบระยะเวลาบัญชี'
                                  'ก่อนระยะเวลาบัญชีปัจจุบัน', 6.4)
        y += 6.4
        begin = LEFT + NUMBER
        first = begin + 2 * DATE
        page.rect(LEFT, y, WIDTH, 11.6, .25, BAND)
        page.text(begin + DATE, y + 3.9, 'รอบระยะเวลาบัญชี', 3.1, True, 'middle')
        page.text(begin + DATE / 2, y + 9.7, 'ตั้งแต่', 3.1, True, 'middle')
        page.text(begin + DATE * 1.5, y + 9.7, 'ถึง', 3.1, True, 'middle')
        page.text(first + MONEY, y + 3.9, 'ช่อง 1 กิจการที่ได้รับยกเว้นภาษีเงินได้', 3.1, True, 'middle')
        page.text(first + MONEY * 3, y + 3.9, 'ช่อง 2 กิจการที่ต้องเสียภาษีเงินได้', 3.1, True, 'middle')
        for n in range(4):
            page.text(first + MONEY * (n + .5), y + 9.7, ('กำไรสุทธิ', 'ขาดทุนสุทธิ')[n % 2], 3.1, True, 'middle')
        page.line(begin, y + 5.8, RIGHT, y + 5.8, .12)
        top = y
        y += 11.6
        for row in range(LOSS_YEARS):
            page.text(LEFT + NUMBER / 2, y + ROW / 2 + 1.2, f'{row + 1}.', 3.1, anchor='middle')
            page.slot(f'DF{row + 1}', begin, y, DATE, ROW, align='middle', size=3.4)
            page.slot(f'DT{row + 1}', begin + DATE, y, DATE, ROW, align='middle', size=3.4)
            for n in range(4):
                page.money(f'M{row * 4 + n + 1}', first + MONEY * n, y, MONEY, ROW, 3.3)
            y += ROW
            page.line(LEFT, y, RIGHT, y, .12, HAIR)
        for x in (begin, first, first + 2 * MONEY):
            page.line(x, top, x, y)
        for x in (begin + DATE, first + MONEY, first + 3 * MONEY):
            page.line(x, top + 5.8, x, y)
        page.rect(LEFT, y, WIDTH, 10.4, .25, BAND)
        page.text(LEFT + 3, y + 4.3, 'ผลขาดทุนสุทธิที่มีสิทธินำไปหักในแบบ', 3.1, True)
        page.text(LEFT + 3, y + 8.5, 'กขค.77 ในรายการที่ 3  15.', 3.1, True)
        for n, name in enumerate(('GSUM1', 'GSUM2')):
            left = first + MONEY * (2 * n + 1)
            page.text(left - 2, y + 6.4, f'ช่อง {n + 1}', 3.1, anchor='end')
            page.money(name, left, y, MONEY, 10.4, 3.3)
            page.line(left, y, left, y + 10.4)
        page.line(first + 2 * MONEY, y, first + 2 * MONEY, y + 10.4)
    return y + 10.4


def main():
    page = Page('rptLodgePageIHQ', f'ใบแนบ {FORM} กิจการสำนักงานใหญ่ข้ามประเทศ (IHQ)')
    y = page.head(None, f'ใบแนบ {FORM} - สำหรับกิจการสำนักงานใหญ่ข้ามประเทศ (IHQ)')
    y = privilege(page, y)
    y = income(page, y)
    y = losses(page, y)
    page.certificate(y)
    page.foot('ใบแนบ IHQ')
    page.save()


if __name__ == '__main__':
    main()
