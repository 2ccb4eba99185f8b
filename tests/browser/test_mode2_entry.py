"""A clerk keys a new note in Mode 2 with the keyboard: the customer from the
type-ahead list, two lines, a batch from the batch list, and the administrator's
password past the credit limit; the note is saved."""

import unittest

from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys

from harness import PageTest

# Ravi Stores may owe 20000: 95 boxes of biscuits at 216 and 5 of cream biscuits go over.
SETTINGS = """[Settings]
GetCreditLimitPasswordEnabled = true
AdministratorPassword = s3cret
GetPrintOnSaveMode = 0
"""


class Mode2Entry(PageTest):
    settings = SETTINGS

    def test_a_note_keyed_at_the_keyboard_is_saved_past_the_credit_limit(self):
        self.open_screen(2)
        self.assertEqual(self.browser.find_element(By.ID, "title").text, self.state()["caption"])

        # The customer: typed, picked from the list that drops under the box, Enter.
        self.click(self.control("txtCustomer"))
        self.assertEqual(self.focused_control(), "txtCustomer")
        self.keys("Ravi")
        rows = self.wait_for(lambda: self.browser.find_elements(By.CSS_SELECTOR, "#type-ahead li"), "the customers")
        self.assertIn("Ravi Stores", rows[0].text)
        box = self.control("txtCustomer").rect
        list_place = self.browser.find_element(By.ID, "type-ahead").rect
        self.assertAlmostEqual(list_place["y"], box["y"] + box["height"], delta=2)
        self.click(rows[0])
        self.assertEqual(self.focused_control(), "txtCustomer")
        self.keys(Keys.ENTER)
        self.assertEqual(self.control("txtDocReference").get_attribute("value"), "TN/DN/43")
        self.assertEqual(self.focused_control(), self.state()["focus"])

        # Two lines. The first takes its batch from the batch list; Enter on an item
        # code leads to the quantity, and Enter on the quantity to the next line.
        self.click(self.grid_cell(1, 1))
        self.keys("FD001", Keys.ENTER)
        grid = self.grid_state()
        self.assertEqual((grid["cells"][0][1], grid["row"], grid["col"]), ("Marie Biscuit 100g", 1, 6))
        batches = self.control("lstAvailable").find_elements(By.CSS_SELECTOR, "tbody tr")
        self.assertEqual(batches[0].find_element(By.TAG_NAME, "td").text, "MB2401")
        self.click(batches[0])
        self.click(self.grid_cell(1, 6))
        self.assertEqual(self.focused_control(), "DTFlexDispatch")
        self.keys("95", Keys.ENTER)
        self.keys("FD002", Keys.ENTER, "5", Keys.ENTER)
        grid = self.grid_state()
        self.assertEqual(grid["cells"][0][2:6:3], ["MB2401", "95"])
        self.assertEqual((grid["cells"][1][0], grid["cells"][1][2], grid["cells"][1][5]), ("FD002", "CB101", "5"))
        self.assertEqual((grid["row"], grid["col"]), (3, 1))
        self.screenshot("mode2_form")

        # Save: past the credit limit only with the administrator's password.
        self.click(self.control("cmdSave"))
        kind, box = self.dialog()
        self.assertEqual(kind, "InputPassword")
        password = box.find_element(By.CSS_SELECTOR, "input")
        self.assertEqual(password.get_attribute("type"), "password")
        self.keys("s3cret", Keys.ENTER)

        self.wait_for(lambda: "has been generated" in self.status(), "the note to be saved")
        self.assertEqual(self.status(), "DispatchID = DN50 has been generated")
        self.assertNotIn("s3cret", self.transcript())
        self.assertEqual(self.focused_control(), "txtCustomer")
        self.assertEqual(self.server.query("SELECT CustomerID FROM DispatchAbstract WHERE DocumentID = 50"),
                         [("C005",)])
        lines = self.server.query(
            "SELECT d.Product_Code, d.Batch_Number, d.UOMQty FROM DispatchDetail d "
            "JOIN DispatchAbstract a ON a.DispatchID = d.DispatchID WHERE a.DocumentID = 50 AND d.UOMQty > 0 "
            "ORDER BY d.Serial")
        self.assertEqual([(code, qty) for code, _, qty in lines], [("FD001", 95), ("FD002", 5)])
        self.assertEqual(lines[1][1], "CB101")


if __name__ == "__main__":
    unittest.main()
