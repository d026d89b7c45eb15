"""Mouse and keyboard: events of the X server itself (XTest), as a user's hands make them."""
import time

from Xlib import X, XK, display
from Xlib.ext import xtest

NAMED = {'ctrl': 'Control_L', 'shift': 'Shift_L', 'alt': 'Alt_L', 'enter': 'Return', 'tab': 'Tab', 'esc': 'Escape',
         'del': 'Delete', 'home': 'Home', 'end': 'End', 'up': 'Up', 'down': 'Down', 'pgup': 'Page_Up',
         'pgdown': 'Page_Down', 'space': 'space'}


def keysym_of(character):
    """The X name of a character: Latin letters have their own number, all others the one of their code point."""
    if character == '\n':
        return XK.XK_Return
    if character == '\t':
        return XK.XK_Tab
    code = ord(character)
    return code if code < 0x100 else 0x01000000 + code


class Hands:
    """Moves, presses and types on one screen. Before the program starts, `learn` puts the characters that the keyboard
    lacks on keys that have none, as a national keyboard would."""

    def __init__(self, name=None):
        self.display = display.Display(name)
        self.keys = {}
        self._read_keyboard()

    def _read_keyboard(self):
        first = self.display.display.info.min_keycode
        count = self.display.display.info.max_keycode - first + 1
        self.spare = []
        for index, symbols in enumerate(self.display.get_keyboard_mapping(first, count)):
            if not any(symbols):
                self.spare.append(first + index)
            for shift, symbol in enumerate(list(symbols)[:2]):
                if symbol:
                    self.keys.setdefault(symbol, (first + index, shift == 1))

    def learn(self, characters):
        missing = sorted(c for c in set(characters) if keysym_of(c) not in self.keys)
        for character in missing:
            code = self.spare.pop()
            self.display.change_keyboard_mapping(code, [[keysym_of(character)] * 2])
            self.keys[keysym_of(character)] = (code, False)
        self.display.sync()

    # --- Mouse ---

    def move(self, x, y):
        xtest.fake_input(self.display, X.MotionNotify, x=int(x), y=int(y))
        self.display.sync()

    def button(self, down, number=1):
        xtest.fake_input(self.display, X.ButtonPress if down else X.ButtonRelease, number)
        self.display.sync()

    def click(self, x, y, number=1, times=1):
        self.move(x, y)
        for _ in range(times):
            self.button(True, number)
            self.button(False, number)

    def drag(self, start, end, steps=4):
        self.move(*start)
        self.button(True)
        for step in range(1, steps + 1):
            self.move(start[0] + (end[0] - start[0]) * step / steps, start[1] + (end[1] - start[1]) * step / steps)
            time.sleep(0.004)  # a hand's pace: the program sees a movement, not a jump
        self.button(False)

    def wheel(self, x, y, notches):
        self.move(x, y)
        for _ in range(abs(notches)):
            self.click(x, y, 4 if notches > 0 else 5)

    # --- Keyboard ---

    def _stroke(self, code, down):
        xtest.fake_input(self.display, X.KeyPress if down else X.KeyRelease, code)

    def key(self, combination):
        """One key with what is held: 'ctrl+shift+n', 'enter', 'l'."""
        *held, last = combination.split('+') if combination != '+' else ['+']
        codes = [self.keys[XK.string_to_keysym(NAMED[name])][0] for name in held]
        symbol = XK.string_to_keysym(NAMED[last]) if last in NAMED else \
            XK.string_to_keysym(last) or keysym_of(last)
        code, shifted = self.keys[symbol]
        if shifted:
            codes.append(self.keys[XK.XK_Shift_L][0])
        for held_code in codes:
            self._stroke(held_code, True)
        self._stroke(code, True)
        self._stroke(code, False)
        for held_code in reversed(codes):
            self._stroke(held_code, False)
        self.display.sync()

    def type(self, text):
        shift = self.keys[XK.XK_Shift_L][0]
        for character in text:
            code, shifted = self.keys[keysym_of(character)]
            if shifted:
                self._stroke(shift, True)
            self._stroke(code, True)
            self._stroke(code, False)
            if shifted:
                self._stroke(shift, False)
        self.display.sync()
