#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 QuorvaMedia
# SPDX-License-Identifier: Apache-2.0
"""The wall as a screen reader reads it and a keyboard works it: the demo host in a real
window, its tree read over the accessibility bus from this separate process (as Orca reads
it), and every screen reached by accessible actions and key presses alone.

Usage: tst_accessibility.py DEMO  (inside a display and a session bus with the
accessibility bus, as tests/a11y/run-accessibility sets them up)
"""
import subprocess
import sys
import time
import traceback

import pyatspi

DEMO = sys.argv[1]
PATIENCE = 30.0
failures = []
checked = [0]


def check(condition, what):
    checked[0] += 1
    if not condition:
        failures.append(what)
        print("FAIL:", what, flush=True)
    return condition


def wait(condition, what, patience=PATIENCE):
    """Waits for a state of the tree; a wait that runs out fails the check."""
    deadline = time.monotonic() + patience
    while time.monotonic() < deadline:
        try:
            result = condition()
        except Exception:  # the tree changes under a walk: look again
            result = None
        if result:
            return result
        time.sleep(0.05)
    check(False, "never: " + what)
    return None


def states(node):
    return node.getState()


def has(node, state):
    return states(node).contains(state)


def actions(node):
    try:
        action = node.queryAction()
    except NotImplementedError:
        return []
    return [action.getName(i) for i in range(action.nActions)]


def role(node):
    return node.getRoleName()


class Wall:
    """One demo process and its accessible tree."""

    def __init__(self, *arguments):
        # The accessibility bus and its registry up before the app looks for them.
        wait(lambda: pyatspi.Registry.getDesktop(0) is not None, "the accessibility registry")
        self.process = subprocess.Popen([DEMO, *arguments], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.app = wait(self._app, "the demo on the accessibility bus")
        wait(lambda: self.find("list item"), "offers in the list")

    def _app(self):
        for app in pyatspi.Registry.getDesktop(0):
            if app and app.get_process_id() == self.process.pid:
                return app
        return None

    def close(self):
        self.process.terminate()
        self.process.wait(10)

    def nodes(self, root=None):
        found = []

        def walk(node):
            found.append(node)
            for child in node:
                if child is not None:
                    walk(child)

        walk(root or self.app)
        return found

    def showing(self, root=None):
        return [n for n in self.nodes(root) if has(n, pyatspi.STATE_SHOWING)]

    def find(self, wanted_role, name=None, contains=None, root=None, anywhere=False):
        # anywhere: also what a scrolled view holds out of sight, as browse mode reads it.
        for node in (self.nodes(root) if anywhere else self.showing(root)):
            if role(node) == wanted_role and (name is None or node.name == name) \
                    and (contains is None or contains in node.name):
                return node
        return None

    def wait_for(self, wanted_role, name=None, contains=None, root=None, anywhere=False):
        return wait(lambda: self.find(wanted_role, name, contains, root, anywhere),
                    f"a {'' if anywhere else 'showing '}{wanted_role} {name or contains or ''}")

    def focused(self):
        # A focus scope around the focused control says focused too: the deepest counts.
        found = None
        for node in self.nodes():
            if has(node, pyatspi.STATE_FOCUSED):
                found = node
        return found

    def wait_focus(self, predicate, what):
        found = wait(lambda: (lambda f: f if f is not None and predicate(f) else None)(self.focused()), "focus on " + what)
        if not found:
            focus = self.focused()
            print("  the focus is on", None if focus is None else (role(focus), focus.name), flush=True)
        return found

    @staticmethod
    def act(node, name="Press"):
        names = actions(node)
        if not check(name in names, f"{role(node)} '{node.name}' offers {name} (has {names})"):
            return
        node.queryAction().doAction(names.index(name))

    @staticmethod
    def key(symbol):
        pyatspi.Registry.generateKeyboardEvent(symbol, None, pyatspi.KEY_SYM)


TAB, SHIFT_TAB, DOWN, UP, ESCAPE, RETURN = 0xff09, 0xfe20, 0xff54, 0xff52, 0xff1b, 0xff0d


def audit(wall, where, inside=None):
    """What holds on every screen: every control named and answering, nothing hidden or
    decorative read, nothing read twice, the focus somewhere real, and an open overlay
    modal for the tree and the keyboard."""
    nodes = wall.nodes()
    frame = wall.app[0].queryComponent().getExtents(pyatspi.DESKTOP_COORDS)

    def hidden_on_screen(node):
        # Rows a list scrolled out of view are content; a hidden control on screen is not.
        try:
            if has(node, pyatspi.STATE_SHOWING):
                return False
            box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        except Exception:  # gone from the tree
            return False
        return box.width > 0 and box.height > 0 and box.x < frame.x + frame.width \
            and box.x + box.width > frame.x and box.y < frame.y + frame.height and box.y + box.height > frame.y

    for node in nodes:
        if node is not wall.app and role(node) != "frame" and hidden_on_screen(node):
            # A list parking a row for reuse hides it a moment before the tree drops it:
            # only one that stays is read by a screen reader.
            wait(lambda node=node: not hidden_on_screen(node) or node not in wall.nodes(),
                 f"{where}: {role(node)} '{node.name}' leaves the tree once hidden", patience=5)
        if set(actions(node)) & {"Press", "Toggle", "Increase"}:
            check(node.name.strip() != "", f"{where}: an actionable {role(node)} has no name")
        check(role(node) not in ("unknown", "filler") or node.name, f"{where}: a {role(node)} node without a name")
        parent = node.parent
        if parent is not None and node.name and parent.name == node.name and role(parent) != "application":
            check(False, f"{where}: '{node.name}' is read twice ({role(parent)} and {role(node)})")
    focus = wall.focused()
    if check(focus is not None, f"{where}: the focus is on nothing") and inside is not None:
        check(has(focus, pyatspi.STATE_SHOWING), f"{where}: the focus is on a hidden {role(focus)}")
        inside_nodes = wall.nodes(inside)
        check(focus in inside_nodes, f"{where}: the focus ({role(focus)} '{focus.name}') left the open overlay")
        behind = [n for n in wall.showing() if role(n) == "list item" and n not in inside_nodes]
        check(not behind, f"{where}: the offers behind the overlay are still read")


def phone_wall_and_filters():
    wall = Wall()
    try:
        offers = wall.wait_for("list", "Offers")
        check(offers.description.endswith("offers"), "the list says how many offers it holds")
        wall.wait_for("heading", "Earn Gems")
        first = wall.find("list item")
        check("Gems" in first.name and first.name.count(",") >= 2,
              f"an offer reads as name, task and payout with the currency: '{first.name}'")
        button = wall.find("push button", root=first)
        check(button is not None and button.name.startswith("Earn ") and button.name.endswith("Gems"),
              "an offer's button says what it does")
        audit(wall, "the wall")

        # The keyboard alone: the list has it when the wall opens; Tab goes round the header
        # in reading order and back to the list.
        wall.wait_focus(lambda f: role(f) == "list", "the list when the wall opens")
        order = []
        for _ in range(4):
            wall.key(TAB)
            focus = wall.wait_focus(lambda f: (role(f), f.name) not in order[-1:], "the next control")
            if focus:
                order.append((role(focus), focus.name))
        check(order == [("push button", "Close the offers"), ("push button", "Help and support"),
                        ("push button", "Sort and filter offers"), ("list item", first.name)],
              f"Tab follows the reading order: {order}")
        # The arrow keys go through every offer, scrolling and paging on.
        seen = set()
        for _ in range(34):
            wall.key(DOWN)
            focus = wall.wait_focus(lambda f: role(f) == "list item" and f.name not in seen, "the next offer")
            if not focus:
                break
            check(has(focus, pyatspi.STATE_SHOWING), "the offer the keyboard is on is on screen")
            seen.add(focus.name)
        wait(lambda: wall.find("list", "Offers").description.startswith("60"),
             "the next page loaded by going down with the keyboard")
        wall.key(UP)
        wall.wait_focus(lambda f: role(f) == "list item", "an offer after going up")

        # The filter panel: opened by the button's action, modal, and gives the focus back.
        filters = wall.find("push button", "Sort and filter offers")
        wall.act(filters)
        panel_heading = wall.wait_for("heading", "Sort by Type")
        popularity = wall.wait_for("radio button", "Popularity")
        check(has(popularity, pyatspi.STATE_CHECKED), "the chosen sort is checked")
        check(has(wall.find("radio button", "All Categories"), pyatspi.STATE_CHECKED), "the chosen category is checked")
        wall.wait_focus(lambda f: role(f) == "radio button", "a choice of the opened panel")
        panel = panel_heading.parent
        audit(wall, "the filter panel", inside=panel)
        wall.act(wall.find("radio button", "Payout: High to Low"), "Toggle")
        wait(lambda: has(wall.find("radio button", "Payout: High to Low"), pyatspi.STATE_CHECKED),
             "Toggle chose a sort")
        check(not has(wall.find("radio button", "Popularity"), pyatspi.STATE_CHECKED), "one sort is checked at a time")
        wall.act(wall.find("radio button", "Games"))
        wait(lambda: has(wall.find("radio button", "Games"), pyatspi.STATE_CHECKED), "Press chose a category")
        wall.act(wall.wait_for("push button", "Apply the filters"))
        wait(lambda: wall.find("heading", "Sort by Type") is None, "the panel closed by Apply")
        wall.wait_focus(lambda f: f.name == "Sort and filter offers", "the filter button again")
        wait(lambda: wall.find("list item", contains="Gems") is not None, "the filtered offers")

        # Escape closes it too.
        wall.act(wall.find("push button", "Sort and filter offers"))
        wall.wait_for("heading", "Sort by Type")
        wall.wait_focus(lambda f: role(f) == "radio button", "the reopened panel")
        wall.key(ESCAPE)
        wait(lambda: wall.find("heading", "Sort by Type") is None, "the panel closed by Escape")
        wall.wait_focus(lambda f: f.name == "Sort and filter offers", "the filter button after Escape")
    finally:
        wall.close()


def phone_support_centre():
    wall = Wall()
    try:
        wall.act(wall.wait_for("push button", "Help and support"))
        tabs = wall.wait_for("page tab list", "Support sections")
        page_tabs = [n for n in tabs if role(n) == "page tab"]
        check([t.name for t in page_tabs] == ["FAQ", "History", "Contact Us"], "three named tabs")
        check([has(t, pyatspi.STATE_SELECTED) for t in page_tabs] == [True, False, False], "the FAQ tab is selected")
        check(not any(has(t, pyatspi.STATE_CHECKED) for t in page_tabs), "a tab says selected, not checked")
        wall.wait_focus(lambda f: role(f) in ("page tab", "page tab list"), "the tabs of the opened centre")
        audit(wall, "the support centre", inside=tabs.parent)

        # A question opens by the press action, or by the keyboard, which stays on it.
        questions = [n.name for n in wall.showing() if role(n) == "push button" and n.name.endswith("?")]
        wall.act(wall.find("push button", questions[0]))
        wait(lambda: len(wall.find("push button", questions[0]).description) > 20, "the answer read with its question")
        asked = questions[1]
        wall.act(wall.find("push button", asked), "SetFocus")
        wall.wait_focus(lambda f: f.name == asked, "the second question")
        wall.key(RETURN)
        wait(lambda: len(wall.find("push button", asked).description) > 20, "the second answer opened by Enter")
        wall.wait_focus(lambda f: f.name == asked, "the opened question")

        wall.act(wall.find("page tab", "History"))
        wait(lambda: has(wall.find("page tab", "History"), pyatspi.STATE_SELECTED), "the history tab selected")
        credit = wall.wait_for("list item", contains="Gems")
        amounts = [n.name for n in wall.showing() if role(n) == "list item" and "Gems" in n.name]
        check(any("minus" in a for a in amounts), f"a reversal reads as minus: {amounts}")
        check(not any("+-" in a for a in amounts), "no amount reads +-")
        audit(wall, "the history", inside=tabs.parent)

        wall.act(wall.find("page tab", "Contact Us"))
        subject = wall.wait_for("panel", "What can we help you with?")
        choices = [n for n in subject if role(n) == "radio button"]
        check(len(choices) == 3, "the subjects are three radio buttons in the question's group")
        name = wall.wait_for("text", "Name")
        check(name.description == "Required", f"a field says it is required: '{name.description}'")
        wall.act(choices[0])
        wait(lambda: has(wall.find("radio button", choices[0].name), pyatspi.STATE_CHECKED), "the subject chosen")
        answer = wall.wait_for("panel", contains="24 hours")
        wall.act(wall.find("radio button", "Yes", root=answer))
        date = wall.wait_for("push button", contains="Completed on")
        wall.act(date)
        wheels = wall.wait_for("panel", "When did you complete it?")
        day = wall.wait_for("spin button", "Day")
        value = day.queryValue()
        check((value.minimumValue, value.maximumValue) == (1, 31) and value.minimumIncrement in (0, 1),
              f"the day wheel has its range: {value.minimumValue}..{value.maximumValue}")
        before = value.currentValue
        wall.act(day, "Increase")
        wait(lambda: wall.find("spin button", "Day").queryValue().currentValue == before + 1, "Increase stepped the day")
        wall.act(wall.find("push button", "Done choosing the date"))
        wait(lambda: wall.find("panel", "When did you complete it?") is None, "the date panel closed")
        wall.wait_focus(lambda f: "Completed on" in f.name, "the date button after Done")

        # A failed send names the field and takes the keyboard there.
        wall.act(wall.wait_for("push button", "Send the message", anywhere=True))
        field = wall.wait_focus(lambda f: role(f) == "text" and f.name == "Name", "the name field in error")
        check(field is not None and "Please enter a valid name" in field.description,
              "the field in error says what is wrong")
        wall.wait_for("alert", "Please enter a valid name")
        for label, text in (("Name", "Ada"), ("Email", "ada@example.com"), ("Offer", "Farm Valley"),
                            ("Message", "It never arrived")):
            wall.act(wall.find("text", label, anywhere=True), "SetFocus")
            wall.wait_focus(lambda f, label=label: f.name == label, "the " + label + " field")
            pyatspi.Registry.generateKeyboardEvent(0, text, pyatspi.KEY_STRING)
            typed = wait(lambda label=label, text=text:
                         wall.find("text", label, anywhere=True).queryText().getText(0, -1) == text,
                         "typed into " + label)
            if not typed:
                focus = wall.focused()
                print("  the field holds", repr(wall.find("text", label, anywhere=True).queryText().getText(0, -1)),
                      "; focus on", role(focus) if focus else None, repr(focus.name) if focus else None)
        wall.act(wall.find("push button", "Send the message", anywhere=True))
        ok = wall.wait_for("push button", "Ok")
        wall.wait_focus(lambda f: f.name == "Ok", "the alert's action")
        check(wall.find("page tab list") is None, "the centre behind the alert is not read")
        wall.act(ok)
        wait(lambda: wall.find("push button", "Ok") is None, "the alert closed")
        # The sent form is empty again: the keyboard starts it over, in view.
        wall.wait_focus(lambda f: f.name == "Name" and has(f, pyatspi.STATE_SHOWING), "the emptied form's first field")
        wall.key(ESCAPE)
        wait(lambda: wall.find("page tab list") is None, "the centre closed by Escape")
        wall.wait_focus(lambda f: f.name == "Help and support", "the support button again")
    finally:
        wall.close()


def tablet_popover():
    wall = Wall("--tablet")
    try:
        wall.act(wall.wait_for("push button", "Help and support"))
        heading = wall.wait_for("heading", "Corvel Support")
        check(wall.find("push button", "Sort and filter offers") is None, "the header behind the popover is not read")
        wall.wait_focus(lambda f: True, "a control of the popover")
        audit(wall, "the tablet popover", inside=heading.parent)
        wall.act(wall.find("push button", "Close support"))
        wait(lambda: wall.find("heading", "Corvel Support") is None, "the popover closed")
        wall.wait_focus(lambda f: f.name == "Help and support", "the support button after the popover")
    finally:
        wall.close()


def translated(language, words):
    """Another language, another look: every control named in that language."""
    wall = Wall("--language", language, "--theme", "dark")
    try:
        offers = wall.wait_for("list")
        check(offers.name not in ("", "Offers"), f"{language}: the list's name is translated: '{offers.name}'")
        names = [n.name for n in wall.showing() if set(actions(n)) & {"Press"}]
        for english in ("Help and support", "Sort and filter offers", "Close the offers"):
            check(english not in names, f"{language}: '{english}' is translated")
        check(any(word in " ".join(names) for word in words), f"{language}: offers read in the language: {names[:3]}")
        audit(wall, f"the wall in {language}")
    finally:
        wall.close()


for scenario in (phone_wall_and_filters, phone_support_centre, tablet_popover,
                 lambda: translated("de", ["Verdiene", "Edelsteine", "Gems"]),
                 lambda: translated("ar", ["اكسب", "Gems"])):
    try:
        scenario()
    except Exception as error:  # a broken step fails the suite, with what broke
        traceback.print_exc()
        check(False, f"{getattr(scenario, '__name__', 'scenario')}: {type(error).__name__}: {error}")

print(f"{checked[0]} checks, {len(failures)} failures")
# a run that checked nothing found nothing
sys.exit(1 if failures or checked[0] < 50 else 0)
