"""Menus to begin with: what a Wine machine really has, as the readable text that menutext packs."""

# Title and icon of each button, then its entries: title, Windows path (or command), icon. An entry
# whose program or folder is not there is left out; None is a separator.
BUTTONS = [
    ("Programs", r"\icons\programs.ico", [
        ("Notepad", r"C:\windows\notepad.exe"),
        ("WordPad", r"C:\Program Files\Windows NT\Accessories\wordpad.exe"),
        ("Clock", r"C:\windows\system32\clock.exe"),
        ("Mines", r"C:\windows\system32\winemine.exe"),
        None,
        ("Internet Explorer", r"C:\Program Files\Internet Explorer\iexplore.exe"),
        ("Command Prompt", r"C:\windows\system32\cmd.exe"),
    ]),
    ("Settings", r"\icons\settings.ico", [
        ("Control Panel", r"C:\windows\system32\control.exe"),
        ("Wine Configuration", r"C:\windows\system32\winecfg.exe"),
        ("Add & Remove Programs", r"C:\windows\system32\uninstaller.exe"),
        None,
        ("Task Manager", r"C:\windows\system32\taskmgr.exe"),
        ("Registry Editor", r"C:\windows\regedit.exe"),
    ]),
    ("Places", r"\icons\folder.ico", [
        ("Drive C", "C:\\"),
        ("Windows", r"C:\windows"),
        ("Program Files", r"C:\Program Files"),
        None,
        ("Corvelle's Folder", r"C:\Corvelle"),
        ("Corvelle's Menus", r"C:\Corvelle\Menus"),
    ]),
    ("Documents", r"\icons\documents.ico", [
        ("Read Me", r"C:\Corvelle\readme.txt"),
        ("Windows Settings", r"C:\windows\win.ini"),
    ]),
]

FOLDER_ICON = r"\icons\folder.ico"
SEPARATOR = ("Separator", "MenuLineSeparator", "")


def place_of(drive, windows_path):
    """The file of this machine that a path on C: stands for."""
    return drive.joinpath(*windows_path.split("\\")[1:])


def library_menu(drive):
    """Every program of the Windows folder: a menu too tall for one page."""
    system = place_of(drive, r"C:\windows\system32")
    paths = sorted(system.glob("*.exe"), key=lambda path: path.name.lower())
    return [(path.stem, "C:\\windows\\system32\\" + path.name) for path in paths]


def escaped(text):
    return text.replace("\\", "\\\\")


def block(title, icon, command):
    return f"title: {escaped(title)}\nicon: {escaped(icon)}\ncommand: {escaped(command)}\n"


def present(drive, entries):
    """The entries that are there, without separators at the ends or side by side."""
    kept = []
    for entry in entries:
        if entry is None:
            if kept and kept[-1] is not None:
                kept.append(None)
        elif place_of(drive, entry[1]).exists():
            kept.append(entry)
    return kept[:-1] if kept and kept[-1] is None else kept


def menus(drive):
    """The text of each menu file, in order. A button without an entry is left out."""
    texts = []
    for title, icon, entries in [*BUTTONS, ("All Programs", r"\icons\tools.ico", library_menu(drive))]:
        blocks = [block(title, icon, "")]
        for entry in present(drive, entries):
            if entry is None:
                blocks.append(block(*SEPARATOR))
            else:
                is_folder = place_of(drive, entry[1]).is_dir()
                blocks.append(block(entry[0], FOLDER_ICON if is_folder else entry[1], entry[1]))
        if len(blocks) > 1:
            texts.append("\n".join(blocks))
    return texts
