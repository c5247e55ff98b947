#!/usr/bin/python3
"""Makes the workbooks that openpyxl and xlwt write (see README.md)."""
import datetime

import openpyxl
import xlwt


def de_openpyxl():
    """Starts with a chart sheet; inline text, a date by its ISO text, a gap in column A."""
    libro = openpyxl.Workbook()
    libro.iso_dates = True
    hoja = libro.active
    hoja.append([1.5, "compartido", datetime.datetime(2024, 2, 29, 12, 0), True])
    hoja.append([2.5, "en línea €", datetime.datetime(1900, 2, 28), "#N/A"])
    hoja.append([3.5, None, -0.001, "x < y & z"])
    hoja["A5"] = 5.5
    libro.create_chartsheet("Grafico", 0)
    libro.save("openpyxl.xlsx")


def vacio():
    openpyxl.Workbook().save("vacio.xlsx")


def de_xlwt():
    """Text i is "río i" or, every third, "Ω" and i dots, so that the table of texts goes on in several records at all
    sorts of places, some in the middle of a text."""
    libro = xlwt.Workbook()
    hoja = libro.add_sheet("Datos")
    negrita = xlwt.easyfont("bold on")
    for i in range(300):
        hoja.write(i, 0, i / 4)
        hoja.write(i, 1, "Ω" + "." * i if i % 3 == 0 else f"río {i}")
        hoja.write_rich_text(i, 2, [("rico ", negrita), str(i)])
        hoja.write(i, 3, i % 2 == 0)
    libro.save("xlwt.xls")


de_openpyxl()
vacio()
de_xlwt()
