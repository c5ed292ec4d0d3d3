#!/usr/bin/env python3
"""The attachment with the working papers of item 2: net profit by rate, and line 22 where both businesses exist."""
from paper import BAND, FORM, HAIR, LEFT, PAPER, RIGHT, WIDTH, Page

AMOUNT = 40
KEY = 22

INCOME = RIGHT - 2 * AMOUNT
TAX = RIGHT - AMOUNT

# Each row of the worksheet: its caption, and whether its key is the rate's number or a mere tick.
ROWS = (
    ('กรณีทั่วไป (1) หรือกรณีลดอัตราภาษี (2.1) ถึง (2.5), (2.7), (2.8)', 'text'),
    ('กิจการตั้งอยู่ในเขตพัฒนาพิเศษเฉพาะกิจ ตาม พ.ร.ฎ.|(ฉบับที่ 584)  อัตราภาษี 3%', 'text'),
    ('กิจการอื่นที่มิได้ระบุไว้ (2.9)', 'text'),
    ('ลดอัตราภาษีตาม พ.ร.ฎ.(ฉบับที่ 454) สำหรับกิจการ|ธนาคารที่รับฝากหรือกู้ยืมเงินตรา'
     '|จากต่างประเทศเพื่อให้กู้ยืมในต่างประเทศ  อัตราภาษี 10%', 'tick'),
)

PITCH = 4.6

# What the worksheet reckons for each number; the program's own figures stand in src/pages/tax/rate_table.cpp.
RATES = (
    ('(1)', 'กำไรสุทธิ อัตราร้อยละ 20'),
    ('(2.1)', 'ส่วนที่ไม่เกิน 300,000 บาท ยกเว้น|ส่วนที่เกินแต่ไม่เกิน 3,000,000 บาท อัตราร้อยละ 15'
              '|ส่วนที่เกิน 3,000,000 บาท อัตราร้อยละ 20'),
    ('(2.2)', 'กำไรสุทธิ อัตราร้อยละ 10'),
    ('(2.3)', 'กำไรสุทธิ อัตราร้อยละ 15'),
    ('(2.4)', 'กำไรสุทธิ อัตราร้อยละ 10'),
    ('(2.5)', 'กำไรสุทธิ อัตราร้อยละ 10'),
    ('(2.6)', 'กำไรสุทธิ อัตราร้อยละ 3'),
    ('(2.7)', 'กำไรสุทธิ อัตราร้อยละ 10'),
    ('(2.8)', 'ส่วนที่ไม่เกิน 300,000 บาท ยกเว้น|ส่วนที่เกิน 300,000 บาท อัตราร้อยละ 10'),
)


def columns(page, y):
    with page.group('columns'):
        page.rect(LEFT, y, 48, 11, .25, BAND)
        page.text(LEFT + 2, y + 6.8, 'ช่องที่ต้องการจะกรอกข้อมูล', 3.6, True)
        page.choice('enableTab1', LEFT + 52, y + 6.8, 'ช่อง 1 กิจการที่ได้รับยกเว้นภาษีเงินได้')
        page.choice('enableTab2', LEFT + 120, y + 6.8, 'ช่อง 2 กิจการที่ต้องเสียภาษีเงินได้')
    return y + 11


def worksheet(page, y):
    with page.group('worksheet'):
        page.band(LEFT, y, WIDTH, 'กระดาษทำการบันทึกข้อ (1) กำไรสุทธิที่ต้องเสียภาษี ในรายการที่ 2', 7)
        y += 7
        top = y
        page.rect(LEFT, y, WIDTH, 7, .25, BAND)
        heads = ((LEFT + KEY / 2, 'ข้อ'), ((LEFT + KEY + INCOME) / 2, 'รายการ'),
                 (INCOME + AMOUNT / 2, 'กำไรสุทธิ (บาท)'), (TAX + AMOUNT / 2, 'ภาษี (บาท)'))
        for x, caption in heads:
            page.text(x, y + 4.7, caption, 3.3, True, 'middle')
        y += 7
        for n, (caption, kind) in enumerate(ROWS, 1):
            count = caption.count('|') + 1
            height = max(16, 10 + count * PITCH)
            middle = y + height / 2
            page.text(LEFT + KEY + 2, middle + 1.1 - (count - 1) * PITCH / 2, caption, 3.2, pitch=PITCH,
                      within=INCOME - LEFT - KEY - 4)
            if kind == 'tick':
                page.box(f'ChkBox_NewAtt{n}', LEFT + KEY / 2 - 1.6, middle - 1.6)
            else:
                page.rect(LEFT + 3, middle - 3.2, KEY - 6, 6.4, .3, PAPER)
                page.slot(f'ChkBox_NewAtt{n}', LEFT + 3, middle - 3.2, KEY - 6, 6.4, align='middle')
            page.money(f'txtIncome{n}', INCOME, y, AMOUNT, height)
            page.money(f'lbSumR{n}', TAX, y, AMOUNT, height)
            y += height
            page.line(LEFT, y, RIGHT, y, .12, HAIR)
        page.line(LEFT + KEY, top, LEFT + KEY, y)
        page.rect(LEFT, y, WIDTH, 11, .25, BAND)
        page.text(INCOME - 3, y + 6.8, 'รวม', 3.6, True, 'end')
        page.money('lbIncomeSumVar', INCOME, y, AMOUNT, 11)
        page.money('lbSumTotalVar', TAX, y, AMOUNT, 11)
        y += 11
        for x in (INCOME, TAX):
            page.line(x, top, x, y)
    return y


def bothBusinesses(page, y):
    with page.group('line-22'):
        page.band(LEFT, y, WIDTH, 'กระดาษทำการสำหรับ บริษัทที่ประกอบทั้งกิจการที่ได้รับยกเว้นภาษีเงินได้'
                                  'และกิจการที่ต้องเสียภาษีเงินได้', 7)
        y += 7
        page.text(LEFT + 3, y + 8, 'ข้อ 22 กำไรสุทธิที่ต้องเสียภาษี หรือขาดทุนสุทธิ ตามหลักเกณฑ์ วิธีการ และเงื่อนไข'
                                     'ที่อธิบดีประกาศกำหนด', 3.4)
        page.choice('profitXVar', LEFT + 8, y + 18, 'กำไรสุทธิที่ต้องเสียภาษี')
        page.choice('loseXVar', LEFT + 60, y + 18, 'ขาดทุนสุทธิ')
        page.text(TAX - 14, y + 18, 'จำนวนเงิน', 3.4, anchor='end')
        page.moneyBox('boiTextVar', TAX - 11, y + 13.2, AMOUNT + 1, 7.2)
    return y + 26


def rates(page, y):
    with page.group('rates'):
        page.band(LEFT, y, WIDTH, 'อัตราภาษีที่ใช้คำนวณตามข้อ', 7)
        y += 15
        bottom = y
        for half, part in enumerate((RATES[:4], RATES[4:])):
            line = y
            for number, caption in part:
                page.text(LEFT + 8 + half * 93, line, number, 3.3, True)
                page.text(LEFT + 20 + half * 93, line, caption, 3.2, pitch=4.6)
                line += 8.2 + caption.count('|') * 4.6
            bottom = max(bottom, line)
    return bottom + 1.5


def main():
    page = Page('rptLodgeAttachPage', f'ใบแนบ {FORM} กระดาษทำการของรายการที่ 2')
    y = page.head(None, f'ใบแนบ {FORM} - กระดาษทำการบันทึกกำไรสุทธิและภาษีตามอัตราภาษี')
    y = columns(page, y)
    y = worksheet(page, y)
    y = bothBusinesses(page, y)
    y = rates(page, y)
    page.certificate(y)
    page.foot('ใบแนบ กระดาษทำการ')
    page.save()


if __name__ == '__main__':
    main()
