#!/usr/bin/python3
"""Saves mezcla.fods with a password through LibreOffice, which must listen (see README.md)."""
import os

import uno
from com.sun.star.beans import PropertyValue


def propiedad(nombre, valor):
    return PropertyValue(Name=nombre, Value=valor)


local = uno.getComponentContext()
conector = local.ServiceManager.createInstance("com.sun.star.bridge.UnoUrlResolver")
remoto = conector.resolve("uno:pipe,name=hojas;urp;StarOffice.ComponentContext")
escritorio = remoto.ServiceManager.createInstance("com.sun.star.frame.Desktop")
carpeta = "file://" + os.getcwd() + "/"
libro = escritorio.loadComponentFromURL(carpeta + "mezcla.fods", "_blank", 0, (propiedad("Hidden", True),))
libro.storeToURL(
    carpeta + "protegido.xls", (propiedad("FilterName", "MS Excel 97"), propiedad("Password", "clave"))
)
libro.close(True)
escritorio.terminate()
