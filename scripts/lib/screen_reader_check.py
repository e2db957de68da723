"""Drives the game by keyboard under Xvfb and reads its windows through the accessibility bus
(at-spi), as a screen reader does. Run by scripts/screen-reader-check inside dbus-run-session."""
import os
import re
import subprocess
import sys
import time

import pyatspi
from gi.repository import GLib

WORK = sys.argv[1]
QUICK = "--quick" in sys.argv[2:]

# The roles of what a player reads or uses; containers and fillers may stay nameless.
READ = {
    pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_TOGGLE_BUTTON, pyatspi.ROLE_CHECK_BOX,
    pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_TEXT, pyatspi.ROLE_ENTRY,
    pyatspi.ROLE_LABEL, pyatspi.ROLE_LIST, pyatspi.ROLE_LIST_BOX, pyatspi.ROLE_TABLE,
    pyatspi.ROLE_PROGRESS_BAR, pyatspi.ROLE_IMAGE, pyatspi.ROLE_LINK, pyatspi.ROLE_MENU,
    pyatspi.ROLE_MENU_ITEM, pyatspi.ROLE_CHECK_MENU_ITEM, pyatspi.ROLE_RADIO_MENU_ITEM,
    pyatspi.ROLE_DIALOG, pyatspi.ROLE_FRAME, pyatspi.ROLE_SPIN_BUTTON, pyatspi.ROLE_PAGE_TAB,
    pyatspi.ROLE_NOTIFICATION, pyatspi.ROLE_STATUS_BAR, pyatspi.ROLE_SCROLL_BAR,
}
ITEMS_SHOWN = 4  # of a long list, only the first items are printed
problems = []
procs = []


def spawn(cmd, **kw):
    p = subprocess.Popen(cmd, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **kw)
    procs.append(p)
    return p


def key(*keys):
    subprocess.run(["xdotool", "key", "--delay", "80", *keys], check=True)
    time.sleep(0.6)


def app():
    for _ in range(100):
        desktop = pyatspi.Registry.getDesktop(0)
        for a in desktop:
            if a is not None and a.name == "griglione":
                return a
        time.sleep(0.2)
    sys.exit("the game did not appear on the accessibility bus")


def showing(acc):
    return acc.getState().contains(pyatspi.STATE_SHOWING)


def window(title, tries=50):
    """The showing window whose name contains `title`."""
    for _ in range(tries):
        for w in app():
            if w is not None and title in (w.name or "") and showing(w):
                return w
        time.sleep(0.2)
    problems.append(f"no window named like {title!r}")
    return None


def walk(acc, depth=0, where=""):
    role, name = acc.getRoleName(), (acc.name or "").strip()
    line = "  " * depth + f"{role} {name!r}"
    if acc.description:
        line += f" - {acc.description}"
    if not showing(acc):
        line += " (not shown)"
    try:
        value = acc.queryValue().currentValue
        line += f" = {value:g}"
    except NotImplementedError:
        pass
    print(line)
    here = f"{where}/{role}"
    if acc.getRole() in READ and showing(acc) and not name and not blank(acc, depth):
        problems.append(f"nameless {here}")
    for i, child in enumerate(acc):
        if child is None:
            continue
        if acc.getRole() in (pyatspi.ROLE_LIST, pyatspi.ROLE_LIST_BOX, pyatspi.ROLE_TABLE) \
                and i >= ITEMS_SHOWN:
            print("  " * (depth + 1) + f"... {acc.childCount - ITEMS_SHOWN} more")
            break
        walk(child, depth + 1, here)


def blank(acc, depth):
    """A label that shows nothing, or a frame drawn inside a window: nothing to read."""
    if acc.getRole() == pyatspi.ROLE_FRAME:
        return depth > 0
    if acc.getRole() == pyatspi.ROLE_LABEL:
        try:
            return acc.queryText().characterCount == 0
        except NotImplementedError:  # Qt's labels offer no text to tell by
            return False
    return False


def other_window(main, title="", tries=50):
    """The first showing window of the game, not the main one, whose name holds `title`."""
    for _ in range(tries):
        for w in app():
            if w is not None and showing(w) and w.name != main.name and title in w.name:
                return w
        time.sleep(0.2)
    return None


def visit(main, keys, title, close):
    """Opens a window with `keys`, lists it, closes it with `close`."""
    if keys:
        key(*keys)
    w = other_window(main, title, tries=400 if "Tempo" in title else 50)
    if w is None or title not in w.name:
        problems.append(f"no window named like {title!r} after {keys}")
        return
    print(f"\n=== {w.name}")
    walk(w)
    key(*close)


def show(title):
    w = window(title)
    if w is not None:
        print(f"\n=== {w.name}")
        walk(w)
    return w


def find(acc, test):
    if test(acc):
        return acc
    for child in acc:
        if child is not None:
            found = find(child, test)
            if found is not None:
                return found
    return None


def dice(main):
    """The dice in board order, read from their descriptions."""
    found = {}

    def visit(acc):
        m = re.fullmatch(r"riga (\d), colonna (\d)", acc.description or "")
        if m and acc.getRole() == pyatspi.ROLE_PUSH_BUTTON:
            found[(int(m[1]) - 1) * 5 + int(m[2]) - 1] = acc.name
        for child in acc:
            if child is not None:
                visit(child)
    visit(main)
    if sorted(found) != list(range(25)):
        problems.append(f"the dice are not 25 buttons named in board order: {found}")
    return [found.get(n, "") for n in range(25)]


heard = []  # (event type, name) of the notifications the bus reported


def listen(event):
    try:
        if event.source is not None and event.source.getRole() == pyatspi.ROLE_NOTIFICATION:
            heard.append((event.type, event.source.name or ""))
    except GLib.Error:  # an event of an object gone since, such as a closed message's text
        pass


def pump(seconds=1.0):
    """Lets the bus deliver its events to the listener."""
    end = time.time() + seconds
    context = GLib.MainContext.default()
    while time.time() < end:
        while context.iteration(False):
            pass
        time.sleep(0.05)


def expect_notice(main, start):
    pump()
    if not any(kind.startswith("object:state-changed:showing") and name.startswith(start)
               for kind, name in heard):
        problems.append(f"the bus reported no notification starting {start!r}")
    notice = find(main, lambda a: a.getRole() == pyatspi.ROLE_NOTIFICATION)
    if notice is None or not notice.name.startswith(start) or not showing(notice):
        problems.append(f"no announcement starting {start!r}")
    else:
        print(f"\nannounced: {notice.name!r}")
        print("events:", "; ".join(f"{kind} {name[:30]!r}" for kind, name in heard))


def main():
    display = next(f":{n}" for n in range(150, 200) if not os.path.exists(f"/tmp/.X{n}-lock"))
    os.environ["DISPLAY"] = display
    spawn(["Xvfb", display, "-screen", "0", "1024x768x24", "-nolisten", "tcp"])
    time.sleep(1.5)
    spawn(["openbox"])
    for launcher in ("/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher"):
        if os.path.exists(launcher):
            spawn([launcher, "--launch-immediately"])
    time.sleep(1.5)
    # The walk finds windows and keys by their Italian texts, so the interface is the Italian one.
    env = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb",
               LANGUAGE="it", LC_ALL="it_IT.UTF-8")
    spawn([os.path.join(WORK, "griglione")], cwd=WORK, env=env)
    app()
    main_window = show("Il Griglione - Dizionario")
    if main_window is None:
        return
    if set(dice(main_window)) != {"vuoto"}:
        problems.append("the blank board's dice are not all named 'vuoto'")

    key("F2")  # a match at once, the focus on the board
    letters = dice(main_window)
    print("\nboard:", " ".join(letters))
    if not all(re.fullmatch("[A-Z]", x) for x in letters):
        problems.append("a die is not named by its letter")
    key(letters[0].lower(), letters[1].lower())
    word = find(main_window, lambda a: (a.name or "").startswith("Parola composta:"))
    if word is None or word.name != f"Parola composta: {letters[0]}{letters[1]}":
        problems.append("the typed word is not read as 'Parola composta: ...'")
    pyatspi.Registry.registerEventListener(listen, "object:state-changed:showing")
    key("Return")
    show("Il Griglione - Parola troppo corta!")
    expect_notice(main_window, "Parola troppo corta!")
    key("Return")  # closes the message

    key(*(x.lower() for x in letters[:3]), "Return")  # a word known or not
    w = other_window(main_window)
    if w is not None:  # the unknown word is not added; a known one gets its message
        visit(main_window, [], w.name, ["alt+o"] if "Conferma" in w.name else ["Return"])

    for keys, title, close in ((["F7"], "Informazioni dizionario", ["Return"]),
                               (["F5"], "Hiscores Table", ["Escape"]),
                               (["F4"], "Informazioni su", ["Escape"]),
                               (["F6"], "Edit vocabolario personale", ["alt+t"]),
                               (["ctrl+F6"], "Dizionario principale", ["alt+u"])):
        visit(main_window, keys, title, close)

    if not QUICK:
        key("F2")
        print("\nwaiting for the end of the 60-second match ...", flush=True)
        visit(main_window, [], "Tempo scaduto", ["alt+p"])
        visit(main_window, [], "Parole del tabellone", ["Escape"])
        key("alt+o")

    show("Il Griglione - Dizionario")


try:
    main()
finally:
    for p in reversed(procs):
        p.terminate()
    for p in procs:
        try:
            p.wait(timeout=5)
        except subprocess.TimeoutExpired:
            p.kill()

if problems:
    print("\nFAILED:\n  " + "\n  ".join(problems))
    sys.exit(1)
print("\nevery control a player reads or uses has a name")
