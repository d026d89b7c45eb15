"""What a user sees of the editor: controls by role and name, from the accessibility tree."""
import time
import warnings
from functools import cached_property

import gi

gi.require_version('Atspi', '2.0')
from gi.repository import Atspi, GLib  # noqa: E402

Atspi.set_timeout(3000, 15000)
warnings.simplefilter('ignore', DeprecationWarning)

CONTROLS = ('text', 'spin button', 'combo box', 'check box', 'push button')


class NotSeen(Exception):
    """What was waited for did not come."""


def wait_for(look, what, seconds=20):
    """Looks until something is seen, and returns it."""
    until = time.time() + seconds
    while True:
        found = look()
        if found or found == 0 and found is not False:
            return found
        if time.time() > until:
            raise NotSeen(what)
        time.sleep(0.015)


class Node:
    """One control; all its questions are answered by the program when they are asked."""

    def __init__(self, access):
        self.access = access

    @cached_property
    def role(self):
        return self.access.get_role_name()

    @property
    def name(self):
        return self.access.get_name()

    @property
    def description(self):
        return self.access.get_description()

    def has(self, state):
        return self.access.get_state_set().contains(state)

    @property
    def is_shown(self):
        return self.has(Atspi.StateType.SHOWING)

    @property
    def is_checked(self):
        return self.has(Atspi.StateType.CHECKED)

    @property
    def has_focus(self):
        return self.has(Atspi.StateType.FOCUSED)

    @property
    def box(self):
        box = Atspi.Component.get_extents(self.access, Atspi.CoordType.SCREEN)
        return box.x, box.y, box.width, box.height

    @property
    def middle(self):
        x, y, width, height = self.box
        return x + width // 2, y + height // 2

    @property
    def text(self):
        return Atspi.Text.get_text(self.access, 0, -1)

    @property
    def children(self):
        for index in range(self.access.get_child_count()):
            child = self.access.get_child_at_index(index)
            if child:
                yield Node(child)

    def walk(self):
        """What is shown, in the order of the tree; entries of closed lists are not gone into."""
        if not self.is_shown:
            return
        yield self
        if self.role != 'combo box':
            for child in self.children:
                yield from child.walk()


class Editor:
    """The running program."""

    def __init__(self, name='xrpt-editor'):
        self.name = name
        self.access = wait_for(self._application, 'the editor on the accessibility bus')

    def _application(self):
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(index)
            if child and child.get_name() == self.name:
                child.set_cache_mask(Atspi.Cache.NONE)
                return child
        return None

    @property
    def windows(self):
        return list(Node(self.access).children)

    def look(self, role, name, within=None):
        """The shown control of that role and name, or None."""
        try:
            for root in [within] if within else self.windows:
                for node in root.walk():
                    if node.role == role and node.name == name:
                        return node
        except GLib.Error:  # it went while it was looked at
            return None
        return None

    def find(self, role, name, within=None):
        return wait_for(lambda: self.look(role, name, within), f'{role} "{name}"')

    def dialog(self, title):
        """The dialog of that title, once it has the keyboard."""
        def look():
            try:
                return next((w for w in self.windows if w.name.split(' \u2014 ')[0] == title and
                             w.has(Atspi.StateType.ACTIVE)), None)
            except GLib.Error:
                return None
        return wait_for(look, f'the dialog "{title}"')

    def is_alone(self):
        """Whether the main window is the only one, and has the keyboard."""
        return len(self.windows) == 1 and self.windows[0].has(Atspi.StateType.ACTIVE)


def number_of(text):
    """None for a number that is being typed."""
    try:
        return float(text.rstrip('°'))
    except ValueError:
        return None


class Field:
    """A control of the property panel with the label that stands before it."""

    def __init__(self, name, node):
        self.name, self.node, self.role = name, node, node.role

    @property
    def value(self):
        """As people read it: number, True or False, '#rrggbb', else a text."""
        if self.role == 'spin button':
            return number_of(self.node.text)
        if self.role == 'check box':
            return self.node.is_checked
        if self.role == 'push button':
            return self.node.description
        if self.role == 'combo box':
            return self.node.name
        return self.node.text


class Panel:
    """The property panel: its title, and its fields by the labels before them. What stands below a list (series,
    alternatives) or below the page's background has that name before its own, as in 'Series/Type'.

    Every question costs a message to the program, so where the fields of a kind of card stand in the tree is learned
    once. Panels with lists are read anew, for they change with what is chosen in them."""

    def __init__(self, editor):
        self.root = editor.find('filler', 'Properties')
        self.box = self.root.box
        self.titled = next(node for node in self.root.walk() if node.role == 'label')
        self.places, self.known = {}, {}
        self.lists, self.buttons = {}, {}

    @property
    def title(self):
        return self.titled.name

    def forget(self):
        """The card was changed or another one is shown: controls may be others."""
        self.known = {}

    def read(self):
        """Walks the whole panel."""
        self.forget()
        self.lists, self.buttons, places = {}, {}, {}
        title, label, part = None, None, ''
        for path, node in self._walk((), self.root):
            role = node.role
            if role == 'label':
                label = node.name.split(' (')[0]
                if title is None:
                    title, label = label, None
                elif title == 'Page' and label == 'Background':
                    part, label = 'Background/', None
            elif role == 'list':
                part, label = node.name + '/', None
                self.lists[node.name] = node
            elif role == 'push button' and label is None:
                self.buttons[part + node.name] = node
            elif role in CONTROLS and label is not None:
                places[part + label] = path
                self.known[path] = node
                label = None
        self.places[title] = places
        return self

    def _walk(self, path, node):
        """Only containers are hidden: folded sections, and what a card has not."""
        is_container = node.role == 'filler'
        if is_container and not node.is_shown:
            return
        yield path, node
        if is_container:
            for index, child in enumerate(node.children):
                yield from self._walk(path + (index,), child)

    def look(self):
        """Knows the fields of what is shown afterwards; False when it changed meanwhile."""
        try:
            self.forget()
            if self.title not in self.places or self.lists or self.title in ('Graph', 'Conditioned'):
                self.read()
            return True
        except (GLib.Error, AttributeError):
            return False

    @property
    def labels(self):
        return self.places.get(self.title, {})

    def field(self, label):
        return Field(label, self._at(self.places[self.title][label]))

    def _at(self, path):
        if not path:
            return self.root
        if path not in self.known:
            self.known[path] = Node(self._at(path[:-1]).access.get_child_at_index(path[-1]))
        return self.known[path]

    def value(self, label):
        """None while the panel changes."""
        try:
            return self.field(label).value
        except (GLib.Error, AttributeError, KeyError):
            self.forget()
            return None
