#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

"""Uses the real gallery on a screen of its own (Xvfb) as a finger would: taps, flicks, presses for
long, goes back, turns the screen. Says what did not happen and ends with 1."""

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
        self.finger("mousemove", x, y, "mousedown", 1, "sleep", 0.05, "mouseup", 1)

    def press_for_long(self, x, y):
        self.finger("mousemove", x, y, "mousedown", 1, "sleep", 1.2, "mouseup", 1)

    def flick(self, x, from_y, to_y, steps=8):
        words = ["mousemove", x, from_y, "mousedown", 1, "sleep", 0.05]
        for step in range(1, steps + 1):
            words += ["mousemove", x, from_y + (to_y - from_y) * step // steps, "sleep", 0.015]
        self.finger(*words, "mouseup", 1)

    def close(self):
        self.server.terminate()
        self.server.wait()


class Gallery:
    def __init__(self, program, screen, page):
        self.screen = screen
        environment = {**screen.environment, "ASAN_OPTIONS": "detect_leaks=0"}
        self.process = subprocess.Popen([program, "--tell", page], env=environment, text=True,
                                        stdout=subprocess.PIPE)
        self.lines = queue.Queue()
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self):
        for line in self.process.stdout:
            self.lines.put(line.strip())
        self.lines.put(None)

    def wait_for(self, wanted, what):
        """The first line for which wanted(line) holds."""
        seen = []
        try:
            while True:
                line = self.lines.get(timeout=PATIENCE)
                if line is None:
                    sys.exit(f"The gallery ended while waiting for {what}; seen: {seen}")
                if wanted(line):
                    return line
                seen.append(line)
        except queue.Empty:
            sys.exit(f"Not seen: {what}; seen instead: {seen}")

    def wait_for_top(self, text):
        return self.wait_for(lambda line: line.startswith("top ") and text in line, f"top {text}")

    def wait_for_position(self, holds, what):
        return self.wait_for(
            lambda line: line.startswith("position ") and holds(int(line.split()[1])), what)

    def end(self):
        self.process.terminate()
        self.process.wait()


def scroll_a_list(program, screen):
    gallery = Gallery(program, screen, "list")
    gallery.wait_for_top("List of 10,000 rows")
    gallery.wait_for_position(lambda y: y == 0, "the list at its top")
    screen.flick(240, 700, 200)
    gallery.wait_for_position(lambda y: y > 500, "the list flicked onwards by itself")
    screen.flick(240, 300, 800)
    gallery.wait_for_position(lambda y: y >= 0, "the list flicked back")
    gallery.end()


def grow_at_the_top(program, screen):
    gallery = Gallery(program, screen, "endless-list")
    gallery.wait_for_position(lambda y: y == 0, "the list at its top")
    screen.flick(240, 300, 500)
    gallery.wait_for_position(lambda y: y > 1000, "ten groups more above, nothing moved")
    gallery.end()


def use_dialogs(program, screen):
    gallery = Gallery(program, screen, "dialogs")
    gallery.wait_for_top("Dialogs, sheets, banners")
    screen.tap(240, 56 + 16 + 24 + 56 + 24)  # the second button: a question
    gallery.wait_for_top("MMessageBox")
    screen.finger("key", "Escape")
    gallery.wait_for_top("Dialogs, sheets, banners")
    screen.finger("key", "Escape")
    gallery.wait_for_top("Gallery")
    gallery.end()


def turn_the_screen(program, screen):
    gallery = Gallery(program, screen, "labels")
    gallery.wait_for(lambda line: line == "orientation portrait", "portrait")
    gallery.wait_for_top("Labels")
    window = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(gallery.process.pid)],
                            env=screen.environment, stdout=subprocess.PIPE, text=True,
                            check=True).stdout.split()[0]
    screen.finger("windowsize", window, HEIGHT, WIDTH)
    gallery.wait_for(lambda line: line == "orientation landscape", "landscape")
    screen.finger("windowsize", window, WIDTH, HEIGHT)
    gallery.wait_for(lambda line: line == "orientation portrait", "portrait again")
    gallery.end()


def open_a_menu(program, screen):
    gallery = Gallery(program, screen, "dialogs")
    gallery.wait_for_top("Dialogs, sheets, banners")
    screen.press_for_long(240, 56 + 16 + 24 + 6 * 56 + 24 + 28)
    gallery.wait_for_top("MObjectMenu")
    screen.tap(240, 840)
    gallery.wait_for_top("Dialogs, sheets, banners")
    gallery.end()


def main():
    program = sys.argv[1]
    with tempfile.TemporaryDirectory() as folder:
        os.environ["XDG_RUNTIME_DIR"] = folder
        screen = Screen()
        try:
            for journey in (scroll_a_list, grow_at_the_top, use_dialogs, open_a_menu,
                            turn_the_screen):
                journey(program, screen)
                print(f"done: {journey.__name__.replace('_', ' ')}")
        finally:
            screen.close()


if __name__ == "__main__":
    main()
