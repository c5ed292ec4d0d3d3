#!/usr/bin/env python3
"""Draws page 4: items 5, 6 and 7 whole, and the first lines of item 8."""
import lines
import schedule


def main():
    page, y = schedule.open_(4)
    schedule.fill(page, y, (
        schedule.Table(5, lines.ITEM5),
        schedule.Table(6, lines.ITEM6),
        schedule.Table(7, lines.ITEM7),
        schedule.Table(8, lines.ITEM8_HEAD, '(ข้อ 1. ถึง 14. ดูหน้า 5)'),
    ), size=3.2)
    page.save()


if __name__ == '__main__':
    main()
