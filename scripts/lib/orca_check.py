"""What a blind player hears: runs Orca with speech-dispatcher (its silent module) beside the game
under Xvfb, plays a short match by keyboard and checks Orca's own record of what it spoke.
Run by `scripts/screen-reader-check --orca` inside dbus-run-session."""
import os
import re
import shutil
import subprocess
import sys
import time

import pyatspi

WORK = sys.argv[1]
LOG = os.path.join(WORK, "orca-debug.log")
procs = []
problems = []


def spawn(cmd, **kw):
    p = subprocess.Popen(cmd, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **kw)
    procs.append(p)
    return p


def key(*keys, pause=0.8):
    subprocess.run(["xdotool", "key", "--delay", "120", *keys], check=True)
    time.sleep(pause)


def spoken():
    """Every utterance Orca sent to speech so far, in order."""
    try:
        with open(LOG, encoding="utf-8", errors="replace") as f:
            text = f.read()
    except FileNotFoundError:
        return []
    said = re.findall(r"SPEECH OUTPUT: '(.*?)'(?: voice=\w+)? ?(?:\{|None|\n)", text, re.DOTALL)
    # A long utterance goes on over indented lines; a notification is introduced by its role.
    return [re.sub(r"^notification ", "", re.sub(r"\n\s+", " ", u)) for u in said]


def mark():
    return len(spoken())


def since(start):
    return spoken()[start:]


def expect(start, pattern, what, wait=8.0):
    """Fails unless Orca speaks something matching `pattern` after `start` within `wait`."""
    end = time.time() + wait
    while time.time() < end:
        if any(re.search(pattern, u) for u in since(start)):
            return True
        time.sleep(0.2)
    problems.append(f"Orca did not say {what} ({pattern!r}); it said {since(start)[-8:]}")
    return False


def app():
    for _ in range(100):
        for a in pyatspi.Registry.getDesktop(0):
            if a is not None and a.name == "griglione":
                return a
        time.sleep(0.2)
    sys.exit("the game did not appear on the accessibility bus")


def find_all(acc, test, found=None):
    found = [] if found is None else found
    if test(acc):
        found.append(acc)
    for child in acc:
        if child is not None:
            find_all(child, test, found)
    return found


def main_window():
    for w in app():
        if w is not None and (w.name or "").startswith("Il Griglione - Dizionario"):
            return w
    sys.exit("no main window")


def board(main):
    letters = {}
    for acc in find_all(main, lambda a: a.getRole() == pyatspi.ROLE_PUSH_BUTTON
                        and re.fullmatch(r"riga \d, colonna \d", a.description or "")):
        m = re.fullmatch(r"riga (\d), colonna (\d)", acc.description)
        letters[(int(m[1]) - 1) * 5 + int(m[2]) - 1] = acc.name
    return [letters.get(n, "") for n in range(25)]


def cpu_words(main):
    lists = find_all(main, lambda a: a.getRole() in (pyatspi.ROLE_LIST, pyatspi.ROLE_LIST_BOX)
                     and (a.name or "").startswith("Tobia"))
    return {(c.name or "").lower() for lst in lists for c in lst if c is not None and c.name}


def start_speech():
    conf = os.path.join(WORK, "speechd")
    os.makedirs(conf, exist_ok=True)
    # The silent module: speech-dispatcher takes every message and plays no sound card.
    with open(os.path.join(conf, "speechd.conf"), "w") as f:
        f.write('AddModule "dummy" "sd_dummy" ""\nDefaultModule dummy\nLogLevel 3\n'
                'AudioOutputMethod "pulse"\n')
    socket = os.path.join(WORK, "speechd.sock")
    spawn(["speech-dispatcher", "-s", "-t", "0", "-C", conf, "-S", socket, "-L", WORK])
    os.environ["SPEECHD_ADDRESS"] = f"unix_socket:{socket}"
    time.sleep(1)


def start_orca():
    prefs = os.path.join(WORK, "orca-prefs")
    os.makedirs(prefs, exist_ok=True)
    env = dict(os.environ, GSETTINGS_BACKEND="memory", LANGUAGE="it", LC_ALL="it_IT.UTF-8")
    # Orca writes its log through a buffer, which would hold the latest utterances back while
    # the check waits for them: the log file is opened line-buffered instead.
    launch = ("import builtins, runpy, sys\n"
              "plain = builtins.open\n"
              "def opener(file, mode='r', *args, **kw):\n"
              "    if file == sys.argv[-1] and 'w' in mode:\n"
              "        return plain(file, mode, 1, **kw)\n"
              "    return plain(file, mode, *args, **kw)\n"
              "builtins.open = opener\n"
              "runpy.run_path('/usr/bin/orca', run_name='__main__')\n")
    spawn(["/usr/bin/python3", "-c", launch, "-u", prefs, "--debug-file", LOG], env=env)
    for _ in range(100):
        try:
            with open(LOG, encoding="utf-8", errors="replace") as f:
                if "SPEECH: Initialized" in f.read():
                    time.sleep(2)
                    return
        except FileNotFoundError:
            pass
        time.sleep(0.2)
    sys.exit("Orca did not start")


def missing_letter(letters):
    return next(c for c in "QZXJKWYHBF" if c not in letters)


def adjacent_path(letters, length):
    """Cells 0, 1, 2, … along the top row: always touching dice."""
    return [letters[n] for n in range(length)]


def main():
    display = next(f":{n}" for n in range(150, 200) if not os.path.exists(f"/tmp/.X{n}-lock"))
    os.environ["DISPLAY"] = display
    spawn(["Xvfb", display, "-screen", "0", "1024x768x24", "-nolisten", "tcp"])
    time.sleep(1.5)
    spawn(["openbox"])
    for launcher in ("/usr/libexec/at-spi-bus-launcher",
                     "/usr/lib/at-spi2-core/at-spi-bus-launcher"):
        if os.path.exists(launcher):
            spawn([launcher, "--launch-immediately"])
    time.sleep(1.5)
    start_speech()
    start_orca()
    env = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb",
               LANGUAGE="it", LC_ALL="it_IT.UTF-8")
    spawn([os.path.join(WORK, "griglione")], cwd=WORK, env=env)
    app()
    time.sleep(3)
    main = main_window()

    begin = mark()
    key("F2")
    letters = board(main)
    print("board:", " ".join(letters))
    play_start = mark()

    # The word grows letter by letter, a refused letter is named, Backspace takes one back.
    # Four dice of the top row: a word the opponent is unlikely to have, or to know.
    word = adjacent_path(letters, 4)
    at = mark()
    key(word[0].lower())
    expect(at, rf"^{word[0]}\.?$", f"the word {word[0]!r} after its first letter")
    at = mark()
    key(word[1].lower())
    expect(at, rf"^{word[0]}{word[1]}\.?$", "the two-letter word")
    wrong = missing_letter(letters)
    at = mark()
    key(wrong.lower())
    expect(at, rf"^{wrong}: nessun dado\.?$", f"'{wrong}: nessun dado'")
    at = mark()
    key("BackSpace")
    expect(at, rf"^{word[0]}\.?$", "the word after Backspace")

    # Too short: the outcome, then the word goes on from where it was.
    at = mark()
    key("Return")
    expect(at, r"Parola troppo corta", "the outcome of a short word")
    at = mark()
    key(word[1].lower())
    expect(at, rf"^{word[0]}{word[1]}\.?$", "the word going on after a short one")
    at = mark()
    key(word[2].lower(), word[3].lower(), "Return")
    # An unknown word asks; a known one is accepted at once; one the opponent has is refused.
    expect(at, rf"Parola da confermare: {''.join(word)}|{''.join(word)}: \d+ punti|Parola già inserita",
           "the word confirmed or its outcome", wait=8)
    if any("Conferma accettazione parola" in u for u in since(at)):
        expect(at, r"^Non inserire nel dizionario personale", "the unknown-word window's choice")
        expect(at, r"^selezionato", "that the choice is the selected one")
        at = mark()
        key("Up", "Up", "space", "Return", pause=1.5)  # the first option: added and counted
    if not any("Parola già inserita" in u for u in since(at)):
        expect(at, rf"{''.join(word)}: \d+ punti, in tutto", "the points of the word", wait=8)

    # F7 and back: the focus returns to the board.
    at = mark()
    key("F7", pause=2)
    expect(at, r"Informazioni dizionario", "the rules window")
    at = mark()
    key("Return", pause=1.5)
    expect(at, r"riga \d, colonna \d|^[A-Z]$|pulsante", "the die after the rules window")
    at = mark()
    key(word[0].lower())
    expect(at, rf"^{word[0]}\.?$", "typing on the board after the rules window")
    key("Escape")
    # The information window likewise.
    at = mark()
    key("F4", pause=2)
    expect(at, r"Informazioni su", "the information window")
    at = mark()
    key("Escape", pause=1.5)
    expect(at, r"riga \d, colonna \d", "the die after the information window")

    # The rest of the match: the seconds left, the opponent's count, the end with both scores.
    seen = set()
    end = time.time() + 90
    result_at = None
    while time.time() < end:
        seen |= cpu_words(main)
        if any("Tempo scaduto" in u for u in since(play_start)):
            result_at = mark()
            break
        time.sleep(0.5)
    for n in (10, 5):
        expect(play_start, rf"\b{n} secondi", f"'{n} secondi'", wait=0.1)
    expect(play_start, r"Tobia \(CPU\): \d+ parol", "the opponent's count", wait=0.1)
    expect(play_start, r"Tempo scaduto", "the end of the match", wait=0.1)
    expect(play_start, r"\d+ punti.*\d+ punti", "both final scores", wait=3)
    # The opponent's list read out: its name as a list, or one of its words on its own.
    for u in spoken()[play_start:result_at]:
        if u.rstrip(".") in seen or re.search(r"Tobia \(CPU\)\.? *Elenco", u) \
                or u.startswith("Elenco con"):
            problems.append(f"the opponent's list was read during play: {u!r}")
    # The review: a list entered from the keyboard reads its current word; a die filters and
    # says what is left.
    at = mark()
    key("alt+p", pause=3)
    expect(at, r"Parole del tabellone", "the review window")
    at = mark()
    key("alt+m", pause=1.5)
    expect(at, r"^[a-z]+ +\d+", "the missed words' current word")
    at = mark()
    key("shift+Tab", "shift+Tab", "shift+Tab", "space", pause=1.5)
    expect(at, r"^Dado [A-Z]: \d+ tue, \d+ della CPU, \d+ mancate", "the review's filter")
    key("Escape", pause=1.5)
    key("alt+o", pause=1.5)
    print("\nWhat Orca said, from F2 to the result and the review:")
    for u in spoken()[begin:]:
        print("  ", u)
    print(f"\nthe opponent found {len(seen)} words")


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
    # Orca's own log, kept for a look at what it made of each event.
    if os.path.exists(LOG):
        shutil.copy(LOG, "build/orca-debug.log")
        print("\nOrca's debug log: build/orca-debug.log")
    print("\nFAILED:\n  " + "\n  ".join(problems))
    sys.exit(1)
print("\nOrca said every expected thing and none of the opponent's words")
