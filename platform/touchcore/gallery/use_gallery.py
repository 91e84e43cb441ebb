#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

"""Uses the real gallery on a screen of its own (Xvfb) as a person would: taps, flicks, presses for
long, writes, goes by key, goes back, turns the screen. It goes on as soon as the gallery tells that
something is seen, however long that takes. Says what did not happen and ends with 1."""

import os
import queue
import subprocess
import sys
import tempfile
import threading

WIDTH, HEIGHT = 480, 854
PATIENCE = 60  # seconds, for machines that are busy with other things


class Screen:
    """An X server without a window manager: windows stand where they say."""

    def __init__(self):
        read_end, write_end = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "900x900x24", "-nolisten", "tcp"],
            pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as display:
            self.environment = {**os.environ, "DISPLAY": f":{display.readline().strip()}",
                                "QT_QPA_PLATFORM": "xcb", "LC_ALL": "C.UTF-8"}

    def finger(self, *words):
        subprocess.run(["xdotool", *map(str, words)], env=self.environment, check=True)

    def tap(self, x, y):
        self.finger("mousemove", x, y, "click", 1)

    def drag(self, x, from_y, to_y, steps=8):
        """The pauses are the finger's; nothing waits for them."""
        words = ["mousemove", x, from_y, "mousedown", 1]
        for step in range(1, steps + 1):
            words += ["mousemove", x, from_y + (to_y - from_y) * step // steps, "sleep", 0.015]
        self.finger(*words, "mouseup", 1)

    def close(self):
        self.server.terminate()
        self.server.wait()


class Gallery:
    """The program, and what it tells of that which is seen."""

    def __init__(self, program, screen, page):
        self.screen = screen
        environment = {**screen.environment, "ASAN_OPTIONS": "detect_leaks=0"}
        self.process = subprocess.Popen([program, "--tell", page], env=environment, text=True,
                                        stdout=subprocess.PIPE)
        self.lines = queue.Queue()
        self.places = {}
        threading.Thread(target=self._read, daemon=True).start()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()

    def _read(self):
        for line in self.process.stdout:
            self.lines.put(line.rstrip("\n"))
        self.lines.put(None)

    def _next(self, what, seen):
        try:
            line = self.lines.get(timeout=PATIENCE)
        except queue.Empty:
            sys.exit(f"Not seen: {what}; seen instead: {seen}")
        if line is None:
            sys.exit(f"The gallery ended while waiting for {what}; seen: {seen}")
        seen.append(line)
        if line.startswith("top "):
            self.places.clear()
        elif line.startswith("place "):
            _, x, y, name = line.split(" ", 3)
            self.places[name] = int(x), int(y)
        return line

    def wait_for(self, wanted, what=None):
        """The first line that is wanted, or for which wanted(line) holds."""
        seen = []
        while True:
            line = self._next(what or wanted, seen)
            if wanted(line) if callable(wanted) else line == wanted:
                return line

    def wait_for_top(self, text):
        self.wait_for(lambda line: line.startswith("top ") and text in line, f"top {text}")

    def rest(self):
        """Where the page comes to rest next."""
        line = self.wait_for(lambda told: told.startswith("position "), "a page at rest")
        return int(line.split()[1])

    def place(self, name):
        seen = []
        while name not in self.places:
            self._next(f"place of {name}", seen)
        return self.places[name]

    def tap(self, name):
        self.screen.tap(*self.place(name))

    def key(self, name):
        self.screen.finger("key", name)

    def go_to(self, control):
        """By the tab key; the focus is told as soon as the page is."""
        def focus():
            return self.wait_for(lambda line: line.startswith("focus "), f"focus on {control}")

        while focus() != f"focus {control}":
            self.key("Tab")


def scroll_a_list(program, screen):
    with Gallery(program, screen, "list") as gallery:
        gallery.wait_for_top("List of 10,000 rows")
        position = gallery.rest()
        # On a busy machine all of a flick may arrive at once, which is a finger's jump.
        while True:
            before = position
            screen.drag(240, 700, 200)
            position = gallery.rest()
            if position > before + 520:
                break
        screen.drag(240, 300, 800)
        if gallery.rest() >= position:
            sys.exit("The list was not flicked back.")


def grow_at_the_top(program, screen):
    with Gallery(program, screen, "endless-list") as gallery:
        gallery.wait_for("position 0")
        screen.drag(240, 300, 500)
        gallery.wait_for(lambda line: line.startswith("position ") and int(line.split()[1]) > 1000,
                         "ten groups more above, nothing moved")


def use_dialogs(program, screen):
    with Gallery(program, screen, "dialogs") as gallery:
        gallery.wait_for_top("Dialogs, sheets, banners")
        gallery.tap("Question")
        gallery.wait_for_top("MMessageBox")
        gallery.tap("No")
        gallery.wait_for_top("Dialogs, sheets, banners")
        gallery.tap("Sheet")
        gallery.wait_for_top("MSheet Edit event")
        gallery.tap("Save")
        gallery.wait_for_top("Dialogs, sheets, banners")


def go_back(program, screen):
    with Gallery(program, screen, "dialogs") as gallery:
        gallery.wait_for_top("Dialogs, sheets, banners")
        gallery.tap("Dialog")
        gallery.wait_for_top("MDialog Synchronisation")
        gallery.key("Escape")
        gallery.wait_for_top("Dialogs, sheets, banners")
        gallery.key("XF86Back")
        gallery.wait_for_top("Gallery")


def open_a_menu(program, screen):
    with Gallery(program, screen, "dialogs") as gallery:
        gallery.wait_for_top("Dialogs, sheets, banners")
        x, y = gallery.place("itemWithMenu")
        screen.finger("mousemove", x, y, "mousedown", 1)
        gallery.wait_for_top("MObjectMenu")
        screen.finger("mouseup", 1)
        gallery.tap("Edit")
        gallery.wait_for_top("Dialogs, sheets, banners")


def write_a_text(program, screen):
    with Gallery(program, screen, "text") as gallery:
        gallery.wait_for_top("Text")
        gallery.tap("Title")
        gallery.wait_for("focus Title: ")
        screen.finger("type", "Choir at 7")
        gallery.wait_for("focus Title: Choir at 7")
        gallery.key("BackSpace")
        gallery.wait_for("focus Title: Choir at ")


def use_the_keyboard(program, screen):
    with Gallery(program, screen, "dialogs") as gallery:
        gallery.wait_for_top("Dialogs, sheets, banners")
        gallery.go_to("Question")
        gallery.key("space")
        gallery.wait_for_top("MMessageBox")
        gallery.key("Return")
        gallery.wait_for_top("Dialogs, sheets, banners")
    with Gallery(program, screen, "list") as gallery:
        gallery.wait_for("position 0")
        gallery.go_to("a MList")
        gallery.key("End")
        gallery.wait_for(lambda line: line.startswith("position ")
                         and int(line.split()[1]) > 500_000, "the end of the list")


def turn_the_screen(program, screen):
    with Gallery(program, screen, "labels") as gallery:
        gallery.wait_for("orientation portrait")
        gallery.wait_for_top("Labels")
        window = subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--pid", str(gallery.process.pid)],
            env=screen.environment, stdout=subprocess.PIPE, text=True,
            check=True).stdout.split()[0]
        screen.finger("windowsize", window, HEIGHT, WIDTH)
        gallery.wait_for("orientation landscape")
        screen.finger("windowsize", window, WIDTH, HEIGHT)
        gallery.wait_for("orientation portrait")


JOURNEYS = (scroll_a_list, grow_at_the_top, use_dialogs, go_back, open_a_menu, write_a_text,
            use_the_keyboard, turn_the_screen)


def main():
    program = sys.argv[1]
    with tempfile.TemporaryDirectory() as folder:
        os.environ["XDG_RUNTIME_DIR"] = folder
        screen = Screen()
        try:
            for journey in JOURNEYS:
                journey(program, screen)
                print(f"done: {journey.__name__.replace('_', ' ')}")
        finally:
            screen.close()


if __name__ == "__main__":
    main()
