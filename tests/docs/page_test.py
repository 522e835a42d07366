#!/usr/bin/env -S python3 -B
"""The reference as a page: opened from its file in a headless Chromium.

page_test.py [PAGE]    without a page: docs/reference/index.html
"""

import pathlib
import sys
import unittest

from browser import Browser
from documents import ROOT

page = ROOT / "docs/reference/index.html"

LEAF = "/bgp/neighbors/neighbor/config/peer-as"


class PageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.browser = Browser()
        cls.addClassCleanup(cls.browser.close)

    def setUp(self):
        self.open("")

    def tearDown(self):
        self.assertEqual(self.browser.log(), [])

    def open(self, fragment):
        self.browser.open("about:blank")
        self.browser.open(page.as_uri() + fragment)

    def run_script(self, script, *arguments):
        return self.browser.run(script, *arguments)

    def type_search(self, text):
        self.browser.press("/")
        self.browser.press(text)

    def settle(self):
        """Lets the page hear of a changed address."""
        self.run_script("return new Promise(done => setTimeout(done, 50))")

    def hits(self):
        return self.run_script("return [...document.querySelectorAll('#results li')].map(li => li.dataset.path)")

    def shown(self):
        """The path of the node that the page shows: that of the tree, and that of the text."""
        self.settle()
        chosen = self.run_script("return document.querySelector('[role=treeitem][aria-selected=true]')?.dataset.path")
        text = self.browser.text("#main .crumbs") + self.browser.text("#main h2")
        self.assertEqual(chosen, text)
        return chosen

    def visible(self, path):
        return self.run_script(
            "return document.querySelector(`[role=treeitem][data-path='${arguments[0]}']`)?.offsetParent !== null", path
        )

    def test_it_loads_nothing_else(self):
        self.assertEqual(self.run_script("return performance.getEntriesByType('resource').map(e => e.name)"), [])

    def test_a_search_finds_a_leaf_and_a_click_opens_it(self):
        self.type_search("neighbor config peer-as")
        self.assertEqual(self.hits()[0], LEAF)
        self.browser.click(f"#results [data-path='{LEAF}']")
        self.assertEqual(self.shown(), LEAF)
        self.assertIn("remote-as/as-yy", self.browser.text("#main"))
        self.assertEqual(self.run_script("return location.hash"), "#" + LEAF)

    def test_enter_opens_the_first_hit(self):
        self.type_search("router-id")
        first = self.hits()[0]
        self.browser.press("Enter")
        self.assertEqual(self.shown(), first)

    def test_arrows_choose_another_hit(self):
        self.type_search("hold-time")
        second = self.hits()[1]
        self.browser.press("ArrowDown", "ArrowDown", "ArrowUp", "Enter")
        self.assertEqual(self.shown(), second)

    def test_a_native_path_is_found_too(self):
        self.type_search("remote-as/as-yy")
        self.assertIn(LEAF, self.hits())

    def test_a_handler_is_found_too(self):
        self.type_search("vmf_map_leaf_oc_bgp_neighbors_neighbor_config_peeras")
        self.assertEqual(self.hits(), [LEAF])

    def test_what_is_not_there_is_said(self):
        self.type_search("no such thing")
        self.assertEqual(self.hits(), [])
        self.assertEqual(self.browser.text("#status"), "Nothing found")

    def test_escape_brings_the_tree_back(self):
        self.type_search("peer-as")
        self.assertFalse(self.visible("/bgp"))
        self.browser.press("Escape")
        self.assertTrue(self.visible("/bgp"))
        self.assertEqual(self.run_script("return document.activeElement.tagName"), "BODY")

    def test_a_link_to_a_node_opens_it(self):
        self.open("#" + LEAF)
        self.assertEqual(self.shown(), LEAF)
        self.assertTrue(self.visible(LEAF))

    def test_a_link_may_carry_keys(self):
        self.open("#/bgp/neighbors/neighbor[neighbor-address='192.0.2.9']/config/peer-as")
        self.assertEqual(self.shown(), LEAF)

    def test_a_link_to_nothing_says_so(self):
        self.open("#/bgp/nowhere")
        self.assertIn("No such node: /bgp/nowhere", self.browser.text("#main"))

    def test_back_leads_back(self):
        self.open("#" + LEAF)
        self.browser.click("#main .crumbs a:last-of-type")
        self.assertEqual(self.shown(), "/bgp/neighbors/neighbor/config")
        self.run_script("history.back()")
        self.assertEqual(self.shown(), LEAF)

    def test_a_click_in_the_tree_opens_and_closes(self):
        self.assertFalse(self.visible("/bgp/global/config"))
        self.browser.click("[data-path='/bgp/global'] > .row")
        self.assertTrue(self.visible("/bgp/global/config"))
        self.assertEqual(self.shown(), "/bgp/global")
        self.browser.click("[data-path='/bgp/global'] > .row")
        self.assertFalse(self.visible("/bgp/global/config"))

    def test_the_tree_obeys_the_keyboard(self):
        self.run_script("document.querySelector('[role=treeitem]').focus()")
        self.browser.press("ArrowDown", "ArrowRight", "ArrowRight", "Enter")
        self.assertEqual(self.shown(), "/bgp/global/config")
        self.browser.press("ArrowLeft")
        self.assertEqual(self.run_script("return document.activeElement.dataset.path"), "/bgp/global")
        self.browser.press("ArrowLeft")
        self.assertFalse(self.visible("/bgp/global/config"))

    def test_the_theme_changes(self):
        paper = "return getComputedStyle(document.body).backgroundColor"
        before = self.run_script(paper)
        self.browser.click("#theme")
        after = self.run_script(paper)
        self.assertNotEqual(before, after)
        self.open("")
        self.assertEqual(self.run_script(paper), after)
        self.browser.click("#theme")

    def test_roles_and_names_are_those_that_a_reader_expects(self):
        self.assertEqual((self.browser.role("#search"), self.browser.label("#search")), ("combobox", "Search nodes"))
        self.assertEqual(self.browser.role("#tree"), "tree")
        self.assertEqual(self.browser.role("#tree > li"), "treeitem")
        self.assertEqual(self.browser.label("#tree > li"), "bgp")
        self.assertEqual(self.browser.role("nav"), "navigation")
        self.assertEqual(self.browser.role("main"), "main")
        self.type_search("peer-as")
        self.assertEqual(self.browser.role("#results"), "listbox")
        self.assertEqual(self.browser.role("#results > li"), "option")

    def test_every_node_opens(self):
        unlike = "return nodes.filter(n => article(n).querySelector('h2').textContent !== tagOf(n.path)).map(n => n.path)"
        self.assertEqual(self.run_script(unlike), [])
        self.assertGreater(self.run_script("return items.size"), 0)
        self.assertEqual(self.run_script("return items.size === nodes.length"), True)


if __name__ == "__main__":
    if len(sys.argv) > 1:
        page = pathlib.Path(sys.argv.pop()).resolve()
    unittest.main()
