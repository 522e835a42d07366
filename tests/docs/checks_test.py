"""The checks of documents find what is wrong."""

import pathlib
import tempfile
import unittest

import check_links
import check_quotes
import documents
import run_console


class DocumentTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.document = pathlib.Path(self.folder.name) / "document.md"

    def write(self, text):
        self.document.write_text(text)
        return self.document

    def console_faults(self, text):
        commands = run_console.commands_of(self.write(f"```console\n{text}\n```\n"))
        return [what for _, what, _ in run_console.faults_of(commands, run_console.run(commands, "/usr/bin"))]


class ConsoleTest(DocumentTest):
    def test_a_block_that_tells_the_truth_has_no_fault(self):
        self.assertEqual(self.console_faults("$ echo one; echo two >&2\none\ntwo"), [])

    def test_other_output_is_a_fault(self):
        self.assertEqual(self.console_faults("$ echo one\ntwo"), ["prints something else"])

    def test_output_that_is_not_shown_is_a_fault(self):
        self.assertEqual(self.console_faults("$ echo one"), ["prints something else"])

    def test_output_that_does_not_come_is_a_fault(self):
        self.assertEqual(self.console_faults("$ true\none"), ["prints something else"])

    def test_dots_stand_for_any_lines_but_not_for_a_wrong_one(self):
        self.assertEqual(self.console_faults("$ seq 5\n1\n...\n5"), [])
        self.assertEqual(self.console_faults("$ seq 5\n1\n...\n6"), ["prints something else"])

    def test_a_failure_is_a_fault_unless_its_code_is_told(self):
        self.assertEqual(self.console_faults("$ (exit 3)"), ["fails with 3"])
        self.assertEqual(self.console_faults("$ (exit 3)\n$ echo $?\n3"), [])

    def test_commands_share_one_shell_and_go_on_over_lines(self):
        self.assertEqual(self.console_faults("$ export name=x\n$ echo \\\n> $name\nx"), [])

    def test_a_shell_that_ends_early_is_an_error(self):
        with self.assertRaises(RuntimeError):
            self.console_faults("$ exit 0\n$ true")

    def test_an_update_writes_what_was_printed(self):
        document = self.write("```console\n$ echo one\nold\n$ seq 2\n1\n2\n```\nend\n")
        commands = run_console.commands_of(document)
        run_console.update(document, commands, run_console.run(commands, "/usr/bin"))
        self.assertEqual(document.read_text(), "```console\n$ echo one\none\n$ seq 2\n1\n2\n```\nend\n")


class QuoteTest(DocumentTest):
    def fault(self, note, lines):
        document = self.write(f"<!-- {note} -->\n```make\n" + "\n".join(lines) + "\n```\n")
        return check_quotes.fault_of(documents.blocks_of(document)[0])

    def test_a_part_of_a_file_stands_in_it(self):
        lines = (documents.ROOT / "Makefile").read_text().splitlines()
        self.assertIsNone(self.fault("from Makefile", lines[3:6]))
        self.assertEqual(self.fault("from Makefile", lines[3:5] + lines[6:7]), "differs from Makefile")

    def test_a_whole_file_is_all_of_it(self):
        lines = (documents.ROOT / ".gitignore").read_text().splitlines()
        self.assertIsNone(self.fault("all of .gitignore", lines))
        self.assertEqual(self.fault("all of .gitignore", lines + ["x"]), "differs from .gitignore")

    def test_a_file_that_is_gone_is_a_fault(self):
        self.assertEqual(self.fault("from nowhere.cpp", ["x"]), "nowhere.cpp is not there")


class LinkTest(DocumentTest):
    def faults(self, text):
        document = self.write(text)
        return [check_links.fault_of(document, target) for _, target in documents.links_of(document)]

    def test_a_link_to_a_heading_or_a_file_leads_there(self):
        self.assertEqual(self.faults("# One `two`\n## One `two`\n[a](#one-two) [b](document.md#one-two-1)"), [None] * 2)

    def test_a_link_to_nothing_is_dead(self):
        self.assertEqual(self.faults("[a](gone.md) [b](#gone)"), ["is not there", "has no such heading"])

    def test_code_and_other_hosts_are_no_links_to_follow(self):
        self.assertEqual(self.faults("`[a](gone.md)` [b](https://example.com/gone)\n```\n[c](gone.md)\n```"), [None])


if __name__ == "__main__":
    unittest.main()
