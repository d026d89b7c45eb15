#!/usr/bin/env python3
"""Builds a sample report in an empty folder with mouse and keyboard alone, saves it, and compares the file with the
sample. `--only 2 3` builds the pages of these numbers, `--record FILE.gif` keeps a moving picture of it."""
import argparse
import shutil
import signal
import sys
import time
import traceback
from pathlib import Path

import screen as screens

if missing := screens.missing_tools():
    print('not here:', ', '.join(missing))
    sys.exit(77)

from hands import Hands  # noqa: E402
from reports import Report, differences  # noqa: E402
from seen import Editor, NotSeen, wait_for  # noqa: E402
from work import Desk  # noqa: E402

SCREEN = (1600, 1400)  # high enough for a page and for the longest panel


def read_arguments():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument('editor', type=Path)
    parser.add_argument('examples', type=Path, help='folder with config and images')
    parser.add_argument('--report', default='Consumo_mensual')
    parser.add_argument('--only', type=int, nargs='+', help='pages, from 1')
    parser.add_argument('--record', type=Path)
    parser.add_argument('--trace', action='store_true', help='tells each card, and where it was when it gave up')
    parser.add_argument('--limit', type=int, default=600, help='seconds after which it gives up')
    parser.add_argument('--keep', type=Path, help='folder for what was made, and a picture of the screen when it fails')
    return parser.parse_args()


def texts_of(report):
    return ''.join(report.root.itertext())


def build(desk, wanted):
    desk.begin()
    desk.write_formulas(wanted.formulas)
    for index, page in enumerate(wanted.pages):
        started = time.time()
        if index:
            desk.add_page()
        desk.set_page(page)
        for card in reversed(page.cards):
            desk.make(card)
        print(f'page "{page.fields["Name"]}": {len(page.cards)} cards in {time.time() - started:.1f} s', flush=True)


def main():
    arguments = read_arguments()
    screens.on_own_bus()
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))  # the screen is ended in any case
    signal.signal(signal.SIGALRM, give_up)
    signal.alarm(arguments.limit)
    sample = next((arguments.examples / 'config').glob(f'*.{arguments.report}.xrpt'))
    wanted = Report(sample)
    wanted.keep_pages(arguments.only)
    with screens.Screen(*SCREEN) as screen:
        hands = Hands()
        hands.learn(texts_of(wanted))
        screen.manage_windows()
        config = screen.folder / 'config'
        config.mkdir()
        for plant in [*(arguments.examples / 'config').glob('*.XSTY'), arguments.examples / 'config' / 'devices.xml']:
            shutil.copy(plant, config)
        started = time.time()
        screen.start_editor(arguments.editor, '--config', config, '--images', arguments.examples / 'images')
        desk = Desk(hands, Editor(), arguments.trace)
        recording = arguments.record and screen.record(arguments.record.resolve(), 800, 1.2)
        try:
            build(desk, wanted)
            desk.save(arguments.report)
            file = wait_for(lambda: next(config.glob(f'*.{arguments.report}.xrpt'), None), 'the saved file')
            found = differences(wanted, Report(file))
        except (NotSeen, TimeIsUp) as error:
            if arguments.trace:
                traceback.print_exc()
            found = [f'waited in vain for {error}']
        finally:
            if arguments.keep:
                keep(screen, config, arguments.keep)
        print(f'{time.time() - started:.1f} s; differences: {len(found)}')
        if recording:
            signal.alarm(0)
            recording.stop()
        print('\n'.join(found))
        return 1 if found else 0


class TimeIsUp(Exception):
    """Nobody but `main` waits for it."""


def give_up(*_):
    raise TimeIsUp('the end within its time')


def keep(screen, config, folder):
    folder.mkdir(parents=True, exist_ok=True)
    for file in config.glob('*.xrpt'):
        shutil.copy(file, folder)
    screen.picture(folder / 'screen.png')


if __name__ == '__main__':
    sys.exit(main())
