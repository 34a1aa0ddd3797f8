#!/usr/bin/python3
"""play_by_atspi.py VORLUND: plays the program by assistive technology alone.

From the title to the second turn, through every dialog, saving and loading, nothing is used but what a screen
reader gets: names, roles, states, actions, texts and events. On every screen the whole list of what can be done
there is compared with what is due. Brings its own display, session bus and home; needs xvfb-run,
dbus-run-session, at-spi2-core and its Python binding."""

import os
import re
import subprocess
import sys
import tempfile
import time

CHOICES = [f"radio button {n} Players" for n in (2, 3, 4, 5)]
BOARD = ["Buy (B)", "Sell (S)", "Transport (R)", "Attack (A)", "Upgrade (U)", "Status (T)", "End Turn (E)", "Save (V)"]
YES_NO = ["push button Yes (Alt+Y)", "push button No (Alt+N)"]
TERRITORY = re.compile(r"\d+ [\w ]+: \w+ \(Player [12]\), \d+ troops?, \d+ tanks?(, factory)?(, defense)?")
PATIENCE = 15  # seconds


def start_inside(program):
    """Runs this script again where there is a display, a bus and an empty home."""
    with tempfile.TemporaryDirectory() as home:
        env = {k: v for k, v in os.environ.items() if k not in ("DBUS_SESSION_BUS_ADDRESS", "XDG_DATA_HOME")}
        env |= {"HOME": home, "XDG_RUNTIME_DIR": home, "SDL_AUDIODRIVER": "dummy", "QT_QPA_PLATFORM": "xcb",
                "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "NO_AT_BRIDGE": "0", "LC_ALL": "C.UTF-8"}
        # The settings tell whether a screen reader is there; in memory they are the same everywhere.
        env["GSETTINGS_BACKEND"] = "memory"
        command = ["xvfb-run", "-a", "-s", "-screen 0 1000x800x24", "dbus-run-session", "--",
                   sys.executable, "-W", "ignore::DeprecationWarning"]
        return subprocess.run(command + [__file__, "--inside", program], env=env, check=False).returncode


class Listener:
    """Hears one run of the program, and presses and types in it."""

    def __init__(self, program):
        self.events = []
        self.ear = Atspi.EventListener.new(self.on_event)
        for kind in ("object:state-changed", "object:property-change"):
            self.ear.register(kind)
        self.process = subprocess.Popen([program])
        self.wait_for("the program", self.application)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()

    def application(self):
        desktop = Atspi.get_desktop(0)
        children = (desktop.get_child_at_index(i) for i in range(desktop.get_child_count()))
        found = next((c for c in children if c and c.get_process_id() == self.process.pid), None)
        if found:
            found.set_cache_mask(Atspi.Cache.NONE)  # what is asked for is asked of the program
        return found

    def wait_for(self, what, condition):
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            while GLib.MainContext.default().iteration(False):
                pass
            try:
                if found := condition():
                    return found
            except GLib.Error:  # gone while it was looked at
                pass
            time.sleep(0.02)
        raise AssertionError(f"{what} never came")

    def window(self, name):
        def find():
            return next((w for w in children(self.application()) if shown(w) and w.get_name() == name), None)
        return self.wait_for(f"a window named {name!r}", find)

    def control(self, window, name, number=0):
        def find():
            named = [n for n in nodes(self.window(window)) if n.get_name() == name and (acts(n) or is_field(n))]
            return named[number] if number < len(named) else None
        return self.wait_for(f"{name!r} in {window!r}", find)

    def press(self, window, name):
        button = self.control(window, name)
        self.wait_for(f"{name!r} enabled", lambda: has(button, Atspi.StateType.ENABLED))
        self.events.clear()
        assert Atspi.Action.do_action(button, 0), f"{name!r} takes no press"

    def type(self, window, name, text):
        assert Atspi.EditableText.set_text_contents(self.control(window, name), text), f"{name!r} takes no text"

    def expect(self, window, due):
        """What can be done in the window, in its order, is exactly `due`; no picture is without a name."""
        def same():
            seen[:] = [describe(n) for n in nodes(self.window(window)) if can_be_used(n)]
            return seen == due
        seen = []
        try:
            self.wait_for(window, same)
        except AssertionError:
            raise AssertionError(f"{window!r} offers\n  {seen}\nnot\n  {due}") from None
        pictures = [n for n in nodes(self.window(window)) if n.get_role() == Atspi.Role.IMAGE]
        is_box = "push button OK" in due or due == YES_NO  # whose icon says no more than that it is one
        assert is_box or all(p.get_name() for p in pictures), f"a picture without a name in {window!r}"

    def expect_announced(self, headline):
        """A report has been announced: an alert has come up, or is another one now, and is called `headline`."""
        def heard():
            return any(role == Atspi.Role.ALERT and name.startswith(headline) and
                       (kind.endswith("accessible-name") or (kind.endswith("showing") and on))
                       for kind, role, name, on in self.events)
        self.wait_for(f"an announcement of {headline!r}", heard)

    def report(self, headline):
        self.expect_announced(headline)
        name = self.wait_for("the report", lambda: next(
            w.get_name() for w in children(self.application()) if shown(w) and w.get_name().startswith(headline)))
        self.expect(name, ["push button Continue (Enter)"])
        self.press(name, "Continue")

    def box(self, text, due, answer):
        def says():
            return any(n.get_role() == Atspi.Role.LABEL and text in n.get_name() for n in nodes(self.window("Vorlund")))
        self.wait_for(f"a message with {text!r}", says)
        self.expect("Vorlund", due)
        self.press("Vorlund", answer)

    def on_event(self, event):
        try:
            self.events.append((event.type, event.source.get_role(), event.source.get_name(), event.detail1))
        except GLib.Error:
            pass


def children(node):
    return filter(None, (node.get_child_at_index(i) for i in range(node.get_child_count())))


def has(node, state):
    return node.get_state_set().contains(state)


def shown(node):
    return has(node, Atspi.StateType.SHOWING)


def nodes(node):
    """All that is shown below `node`."""
    for child in children(node):
        if shown(child):
            yield child
            yield from nodes(child)


def acts(node):
    return any(Atspi.Action.get_action_name(node, i) in ("Press", "Toggle") for i in range(node.get_n_actions()))


def is_field(node):
    return has(node, Atspi.StateType.EDITABLE)


def can_be_used(node):
    focusable = has(node, Atspi.StateType.FOCUSABLE) and node.get_role() != Atspi.Role.LABEL
    return acts(node) or is_field(node) or focusable


def describe(node):
    key = Atspi.Action.get_key_binding(node, 0) if acts(node) else ""
    key = f" ({key})" if key else ""
    # Whether there is a bomb to launch is a matter of the game's own luck.
    by_luck = node.get_name() == "Launch Nuke"
    off = "" if has(node, Atspi.StateType.ENABLED) or is_field(node) or by_luck else ", disabled"
    more = node.get_description()
    more = f": {more}" if more and not more.startswith("Key: ") and not (off or by_luck) else ""
    return f"{node.get_role_name()} {node.get_name()}{key}{more}{off}"


def board(without=()):
    return [f"push button {c}" + (", disabled" if c[:-4] in without else "") for c in BOARD]


def begin_a_game(game):
    game.expect("Vorlund", ["push button Play Game", "push button Load Game", "push button Exit"])
    game.press("Vorlund", "Play Game")
    new_game = "Vorlund - New Game"
    game.expect(new_game, CHOICES + ["push button Continue > (Enter)"])
    game.press(new_game, "3 Players")
    game.press(new_game, "2 Players")
    game.press(new_game, "Continue >")
    rows = [[f"text Player {n}'s name:", f"check box Player {n} is played by the computer"] for n in (1, 2)]
    game.press(new_game, "Player 2 is played by the computer")
    game.wait_for("the tick", lambda: has(game.control(new_game, rows[1][1][10:]), Atspi.StateType.CHECKED))
    game.expect(new_game, sum([[row[0], row[1] + ": " + row[1][10:]] for row in rows], []) +
                ["push button Continue > (Enter)"])
    game.type(new_game, "Player 1's name:", "Anna")
    game.press(new_game, "Continue >")
    game.expect("Vorlund", board(without=[c[:-4] for c in BOARD]))
    select = "Vorlund - Territory Select"
    game.expect(select, ["text Territory number (1-42):", "push button Enter (Enter)"])
    game.type(select, "Territory number (1-42):", "7")
    game.press(select, "Enter")
    game.report("Upkeep status for Player 1, Anna.")


def expect_territories(window):
    texts = [n.get_name() for n in nodes(window)]
    told = [t for t in texts if TERRITORY.fullmatch(t)]
    markers = [n for n in nodes(window) if n.get_role() == Atspi.Role.IMAGE and n.get_name().startswith("Player ")]
    assert len(told) == len(markers) > 1, f"{len(markers)} territories are shown, told are {told}"
    assert "7 Midwest USA: Anna (Player 1), 10 troops, 0 tanks, factory" in told, told


def trade(game, title, command, fields):
    name = f"Vorlund - {title}"
    game.press("Vorlund - Anna's turn", title)
    game.expect(name, [f"text {f}" for f in fields] + [f"push button {command} (Enter)"])
    game.type(name, fields[1], "1")
    game.press(name, command)
    game.box("valid territory number", ["push button OK"], "OK")
    for field, text in zip(fields, ("7", "1", "0", "0")):
        game.type(name, field, text)
    game.press(name, command)
    game.report("Details on current transaction:")


def save(game, again):
    game.press("Vorlund - Anna's turn", "Save")
    name = "Vorlund - Save Game"
    game.expect(name, ["text Enter a name for the saved game:", "push button Enter (Enter)"])
    game.type(name, "Enter a name for the saved game:", "walk")
    game.press(name, "Enter")
    if again:
        game.box("", YES_NO, "Yes")
    game.box("walk", ["push button OK"], "OK")


def play(program):
    with Listener(program) as game:
        begin_a_game(game)
        turn = "Vorlund - Anna's turn"
        game.expect(turn, board(without=["Attack"]))
        expect_territories(game.window(turn))
        game.press(turn, "End Turn")
        game.report("The computer did the following")
        game.report("Upkeep status for Player 1, Anna.")
        game.expect(turn, board())
        game.press(turn, "Status")
        game.expect("Vorlund - Player 1 status", ["push button Close (Enter)"])
        game.press("Vorlund - Player 1 status", "Close")
        prices = "Number of Troops(${}):", "Number of Tanks(${}):"
        oil = "Barrels of Oil($1/3):"
        trade(game, "Buy", "Buy", ["Territory # with Factory:", prices[0].format(10), prices[1].format(40), oil])
        trade(game, "Sell", "Sell", ["Territory #:", prices[0].format(7), prices[1].format(30), oil])
        save(game, again=False)
        save(game, again=True)


def load_and_open(program, command, due):
    with Listener(program) as game:
        game.press("Vorlund", "Load Game")
        name = "Vorlund - Load Game"
        game.expect(name, ["list Select a saved game from the list below:", "list item walk.vrs",
                           "push button Load Game (Enter)", "push button Delete Game (Delete)", "push button Cancel"])
        files = next(n for n in nodes(game.window(name)) if n.get_role() == Atspi.Role.LIST)
        assert Atspi.Action.do_action(next(children(files)), 0), "a saved game cannot be selected"
        if command == "Transport":
            game.press(name, "Delete Game")
            game.expect("Confirm Delete", YES_NO)
            game.press("Confirm Delete", "No")
        game.press(name, "Load Game")
        game.press("Vorlund - Anna's turn", command)
        game.expect(f"Vorlund - {command}", due)


def main():
    program = sys.argv[-1]
    Atspi.init()
    play(program)
    units = ["text Number of Troops:", "text Number of Tanks:"]
    load_and_open(program, "Transport", ["text Original territory #:", "text Resulting territory #:", *units,
                                         "push button Move (Enter)"])
    load_and_open(program, "Attack", ["text Attacking territory #:", "text Defending territory #:", *units,
                                      "push button Attack (Enter)", "text Territory # to nuke:",
                                      "push button Launch Nuke (Enter)"])
    load_and_open(program, "Upgrade", [f"push button Upgrade (Alt+{n}): {track}" for n, track in
                                       enumerate(("Economy", "Warfare", "Nuclear"), 1)] +
                  ["text Territory #:: Build Factory", "push button Build Factory (Enter)",
                   "text Territory #:: Build Defense", "push button Build Defense (Enter)"])
    with Listener(program) as game:
        game.press("Vorlund", "Exit")
        assert game.process.wait(PATIENCE) == 0
    print("Played to the second turn, and through every screen.")


if __name__ == "__main__":
    if sys.argv[1] != "--inside":
        sys.exit(start_inside(sys.argv[1]))
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
    main()
