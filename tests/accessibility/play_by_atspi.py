#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""play_by_atspi.py VORLUND: goes through every screen by what a screen reader gets of it, and by nothing else.

Brings its own display, session bus and home; needs xvfb-run, dbus-run-session, at-spi2-core and its Python binding."""

import contextlib
import os
import subprocess
import sys
import tempfile
import time

TURN = "Vorlund - Anna's turn"
BOARD = ("button Buy (B)|button Sell (S)|button Transport (R)|button Attack (A)|button Upgrade (U)|button Status (T)|"
         "button End Turn (E)|button Save (V)")
# What the commands of the board lead to, all that can be done there (role, name, key and description), and some of it
DIALOGS = {
    "Buy": ("Vorlund - Buy", "text Territory # with Factory:|text Number of Troops($10):|text Number of Tanks($40):|"
            "text Barrels of Oil($1/3):|button Buy (Enter)"),
    "Sell": ("Vorlund - Sell", "text Territory #:|text Number of Troops($7):|text Number of Tanks($30):|"
             "text Barrels of Oil($1/3):|button Sell (Enter)"),
    "Transport": ("Vorlund - Transport", "text Original territory #:|text Resulting territory #:|"
                  "text Number of Troops:|text Number of Tanks:|button Move (Enter)"),
    "Attack": ("Vorlund - Attack", "text Attacking territory #:|text Defending territory #:|text Number of Troops:|"
               "text Number of Tanks:|button Attack (Enter)|text Territory # to nuke:|"
               "button Launch Nuke (Enter)"),
    "Upgrade": ("Vorlund - Upgrade", "button Upgrade (Alt+1): Economy|button Upgrade (Alt+2): Warfare|"
                "button Upgrade (Alt+3): Nuclear|text Territory #:: Build Factory|button Build Factory (Enter)|"
                "text Territory #:: Build Defense|button Build Defense (Enter)"),
    "Status": ("Vorlund - Player 1 status", "button Close (Enter)", "Close"),
    "Save": ("Vorlund - Save Game", "text Enter a name for the saved game:|button Enter (Enter)",
             "Enter a name for the saved game:=walk", "Enter")}


def start_inside(program):
    """Runs this script again where there is a display, a bus and an empty home."""
    with tempfile.TemporaryDirectory() as home:
        env = os.environ | {
            "HOME": home, "XDG_DATA_HOME": "", "XDG_RUNTIME_DIR": home, "SDL_AUDIODRIVER": "dummy",
            "QT_QPA_PLATFORM": "xcb", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "NO_AT_BRIDGE": "0",
            "LC_ALL": "C.UTF-8", "GSETTINGS_BACKEND": "memory"}  # where nobody has said that there is no screen reader
        command = ["xvfb-run", "-a", "-s", "-screen 0 1000x800x24", "dbus-run-session", "--", sys.executable,
                   "-W", "ignore::DeprecationWarning", __file__, "--inside", program]
        return subprocess.run(command, env=env, check=False).returncode


class Listener:
    """Hears one run of the program, and presses and types in it."""

    def __init__(self, program):
        self.alerts = set()
        self.ear = Atspi.EventListener.new(self.on_event)
        for kind in ("object:state-changed:showing", "object:property-change:accessible-name"):
            self.ear.register(kind)
        self.process = subprocess.Popen([program])

    def on_event(self, event):
        with contextlib.suppress(GLib.Error):  # gone again
            if event.source.get_role() == Atspi.Role.ALERT:
                self.alerts.add(event.source.get_name())

    def wait_for(self, what, condition):
        end = time.monotonic() + 15
        while time.monotonic() < end:
            while GLib.MainContext.default().iteration(False):
                pass
            with contextlib.suppress(GLib.Error, StopIteration):  # not there yet, or gone while it was looked at
                if found := condition():
                    return found
            time.sleep(0.02)
        raise AssertionError(f"never came: {what}")

    def windows(self):
        program = next(c for c in children(Atspi.get_desktop(0)) if c.get_process_id() == self.process.pid)
        program.set_cache_mask(Atspi.Cache.NONE)  # what is asked for is asked of the program
        return [w for w in children(program) if has(w, "SHOWING")]

    def nodes(self, window):
        return shown(next(w for w in self.windows() if w.get_name() == window))

    def at(self, window, due, *deeds):
        """What can be done in the window, in its order, is exactly `due`, and no picture is without a name. Then
        does some of it: presses "Buy", or types the 7 of "Territory #:=7"."""
        story = {"window": window, "due": due}

        def same():
            story["seen"] = "|".join(describe(n) for n in self.nodes(window) if counts(n))
            return story["seen"] == due
        self.wait_for(story, same)
        for name, _, text in (deed.partition("=") for deed in deeds):
            control = next(n for n in self.nodes(window) if n.get_name() == name and counts(n))
            is_choice = control.get_role() in (Atspi.Role.RADIO_BUTTON, Atspi.Role.CHECK_BOX)
            assert Atspi.EditableText.set_text_contents(control, text) if text else Atspi.Action.do_action(control, 0)
            self.wait_for(f"the tick at {name!r}", lambda: not is_choice or has(control, "CHECKED"))

    def report(self, headline):
        self.wait_for(f"the alert {headline!r}", lambda: headline in self.alerts)
        self.at(headline, "button Continue (Enter)", "Continue")


def children(node):
    return filter(None, map(node.get_child_at_index, range(node.get_child_count())))


def shown(node):
    """All that is shown below `node`."""
    return [n for child in children(node) if has(child, "SHOWING") for n in (child, *shown(child))]


def has(node, state):
    return node.get_state_set().contains(getattr(Atspi.StateType, state))


def counts(node):
    """Whether it can be used, or is a picture without a name, which there should be none of."""
    acts = any(Atspi.Action.get_action_name(node, i) in ("Press", "Toggle") for i in range(node.get_n_actions()))
    role = node.get_role()
    return (acts or has(node, "EDITABLE") or (has(node, "FOCUSABLE") and role != Atspi.Role.LABEL)
            or (role == Atspi.Role.IMAGE and not node.get_name()))


def describe(node):
    key = Atspi.Action.get_key_binding(node, 0) if node.get_n_actions() and not has(node, "EDITABLE") else ""
    more = node.get_description().removeprefix(f"Key: {key}")
    more = more.removeprefix("You have no nuclear bomb.")  # which chance may have given
    role = node.get_role_name().removeprefix("push ")
    return f"{role} {node.get_name()}" + (f" ({key})" if key else "") + (f": {more}" if more else "")


def play(game):
    game.at("Vorlund", "button Play Game|button Load Game|button Exit", "Play Game")
    game.at("Vorlund - New Game", "radio button 2 Players|radio button 3 Players|radio button 4 Players|"
            "radio button 5 Players|button Continue > (Enter)", "3 Players", "2 Players", "Continue >")
    toggle = "Player {} is played by the computer".format
    rows = "".join(f"text Player {n}'s name:|check box {toggle(n)}: {toggle(n)}|" for n in (1, 2))
    game.at("Vorlund - New Game", rows + "button Continue > (Enter)", toggle(2), "Player 1's name:=Anna", "Continue >")
    game.at("Vorlund - Territory Select", "text Territory number (1-42):|button Enter (Enter)",
            "Territory number (1-42):=7", "Enter")
    game.report("Upkeep status for Player 1, Anna.")
    game.wait_for("own and other territories", lambda: {n.get_name() for n in game.nodes(TURN) if ": " in n.get_name()}
                  > {"7 Midwest USA: Anna (Player 1), 10 troops, 0 tanks, factory"})
    game.at(TURN, BOARD.replace("(A)", "(A): Nobody attacks in their first turn."), "End Turn")
    game.report("The computer did the following:")
    game.report("Upkeep status for Player 1, Anna.")
    for command, (title, due, *deeds) in DIALOGS.items():
        game.at(TURN, BOARD, command)
        if command in ("Buy", "Sell"):
            deeds = [f"{field[5:]}={text}" for field, text in zip(due.split("|"), "7100")] + [command]
        game.at(title, due, *deeds)
        if command in ("Buy", "Sell"):
            game.report("Details on current transaction:")
        elif not deeds:
            game.wait_for(f"the focus in {title!r}", lambda: any(has(n, "FOCUSED") for n in game.nodes(title)))
            Atspi.generate_keyboard_event(9, None, Atspi.KeySynthType.PRESSRELEASE)  # Escape
    game.at("Vorlund", "image |button OK", "OK")  # the toolkit gives its own sign no name


def load(game):
    game.at("Vorlund", "button Play Game|button Load Game|button Exit", "Load Game")
    first = "Select a saved game first."
    game.at("Vorlund - Load Game", "list Select a saved game from the list below:|list item walk.vrs|"
            f"button Load Game (Enter): {first}|button Delete Game (Delete): {first}|button Cancel", "walk.vrs")
    due = ("list Select a saved game from the list below:|list item walk.vrs|"
           "button Load Game (Enter)|button Delete Game (Delete)|button Cancel")
    game.at("Vorlund - Load Game", due, "Delete Game")
    game.at("Confirm Delete", "button Yes (Alt+Y)|button No (Alt+N)", "No")
    game.wait_for("the load screen alone", lambda: len(game.windows()) == 1)
    game.at("Vorlund - Load Game", due, "Load Game")
    game.at(TURN, BOARD)


if sys.argv[1] != "--inside":
    sys.exit(start_inside(sys.argv[1]))
import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib
Atspi.init()
for way in (play, load):
    listener = Listener(sys.argv[2])
    way(listener)
    listener.process.terminate()
    listener.process.wait()
print("Played to the second turn, and through every screen.")
