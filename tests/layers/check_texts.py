#!/usr/bin/env python3
"""Every text number that the sources name has its line in each language. Takes the repository's root."""
import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1]) / 'src'
OURS = 60000  # numbers below are the system's, some of which only hosts show

named = {}
for header in root.rglob('*.h'):
    text = header.read_text(encoding='utf-8')
    for block in re.findall(r'namespace xrpt::text \{(.*?)\}\s*// namespace xrpt::text', text, re.S):
        for name, number in re.findall(r'inline constexpr int (\w+) = (\d+);', block):
            named.setdefault(int(number), f'{header.relative_to(root)}: {name}')

faults = []
for language in sorted((root / 'host/texts').iterdir()):
    written = set()
    for catalogue in language.glob('*.inc'):
        written |= {int(number) for number in re.findall(r'^\{(\d+),', catalogue.read_text(encoding='utf-8'), re.M)}
    faults += [f'{language.name} lacks {number} ({place})' for number, place in named.items()
               if number >= OURS and number not in written]
print('\n'.join(sorted(faults)) or f'{len(named)} numbers are written in every language')
sys.exit(1 if faults else 0)
