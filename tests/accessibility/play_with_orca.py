#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""play_with_orca.py VORLUND WRITE_GAME: plays by keys alone and compares all that the screen reader Orca says with what
must be heard, in order and once. The saved game that is won comes from WRITE_GAME.

Starts its own X server, session bus and home; needs xvfb-run, openbox, xdotool, dbus-run-session, at-spi2-core, Orca and
speech-dispatcher, whose dummy module makes no sound. Some texts depend on chance, so what is expected are patterns."""

import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import time

SPEECHD = 'LogLevel 1\nLogDir "default"\nAddModule "dummy" "sd_dummy" ""\nDefaultModule dummy\nAudioOutputMethod "alsa"\n'
ALSA = "pcm.!default { type null }\n"
CUSTOMIZATIONS = "import orca.debug\norca.debug.debugFile.reconfigure(line_buffering=True)\n"
PROFILE = {"profile": ["Default", "default"], "enableKeyEcho": False, "pronunciations": {}, "keybindings": {}}
SETTINGS = {"general": {"enableKeyEcho": False, "startingProfile": PROFILE["profile"]}, "pronunciations": {},
            "keybindings": {}, "profiles": {"default": PROFILE}}
UPKEEP = "Upkeep for Troops and Factories: .*"
CONTINUE = ("Continue push button.", "Key: Enter.")
CREDITS = "?notification Vorlund, a world war. For two to five rulers. Made by the Vorlund team."  # unless it has closed
QUIET = 0.8  # seconds without speech after which a step has been said to its end


def start_inside(programs):
    """Runs this script again with an X server, a window manager, a session bus and a home with Orca's settings."""
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as home:
        for name, text in ((".config/speech-dispatcher/speechd.conf", SPEECHD), (".asoundrc", ALSA),
                           (".local/share/orca/orca-customizations.py", CUSTOMIZATIONS),
                           (".local/share/orca/user-settings.conf", json.dumps(SETTINGS))):
            path = pathlib.Path(home, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        env = {name: value for name, value in os.environ.items() if not name.startswith("XDG_")} | {
            "HOME": home, "XDG_RUNTIME_DIR": home, "SDL_AUDIODRIVER": "dummy", "QT_QPA_PLATFORM": "xcb",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "LC_ALL": "C.UTF-8", "GSETTINGS_BACKEND": "memory"}
        command = ["xvfb-run", "-a", "-s", "-screen 0 1000x900x24", "dbus-run-session", "--", sys.executable, __file__,
                   "--inside", *programs]
        return subprocess.run(command, env=env, check=False).returncode


class Orca:
    """A running Orca and what it says."""

    def __init__(self, log):
        self.log = log
        self.told = 0  # how many of its texts have been compared
        self.process = subprocess.Popen(["orca", f"--debug-file={log}"],
                                        stdout=subprocess.DEVNULL)

    def said(self):
        text = self.log.read_text(encoding="utf-8", errors="replace") if self.log.exists() else ""
        said = re.findall(r"SPEECH OUTPUT: '(.*?)' ?(?:\{|$)", text, re.DOTALL | re.MULTILINE)
        return [re.sub(r"\s+", " ", words).strip() for words in said]

    def do(self, keys, expected):
        """Presses keys, waits until as many texts have been said as are expected and it is quiet, and compares. An
        expected text that begins with "?" may be missing: that of a window which is active for a moment only. Characters
        that were typed may be said."""
        may_be, expected = [t[1:] for t in expected if t[0] == "?"], [t for t in expected if t[0] != "?"]
        typed = press(keys)
        end = time.monotonic() + 40
        quiet_since, before = time.monotonic(), -1
        while time.monotonic() < end:
            new = self.said()[self.told:]
            said = [text for text in new if text not in may_be and text not in typed]
            if len(said) != before:
                quiet_since, before = time.monotonic(), len(said)
            if len(said) >= len(expected) and time.monotonic() - quiet_since > QUIET:
                break
            time.sleep(0.1)
        self.told += len(new)
        print(f"{keys}: " + " / ".join(said), flush=True)
        fits = len(said) == len(expected) and all(map(re.fullmatch, expected, said))
        assert fits, f"after {keys!r} Orca said\n  " + "\n  ".join(said) + "\nnot\n  " + "\n  ".join(expected)
        return said


def press(keys):
    """Presses the keys with names as "Return" and types the other words, with "_" for a space. Returns what was typed."""
    typed = ""
    for key in keys.split():
        named = key[0].isupper() or "+" in key
        typed += "" if named else key
        subprocess.run(["xdotool", *(["key", key] if named else ["type", key.replace("_", " ")])], check=True)
    return typed


def new_game(step):
    """Two humans and a computer, from the title to the second turn of the first human."""
    def toggle(n, state="not checked"):
        return f"Player {n} is played by the computer check box {state}."
    step("", CREDITS, "Vorlund frame.", "Play Game push button.")
    step("Return", CREDITS, "Vorlund - New Game dialog Select the number of players for the game:", "2 Players.",
         "selected radio button")
    step("Down", "3 Players.", "selected radio button")
    step("Return", "notification Enter the players' names:", "Player 1's name: text.")
    step("Return", "notification Enter a name for Player 3.")
    step("anna Tab", toggle(1))
    step("Tab", "Player 2's name: text.")
    step("ben Tab", toggle(2))
    step("Tab", "Player 3's name: text.")
    step("Tab", toggle(3))
    step("_", "checked")
    chosen = step("Return", "Vorlund - Territory Select dialog Player [12], (anna|ben), has been chosen to select first.",
                  r"Territory number \(1-42\): text.", "42 territories are possible.")[0]
    first, other = ("1, anna", "2, ben") if "anna" in chosen else ("2, ben", "1, anna")
    name = first[3:]
    board = f"Vorlund - {name}'s turn frame."
    step("0 Return", "notification Invalid territory selection. .*")
    step("7", "notification 7 Midwest USA. held by nobody. Pays .43 a turn, oil field. Neighbours: 2 .*, 9 Mexico.")
    step("Return", f"notification Player {first[0]} selected Midwest USA Player {other}, select a territory.")
    step("8", r"notification 8 Eastern USA. held by nobody. .*, 7 Midwest USA \(.*\), .*")
    step("Return", "?" + board, f"alert Upkeep status for Player {first}.", UPKEEP, *CONTINUE)
    step("Return", board)
    step("a", "notification Nobody attacks in their first turn.")
    step("b", "Vorlund - Buy dialog You have .122 to spend.", "Territory # with Factory: text.", "Possible: 7.")
    step("Return", "alert Vorlund.", ".*", "OK push button.")
    step("Return", "Vorlund - Buy dialog You have .122 to spend.", "Territory # with Factory: text.", "Possible: 7.")
    step("7", "notification 7 Midwest USA. .*, 10 troops, 0 tanks, factory. .*")
    step("Tab", r"Number of Troops\(.10\): text.", "at most 12 with .122.")
    step("3 Return", "alert Details on current transaction:", "You bought 3 Troops for .30 in Midwest USA. .*", *CONTINUE)
    step("Return", board)
    step("r", "Vorlund - Transport dialog You have 2 moves left this turn.", "Original territory #: text.", "Possible: 7.")
    step("7", "notification 7 .*")
    step("Tab", "Resulting territory #: text.", "Possible: 2, 3, 6, 9.")
    step("6", "notification 6 Western USA. held by nobody. .*")
    step("Tab", "Number of Troops: text.", "13 troops in 7.")
    step("1 Return", "notification Move to Western USA was successful.")
    step("Escape", board)
    step("v", "Vorlund - Save Game dialog.", "Enter a name for the saved game: text.")
    step("game Return", "alert Vorlund.", ".* properly saved.*", "OK push button.")
    step("Return", board)
    if "anna" in first:
        step("e", "alert Upkeep status for Player 2, ben.", UPKEEP, *CONTINUE)
        step("Return", "Vorlund - ben's turn frame.")
    step("e", "alert The computer did the following:", ".*", *CONTINUE)
    step("Return", "notification Upkeep status for Player 1, anna. " + UPKEEP)
    step("Return", "Vorlund - anna's turn frame.")


def won_game(step):
    """A saved game: the map, the status and the players by keyboard, an upgrade, a battle, the win."""
    board = "Vorlund - Anna's turn frame."
    army = r"7 Midwest USA. Anna \(Player 1\), 30000 troops, 0 tanks, factory. Pays .43 a turn, oil field. .*"
    step("", CREDITS, "Vorlund frame.", "Play Game push button.")
    step("Down", CREDITS, "Load Game push button.")
    step("Return", CREDITS, "Vorlund - Load Game frame.", "Select a saved game from the list below:", "List with 2 items.")
    step("Down", "almost_won.vrs.")
    step("Return", board)
    step("Right", army)
    step("Left", r"6 Western USA. Cleo \(Player 3\), 1 troop, 0 tanks. .*")
    step("9", "9 Mexico. held by nobody. .*")
    step("Prior", army)
    step("t", "Vorlund - Player 1 status dialog.", "Name: Anna label.")
    step("Down", "Money: .30000 label.")
    step("Return", board)
    step("shift+Tab", "Nuclear bomb: none label.")
    step("u", "Vorlund - Upgrade dialog You have .30000 to spend. .*", "Territory #: text.",
         "Build Factory. No territory is possible.")
    step("alt+1", "notification Level 1 Economy upgrade complete. You have .29850 to spend.")
    step("Escape", board)
    step("a", "Vorlund - Attack dialog .*", "Attacking territory #: text.", "Possible: 7.")
    step("7", "notification " + army)
    step("Tab", "Defending territory #: text.", "Possible: 6, 8.")
    step("8", "notification 8 Eastern USA. .*")
    step("Tab", "Number of Troops: text.", "at most 999 of 30000 troops in 7.")
    step("900 Return", "alert The battle was successful.*Eastern USA.", "Casualties .* Player 2 is now dead.", *CONTINUE)
    step("Return", board)
    step("a", "Vorlund - Attack dialog .*", "Attacking territory #: text.", "Possible: 7.")
    step("7", "notification " + army.replace("30000", "29100"))
    step("Tab", "Defending territory #: text.", "Possible: 6.")
    step("Down", "notification 6 Western USA. .*", "6", "selected", "6")
    step("Tab", "Text unselected.", "Number of Troops: text.", "at most 999 of 29100 troops in 7.")
    step("900 Return", "alert The battle was successful.*", "Casualties .* Player 3 is now dead.", *CONTINUE)
    step("Return", board)
    step("e", "alert Vorlund.", "Player 1, Anna, you win the game!", "OK push button.")


def run(vorlund, write_game):
    home = pathlib.Path.home()
    saves = home / ".local/share/vorlund"
    saves.mkdir(parents=True)
    (saves / "almost_won.vrs").write_bytes(subprocess.run([write_game], check=True, stdout=subprocess.PIPE).stdout)
    with subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL) as openbox:
        orca = Orca(home / "orca.log")
        try:
            orca.do("", ["Screen reader on."])
            for play in (new_game, won_game):
                with subprocess.Popen([vorlund]) as game:
                    try:
                        play(lambda keys, *expected: orca.do(keys, expected))
                    finally:
                        game.terminate()
        finally:
            for process in (orca.process, openbox):
                process.terminate()


if sys.argv[1] != "--inside":
    running = ["pgrep", "-u", str(os.getuid()), "-x", "orca"]
    if subprocess.run(running, stdout=subprocess.DEVNULL, check=False).returncode == 0:
        print("Skipped: a user can have one Orca, and yours is running.")
        sys.exit(77)
    sys.exit(start_inside(sys.argv[1:]))
run(*sys.argv[2:])
