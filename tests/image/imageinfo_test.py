#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""imageinfo_test.py IMAGEINFO SEEDS: runs the command on pictures, good and bad."""
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

PROGRAM = None
SEEDS = None


def run(*arguments):
    words = [word if isinstance(word, bytes) else str(word) for word in arguments]
    done = subprocess.run([PROGRAM, *words], capture_output=True, timeout=30)
    return done.returncode, [json.loads(line) for line in done.stdout.decode().splitlines()]


class ImageInfo(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.text = self.folder / 'text.txt'
        self.text.write_text('no picture at all')

    def test_prints_one_line_a_file(self):
        status, lines = run(SEEDS / 'depth24.bmp', SEEDS / 'depth4.bmp')
        self.assertEqual(status, 0)
        self.assertEqual(lines[0], {
            'file': str(SEEDS / 'depth24.bmp'), 'ok': True, 'error': '', 'format': 'bmp',
            'width': 1, 'height': 2, 'bitCount': 24, 'paletteEntries': 0, 'xDpi': 0, 'yDpi': 0,
            'transparentIndex': -1, 'backgroundColor': '#000000'})
        self.assertEqual(lines[1]['paletteEntries'], 16)

    def test_a_placeholder_counts_as_not_decoded(self):
        for arguments in ([self.text], ['--memory', self.text], [self.folder / 'missing.txt']):
            status, lines = run(*arguments)
            self.assertEqual(status, 1)
            self.assertFalse(lines[0]['ok'])
            self.assertNotEqual(lines[0]['error'], '')
            self.assertEqual((lines[0]['format'], lines[0]['width']), ('unknown', 0))

    def test_any_path_comes_out_as_json(self):
        for path, text in ((b'a "b"\\\n\x1f', None), ('\u00e4\u20ac\U0001f600'.encode(), None),
                           # Broken UTF-8 is taken for Latin-1: cut, overlong, a surrogate.
                           (b'\xe4.bmp', '\u00e4.bmp'), (b'\xc3', '\u00c3'), (b'\xc0\xaf', '\u00c0\u00af'),
                           (b'\xed\xa0\x80', '\u00ed\u00a0\u0080'),
                           (b'\xf4\x90\x80\x80', '\u00f4\u0090\u0080\u0080')):
            self.assertEqual(run(path)[1][0]['file'], text or path.decode())

    def test_refuses_what_no_buffer_holds_and_goes_on(self):
        large = self.folder / 'large.bmp'
        large.touch()
        os.truncate(large, 2**31)  # sparse
        status, lines = run('--memory', large, SEEDS / 'depth24.bmp')
        self.assertEqual((status, [line['ok'] for line in lines]), (1, [False, True]))
        self.assertIn('too large', lines[0]['error'])

    def test_writes_a_ppm_top_row_first(self):
        ppm = self.folder / 'out.ppm'
        status, _ = run('--ppm', ppm, SEEDS / 'depth24.bmp')
        self.assertEqual(status, 0)
        self.assertEqual(ppm.read_bytes(), b'P6\n1 2\n255\n' + bytes([6, 5, 4, 3, 2, 1]))
        self.assertEqual(run('--ppm', self.folder / 'no' / 'out.ppm', SEEDS / 'depth24.bmp')[0], 1)

    def test_resamples_before_it_writes(self):
        ppm = self.folder / 'out.ppm'
        picture = SEEDS / 'depth24.bmp'
        status, lines = run('--resample', '2x4,0', '--ppm', ppm, picture)
        self.assertEqual((status, lines[0]['width'], lines[0]['height']), (0, 1, 2))
        self.assertEqual(ppm.read_bytes(),
                         b'P6\n2 4\n255\n' + bytes([6, 5, 4] * 4 + [3, 2, 1] * 4))
        self.assertEqual(run('--resample', '1x1,5,1', '--ppm', ppm, picture)[0], 0)
        self.assertEqual(ppm.read_bytes(), b'P6\n1 1\n255\n' + bytes([5, 4, 3]))
        self.assertEqual(run('--resample', '2000000000x2', picture)[0], 1)
        for size in ('', '5', '5x', 'x5', '0x5', '5x-1', '5x5,', '5x5,16', '5x5,1,6', '5x5,1,1,',
                     '9999999999x1', '5x5 '):
            self.assertEqual(run('--resample', size, picture), (1, []), size)

    def test_prints_what_a_jpeg_says_beside_its_picture(self):
        seed = (SEEDS.parent / 'jpeg' / 'color').read_bytes()[1:]  # behind the fuzzer's options
        picture = self.folder / 'picture.jpg'
        picture.write_bytes(seed)
        status, (line,) = run(picture)
        self.assertEqual((status, line['format'], line['width']), (0, 'jpeg', 19))
        exif = line['exif']
        self.assertEqual((exif['isExif'], exif['cameraMake'], exif['orientation'], exif['comments'],
                          exif['width'], exif['process']), (True, 'Maker', 6, 'text\n', 19, 0xC0))
        self.assertAlmostEqual(exif['exposureTime'], 0.004)
        self.assertEqual(exif['thumbnailSize'], 4)
        self.assertEqual(seed[exif['thumbnailData'] - 8:][:2], b'II')
        self.assertEqual(len(exif), 32)

        picture.write_bytes(seed[:20])
        status, (line,) = run(picture)
        self.assertEqual((status, line['ok'], line['exif']['isExif']), (1, False, False))
        self.assertIsNone(line['exif']['thumbnailData'])

    def test_refuses_wrong_arguments(self):
        picture = SEEDS / 'depth24.bmp'
        for arguments in ([], ['--unknown', picture], [picture, '--ppm'],
                          ['--ppm', self.folder / 'a.ppm', picture, picture]):
            self.assertEqual(run(*arguments), (1, []))


if __name__ == '__main__':
    PROGRAM, SEEDS = sys.argv[1], pathlib.Path(sys.argv[2])
    unittest.main(argv=sys.argv[:1])
