#!/usr/bin/env python3
"""Pictures of every ribbon tab, dialog and kind of panel, to be looked at one by one: in both languages, light and dark,
on plain and dense screens, in narrow and wide windows. `screens.py EDITOR EXAMPLES FOLDER [--few]`; checks nothing."""
import argparse
import itertools
import os
import shutil
import sys
import time
from pathlib import Path

import screen as screens

if missing := screens.missing_tools():
    sys.exit('not here: ' + ', '.join(missing))

from hands import Hands  # noqa: E402
from seen import Editor, NotSeen, wait_for  # noqa: E402

WINDOWS = ((900, 700), (1400, 950), (2560, 1440))  # points
# What opens each dialog from the page.
DIALOGS = {'open': 'ctrl+o', 'search': 'ctrl+f', 'replace': 'ctrl+h', 'page': 'alt+enter', 'styles': 'ctrl+shift+y',
           'pictures': 'ctrl+shift+j', 'save-as': 'ctrl+shift+s', 'export': 'ctrl+shift+e', 'images': 'ctrl+shift+i',
           'preview': 'ctrl+F2', 'palette': 'ctrl+shift+p', 'shortcuts': 'F1', 'formulas': 'ctrl+shift+f',
           'devices': 'ctrl+k v'}
PANELS = 8  # pages of cards that Tab goes through


def read_arguments():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument('editor', type=Path)
    parser.add_argument('examples', type=Path)
    parser.add_argument('folder', type=Path)
    parser.add_argument('--few', action='store_true', help='one language a theme, one size of window')
    return parser.parse_args()


def looks(few):
    if few:
        return [('en', 'light', 1, (1400, 950)), ('es', 'dark', 1, (1400, 950)), ('es', 'light', 2, (900, 700))]
    return list(itertools.product(('en', 'es'), ('light', 'dark'), (1, 2), WINDOWS))


class Look:
    """One editor in one guise, and the pictures of it."""

    def __init__(self, screen, hands, folder):
        self.screen, self.hands, self.folder = screen, hands, folder
        self.editor = Editor()
        wait_for(self.editor.is_alone, 'the window')

    def picture(self, name):
        time.sleep(0.6)  # whatever fades or blinks has come to rest
        self.screen.picture(self.folder / f'{name}.png')

    def tabs(self):
        shown = [node for node in self.editor.windows[0].walk() if node.role == 'page tab']
        for number, tab in enumerate(shown):
            self.hands.click(*tab.middle)
            self.picture(f'tab-{number}')
        if shown:
            self.hands.click(*shown[0].middle)

    def panels(self, size):
        self.hands.click(size[0] // 2, size[1] // 2)
        for number in range(PANELS):
            self.hands.key('tab')
            self.picture(f'panel-{number}')
        self.hands.key('esc')

    def dialogs(self):
        for name, keys in DIALOGS.items():
            for key in keys.split():
                self.hands.key(key)
            try:
                wait_for(lambda: not self.editor.is_alone(), name, 3)
            except NotSeen:
                print(f'{self.folder.name}: {name} did not open', flush=True)
                continue
            self.picture(f'dialog-{name}')
            self.hands.key('esc')
            try:
                wait_for(self.editor.is_alone, 'the window', 3)
            except NotSeen:
                self.hands.key('esc')


def take(arguments, language, theme, scale, size):
    folder = arguments.folder / f'{language}-{theme}-{scale * 100}-{size[0]}'
    folder.mkdir(parents=True, exist_ok=True)
    pixels = tuple(side * scale for side in size)
    with screens.Screen(*pixels) as screen:
        hands = Hands()
        screen.manage_windows(fills_screen=True)
        config = screen.folder / 'config'
        shutil.copytree(arguments.examples / 'config', config)
        os.environ['QT_SCALE_FACTOR'] = str(scale)
        screen.start_editor(arguments.editor, '--config', config, '--images', arguments.examples / 'images',
                            'Consumo_mensual', language=language, theme=theme)
        look = Look(screen, hands, folder)
        look.picture('start')
        look.tabs()
        look.panels(pixels)
        look.dialogs()


def main():
    arguments = read_arguments()
    screens.on_own_bus()
    for language, theme, scale, size in looks(arguments.few):
        take(arguments, language, theme, scale, size)
        print(language, theme, scale, size, flush=True)


main()
