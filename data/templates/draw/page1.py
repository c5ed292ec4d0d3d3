#!/usr/bin/env python3
"""Page 1: who files, for which period, in which way, and who answers for the accounts."""
from paper import BAND, FORM, FORM_TITLE, LEFT, OFFICE, RIGHT, TOP, WIDTH, Page

HALF = LEFT + WIDTH / 2

# `|` starts a further line.
STATUSES = (
    ('lblFld12', '(1) บริษัทหรือห้างฯ ที่ตั้งขึ้นตามกฏหมายไทย'),
    ('lblFld15', '(2) บริษัทหรือห้างฯ ที่ตั้งขึ้นตามกฏหมายของต่างประเทศ|และกระทำกิจการในประเทศไทย'),
    ('lblFld16', '(3) นิติบุคคลอื่นที่ตั้งขึ้นตามกฏหมายของต่างประเทศ'),
    ('lblFld17', '(4) กิจการของรัฐบาลต่างประเทศ หรือองค์การของรัฐบาลต่างประเทศ'),
    ('lblFld18', '(5) กิจการร่วมค้า'),
    ('lblFld22', '(6) กิจการนำเข้าส่งออกที่ได้รับอนุญาตจากกระทรวงพลังงาน|ให้ค้าน้ำมันเชื้อเพลิง'),
    ('ChkBox12', '(7) กิจการศูนย์กลางการจัดหาสินค้าเพื่อการผลิตระหว่างประเทศ'),
    ('ROH_Flag', '(8) กิจการสำนักงานปฎิบัติการภูมิภาค (ROH)'),
    ('IHQ_Flag', '(9) กิจการสำนักงานใหญ่ข้ามประเทศ (IHQ)'),
    ('ecoFlag_584', '(10) กิจการตั้งอยู่ในเขตพัฒนาพิเศษเฉพาะกิจ ตาม พ.ร.ฎ. (ฉบับที่ 584)'),
    ('ecoFlag_591', '(11) กิจการตั้งอยู่ในเขตพัฒนาเศรษฐกิจพิเศษ ตาม พ.ร.ฎ. (ฉบับที่ 591)'),
    ('OneAcc_Indc', '(12) กิจการ SMEs ที่จดแจ้งขอเป็นผู้ประกอบการบัญชีชุดเดียว'),
    ('lblFld20', '(13) กิจการขนส่งสินค้าทางทะเลระหว่างประเทศ'),
    ('Social_Indc', '(14) กิจการวิสาหกิจเพื่อสังคม'),
    ('NStart_Indc', '(15) กิจการส่งเสริมผู้ประกอบการรายใหม่'),
    ('ITC_Flag', '(16) กิจการค้าระหว่างประเทศ'),
    ('NStart_Indc_s', '(17) กิจการส่งเสริมผู้ประกอบการรายใหม่ (New Start-up)|ในเขตพัฒนาพิเศษเฉพาะกิจ'),
    ('Other_Indc', '(18) กิจการอื่นที่มิได้ระบุไว้'),
)

# Statuses that only returns of earlier years can carry; the desk no longer offers them.
FORMER_STATUSES = (
    (0, 0, 'lblFld13', 'บริษัทจดทะเบียนกับตลาดหลักทรัพย์'),
    (63, 0, 'lblFld14', 'บริษัทจดทะเบียนกับตลาดหลักทรัพย์เอ็มเอไอ'),
    (126, 0, 'lblFld19', 'กิจการวิเทศธนกิจ'),
    (0, 1, 'lblFld21', 'กิจการสำนักงานปฎิบัติการภูมิภาค'),
    (63, 1, 'ChkBox09', 'โครงการลดการปล่อยก๊าซเรือนกระจก'),
    (126, 1, 'lblFld44', 'เขตพัฒนาพิเศษเฉพาะกิจ (584)'),
)

AUDIT = (
    (3, '(1) ไม่มีเงื่อนไข'), (33, '(2) มีเงื่อนไข'), (60, '(3) ไม่แสดงความคิดเห็น'),
    (98, '(4) ไม่ถูกต้อง'), (128, '(5) ไม่มีข้อยกเว้น'), (158, '(6) มีข้อยกเว้น'),
)

REFUND = ('มีความประสงค์จะขอคืนเงินภาษีที่ชำระไว้เกิน', 'ไม่มีความประสงค์จะขอคืนเงินภาษีที่ชำระไว้เกิน')


def title(page):
    with page.group('heading'):
        page.frame()
        page.rect(LEFT + 3, TOP + 2.5, 22, 18, .35)
        page.circle(LEFT + 14, TOP + 11.5, 6.6)
        page.path('M26 16.2l1.6 3.5 3.8 0.4-2.9 2.6 0.9 3.8-3.4-2-3.4 2 0.9-3.8-2.9-2.6 3.8-0.4z')
        page.text(LEFT + 30, TOP + 9, FORM_TITLE, 6.3, True)
        page.text(LEFT + 30, TOP + 15, 'สำหรับบริษัทหรือห้างหุ้นส่วนนิติบุคคล', 4)
        page.text(LEFT + 30, TOP + 20.2, 'รอบระยะเวลาบัญชีที่เริ่มในปี พ.ศ. 2560 และ พ.ศ. 2561', 3.5)
        page.rect(RIGHT - 43, TOP + 2.5, 40, 12.5, .6)
        page.text(RIGHT - 23, TOP + 11.7, FORM, 9, True, 'middle')
        page.text(RIGHT - 23, TOP + 20.2, 'Version 2561.00', 3.2, anchor='middle')
        page.line(LEFT, TOP + 23, RIGHT, TOP + 23, .5)


def filer(page, y):
    with page.group('filer'):
        page.text(LEFT + 3, y + 6, 'เลขประจำตัวผู้เสียภาษีอากร', 3.6, True)
        page.comb('lblFld100', LEFT + 3, y + 10)
        page.line(LEFT + 76, y, LEFT + 76, y + 22)
        page.text(LEFT + 79, y + 6, 'รอบระยะเวลาบัญชี', 3.6, True)
        page.day(('lblFld01', 'lblFld02', 'lblFld03'), LEFT + 79, y + 12.6, 'ตั้งแต่วันที่', 20, 104)
        page.day(('lblFld04', 'lblFld05', 'lblFld06'), LEFT + 79, y + 19.4, 'ถึงวันที่', 20, 104)
        page.line(LEFT, y + 22, RIGHT, y + 22, .35)
        page.text(LEFT + 3, y + 27, 'การยื่นแบบ', 3.6, True)
        page.choice('lblFld07', LEFT + 32, y + 27, '(1) ยื่นปกติ')
        page.choice('lblFld09', LEFT + 66, y + 27, '(2) ยื่นเพิ่มเติม ครั้งที่')
        page.written('lblFld10', LEFT + 102, y + 27, 13, 'middle', height=5)
        page.choice('lblFld08', LEFT + 130, y + 27, '(3) ชำระล่วงหน้า')


def statuses(page, y):
    with page.group('status'):
        page.band(LEFT, y, WIDTH, 'สถานภาพของบริษัทหรือห้างหุ้นส่วนนิติบุคคล', 5.6)
        for column in range(2):
            line = y + 9.5
            for name, caption in STATUSES[column * 9:column * 9 + 9]:
                page.choice(name, LEFT + 3 + column * 91, line, caption, 3.1, pitch=4.15, within=83)
                line += 4.65 + 4.15 * caption.count('|')
    with page.group('columns'):
        y += 56.2
        page.line(LEFT, y, RIGHT, y)
        page.rect(LEFT, y, 48, 7, .25, BAND)
        page.text(LEFT + 2, y + 4.8, 'ช่องที่ต้องการจะกรอกข้อมูล', 3.6, True)
        page.choice('enableTab1', LEFT + 52, y + 4.7, 'ช่อง 1 กิจการที่ได้รับยกเว้นภาษีเงินได้')
        page.choice('enableTab2', LEFT + 120, y + 4.7, 'ช่อง 2 กิจการที่ต้องเสียภาษีเงินได้')


def businesses(page, y):
    with page.group('businesses'):
        page.band(LEFT, y, WIDTH - 34, 'กิจการที่ประกอบ', 5.6)
        page.band(RIGHT - 34, y, 34, 'ISIC Code', 5.6, 3.4)
        for n in range(3):
            line = y + 10.9 + n * 6.7
            page.text(LEFT + 3, line, f'{n + 1}.')
            page.written(f'lblFld{23 + 2 * n}', LEFT + 9, line, WIDTH - 46, height=6.2)
            page.comb(f'lblFld{24 + 2 * n}', RIGHT - 31, line - 4.6, (6,), 4.6, 6)


def tax(page, y):
    with page.group('tax'):
        page.band(LEFT, y, 93, 'ภาษีที่ต้องชำระ', 5.6)
        page.band(HALF, y, 93, 'การขอคืนเงินภาษี', 5.6)
        page.line(HALF, y, HALF, y + 19.8)
        for n, (name, caption) in enumerate((('lblFld29', 'ชำระเพิ่มเติม'), ('lblFld30', 'ชำระไว้เกิน'))):
            base = y + 11 + n * 6.6
            page.text(LEFT + 3, base, caption)
            page.moneyBox(name, LEFT + 30, base - 4.2, 50, 5.8, 4)
            page.choice(f'Cash_Refund.{n + 1}', HALF + 3, base, REFUND[n])


def audit(page, y):
    with page.group('audit-report'):
        page.band(LEFT, y, 125, 'รายงานของผู้สอบบัญชีรับอนุญาต', 5.6)
        page.band(LEFT + 125, y, 61, 'รายงานการตรวจสอบและรับรองบัญชี', 5.6)
        page.line(LEFT + 125, y, LEFT + 125, y + 11.4)
        for n, (x, caption) in enumerate(AUDIT):
            page.choice(f'Audit.{n + 1}', LEFT + x, y + 9.9, caption, 3.2, 4.6)


def accountants(page, y):
    people = (
        (LEFT, 'ผู้สอบบัญชี / ผู้ตรวจสอบและรับรองบัญชี', 'lblFld31', 'lblFld32', 'lblFld101'),
        (HALF, 'ผู้ทำบัญชี', 'lblFld38', 'lblFld39', 'lblFld102'),
    )
    with page.group('accountants'):
        for x, caption, number, name, office in people:
            page.band(x, y, 93, caption, 5.6)
            page.text(x + 3, y + 10.6, 'เลขประจำตัว', 3.2)
            page.comb(number, x + 25, y + 6.5, cell=4.35, height=5.6)
            page.text(x + 3, y + 16.3, 'ชื่อ', 3.2)
            # A name may have 150 letters besides its title.
            page.written(name, x + 11, y + 21.5, 79, size=3.4, height=10.4, lines=2)
            page.text(x + 3, y + 27.3, 'สำนักงาน', 3.2)
            page.comb(office, x + 25, y + 23.3, cell=4.35, height=5.6)
        page.text(LEFT + 3, y + 33.6, 'เลขทะเบียน', 3.2)
        page.written('lblFld35', LEFT + 25, y + 33.6, 21, 'middle', height=5.8)
        page.text(LEFT + 48, y + 33.6, 'วันที่ในรายงาน', 3.2)
        page.written('lblFld37', LEFT + 69, y + 33.6, 21, 'middle', height=5.8)
        page.text(HALF + 3, y + 33.6, 'เว็บไซต์', 3.2)
        page.written('Website', HALF + 25, y + 33.6, 65, height=5.8)
        page.line(HALF, y, HALF, y + 35.6)


def former(page, y):
    with page.group('former-data'):
        page.band(LEFT, y, WIDTH, 'ข้อมูลตามแบบเดิมและแฟ้มข้อมูล', 5.6, 3.4)
        numbers = (
            (LEFT + 3, 'ผู้เสียภาษี', 'lblFld00'),
            (LEFT + 66, 'สำนักงานสอบบัญชี', 'lblFld36'),
            (LEFT + 129, 'สำนักงานบัญชี', 'lblFld43'),
        )
        for x, caption, name in numbers:
            page.text(x, y + 9.7, f'{caption} (เลขเดิม 10 หลัก)', 3)
            page.comb(name, x, y + 10.9, (1, 4, 4, 1), 4.2, 5, 4)
        page.text(LEFT + 3, y + 20.4, 'ทะเบียนนิติบุคคล', 3)
        page.written('lblFld11', LEFT + 27, y + 20.4, 32, 'middle', 3.4, 5.2)
        page.text(LEFT + 66, y + 20.4, 'รหัสผู้ทำบัญชี', 3)
        page.written('lblFld42', LEFT + 86, y + 20.4, 24, 'middle', 3.4, 5.2)
        for x, row, name, caption in FORMER_STATUSES:
            page.choice(name, LEFT + 3 + x, y + 25.5 + row * 4.6, caption, 3)
        page.text(LEFT + 3, y + 35, 'แฟ้มข้อมูล', 3)
        page.written('Path_File', LEFT + 20, y + 35, WIDTH - 23, size=3.2, height=5)


def signatures(page, y):
    with page.group('signature'):
        page.line(LEFT, y, RIGHT, y, .5)
        page.text(LEFT + 3, y + 5.4, 'ข้าพเจ้าขอรับรองว่า รายการที่แสดงไว้ในแบบนี้ถูกต้องและครบถ้วนทุกประการ', 3.5, True)
        page.signature(LEFT + 3, y + 13, 78, space=8.4)
        page.text(LEFT + 3, y + 28, 'ตำแหน่ง')
        page.dots(LEFT + 17, LEFT + 46, y + 28.8)
        page.text(LEFT + 48, y + 28, 'วันที่')
        page.dots(LEFT + 56, LEFT + 78, y + 28.8)
        page.stamp(LEFT + 108, y + 18.6, 10.4)
        page.rect(LEFT + 130, y + 7.5, 53, 21.5, .35, OFFICE)
        page.text(LEFT + 156.5, y + 12.6, 'สำหรับเจ้าหน้าที่', 3.4, True, 'middle')
        page.text(LEFT + 133, y + 19.2, 'เลขที่รับ', 3.1)
        page.dots(LEFT + 146, LEFT + 180, y + 19.8)
        page.text(LEFT + 133, y + 25.6, 'วันที่รับ', 3.1)
        page.dots(LEFT + 146, LEFT + 180, y + 26.2)


def main():
    page = Page('rptLodgePage1', f'{FORM_TITLE} {FORM} หน้า 1')
    title(page)
    filer(page, 33)
    statuses(page, 62.4)
    businesses(page, 125.6)
    tax(page, 151.8)
    audit(page, 171.6)
    accountants(page, 183)
    former(page, 218.6)
    signatures(page, 255.9)
    page.foot(1)
    page.save()


if __name__ == '__main__':
    main()
