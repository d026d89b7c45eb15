"""What a user does in the editor: pages, cards, fields, formulas, each with mouse and keyboard, each waited for."""
import time

from seen import NotSeen, Panel, wait_for
from gi.repository import Atspi, GLib

SELECTED, PRESSED, EXPANDED = Atspi.StateType.SELECTED, Atspi.StateType.PRESSED, Atspi.StateType.EXPANDED
CLOSE = 0.006  # numbers are shown with two decimals
# What changes other fields is set, and the panel looked at again, before they are.
SETS_OTHERS = ('Text style', 'Picture', 'Shown as', 'Movement', 'Type')
# The menu of kinds that an alternative may be; menus are no part of the accessibility tree.
KINDS = ('Image', 'Label', 'Date', 'Formula', 'Camera image', 'Forced values')
PLACES = ('X', 'Y', 'Width', 'Height')


def same(shown, wanted):
    if isinstance(wanted, float):
        return isinstance(shown, float) and abs(shown - wanted) < CLOSE
    return shown == wanted


class Desk:
    def __init__(self, hands, editor, trace):
        self.hands, self.editor, self.trace, self.began = hands, editor, trace, time.time()
        self.made = []  # of the shown page, the lowest first
        self.tab, self.seen_at = 'Home', {}  # the ribbon's tab, and its buttons
        self.fresh = {}  # what a new card of each kind shows

    # --- Window, pages, file ---

    def begin(self):
        self.fill_screen(self.editor.windows[0])
        self.press('push button', 'New report, portrait')
        self.canvas = self.editor.find('canvas', 'Page')
        self.panel = Panel(self.editor)
        self.look_at_page()

    def fill_screen(self, window):
        """Double click on the title bar, once the window manager has given the window one."""
        x, y, width, _ = window.box
        for _ in range(10):
            self.hands.click(x + width // 2, y - 10, times=2)
            try:
                return wait_for(lambda: window.box[2] > width, 'a larger window', 2)
            except NotSeen:
                x, y, width, _ = window.box
        raise NotSeen('a larger window')

    def look_at_page(self):
        """Fits the page and learns from the status bar where its millimetres are."""
        self.hands.key('ctrl+0')
        pointer = self.editor.find('label', 'Pointer on the page')
        x, y, width, height = self.canvas.box

        def millimetres(at):
            self.hands.move(at[0] + 1, at[1])
            self.hands.move(*at)
            last = None
            for _ in range(100):
                shown = pointer.description
                if shown and shown == last:
                    a, b = shown.removesuffix(' mm').split(' · ')
                    return float(a), float(b)
                last = shown
                time.sleep(0.03)
            raise NotSeen('the pointer in the status bar')

        near, far = (x + width * 2 // 5, y + height // 10), (x + width * 3 // 5, y + height * 9 // 10)
        a, b = millimetres(near), millimetres(far)
        self.scale = [(far[i] - near[i]) / (b[i] - a[i]) for i in (0, 1)]
        self.origin = [near[i] - a[i] * self.scale[i] for i in (0, 1)]

    def pixel(self, x, y):
        return round(self.origin[0] + x * self.scale[0]), round(self.origin[1] + y * self.scale[1])

    def press(self, role, name, within=None):
        self.hands.click(*self.editor.find(role, name, within).middle)

    def ribbon(self, tab, button):
        """A button of a tab, which is opened first. Buttons stay where they are and are looked for once."""
        if self.tab != tab:
            self.press('page tab', tab)
            self.tab = tab
        if (tab, button) not in self.seen_at:
            self.seen_at[tab, button] = wait_for(
                lambda: self.editor.look('push button', button) or self.editor.look('check box', button),
                f'"{button}" in the ribbon')
        self.hands.click(*self.seen_at[tab, button].middle)
        return self.seen_at[tab, button]

    def add_page(self):
        pages = self.editor.find('list', 'Pages')
        count = len(list(pages.children))
        self.ribbon('Page', 'Add page')
        wait_for(lambda: len(list(pages.children)) == count + 1, 'one more page')
        self.made = []
        self.ribbon('Home', 'Pointer')
        self.look_at_page()

    def set_page(self, page):
        self.hands.click(*self.pixel(105, 290))
        wait_for(lambda: self.panel.title == 'Page', 'the panel of the page')
        self.fill(page.fields)
        self.fill(page.background, 'Background/')

    def save(self, name):
        self.hands.key('ctrl+s')
        dialog = self.editor.dialog('Save as')
        self.type_over(self.editor.find('text', 'Name', dialog), name)
        self.hands.key('enter')
        wait_for(self.editor.is_alone, 'the end of saving')

    def write_formulas(self, formulas):
        if not formulas:
            return
        self.ribbon('Report', 'Formulas')
        table = self.editor.dialog('Formulas')
        for name, text in formulas:
            self.press('push button', 'New', table)
            dialog = self.editor.dialog('Formula')
            field = self.editor.find('text', 'Expression', dialog)
            self.type_over(field, text)
            wait_for(lambda: field.text == text, f'the expression {text}')
            # Going to the name puts away names that are offered for the expression.
            self.type_over(self.editor.find('text', 'Name', dialog), name)
            self.hands.key('enter')
            table = self.editor.dialog('Formulas')
        self.press('push button', 'OK', table)
        wait_for(self.editor.is_alone, 'the end of the formulas')

    # --- Cards ---

    def make(self, card):
        """Copies a card that is much alike when there is one, else draws it; then sets what is left to set."""
        source = self.source_for(card)
        if self.trace:
            print(f'{time.time() - self.began:.1f} s: {"copy" if source else "draw"} {card.name} {card.place}', flush=True)
        known = source.fields if source else self.fresh.get(card.tag, {})
        if source:
            self.copy(source)
        else:
            self.draw(card)
        self.panel.look()
        if card.tag not in self.fresh and not source:
            self.fresh[card.tag] = {label: self.panel.value(label) for label in card.fields if label not in PLACES}
        self.fill(self.to_set(card, known))
        if card.series:
            self.fill_series(card)
        if card.alternatives:
            self.fill_alternatives(card)
        self.made.append(card)

    @staticmethod
    def to_set(card, known):
        """The place, sizes first, for a card is kept on its page; and what it does not show yet. A text style sets
        others."""
        changed = [label for label, value in card.fields.items() if not same(known.get(label), value)]
        rest = list(card.fields) if 'Text style' in changed else changed
        first = ['Width', 'Height', 'X', 'Y']
        return {label: card.fields[label] for label in first + [label for label in rest if label not in first]}

    def source_for(self, card):
        """Of the cards of that kind the one with the fewest fields to change, when that is less work than drawing."""
        best, least = None, 8 if not card.alternatives else 100
        for other in self.made[::-1]:
            if other.tag != card.tag or len(other.series) != len(card.series) or \
                    [c.tag for _, c in other.alternatives] != [c.tag for _, c in card.alternatives]:
                continue
            work = sum(not same(other.fields.get(label), value) for label, value in card.fields.items())
            work += 0 if other is self.made[-1] else 1
            if work < least and (other is self.made[-1] or self.point_of(other)):
                best, least = other, work
        return best

    def point_of(self, card):
        """A point of the card, millimetres, where no later card covers it; None when all of it is covered."""
        above = [other.place for other in self.made[self.made.index(card) + 1:]]
        x, y, width, height = card.place
        if height < 3:
            return None
        for across in (0.5, 0.2, 0.8, 0.1, 0.9):
            for down in (0.5, 0.3, 0.7):
                px, py = x + width * across, y + height * down
                if not any(a - 1 < px < a + w + 1 and b - 1 < py < b + h + 1 for a, b, w, h in above):
                    return px, py
        return None

    def copy(self, source):
        if source is not self.made[-1]:
            self.hands.click(*self.pixel(*self.point_of(source)))
            self.wait_for_card(source.name, lambda: all(self.shows(label, source.fields[label]) for label in PLACES))
        self.hands.key('ctrl+d')
        self.wait_for_card(source.name, lambda: self.panel.value('X') is not None and not all(
            self.shows(label, source.fields[label]) for label in PLACES))

    def draw(self, card):
        """The tool is put away when the card is drawn, and the card selected."""
        x, y, width, height = card.place
        tool = self.ribbon('Home', card.name)
        wait_for(lambda: tool.is_checked, f'the tool {card.name}')
        self.hands.drag(self.pixel(x, y), self.pixel(x + width, y + height))

        def is_new():
            left, top = self.panel.value('X'), self.panel.value('Y')
            return left is not None and top is not None and abs(left - x) < 6 and abs(top - y) < 6
        self.wait_for_card(card.name, is_new)

    def wait_for_card(self, title, is_it):
        def look():
            return self.panel.title == title and self.panel.look() and is_it()
        wait_for(look, f'the panel of the {title}')

    def fill_series(self, card):
        for index, fields in enumerate(card.series):
            self.show_line('Series', index)
            self.fill(fields, 'Series/')

    def fill_alternatives(self, card):
        for index, (condition, inner) in enumerate(card.alternatives):
            self.show_line('Alternatives', index, inner.name)
            self.fill({'Condition': condition}, 'Alternatives/')
            self.fill({label: value for label, value in inner.fields.items() if label not in PLACES}, 'Alternatives/')
            if inner.series:
                self.fill_series(inner)

    def show_line(self, name, index, kind=None):
        """Chooses a line of one of the panel's lists; the one after the last is added first, of a kind from
        the button's menu when it has one."""
        wait_for(self.panel.look, 'the panel')
        if index >= self.lines(name):
            return self.add_line(name, index, kind)
        shown = self.panel.lists[name]
        self.bring_into_sight(shown)
        x, y, *_ = shown.box
        self.hands.click(x + 20, y + 8)
        wait_for(lambda: shown.has_focus, f'the keyboard in {name}')
        self.hands.key('home')
        for _ in range(index):
            self.hands.key('down')
        wait_for(lambda: list(shown.children)[index].has(SELECTED), f'line {index} of {name}')

    def add_line(self, name, index, kind):
        button = self.panel.buttons[name + '/Add']
        self.bring_into_sight(button)
        self.hands.click(*button.middle)
        if kind:
            wait_for(lambda: button.has(PRESSED), 'the menu of kinds')
            for _ in range(KINDS.index(kind) + 1):
                self.hands.key('down')
            self.hands.key('enter')
        wait_for(lambda: self.lines(name) > index, f'one more line in {name}')

    def lines(self, name):
        self.panel.look()
        return len(list(self.panel.lists[name].children)) if name in self.panel.lists else 0

    # --- Fields ---

    def fill(self, wanted, part=''):
        """Sets the fields that show something else, until all show what they should."""
        for _ in range(8):
            wait_for(self.panel.look, 'the panel')
            left = [(label, value) for label, value in wanted.items() if not self.shows(part + label, value)]
            if all(self.set(part + label, value) and label not in SETS_OTHERS for label, value in left):
                return
        raise NotSeen(f'{self.panel.title}: ' + ', '.join(
            f'{label} = {value!r}, not {self.panel.value(part + label)!r}' for label, value in left) +
            f' (there are {list(self.panel.labels)})')

    def shows(self, label, value):
        """Not, when the panel has no such field: another one may bring it."""
        return label in self.panel.labels and same(self.panel.value(label), value)

    def set(self, label, value):
        """Whether the field shows the value afterwards; the panel may have been made anew meanwhile."""
        try:
            field = self.panel.field(label)
            self.bring_into_sight(field.node)
            self.change(field, label, value)
            return wait_for(lambda: same(field.value, value), label, 1.5)
        except (GLib.Error, AttributeError, KeyError):
            self.panel.forget()
        except NotSeen:
            pass
        return False

    def change(self, field, label, value):
        if field.role == 'combo box':
            self.choose(field.node, value)
        elif field.role == 'check box':
            self.hands.click(*field.node.middle)
        elif field.role == 'push button':
            self.choose_colour(field.node, value)
        elif field.role == 'spin button':
            self.type_over(field.node, f'{value:.10g}')
            self.hands.key('tab')
        else:
            self.type_over(field.node, value)
            if 'Expression' in label or 'Condition' in label:
                self.hands.click(self.panel.box[0] + 3, field.node.middle[1])  # puts away names that are offered

    def type_over(self, node, text):
        self.enter(node)
        self.hands.key('ctrl+a')
        if text:
            self.hands.type(text)
        else:
            self.hands.key('del')

    def enter(self, node):
        """Clicks into a field; one that just moved is clicked again."""
        for _ in range(10):
            self.hands.click(*node.middle)
            try:
                return wait_for(lambda: node.has_focus, 'the keyboard', 0.4)
            except NotSeen:
                pass
        raise NotSeen(f'the keyboard in {node.name}')

    def choose(self, node, entry):
        entries = self.entries(node)
        self.hands.click(*node.middle)
        wait_for(lambda: node.has(EXPANDED), f'the list of {node.name}')
        self.hands.key('home')
        for _ in range(entries.index(entry)):
            self.hands.key('down')
        self.hands.key('enter')

    @staticmethod
    def entries(node):
        names = []
        for child in node.children:
            names += [entry.name for entry in child.children] if child.role == 'list' else []
        return names

    def choose_colour(self, node, value):
        """The last line of the button's menu opens the dialog, the one above is for none."""
        self.hands.click(*node.middle)
        wait_for(lambda: node.has(PRESSED), 'the menu of colours')
        self.hands.key('up')
        if value == 'No colour':
            self.hands.key('up')
            return self.hands.key('enter')
        self.hands.key('enter')
        dialog = wait_for(lambda: self.editor.look('text', 'HTML:') and self.editor.windows[-1], 'the colours')
        self.type_over(self.editor.find('text', 'HTML:', dialog), value)
        self.hands.key('enter')
        wait_for(self.editor.is_alone, 'the end of the colours')

    def bring_into_sight(self, node):
        x, top, _, height = self.panel.box
        for _ in range(60):
            _, y, _, own = node.box
            if y >= top and y + own <= top + height:
                return
            self.hands.wheel(x + 6, top + height // 2, 1 if y < top else -1)
            until = time.time() + 0.5
            while time.time() < until and node.box[1] == y:
                time.sleep(0.01)
        raise NotSeen(f'{node.name} within the panel')
