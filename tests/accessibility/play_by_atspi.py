#!/usr/bin/python3
"""play_by_atspi.py VORLUND: goes through every screen by what a screen reader gets of it, and by nothing else.

Brings its own display, session bus and home; needs xvfb-run, dbus-run-session, at-spi2-core and its Python binding."""

import contextlib
import os
import subprocess
import sys
import tempfile
import time

PATIENCE = 15  # seconds
ESCAPE = 9  # the code of the key
TURN = "Vorlund - Anna's turn"
YES_NO = "button Yes (Alt+Y)|button No (Alt+N)"
BOARD = ("button Buy (B)|button Sell (S)|button Transport (R)|button Attack (A)|button Upgrade (U)|button Status (T)|"
         "button End Turn (E)|button Save (V)")
# What the commands of the board lead to, and all that can be done there
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
                                     "button Upgrade (Alt+3): Nuclear|"
                                     "text Territory #:: Build Factory|button Build Factory (Enter)|"
                                     "text Territory #:: Build Defense|button Build Defense (Enter)"),
    "Status": ("Vorlund - Player 1 status", "button Close (Enter)"),
    "Save": ("Vorlund - Save Game", "text Enter a name for the saved game:|button Enter (Enter)")}


def start_inside(program):
    """Runs this script again where there is a display, a bus and an empty home."""
    with tempfile.TemporaryDirectory() as home:
        env = {k: v for k, v in os.environ.items() if k not in ("DBUS_SESSION_BUS_ADDRESS", "XDG_DATA_HOME")}
        env |= {"HOME": home, "XDG_RUNTIME_DIR": home, "SDL_AUDIODRIVER": "dummy", "QT_QPA_PLATFORM": "xcb",
                "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "NO_AT_BRIDGE": "0", "LC_ALL": "C.UTF-8",
                "GSETTINGS_BACKEND": "memory"}  # where nobody has said that there is no screen reader
        command = ["xvfb-run", "-a", "-s", "-screen 0 1000x800x24", "dbus-run-session", "--", sys.executable,
                   "-W", "ignore::DeprecationWarning", __file__]
        return subprocess.run(command + ["--inside", program], env=env, check=False).returncode


class Listener:
    """Hears one run of the program, and presses and types in it."""

    def __init__(self, program):
        self.alerts = []
        self.ear = Atspi.EventListener.new(self.on_event)
        for kind in ("object:state-changed:showing", "object:property-change:accessible-name"):
            self.ear.register(kind)
        self.process = subprocess.Popen([program])

    def on_event(self, event):
        with contextlib.suppress(GLib.Error):  # gone again
            if event.source.get_role() == Atspi.Role.ALERT:
                self.alerts.append(event.source.get_name())

    def wait_for(self, what, condition):
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            while GLib.MainContext.default().iteration(False):
                pass
            try:
                if found := condition():
                    return found
            except (GLib.Error, StopIteration):  # not there yet, or gone while it was looked at
                pass
            time.sleep(0.02)
        raise AssertionError(f"{what} never came")

    def window(self, name):
        def find():
            program = next(c for c in children(Atspi.get_desktop(0)) if c.get_process_id() == self.process.pid)
            program.set_cache_mask(Atspi.Cache.NONE)  # what is asked for is asked of the program
            return next(w for w in children(program) if has(w, "SHOWING") and w.get_name() == name)
        return self.wait_for(f"a window named {name!r}", find)

    def control(self, window, name):
        return self.wait_for(f"{name!r} in {window!r}", lambda: next(
            n for n in nodes(self.window(window)) if n.get_name() == name and can_be_used(n)))

    def press(self, window, name):
        assert Atspi.Action.do_action(self.control(window, name), 0), f"{name!r} takes no press"

    def type(self, window, name, text):
        assert Atspi.EditableText.set_text_contents(self.control(window, name), text), f"{name!r} takes no text"

    def expect(self, window, due):
        """What can be done in the window, in its order, is exactly `due`; no picture is without a name."""
        seen = []

        def same():
            seen[:] = [describe(n) for n in nodes(self.window(window)) if can_be_used(n)]
            return "|".join(seen) == due
        try:
            self.wait_for(window, same)
        except AssertionError:
            raise AssertionError(f"{window!r} offers\n  {seen}\nnot\n  {due}") from None
        unnamed = [n for n in nodes(self.window(window)) if n.get_role() == Atspi.Role.IMAGE and not n.get_name()]
        assert due == YES_NO or not unnamed, f"a picture without a name in {window!r}"

    def report(self, headline):
        self.wait_for(f"an alert {headline!r}", lambda: headline in self.alerts)
        self.expect(headline, "button Continue (Enter)")
        self.press(headline, "Continue")


def children(node):
    return filter(None, (node.get_child_at_index(i) for i in range(node.get_child_count())))


def nodes(node):
    """All that is shown below `node`."""
    for child in children(node):
        if has(child, "SHOWING"):
            yield child
            yield from nodes(child)


def has(node, state):
    return node.get_state_set().contains(getattr(Atspi.StateType, state))


def can_be_used(node):
    acts = any(Atspi.Action.get_action_name(node, i) in ("Press", "Toggle") for i in range(node.get_n_actions()))
    return acts or has(node, "EDITABLE") or (has(node, "FOCUSABLE") and node.get_role() != Atspi.Role.LABEL)


def describe(node):
    key = Atspi.Action.get_key_binding(node, 0) if node.get_n_actions() and not has(node, "EDITABLE") else ""
    more = node.get_description() if has(node, "ENABLED") else ""  # of one that is disabled it says why
    more = "" if more.startswith(("Key: ", "You have no")) else more
    return f"{node.get_role_name().split()[-1]} {node.get_name()}" + (f" ({key})" if key else "") + (f": {more}" if more else "")


def play(game):
    game.expect("Vorlund", "button Play Game|button Load Game|button Exit")
    game.press("Vorlund", "Play Game")
    name = "Vorlund - New Game"
    game.expect(name, "button 2 Players|button 3 Players|button 4 Players|button 5 Players|button Continue > (Enter)")
    assert game.control(name, "2 Players").get_role() == Atspi.Role.RADIO_BUTTON
    game.press(name, "3 Players")
    game.wait_for("the choice", lambda: has(game.control(name, "3 Players"), "CHECKED"))
    game.press(name, "2 Players")
    game.press(name, "Continue >")
    computer = "Player {} is played by the computer".format
    rows = [f"text Player {n}'s name:|box {computer(n)}: {computer(n)}|" for n in (1, 2)]
    game.expect(name, rows[0] + rows[1] + "button Continue > (Enter)")
    game.press(name, computer(2))
    game.wait_for("the tick", lambda: has(game.control(name, computer(2)), "CHECKED"))
    game.type(name, "Player 1's name:", "Anna")
    game.press(name, "Continue >")
    name = "Vorlund - Territory Select"
    game.expect(name, "text Territory number (1-42):|button Enter (Enter)")
    game.type(name, "Territory number (1-42):", "7")
    game.press(name, "Enter")
    game.report("Upkeep status for Player 1, Anna.")
    told = [n.get_name() for n in nodes(game.window(TURN)) if ": " in n.get_name()]
    assert "7 Midwest USA: Anna (Player 1), 10 troops, 0 tanks, factory" in told and len(told) > 1, told
    game.press(TURN, "End Turn")
    game.report("The computer did the following:")
    game.report("Upkeep status for Player 1, Anna.")
    for command, (title, due) in DIALOGS.items():
        game.expect(TURN, BOARD)
        game.press(TURN, command)
        game.expect(title, due)
        if command in ("Buy", "Sell"):
            for field, text in zip(due.split("|"), ("7", "1", "0", "0")):
                game.type(title, field[5:], text)
            game.press(title, command)
            game.report("Details on current transaction:")
        elif command == "Save":
            game.type(title, "Enter a name for the saved game:", "walk")
            game.press(title, "Enter")
            game.press("Vorlund", "OK")
        elif command == "Status":
            game.press(title, "Close")
        else:
            Atspi.generate_keyboard_event(ESCAPE, None, Atspi.KeySynthType.PRESSRELEASE)


def load(game):
    game.press("Vorlund", "Load Game")
    name = "Vorlund - Load Game"
    game.expect(name, "list Select a saved game from the list below:|item walk.vrs|"
                      "button Load Game (Enter)|button Delete Game (Delete)|button Cancel")
    assert Atspi.Action.do_action(game.control(name, "walk.vrs"), 0), "a saved game cannot be selected"
    game.press(name, "Delete Game")
    game.expect("Confirm Delete", YES_NO)
    game.press("Confirm Delete", "No")
    game.press(name, "Load Game")
    game.expect(TURN, BOARD)


def main():
    if sys.argv[1] != "--inside":
        return start_inside(sys.argv[1])
    Atspi.init()
    for way in (play, load):
        game = Listener(sys.argv[2])
        way(game)
        game.process.terminate()
        game.process.wait()
    print("Played to the second turn, and through every screen.")
    return 0


if __name__ == "__main__":
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
    sys.exit(main())
