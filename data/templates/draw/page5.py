#!/usr/bin/env python3
"""Draws page 5: items 8 and 9 whole, and eight lines of item 10."""
import lines
import schedule


def main():
    page, y = schedule.open_(5)
    schedule.fill(page, y, (
        schedule.Table(8, lines.ITEM8),
        schedule.Table(9, lines.ITEM9),
        schedule.Table(10, lines.ITEM10_SHORT, '(บางข้อ ดูหน้า 6)'),
    ))
    page.save()


if __name__ == '__main__':
    main()
