"""A clerk opens a stored note in Mode 4, views it read-only and prints it; the page
opens the print, and the print is a PDF."""

import unittest

from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys

from harness import PageTest

SETTINGS = """[Settings]
GetPrintOnSaveMode = 0
"""


class Mode4Print(PageTest):
    settings = SETTINGS

    def list_texts(self):
        return [row.text for row in self.control("lstSO").find_elements(By.CSS_SELECTOR, "tbody tr")]

    def test_a_stored_note_is_viewed_and_printed(self):
        self.open_screen(4)
        # Looked up by number: the range's first box, Enter, its last box, Enter.
        self.click(self.control("txtDocID"))
        self.keys("DN42", Keys.ENTER)
        # The form has copied the first number into the second box: typed over.
        self.assertEqual(self.focused_control(), "txtDocIDTo")
        self.assertEqual(self.control("txtDocIDTo").get_attribute("value"), "DN42")
        self.keys(Keys.CONTROL + "a")
        self.keys("DN43", Keys.ENTER)
        self.assertEqual(self.focused_control(), "lstSO")
        texts = self.list_texts()
        self.assertIn("Bharat Traders", texts[2])
        self.assertIn("DN42", texts[3])

        # The open note of Bharat Traders: ticked, and on with Continue.
        self.click(self.control("lstSO").find_elements(By.CSS_SELECTOR, "tbody tr input")[3])
        ticked = [item["checked"] for item in self.state_of("lstSO")["items"]]
        self.assertEqual(ticked, [False, False, True, True])
        self.click(self.control("cmdContinue"))
        self.assertEqual(self.focused_control(), "cmdClose(1)")
        self.assertFalse(self.control("txtBillingAddress").is_enabled())
        self.assertEqual(self.grid_state()["cells"][0][0], "PC001")
        self.assertTrue(self.control("Frame3").is_displayed())
        self.assertFalse(self.control("Frame1(0)").is_displayed())

        # Print: the page opens the new print in a window of its own.
        save = self.control("cmdSave")
        self.assertEqual(save.text, "Print")
        self.assertEqual(save.find_element(By.TAG_NAME, "u").text, "P")
        windows = len(self.browser.window_handles)
        self.click(save)
        self.wait_for(lambda: len(self.state()["prints"]) == 1, "the print")
        self.wait_for(lambda: len(self.browser.window_handles) == windows + 1, "the print's window")
        kind, pdf = self.server.get("/api/print/1", self.token())
        self.assertEqual(kind, "application/pdf")
        self.assertTrue(pdf.startswith(b"%PDF"))

    def state_of(self, control_id):
        return next(c for c in self.state()["controls"] if c["id"] == control_id)


if __name__ == "__main__":
    unittest.main()
