"""The reference shows what `explain` says, all of it, and nothing breaks out of the page."""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

from documents import ROOT, anchors_of

SCRIPT = ROOT / "scripts/mapping-reference"
EXPLAINED = pathlib.Path(__file__).with_name("explained.json")


def run(*arguments):
    return subprocess.run(
        [sys.executable, SCRIPT, "--explain", EXPLAINED, *arguments], capture_output=True, text=True, check=False
    )


class ReferenceTest(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)
        self.assertEqual(run("--output", self.folder).returncode, 0)

    def read(self, name):
        return (self.folder / name).read_text()

    def section(self, path):
        return self.read("neighbors.md").split(f"### `{path}`")[1].split("<a id=")[0]

    def test_a_subtree_has_a_page_and_the_index_names_it(self):
        self.assertEqual(
            sorted(file.name for file in self.folder.iterdir()), ["README.md", "bgp.md", "index.html", "neighbors.md"]
        )
        self.assertIn("[Neighbors](neighbors.md) `/bgp/neighbors` | 4 | 4 | 0 | 2 |", self.read("README.md"))

    def test_a_node_is_told_in_full(self):
        section = self.section("/bgp/neighbors/neighbor/config/peer-as")
        self.assertIn("AS number of the peer.", section)  # from the model
        self.assertIn("leaf, uint32, writable. Row: `plain list:remote-as`", section)  # from the table
        self.assertIn("Handler: `vmf_map_leaf_oc_bgp_neighbors_neighbor_config_peeras`, written by hand", section)
        self.assertIn("- the low half holds the whole number", section)

    def test_requests_that_become_the_same_share_a_row(self):
        entry = "…/default-vrf/bgp-entity/neighbors/neighbor[neighbor-address='192.0.2.9']/remote-as"
        rows = [line for line in self.section("/bgp/neighbors/neighbor/config/peer-as").splitlines() if entry in line]
        self.assertEqual(
            rows,
            [
                f"| read |  | `{entry}` |",
                f"| merge, replace | `64500` | `{entry}/as-xx` = `0` (companion)<br>`{entry}/as-yy` = `64500` |",
                f"| delete |  | `{entry}` *delete* |",
            ],
        )

    def test_the_levels_that_all_share_are_shown_once(self):
        shared = "`…` stands for `/bgp/instance[instance-name='default']/instance-as[as='0']/four-byte-as[as='65001']`."
        self.assertIn(shared, self.read("neighbors.md"))

    def test_requests_that_are_refused_alike_share_a_row(self):
        section = self.section("/bgp/neighbors/neighbor/config/description")
        self.assertIn("| merge, replace | `a\\|b </script>`, `c` | **VMF_RC_BAD_ARGS**<br>not \\| this |", section)

    def test_what_becomes_nothing_and_what_reads_back_otherwise_is_said(self):
        section = self.section("/bgp/neighbors/neighbor/config/description")
        self.assertIn("| merge | (empty) | nothing |", section)
        self.assertIn("| merge | `x` | Reads back as `y`. |", section)
        self.assertIn("| merge (on a configured router) | `z` | Does not read back. |", section)
        self.assertIn("| `/n`<br>with the same elsewhere |  | (empty) |", section)
        self.assertIn("leaf, string, writable, for IPV4_UNICAST, IPV6_UNICAST. Row:", section)

    def test_each_node_can_be_linked_to(self):
        anchors = anchors_of(self.folder / "neighbors.md")
        for node in json.loads(EXPLAINED.read_text())[1:]:
            self.assertIn(node["path"][1:].replace("/", "-"), anchors)

    def test_the_page_holds_all_that_was_said_and_no_value_ends_its_script(self):
        page = self.read("index.html")
        data = page.split('id="nodes">')[1].split("</script>")[0]
        page = json.loads(data)
        for node in page["nodes"]:
            for request in node["requests"]:
                request["native"] = [
                    {"path": page["paths"][place], "value": value, "operation": operation, "companion": companion}
                    for place, value, operation, companion in request["native"]
                ]
            for answer in node["answers"]:
                answer["native"] = page["paths"][answer["native"]]
            self.assertIsInstance(node.pop("description"), str)
            self.assertIsInstance(node.pop("row"), str)
        self.assertEqual(page["nodes"], json.loads(EXPLAINED.read_text()))

    def test_the_page_asks_nobody_for_anything(self):
        self.assertIn("default-src 'none'", self.read("index.html"))
        self.assertNotIn("http", self.read("index.html").replace("http-equiv", ""))

    def test_a_check_finds_fresh_pages_fresh(self):
        self.assertEqual(run("--output", self.folder, "--check").returncode, 0)

    def test_a_check_finds_a_changed_a_missing_and_a_foreign_page(self):
        (self.folder / "bgp.md").write_text("changed")
        (self.folder / "neighbors.md").unlink()
        (self.folder / "other.md").write_text("other")
        checked = run("--output", self.folder, "--check")
        self.assertEqual(checked.returncode, 1)
        for name in ("stale: .*bgp.md", "stale: .*neighbors.md", "left over: .*other.md"):
            self.assertRegex(checked.stderr, name)
        self.assertFalse((self.folder / "neighbors.md").exists())


if __name__ == "__main__":
    unittest.main()
