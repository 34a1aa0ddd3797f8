#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""play_by_atspi.py VORLUND: plays through every screen over AT-SPI, as a screen reader does.

Starts its own X server, session bus and home; needs xvfb-run, dbus-run-session, at-spi2-core and its Python binding."""

import contextlib
import os
import subprocess
import sys
import tempfile
import time

TURN = "Vorlund - Anna's turn"
BOARD = ("button Buy (B)|button Sell (S)|button Transport (R)|button Attack (A)|button Upgrade (U)|button Status (T)|"
         "button End Turn (E)|button Save (V)")
# For each command of the board: the dialog's title, its controls (role, name, key and description), and actions in it
DIALOGS = {
    "Buy": ("Vorlund - Buy", "text Territory # with Factory:|text Number of Troops($10):|text Number of Tanks($40):|"
            "text Barrels of Oil($1/3):|button Buy (Enter)"),
    "Sell": ("Vorlund - Sell", "text Territory #:|text Number of Troops($7):|text Number of Tanks($30):|"
             "text Barrels of Oil($1/3):|button Sell (Enter)"),
    "Transport": ("Vorlund - Transport", "text Original territory #:|text Resulting territory #:|"
                  "text Number of Troops:|text Number of Tanks:|button Move (Enter)"),
    "Attack": ("Vorlund - Attack", "text Attacking territory #:|text Defending territory #:|text Number of Troops:|"
               "text Number of Tanks:|button Attack (Enter)|text Territory # to nuke:|button Launch Nuke (Enter)"),
    "Upgrade": ("Vorlund - Upgrade", "button Upgrade (Alt+1): Economy|button Upgrade (Alt+2): Warfare|"
                "button Upgrade (Alt+3): Nuclear|text Territory #:|button Build Factory (Enter)|"
                "text Territory #:|button Build Defense (Enter)"),
    "Status": ("Vorlund - Player 1 status", "button Close (Enter)", "Close"),
    "Save": ("Vorlund - Save Game", "text Enter a name for the saved game:|button Enter (Enter)",
             "Enter a name for the saved game:=walk", "Enter")}


def start_inside(program):
    """Runs this script again with an X server, a session bus and an empty home."""
    with tempfile.TemporaryDirectory() as home:
        env = os.environ | {
            "HOME": home, "XDG_DATA_HOME": "", "XDG_RUNTIME_DIR": home, "SDL_AUDIODRIVER": "dummy",
            "QT_QPA_PLATFORM": "xcb", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "NO_AT_BRIDGE": "0",
            "LC_ALL": "C.UTF-8", "GSETTINGS_BACKEND": "memory"}  # the user's settings may switch AT-SPI off
        command = ["xvfb-run", "-a", "-s", "-screen 0 1000x800x24", "dbus-run-session", "--", sys.executable,
                   "-W", "ignore::DeprecationWarning", __file__, "--inside", program]
        return subprocess.run(command, env=env, check=False).returncode


class Program:
    """One run of the program, observed and controlled over AT-SPI."""

    def __init__(self, program):
        self.alerts = set()
        self.listener = Atspi.EventListener.new(self.on_event)
        for kind in ("object:state-changed:showing", "object:property-change:accessible-name"):
            self.listener.register(kind)
        self.process = subprocess.Popen([program])

    def on_event(self, event):
        with contextlib.suppress(GLib.Error):  # the source has been destroyed
            if event.source.get_role() == Atspi.Role.ALERT:
                self.alerts.add(event.source.get_name())

    def wait_for(self, what, condition):
        end = time.monotonic() + 15
        while time.monotonic() < end:
            while GLib.MainContext.default().iteration(False):
                pass
            with contextlib.suppress(GLib.Error, StopIteration):  # does not exist yet, or was destroyed meanwhile
                if found := condition():
                    return found
            time.sleep(0.02)
        raise AssertionError(f"timeout: {what}")

    def windows(self):
        program = next(c for c in children(Atspi.get_desktop(0)) if c.get_process_id() == self.process.pid)
        program.set_cache_mask(Atspi.Cache.NONE)  # every query goes to the program
        return [w for w in children(program) if has(w, "SHOWING")]

    def nodes(self, window):
        return showing(next(w for w in self.windows() if w.get_name() == window))

    def use(self, window, expected, *actions):
        """Waits until the controls of the window are `expected`, then carries out the actions: "Buy" presses a control,
        "Territory #:=7" sets the text of a field."""
        state = {"window": window, "expected": expected}

        def as_expected():
            state["nameless"] = [n.get_role_name() for n in self.nodes(window) if not n.get_name() and needs_name(n)]
            state["found"] = "|".join(describe(n) for n in self.nodes(window) if is_control(n))
            return state["found"] == expected and not state["nameless"]
        self.wait_for(state, as_expected)
        for name, _, text in (action.partition("=") for action in actions):
            control = next(n for n in self.nodes(window) if n.get_name() == name and is_control(n))
            is_choice = control.get_role() in (Atspi.Role.RADIO_BUTTON, Atspi.Role.CHECK_BOX)
            assert Atspi.EditableText.set_text_contents(control, text) if text else Atspi.Action.do_action(control, 0)
            self.wait_for(f"{name!r} is checked", lambda: not is_choice or has(control, "CHECKED"))

    def close_report(self, headline):
        self.wait_for(f"alert {headline!r}", lambda: headline in self.alerts)
        self.use(headline, "button Continue (Enter)", "Continue")


def children(node):
    return filter(None, map(node.get_child_at_index, range(node.get_child_count())))


def showing(node):
    """The showing descendants of `node`."""
    return [n for child in children(node) if has(child, "SHOWING") for n in (child, *showing(child))]


def has(node, state):
    return node.get_state_set().contains(getattr(Atspi.StateType, state))


def is_control(node):
    """Whether it can be pressed, edited or focused."""
    acts = any(Atspi.Action.get_action_name(node, i) in ("Press", "Toggle") for i in range(node.get_n_actions()))
    role = node.get_role()
    tells = role == Atspi.Role.LABEL or (role == Atspi.Role.LIST_ITEM and node.get_parent().get_role() != Atspi.Role.LIST)
    return (acts or has(node, "EDITABLE") or (has(node, "FOCUSABLE") and not tells))


def needs_name(node):
    return node.get_role() not in (Atspi.Role.FILLER, Atspi.Role.PANEL)  # containers


def describe(node):
    key = Atspi.Action.get_key_binding(node, 0) if node.get_n_actions() and not has(node, "EDITABLE") else ""
    # The fields' descriptions tell what could be entered.
    description = "" if has(node, "EDITABLE") else node.get_description().removeprefix(f"Key: {key}")
    description = description.removeprefix("You have no nuclear bomb.")  # unless research has found one
    role = node.get_role_name().removeprefix("push ")
    return f"{role} {node.get_name()}" + (f" ({key})" if key else "") + (f": {description}" if description else "")


def play(program):
    program.use("Vorlund", "button Play Game|button Load Game|button Exit", "Play Game")
    program.use("Vorlund - New Game", "radio button 2 Players|radio button 3 Players|radio button 4 Players|"
                "radio button 5 Players|button Continue > (Enter)", "3 Players", "2 Players", "Continue >")
    toggle = "Player {} is played by the computer".format
    rows = "".join(f"text Player {n}'s name:|check box {toggle(n)}: {toggle(n)}|" for n in (1, 2))
    program.use("Vorlund - New Game", rows + "button Continue > (Enter)",
                toggle(2), "Player 1's name:=Anna", "Continue >")
    program.use("Vorlund - Territory Select", "text Territory number (1-42):|button Enter (Enter)",
                "Territory number (1-42):=7", "Enter")
    program.close_report("Upkeep status for Player 1, Anna.")
    own = "7 Midwest USA. Anna (Player 1), 10 troops, 0 tanks, factory."
    program.wait_for("the territories", lambda: any(n.get_name().startswith(own) for n in program.nodes(TURN)))
    program.use(TURN, BOARD.replace("(A)", "(A): Nobody attacks in their first turn."), "End Turn")
    program.close_report("The computer did the following:")
    program.close_report("Upkeep status for Player 1, Anna.")
    for command, (title, expected, *actions) in DIALOGS.items():
        program.use(TURN, BOARD, command)
        if command in ("Buy", "Sell"):
            names = [field[5:].partition(": ")[0] for field in expected.split("|")]
            actions = [f"{name}={text}" for name, text in zip(names, "7100")] + [command]
        program.use(title, expected, *actions)
        if command in ("Buy", "Sell"):
            program.close_report("Details on current transaction:")
        elif not actions:
            program.wait_for(f"focus in {title!r}", lambda: any(has(n, "FOCUSED") for n in program.nodes(title)))
            Atspi.generate_keyboard_event(9, None, Atspi.KeySynthType.PRESSRELEASE)  # Escape
    program.use("Vorlund", "button OK", "OK")


def load(program):
    program.use("Vorlund", "button Play Game|button Load Game|button Exit", "Load Game")
    controls = ("list Select a saved game from the list below:|list item walk.vrs|"
                "button Load Game (Enter){0}|button Delete Game (Delete){0}|button Cancel")
    program.use("Vorlund - Load Game", controls.format(": Select a saved game first."), "walk.vrs")
    program.use("Vorlund - Load Game", controls.format(""), "Delete Game")
    program.use("Confirm Delete", "button Yes (Alt+Y)|button No (Alt+N)", "No")
    program.wait_for("message box closed", lambda: len(program.windows()) == 1)
    program.use("Vorlund - Load Game", controls.format(""), "Load Game")
    program.use(TURN, BOARD)


if sys.argv[1] != "--inside":
    sys.exit(start_inside(sys.argv[1]))
import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib
Atspi.init()
for steps in (play, load):
    run = Program(sys.argv[2])
    steps(run)
    run.process.terminate()
    run.process.wait()
print("Played through every screen to the second turn.")
