"""The pictures of the icon library, composed from one palette and one set of shapes."""

from iconart import (arrows, devices, documents, folders, people, places, programs, symbols, tools)

CATEGORIES = {
    "Arrows": arrows.ICONS,
    "Devices": devices.ICONS,
    "Documents": documents.ICONS,
    "Folders": folders.ICONS,
    "People": people.ICONS,
    "Places": places.ICONS,
    "Programs": programs.ICONS,
    "Symbols": symbols.ICONS,
    "Tools": tools.ICONS,
}
