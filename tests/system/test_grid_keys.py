"""The grid by keyboard, what a screen reader hears of it, and drags that scroll or are given up, from outside."""

import unittest

from both_programs import PlainCall
from desktop import Atspi, GLib, has_state, texts_in_sight, wait_for


class Listener:
    """What the accessibility bus tells of an event of objects, in order."""

    def __init__(self, kind):
        self.heard = []
        self.kind = kind
        self.listener = Atspi.EventListener.new(self.hear)

    def __enter__(self):
        self.listener.register(self.kind)
        return self

    def __exit__(self, *failure):
        self.listener.deregister(self.kind)

    def hear(self, event):
        self.heard.append((event.source, event.detail1))

    def wait_for(self, look, what):
        """Waits until look(source, detail) is true of the event that was heard last."""
        def look_at_last():
            while GLib.MainContext.default().iteration(False):
                pass
            return self.heard and look(*self.heard[-1])
        wait_for(look_at_last, what)


class Keys(PlainCall):
    def setUp(self):
        super().setUp()
        self.desktop.click(self.place(2, 9, 5))  # the cell above the call

    def cell(self, day, hour, user=0):
        return Atspi.Table.get_accessible_at(self.grid.table, (hour - 8) * 6 + user + 1, day + 2)

    def is_current(self, *place):
        return has_state(self.cell(*place), Atspi.StateType.FOCUSED)

    def is_selected(self, *place):
        return has_state(self.cell(*place), Atspi.StateType.SELECTED)

    def test_an_arrow_key_speaks_the_cell_that_it_leads_to(self):
        wait_for(lambda: self.is_current(2, 9, 5), "the clicked cell as the current one")
        with Listener("object:state-changed:focused") as spoken:
            self.desktop.keys("Down")
            spoken.wait_for(lambda cell, on: on and cell.get_name().startswith(self.contact), "the call's cell spoken")
        self.assertTrue(self.is_current(2, 10))
        self.assertTrue(self.is_selected(2, 10))
        self.assertFalse(self.is_current(2, 9, 5))
        self.assertFalse(self.is_selected(2, 9, 5))

    def test_shift_and_an_arrow_key_speak_the_cell_that_joins_the_selection_and_keep_the_current_one(self):
        wait_for(lambda: self.is_current(2, 9, 5), "the clicked cell as the current one")
        with Listener("object:state-changed:selected") as spoken:
            self.desktop.keys("shift+Down")
            spoken.wait_for(lambda cell, on: on and cell.get_name().startswith(self.contact), "the call's cell spoken")
            self.desktop.keys("shift+Right")
            wait_for(lambda: self.is_selected(3, 10), "the far end selected")
        for place in ((2, 9, 5), (2, 10), (3, 9, 5)):
            self.assertTrue(self.is_selected(*place), place)
        self.assertFalse(self.is_selected(4, 10))
        self.assertTrue(self.is_current(2, 9, 5))
        self.assertFalse(self.is_current(3, 10))

    def test_the_focus_that_comes_back_ends_on_the_current_cell(self):
        self.desktop.keys("Down", "alt+j")
        wait_for(lambda: not self.is_current(2, 10), "the focus on the list")
        with Listener("object:state-changed:focused") as spoken:
            self.desktop.click(self.place(2, 10))
            spoken.wait_for(lambda cell, on: on and cell.get_name().startswith(self.contact), "the cell spoken last")

    def open_menu(self, key):
        """Opens the context menu by a key; gives the place of its window."""
        before = set(self.desktop.windows("", self.calendar))
        self.desktop.keys(key)
        window, = wait_for(lambda: set(self.desktop.windows("", self.calendar)) - before, "the context menu")
        lines = self.desktop.run("xdotool", "getwindowgeometry", "--shell", window).split()
        place = dict(line.split("=") for line in lines)
        return window, (int(place["X"]), int(place["Y"]))

    def test_the_menu_key_and_shift_with_f10_open_the_menu_at_the_current_cell(self):
        self.desktop.keys("Down")
        for key in ("Menu", "shift+F10"):
            with self.subTest(key):
                window, place = self.open_menu(key)
                for at, expected in zip(place, self.place(2, 10)):
                    self.assertAlmostEqual(at, expected, delta=1)  # a middle may lie between two pixels
                self.desktop.keys("Escape")
                wait_for(lambda: window not in self.desktop.windows("", self.calendar), "the menu's end")
                self.assertEqual(self.shown(2, 10), self.contact)

    def test_enter_edits_the_activity_in_the_desk(self):
        self.desktop.keys("Down", "Return")
        self.wait_for_dialog("Edit Activity")
        self.let_a_second_pass()
        self.desktop.type("Prices of nails")
        self.confirm("Edit Activity")
        self.wait_for_record(regarding="Prices of nails", start=self.at(2, 10))

    def test_a_lookup_of_what_shift_and_the_arrows_selected(self):
        self.desktop.keys("shift+Down")
        self.open_menu("Menu")
        self.desktop.keys("Down", "Return")  # its one entry
        wait_for(lambda: any(text.startswith("1 of ") and text.endswith(" contacts")
                             for text in texts_in_sight(self.desk, Atspi.Role.LABEL)), "the lookup in the desk")


class GivingUp(PlainCall):
    def test_escape_gives_up_a_drag(self):
        start, end = self.place(2, 10), self.place(4, 14)
        self.desktop.hands("mousemove", *start, "keydown", "ctrl", "mousedown", 1, "mousemove", *end,
                           "key", "Escape", "mouseup", 1, "keyup", "ctrl")
        self.desktop.drag_with_ctrl(start, self.place(2, 11))  # a drag that isn't given up, as a mark of the time
        self.wait_to_see(self.contact, 2, 11)
        self.assertEqual(self.shown(4, 14), "")
        self.expect(start=self.at(2, 11), user=self.users[0])


class Scrolling(PlainCall):
    settings = "[Settings]\r\nStdRowHeight=820\r\n"

    def test_a_drag_to_an_hour_that_is_not_in_sight_scrolls_the_grid_to_it(self):
        cell = Atspi.Table.get_accessible_at(self.grid.table, (16 - 8) * 6 + 1, 3 + 2)
        self.assertFalse(has_state(cell, Atspi.StateType.SHOWING))
        edge = Atspi.Component.get_extents(self.grid.table, Atspi.CoordType.SCREEN)
        x, _ = self.place(3, 10)
        self.desktop.hands("mousemove", *self.place(2, 10), "keydown", "ctrl", "mousedown", 1,
                           "mousemove", x, edge.y + edge.height // 2, "mousemove", x, edge.y + edge.height - 12)
        wait_for(lambda: has_state(cell, Atspi.StateType.SHOWING), "the hour in sight")
        self.desktop.hands("mousemove", x, edge.y + edge.height // 2)
        self.desktop.hands("mousemove", *self.place(3, 16), "mouseup", 1, "keyup", "ctrl")
        self.wait_to_see(self.contact, 3, 16)
        self.expect(start=self.at(3, 16), user=self.users[0])


if __name__ == "__main__":
    unittest.main(verbosity=2)
