# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""Who can reach the desk, and what it lets out: sockets, folders, links and odd names."""

import ipaddress
import os
import pathlib
import stat
import sys
import unittest

sys.path.insert(0, os.environ["MPB_SOURCE_DIR"] + "/tests/support")
import bench  # noqa: E402
import desk  # noqa: E402

LISTENING = "0A"


def listeners():
    """Address and port of every listening TCP socket of this world."""
    found = []
    for table in ("tcp", "tcp6"):
        path = pathlib.Path("/proc/net") / table
        for line in path.read_text().splitlines()[1:] if path.exists() else ():
            fields = line.split()
            if fields[3] == LISTENING:
                address, port = fields[1].split(":")
                found.append((kernel_address(address), int(port, 16)))
    return found


def kernel_address(text):
    """Words of four bytes, each in the machine's own order."""
    words = [int(text[at:at + 8], 16).to_bytes(4, sys.byteorder) for at in range(0, len(text), 8)]
    address = ipaddress.ip_address(b"".join(words))
    return getattr(address, "ipv4_mapped", None) or address


class SecurityTest(unittest.TestCase):
    def setUp(self):
        self.addCleanup(desk.clear_user_data)

    def desk(self, *names):
        stand = desk.Desk()
        stand.__enter__()
        self.addCleanup(stand.__exit__)
        return stand.start(*names)

    def test_only_loopback_listens(self):
        self.desk("instrument", "host", "panel")
        found = listeners()
        self.assertEqual({port for _, port in found}, {30000, desk.SCREEN_PORT})
        for address, port in found:
            self.assertTrue(address.is_loopback, f"{address} port {port}")

    def test_the_keypad_is_the_users_alone(self):
        stand = self.desk("instrument", "host")
        mode = stand.keypad_path.stat().st_mode
        self.assertTrue(stat.S_ISSOCK(mode))
        self.assertEqual(mode & 0o077, 0)

    def test_no_keypad_where_others_can_write(self):
        stand = self.desk("instrument")
        stand.runtime.chmod(0o777)
        environment = {key: value for key, value in stand.environment.items()
                       if key != "QT_QPA_PLATFORM"}
        done = bench.run(bench.PROGRAMS / "kvx-host", "--keypad", stand.keypad_path,
                         env=environment)
        self.assertNotEqual(done.returncode, 0)
        self.assertIn(str(stand.runtime), done.stderr)
        self.assertEqual(done.stdout, "")

    def test_a_new_folder_is_the_users_alone(self):
        stand = self.desk("instrument")
        folder = stand.folder / "new"
        stand.host_options += ["--user-data", folder]
        stand.start("host")
        self.assertEqual(folder.stat().st_mode & 0o777, 0o700)

    def test_links_lead_nowhere(self):
        stand = self.desk("instrument", "host")
        outside = stand.folder / "outside"
        outside.mkdir()
        (outside / "secret.json").write_text("{}")
        (desk.USER_DATA / "way-out").symlink_to(outside)
        (desk.USER_DATA / "secret-link.json").symlink_to(outside / "secret.json")
        (desk.USER_DATA / "all").symlink_to("/")
        (desk.USER_DATA / "plain.json").write_text("{}")
        stand.check(text="touch {HOSTID_PLUGIN_MultiPulseBuilder}\ntouch {ARBID_OPEN}\n"
                    'expect text "plain.json"\nexpect no text "way-out"\n'
                    'expect no text "secret-link.json"\nexpect no text "all"\n')

    def test_names_lead_nowhere(self):
        stand = self.desk("instrument", "host")
        outside = desk.USER_DATA.parent / "escaped.json"
        stand.check(text='touch {HOSTID_PLUGIN_MultiPulseBuilder}\ntouch {ARBID_SAVEAS}\n'
                    'expect focused "double_pulse"\ntype "../escaped"\ntouch {HOSTID_DLG_SAVE}\n'
                    "expect text {HOSTID_DLG_NAME_SLASH}\ntouch {HOSTID_DLG_OK}\n")
        self.assertFalse(outside.exists())

    def test_a_name_is_no_command(self):
        """Quotation marks, dollars and semicolons are characters of a name like others."""
        stand = self.desk("instrument", "host")
        name = "a;touch pwned $(touch pwned) `touch pwned` '\\\"x"
        typed = name.replace("\\", "\\\\").replace('"', '\\"')
        stand.check(text='touch {HOSTID_PLUGIN_MultiPulseBuilder}\ntouch {ARBID_SAVEAS}\n'
                    f'expect focused "double_pulse"\ntype "{typed}"\n'
                    "touch {HOSTID_DLG_SAVE}\nexpect no text {HOSTID_DLG_CANCEL}\n")
        names = {path.name for path in desk.USER_DATA.iterdir()}
        self.assertIn(name + ".json", names)
        self.assertFalse(any("pwned" == path.name for path in desk.USER_DATA.rglob("*")))


if __name__ == "__main__":
    unittest.main()
