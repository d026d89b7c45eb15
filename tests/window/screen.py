"""A screen of its own with a window manager, an accessibility bus and the editor on it, and everything ended afterwards."""
import os
import shutil
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path

TOOLS = ('Xvfb', 'openbox', 'dbus-run-session')


def missing_tools():
    missing = [tool for tool in TOOLS if not shutil.which(tool)]
    try:
        import gi
        gi.require_version('Atspi', '2.0')
        import Xlib  # noqa: F401
    except (ImportError, ValueError) as error:
        missing.append(str(error))
    return missing


def on_own_bus():
    """Starts the calling script anew under a session bus of its own, so that no other program is seen or disturbed."""
    if os.environ.get('XRPT_OWN_BUS'):
        return
    os.environ['XRPT_OWN_BUS'] = '1'
    os.execvp('dbus-run-session', ['dbus-run-session', '--', sys.executable, *sys.argv])


class Screen:
    """`with Screen(width, height) as screen:` gives a running X server; its folders go when it ends."""

    def __init__(self, width, height):
        self.size = f'{width}x{height}x24'
        self.folder = Path(tempfile.mkdtemp(prefix='xrpt-window-'))
        self.started = []

    def __enter__(self):
        display = self.folder / 'display'
        with open(display, 'w') as out:
            self._start(['Xvfb', '-displayfd', str(out.fileno()), '-screen', '0', self.size, '-nolisten', 'tcp'],
                        pass_fds=[out.fileno()])
        for _ in range(200):
            if display.read_text().strip():
                break
            time.sleep(0.05)
        os.environ.update(DISPLAY=':' + display.read_text().strip(), XDG_RUNTIME_DIR=str(self.folder),
                          XDG_CONFIG_HOME=str(self.folder / 'home'), XDG_STATE_HOME=str(self.folder / 'home'),
                          QT_LINUX_ACCESSIBILITY_ALWAYS_ON='1', LC_ALL='C.UTF-8')
        os.environ.pop('QT_QPA_PLATFORM', None)
        return self

    def __exit__(self, *_):
        for process in reversed(self.started):
            process.terminate()
        for process in self.started:
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()
        shutil.rmtree(self.folder, ignore_errors=True)

    def _start(self, command, **options):
        options.setdefault('stdout', subprocess.DEVNULL)
        process = subprocess.Popen(command, stderr=subprocess.DEVNULL, **options)
        self.started.append(process)
        return process

    def manage_windows(self, fills_screen=False):
        """The window manager, started after the keyboard is as it should be. Dialogs keep their size in any case."""
        rules = self.folder / 'openbox.xml'
        rules.write_text('<openbox_config xmlns="http://openbox.org/3.4/rc"><applications><application type="normal">'
                         '<maximized>yes</maximized></application></applications></openbox_config>')
        self._start(['openbox', '--config-file', str(rules)] if fills_screen else ['openbox'])

    def start_editor(self, editor, *arguments, language='en', theme='light'):
        return self._start([str(editor), '--language', language, '--theme', theme, *map(str, arguments)])

    def record(self, file, width, seconds):
        """Until `stop` is called: a picture of the screen every so many seconds, and a moving picture of them all."""
        return Recording(self.folder / 'frames', file, width, seconds)

    def picture(self, file):
        subprocess.run(['import', '-window', 'root', str(file)], check=False)


class Recording(threading.Thread):
    """Needs ImageMagick."""

    SHOWN = 10  # hundredths of a second that each picture is shown
    LAST = 400

    def __init__(self, folder, file, width, seconds):
        super().__init__(daemon=True)
        folder.mkdir()
        self.folder, self.file, self.width, self.seconds = folder, file, width, seconds
        self.ended = threading.Event()
        self.start()

    def run(self):
        number = 0
        while not self.ended.is_set():
            number += 1
            subprocess.run(['import', '-window', 'root', '-resize', str(self.width), '-depth', '8',
                            str(self.folder / f'{number:05}.png')], check=False)
            self.ended.wait(self.seconds)

    def stop(self):
        self.ended.set()
        self.join()
        *frames, last = sorted(map(str, self.folder.glob('*.png')))
        subprocess.run(['convert', '-loop', '0', '-delay', str(self.SHOWN), *frames, '-delay', str(self.LAST), last,
                        '+dither', '-colors', '64', '-fuzz', '0.6%', '-layers', 'OptimizePlus', '-layers',
                        'OptimizeTransparency', str(self.file)], check=True)
