#!/usr/bin/env python3
"""Draws all ten report templates anew."""
import attach
import ihq
import page1
import page2
import page3
import page4
import page5
import page6
import page7
import page8

for sheet in (page1, page2, page3, page4, page5, page6, page7, page8, ihq, attach):
    sheet.main()
