"""Reports as the window shows them: each card as the fields of its property panel, and two reports compared."""
import xml.etree.ElementTree as Xml
from pathlib import Path


def words(**pairs):
    return lambda text: pairs[text]


def number(text):
    return float(text)


def flag(text):
    return text == 'T'


def given(_):
    return True


def colour(text):
    """Files hold blue first."""
    return '#' + (text[4:6] + text[2:4] + text[0:2]).lower()


def plain(text):
    return text


ACROSS = words(LEFT='Left', CENTER='Centre', RIGHT='Right')
DOWN = words(TOP='Top', CENTER='Centre', BOTTOM='Bottom')
FACE = words(NORMAL='Normal', BOLD='Bold', ITALIC='Italic', BOLD_ITALIC='Bold italic')
LINES = dict(SOLID='Solid', DASH='Dashes', DOT='Dots', DASH_DOT='Dash, dot', DASH_DOT_DOT='Dash, dot, dot')
MARKS = dict(POINT='Point', CIRCLE5X5='Circle', BOX5X5='Square', DIAMOND5X5='Diamond')

# The panel's name of each field, where the file has it, how its words are read, and what the panel shows where the file
# has none. What sets other fields stands before them.
PLACE = [('X', 'x', number, None), ('Y', 'y', number, None), ('Width', 'width', number, None),
         ('Height', 'height', number, None)]
COLOURS = [('Colour', 'color', colour, None), ('Background', 'backcolor', colour, 'No colour')]
ALIGNED = [('Across', 'horizontalAlign', ACROSS, None), ('Down', 'verticalAlign', DOWN, None)]
SCALE = [('Keep proportions', 'maintainAspectRatio', flag, None), ('Real size', 'maintainRealSize', flag, None)]
MOVING = [('Movement', 'behavior', words(BEHAVIOR_SCROLL='Scrolling', BEHAVIOR_ALTERNATE='To and fro'), 'None'),
          ('Direction', 'direction', words(DIRECTION_LEFT='To the left', DIRECTION_RIGHT='To the right', DIRECTION_UP='Up',
                                        DIRECTION_DOWN='Down'), None),
          ('Pixels a step', 'scrollamount', number, None), ('Step every ms', 'scrolldelay', number, None)]
LETTERS = [('Font', 'font/name', plain, None), ('Style', 'font/style', FACE, None), ('Size', 'font/size', number, None)]
TURN = [('Rotation', 'font/orientation', number, None)]
STYLE = [('Text style', 'style', plain, 'No style')]
TEXT = STYLE + LETTERS + TURN + ALIGNED + COLOURS + MOVING
FIELDS = {
    'label': TEXT + [('Text', 'text/textStr', plain, '')],
    'date': [('Data field', 'field', words(ACTUAL_DATE='Current date', BEGIN_DATE='Start date', END_DATE='End date'),
              'No field')] + TEXT + [('Pattern', 'pattern', plain, None), ('Sample value', 'value', plain, None)],
    'formule': TEXT + [('Expression', 'value', plain, ''), ('Integer digits', 'integers', number, None),
                       ('Leading zeros', 'leftPadding', given, False), ('Decimals', 'decimals', number, None),
                       ('Trailing zeros', 'rightPadding', given, False),
                       ('Thousands separator', 'thousandSeparator', flag, None),
                       ('Default value', 'enableVariableDefaultValue', flag, False)],
    'staticImage': [('Picture', 'image', None, '')] + ALIGNED + SCALE + COLOURS + MOVING,
    'dynamicImage': [('Variable', 'variable/id', plain, '')] + ALIGNED + SCALE + COLOURS,
    'primitive': [('Shape', 'type', words(LINE='Line', BOX='Rectangle', ELLIPSE='Ellipse'), None)] + COLOURS +
                 [('No filling', 'isBackTransparent', flag, None), ('Outline width', 'size', number, None),
                  ('Outline', 'contourType', words(**LINES), None), ('Rotation', 'orientation', number, None)],
    'conditioned': COLOURS,
    'reportGraph': [('Period', 'period', words(**{'3600': '1 hour', '86400': '1 day', '2678400': '1 month'}), None),
                    ('Number of values', 'values', number, None)] + STYLE + LETTERS + COLOURS +
                   [('Text colour', 'font/color', colour, None),
                    ('Graph foreground', 'foregroundColor', colour, None),
                    ('Graph background', 'backgroundColor', colour, None),
                    ('Show legends', 'viewLegends', flag, None), ('Show texts', 'viewTexts', flag, None),
                    ('Hide X labels', 'hideXAxisLabels', flag, None), ('Transparent', 'transparent', flag, None),
                    ('One graph', 'justOneGraph', flag, None)],
    'forceValues': [('Shown as', 'visualization', words(IMAGE='Picture', TEXT='Text', BUTTON='Button'), None),
                    ('Text style', 'style', plain, None), ('Text colour', 'font/color', colour, None),
                    ('Picture', 'image', None, None), ('Text', 'text/textStr', plain, None)] + LETTERS + TURN +
                   ALIGNED + SCALE + COLOURS,
}
SERIES = {
    'reportGraph': [('Variable', 'id', plain, None), ('Type', 'type', words(
        LINE='Lines', BAR='Bars', POINT='Points', CHEESE_VARIABLE='Pie by variable', CHEESE_PERIOD='Pie by period'),
                     None), ('Colour', 'color', colour, None), ('Line style', 'style', words(**LINES, **MARKS), None),
                    ('Line width', 'width', number, None), ('Fixed minimum', 'ybounds/fminbind', flag, None),
                    ('Fixed maximum', 'ybounds/fmaxbind', flag, None), ('Minimum', 'ybounds/minbind', number, None),
                    ('Maximum', 'ybounds/maxbind', number, None)],
    'forceValues': [('Variable', 'id', plain, None), ('Forced value', 'value', plain, ''),
                    ('Value taken', 'type', words(DIRECT='Fixed', USER='Asked of the user'), None),
                    ('Decimals', 'decimals', number, None)],
}
PAGE = [('Name', 'name', plain, None), ('Width', 'width', number, None), ('Height', 'height', number, None),
        ('Rounded corners', 'rounded', number, None), ('Grid across', 'xgrid', number, None),
        ('Grid down', 'ygrid', number, None)]
BACKGROUND = [('Picture', 'image', None, '')] + ALIGNED + SCALE
NAMES = {'label': 'Label', 'date': 'Date', 'formule': 'Formula', 'staticImage': 'Image', 'conditioned': 'Conditioned',
         'reportGraph': 'Graph', 'primitive': 'Shape', 'dynamicImage': 'Camera image',
         'forceValues': 'Forced values'}


def picture_of(element):
    folder, name = element.findtext('imagePath'), element.findtext('imageId')
    return name if folder == './' else f'{folder}/{name}'


class Card:
    """One card: what it is, the fields of its panel, its series, and its alternatives (condition and card)."""

    def __init__(self, element, styles):
        self.tag = element.tag
        self.name = NAMES[element.tag]
        self.fields = read_fields(element, PLACE + FIELDS[element.tag], styles)
        if self.fields.get('Shown as') in ('Text', 'Button'):  # with a picture there is no style to choose
            self.fields.setdefault('Text style', 'No style')
        self.series = [read_fields(e, SERIES[self.tag], styles) for e in element.findall('variable')] \
            if self.tag in SERIES else []
        self.alternatives = [(e.findtext('condition') or '', Card(next(c for c in e if c.tag in NAMES), styles))
                             for e in element.findall('control')]

    @property
    def place(self):
        return tuple(self.fields[name] for name in ('X', 'Y', 'Width', 'Height'))


def read_fields(element, rows, styles):
    fields = {}
    for label, path, read, missing in rows:
        found = element.find(path)
        if found is None:
            if missing is not None:
                fields[label] = missing
        elif path == 'image':
            fields[label] = picture_of(found)
        elif path == 'style' and label == 'Text style':
            fields[label] = styles.get(found.text, found.text)
        else:
            fields[label] = read(found.text or '')
    return fields


class Page:
    def __init__(self, element, styles):
        self.fields = read_fields(element, PAGE, styles)
        background = element.find('backgroundImage')
        self.background = {} if background is None else read_fields(background, BACKGROUND, styles)
        self.cards = [Card(e, styles) for e in element if e.tag in NAMES]


class Report:
    def __init__(self, file):
        self.root = Xml.parse(file).getroot()
        self.styles = style_names(Path(file).parent)
        self.pages = [Page(e, self.styles) for e in self.root.findall('page')]
        self.formulas = [(e.findtext('name'), e.findtext('text')) for e in self.root.findall('formules/formule')]

    def keep_pages(self, numbers):
        """Forgets all pages but those of these numbers (from 1); None keeps all."""
        for index in reversed(range(len(self.pages))):
            if numbers is not None and index + 1 not in numbers:
                self.root.remove(self.root.findall('page')[index])
                del self.pages[index]


def style_names(folder):
    """Names of the folder's text styles by their identifiers."""
    roots = [Xml.parse(file).getroot() for file in Path(folder).glob('*.XSTY')]
    return {root.findtext('id'): root.findtext('name') for root in roots}


def differences(wanted, made, most=20):
    """Where two reports differ beyond identifiers and revisions, one line each."""
    found = []

    def compare(a, b, where):
        if a is None or b is None:
            return found.append(f'{where}: ' + ('missing' if b is None else 'not wanted'))
        if a.tag != b.tag:
            return found.append(f'{where}: {a.tag} wanted, {b.tag} made')
        a_text, b_text = (a.text or '').strip(), (b.text or '').strip()
        if a.tag == 'style' and len(a) == 0:
            a_text, b_text = wanted.styles.get(a_text, a_text), made.styles.get(b_text, b_text)
        if a_text != b_text:
            found.append(f'{where}/{a.tag}: "{a_text}" wanted, "{b_text}" made')
        ours, theirs = [[c for c in e if not is_identity(e, c)] for e in (a, b)]
        for index in range(max(len(ours), len(theirs))):
            x = ours[index] if index < len(ours) else None
            y = theirs[index] if index < len(theirs) else None
            part = x if x is not None else y
            compare(x, y, f'{where}/{part.tag}[{index}]' if len(part) or x is None or y is None else where)

    compare(wanted.root, made.root, 'report')
    return found[:most]


def is_identity(parent, child):
    """Identifiers of report, pages and cards; the identifier of a variable is its name."""
    return child.tag in ('revision', 'version') or child.tag == 'id' and parent.tag != 'variable'
