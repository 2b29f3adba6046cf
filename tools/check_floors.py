#!/usr/bin/env python3
"""Checks the floors of the house.

  tools/check_floors.py [ROOT]

- A file below src/ includes files of its own folder and of the floors below it, written from src/, and
  never one above; and the files of src/ never include each other in a circle.
- windows.h and its like are included below src/win32/ and in the tests that run on Windows only.
- Scale belongs to the window (forms::Window::Dpi): nothing below src/ but the window system asks for the scale of a
  monitor, of the system or of nothing in particular.
- Every *_test.cpp lies in a folder whose test program takes it.

Says each breach on a line of its own and ends with 1 when there is one.
"""

import pathlib
import re
import sys

# Each folder of src/ with the folders that it may include besides itself; a folder stands for those in it, too. "." is
# main.cpp.
FLOORS = {
    "base": [],
    "platform": ["base"],
    "forms": ["base", "platform"],
    "desk": ["base", "platform", "forms"],
    "core": ["base", "platform", "forms", "desk"],
    "launch": ["base", "platform", "forms", "desk", "core"],
    "icons": ["base", "platform", "forms", "desk", "core"],
    "shell": ["base", "platform", "forms", "desk", "core"],
    "toolbar/layout": ["base", "platform", "forms", "desk", "core", "icons"],
    "toolbar/notices": ["base", "platform", "forms", "desk", "core"],
    "toolbar/companion": ["base", "platform", "forms", "desk", "core", "launch", "icons", "shell", "toolbar/layout"],
    "toolbar/docking": ["base", "platform", "forms", "desk", "core", "toolbar/layout"],
    "toolbar/singles": ["base", "platform", "forms", "desk", "core", "launch", "icons", "shell", "toolbar/layout",
                        "toolbar/docking"],
    "toolbar/strip": ["base", "platform", "forms", "desk", "core", "launch", "icons", "shell", "toolbar/layout",
                      "toolbar/notices", "toolbar/companion", "toolbar/docking", "toolbar/singles"],
    "menus/items": ["base", "platform", "forms", "desk", "core", "launch", "icons", "shell"],
    "menus/folders": ["base", "platform", "forms", "desk", "core", "launch", "icons", "shell", "menus/items"],
    "menus/icons": ["base", "platform", "forms", "desk", "core", "launch", "icons", "shell", "menus/items",
                    "menus/folders"],
    "menus/window": ["base", "platform", "forms", "desk", "core", "launch", "icons", "shell", "menus/items",
                     "menus/folders", "menus/icons"],
    "customize": ["base", "platform", "forms", "desk", "core", "launch", "icons", "shell"],
    "library": ["base", "platform", "forms", "desk", "core", "launch", "icons", "shell"],
    "properties": ["base", "platform", "forms", "desk", "core", "launch", "icons", "shell", "menus"],
    "search": ["base", "platform", "forms", "desk", "core", "launch", "icons", "shell"],
    "weblink": ["base", "platform", "forms", "desk", "core", "launch", "icons", "shell"],
    "about": ["base", "platform", "forms", "desk", "core", "launch", "icons", "shell", "toolbar", "menus"],
    "program": ["base", "platform", "forms", "desk", "core", "launch", "icons", "shell", "toolbar", "menus",
                "customize", "library", "properties", "search", "weblink", "about"],
    "win32": ["base", "platform", "forms"],
}
MAIN = sorted(FLOORS)
WINDOWS_PLACES = ("src/win32/", "tests/e2e/")
WINDOWS_HEADERS = {"windows.h", "windowsx.h", "winuser.h", "wingdi.h", "winbase.h", "windef.h", "winreg.h",
                   "commctrl.h", "commoncontrols.h", "shellapi.h", "shlobj.h", "shlwapi.h", "shobjidl.h",
                   "shlguid.h", "objbase.h", "ole2.h", "oleidl.h", "ddeml.h", "dde.h", "commdlg.h",
                   "tlhelp32.h", "dbghelp.h", "versionhelpers.h"}
# What tells a scale that belongs to no window, and the places that may ask for it.
SCALE = re.compile(r"\b(LOGPIXELS[XY]|GetDpiFor\w+|GetScaleFactorForMonitor|DpiAt|kPlainDpi|1440"
                   r"|GetSystemMetrics\(\s*SM_C[XY](?!SCREEN|VIRTUALSCREEN)\w+)")
SCALE_PLACES = ("src/forms/",
                "src/win32/MonitorScale.cpp",
                "src/win32/Win32WindowSystem.",
                # The lists of icons that the system keeps have the system's scale.
                "src/win32/Win32ShellIcons.cpp")
COMMENT = re.compile(r"//.*")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
SOURCES = {".h", ".cpp", ".inl"}


def includes(path):
    """The includes of a file as (quote, name, line)."""
    text = path.read_text(encoding="utf-8", errors="replace")
    return [(found.group(1), found.group(2), text.count("\n", 0, found.start(2)) + 1)
            for found in INCLUDE.finditer(text)]


def files_below(folder):
    return sorted(path for path in folder.rglob("*") if path.suffix in SOURCES and path.is_file())


def covers(floor, folder):
    """True if a file in that folder, as its parts, belongs to the floor."""
    parts = floor.split("/")
    return list(folder[:len(parts)]) == parts


def floor_of(folder):
    """The floor to which a folder of src/, as its parts, belongs; None for none."""
    return next((floor for floor in FLOORS if covers(floor, folder)), None)


def check_source_file(path, source):
    """Breaches of one file of src/, and the files of src/ that it includes."""
    breaches, edges = [], []
    name = path.relative_to(source)
    folder = name.parts[:-1]
    floor = floor_of(folder) if folder else "."
    if floor is None:
        return [f"src/{name}: {'/'.join(folder)} is no floor of the house"], []
    allowed = MAIN if floor == "." else [floor, *FLOORS[floor]]
    for quote, included, line in includes(path):
        if quote != '"':
            continue
        where = f"src/{name}:{line}"
        # The build makes a header from its pattern.
        if not (source / included).is_file() and not (source / f"{included}.in").is_file():
            breaches.append(f'{where}: "{included}" is not a file below src/')
            continue
        target = pathlib.PurePosixPath(included)
        if ".." in target.parts:
            breaches.append(f'{where}: "{included}" is not written from src/')
            continue
        if not any(covers(each, target.parts[:-1]) for each in allowed):
            breaches.append(f'{where}: {floor} may not include "{included}"')
        edges.append(str(target))
    return breaches, edges


def find_circles(graph):
    """Each circle of includes once, as the list of its files."""
    state, stack, circles = {}, [], []

    def visit(node):
        state[node] = "open"
        stack.append(node)
        for following in graph.get(node, []):
            if state.get(following) == "open":
                circles.append(stack[stack.index(following):] + [following])
            elif following not in state:
                visit(following)
        stack.pop()
        state[node] = "done"

    for node in sorted(graph):
        if node not in state:
            visit(node)
    return circles


def check_windows_headers(root):
    breaches = []
    for top in ("src", "tests", "bench", "fuzz", "tools"):
        for path in files_below(root / top):
            name = path.relative_to(root).as_posix()
            if name.startswith(WINDOWS_PLACES):
                continue
            for _, included, line in includes(path):
                if pathlib.PurePosixPath(included).name.lower() in WINDOWS_HEADERS:
                    breaches.append(f"{name}:{line}: {included} is included outside src/win32/")
    return breaches


def check_scale(root):
    breaches = []
    for path in files_below(root / "src"):
        name = path.relative_to(root).as_posix()
        if name.startswith(SCALE_PLACES):
            continue
        for number, line in enumerate(path.read_text(encoding="utf-8", errors="replace").split("\n"), 1):
            found = SCALE.search(COMMENT.sub("", line))
            if found:
                breaches.append(f"{name}:{number}: {found.group(1)} is the scale of no window; ask Window::Dpi")
    return breaches


def check_tests_are_built(root):
    """A test folder takes every file in it, so a test is lost only in a folder without a program."""
    lists = [root / "tests" / "CMakeLists.txt", root / "tests" / "windows.cmake"]
    text = "\n".join(path.read_text(encoding="utf-8") for path in lists if path.is_file())
    built = set(re.findall(r"^\s*corvelle_(?:windows_)?tests\(\s*([\w/]+)", text, re.MULTILINE))
    breaches = []
    for path in sorted((root / "tests").rglob("*_test.cpp")):
        folder = path.parent.relative_to(root / "tests").as_posix()
        if folder not in built:
            breaches.append(f"tests/{folder}/{path.name}: no test program takes the folder {folder}")
    return breaches


def check(root):
    """All breaches below ROOT, in the order of the rules."""
    source = root / "src"
    if not source.is_dir():
        return [f"{root}: there is no src/"]
    breaches, graph = [], {}
    for path in files_below(source):
        found, edges = check_source_file(path, source)
        breaches += found
        graph[path.relative_to(source).as_posix()] = edges
    breaches += ["circle of includes: " + " -> ".join(circle) for circle in find_circles(graph)]
    breaches += check_windows_headers(root)
    breaches += check_scale(root)
    breaches += check_tests_are_built(root)
    return breaches


def main():
    here = pathlib.Path(__file__).resolve().parent.parent
    root = pathlib.Path(sys.argv[1]).resolve() if len(sys.argv) > 1 else here
    breaches = check(root)
    for breach in breaches:
        print(breach)
    if breaches:
        print(f"floors: {len(breaches)} breaches")
        return 1
    print(f"floors: {len(files_below(root / 'src'))} files, none breaks the order")
    return 0


if __name__ == "__main__":
    sys.exit(main())
