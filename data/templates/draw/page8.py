#!/usr/bin/env python3
"""Page 8: the filer's statement about the business, the auditor's remark and who signs for both."""
from paper import FORM, FORM_TITLE, LEFT, RIGHT, WIDTH, Page

# Each question: its text, the two boxes with what they say, which box asks for a reason, the reason's slot.
QUESTIONS = (
    ('1. กิจการขายสินค้า บริการ หรือทรัพย์สิน โดยไม่มีค่าตอบแทน หรือมีค่าตอบแทนต่ำกว่าราคาตลาดโดยไม่มีเหตุอันสมควร',
     (('lblFld08', 'ไม่มี'), ('lblFld06', 'มี เพราะ')), 'lblFld07'),
    ('2. กิจการซื้อทรัพย์สินในราคาสูงกว่าราคาตลาดโดยไม่มีเหตุอันสมควร',
     (('lblFld11', 'ไม่มี'), ('lblFld09', 'มี เพราะ')), 'lblFld10'),
    ('3. กิจการตั้งเจ้าหนี้หรือลูกหนี้โดยไม่มีตัวตน หรือมีตัวตนแต่ไม่ได้เป็นหนี้กันจริง',
     (('lblFld14', 'ไม่มี'), ('lblFld12', 'มี เพราะ')), 'lblFld13'),
    ('4. กิจการเกิดผลขาดทุนสุทธิติดต่อกันเกินกว่า 3 รอบระยะเวลาบัญชี',
     (('lblFld17', 'ไม่มี'), ('lblFld15', 'มี เพราะ')), 'lblFld16'),
    ('5. การหักภาษี ณ ที่จ่าย และนำส่งภาษี กิจการได้ดำเนินการครบถ้วนแล้วหรือไม่',
     (('lblFld18', 'ได้ดำเนินการครบถ้วนแล้ว'), ('lblFld19', 'ไม่ได้ดำเนินการ เพราะ')), 'lblFld20'),
)

REASON_LINES = 2
LINE = 6.9


def paragraph(page, name, y, lines):
    """Dotted lines over the page's width for a text that wraps; y is where the first of them begins."""
    for n in range(lines):
        page.dots(LEFT + 8, RIGHT - 4, y + (n + 1) * LINE - .9)
    page.slot(name, LEFT + 8, y, WIDTH - 12, lines * LINE, lines=lines)
    return y + lines * LINE


def period(page, y):
    with page.group('period'):
        page.text(LEFT + 3, y + 7, 'รอบระยะเวลาบัญชี', 3.6, True)
        page.day(('lblFld00', 'lblFld01', 'lblFld02'), LEFT + 36, y + 7, 'ตั้งแต่วันที่', 16, 77)
        page.day(('lblFld03', 'lblFld04', 'lblFld05'), LEFT + 115, y + 7, 'ถึงวันที่', 12, 68)
    return y + 11


def question(page, y, number, caption, boxes, reason):
    with page.group(f'question-{number}'):
        page.band(LEFT, y, WIDTH, caption, 6, 3.4)
        y += 6
        for n, (box, answer) in enumerate(boxes):
            page.choice(box, LEFT + 8 + n * 60, y + 5.4, answer)
        return paragraph(page, reason, y + 7.4, REASON_LINES) + 2.4


def remark(page, y):
    with page.group('remark'):
        page.band(LEFT, y, WIDTH, 'หมายเหตุของผู้สอบบัญชี / ผู้ตรวจสอบและรับรองบัญชี', 6, 3.4)
        y += 7
        for name, lines in (('lblFld21', 1), ('lblFld21_1', 2), ('lblFld22', 1), ('lblFld22_1', 2)):
            y = paragraph(page, name, y, lines)
    return y + 2.4


def signatures(page, y):
    with page.group('signature'):
        page.line(LEFT, y, RIGHT, y, .5)
        page.text(LEFT + 3, y + 6.4, 'ข้าพเจ้าขอแจ้งข้อความข้างต้น และขอรับรองว่าถูกต้องตามความเป็นจริงทุกประการ', 3.5, True)
        page.signature(LEFT + 6, y + 18, 68, 'กรรมการหรือผู้เป็นหุ้นส่วนหรือผู้จัดการ', 10)
        page.stamp(LEFT + 93, y + 22)
        page.signature(RIGHT - 76, y + 18, 70, 'ผู้สอบบัญชี / ผู้ตรวจสอบและรับรองบัญชี', 10)
        page.day(('lblFld23', 'lblFld24', 'lblFld25'), LEFT + 48, y + 44.5, 'วันที่', 10, 90)


def main():
    page = Page('rptLodgePage8', f'{FORM_TITLE} {FORM} หน้า 8')
    y = page.head(8, 'แบบแจ้งข้อความของกรรมการ หรือผู้เป็นหุ้นส่วน หรือผู้จัดการ')
    y = period(page, y)
    for number, (caption, boxes, reason) in enumerate(QUESTIONS, 1):
        y = question(page, y, number, caption, boxes, reason)
    y = remark(page, y)
    signatures(page, y)
    page.foot(8)
    page.save()


if __name__ == '__main__':
    main()
