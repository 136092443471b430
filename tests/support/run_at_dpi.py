"""run_at_dpi.py DPI WINE-RUN PROGRAM [ARG...]: runs a Windows program on a display of this resolution.

The resolution is a setting of the prefix that every program reads at its start. It is taken back at the end, also
when the program fails, hangs or is interrupted; a session that starts takes it back as well.
"""
import signal
import subprocess
import sys

PATIENCE_SECONDS = 90  # less than the test's own limit, behind which nothing more of this would run
KEY = r'HKCU\Control Panel\Desktop'


def main():
    dpi, wine_run, program = sys.argv[1], sys.argv[2], sys.argv[3:]

    def registry(*arguments):
        subprocess.run([wine_run, 'reg', *arguments, '/f'], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, check=False)

    for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
        signal.signal(number, lambda *_: sys.exit(1))
    try:
        registry('add', KEY, '/v', 'LogPixels', '/t', 'REG_DWORD', '/d', dpi)
        return subprocess.run([wine_run, *program], stdin=subprocess.DEVNULL, timeout=PATIENCE_SECONDS).returncode
    except subprocess.TimeoutExpired:
        print('run_at_dpi: gave up waiting for', program[0], file=sys.stderr)
        return 1
    finally:
        registry('delete', KEY, '/v', 'LogPixels')


sys.exit(main())
