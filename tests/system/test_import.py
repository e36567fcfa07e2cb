"""The import from a command line: stopped by Ctrl+C at any time, it has taken nothing; small files don't hang it."""

import os
import signal
import sqlite3
import subprocess
import tempfile
import time
import unittest

DESK = os.path.join(os.environ["ORVANTA_PROGRAMS"], "contact-desk")
ENTRY = "BEGIN:VEVENT\r\nDTSTART:20240311T090000\r\nSUMMARY:Entry {}\r\nATTENDEE:mailto:a{}@example.org\r\nEND:VEVENT\r\n"


class Import(unittest.TestCase):
    def setUp(self):
        folder = self.enterContext(tempfile.TemporaryDirectory())
        self.database = os.path.join(folder, "team.desk")
        self.file = os.path.join(folder, "calendar.ics")
        subprocess.run([DESK, "--new-sample", self.database], check=True, capture_output=True)

    def write(self, lines):
        with open(self.file, "w", newline="") as file:
            file.write("BEGIN:VCALENDAR\r\n" + lines + "END:VCALENDAR\r\n")

    def counts(self):
        with sqlite3.connect(self.database) as connection:
            return [connection.execute(f"SELECT count(*) FROM {table}").fetchone()[0]
                    for table in ("activities", "contacts")]

    def is_being_written(self):
        connection = sqlite3.connect(self.database, timeout=0, isolation_level=None)
        try:
            connection.execute("BEGIN IMMEDIATE")
            connection.execute("ROLLBACK")
            return False
        except sqlite3.OperationalError:
            return True
        finally:
            connection.close()

    def start(self):
        return subprocess.Popen([DESK, "--import", self.file, self.database], stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL)

    def interrupt(self, running):
        running.send_signal(signal.SIGINT)
        self.assertEqual(running.wait(5), -signal.SIGINT)

    def test_interrupted_while_it_writes_it_has_taken_nothing(self):
        self.write("".join(ENTRY.format(i, i) for i in range(100000)))
        before = self.counts()
        running = self.start()
        while not self.is_being_written():
            self.assertIsNone(running.poll(), "it was done before it was seen to write")
            time.sleep(0.002)
        self.interrupt(running)
        self.assertEqual(self.counts(), before)

    def test_interrupted_while_it_reads_it_has_taken_nothing(self):
        self.write("".join(ENTRY.format(i, i) for i in range(300000)))
        before = self.counts()
        running = self.start()
        time.sleep(0.2)
        self.interrupt(running)
        self.assertEqual(self.counts(), before)

    def test_a_zone_that_changes_every_second_takes_no_time(self):
        self.write("BEGIN:VTIMEZONE\r\nTZID:Here\r\nBEGIN:STANDARD\r\nDTSTART:19700101T000000\r\n"
                   "TZOFFSETFROM:+0000\r\nTZOFFSETTO:+0100\r\nRRULE:FREQ=SECONDLY\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n"
                   "BEGIN:VEVENT\r\nDTSTART;TZID=Here:20240311T090000\r\nSUMMARY:When?\r\nEND:VEVENT\r\n")
        done = subprocess.run([DESK, "--import", self.file, self.database], capture_output=True, text=True, timeout=60)
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn('"When?": Its time zone "Here" isn\'t known', done.stdout)


if __name__ == "__main__":
    unittest.main(verbosity=2)
