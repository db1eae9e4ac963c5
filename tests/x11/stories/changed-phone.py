"""A person found by name, a telephone number changed, and a field that cannot be left while it is wrong."""

import story
from register import MAIN, MAINTENANCE

PHONE = "13910001234"
COMPLAINT = "邮政编码长度应该为0或6位。"


def person_to_change(desk):
    """Identity and name of a person whose project is still being applied for."""
    return desk.rows("select A01.A00, A01.A0101 from A01, P01 where P01.A00=A01.A00 and P01.P0123='01' and "
                     "A01.A0136='01'")[0]


def find_and_open(desk, name):
    desk.in_front(MAIN)
    desk.press("ctrl+f")
    desk.type("search", name)
    # The first Enter goes to what was found, the second opens it.
    desk.press("Return")
    desk.focus_on("list")
    desk.row_selected("list", name)
    desk.picture("1-found")
    desk.press("Return")
    desk.in_front(MAINTENANCE)
    desk.shows("A01_A0101_v", name)


def refuse_and_mend(desk):
    desk.click("A01_A0125_v")
    desk.type_over("A01_A0125_v", "1000")
    desk.click("A01_A0129_v")
    desk.message(COMPLAINT, picture="2-refused")
    desk.click("btnOk")
    desk.in_front(MAINTENANCE)
    desk.focus_on("A01_A0125_v")
    desk.press("Tab")
    desk.message(COMPLAINT)
    desk.press("Return")
    desk.in_front(MAINTENANCE)
    desk.type_over("A01_A0125_v", "100084")
    desk.click("A01_A0129_v")
    desk.focus_on("A01_A0129_v")


def tell(desk):
    identity, name = person_to_change(desk)
    find_and_open(desk, name)
    desk.click("A01_A0128_v")
    desk.type_over("A01_A0128_v", PHONE)
    refuse_and_mend(desk)
    desk.picture("3-mended")
    desk.press("ctrl+s")
    desk.message("保存成功!")
    desk.click("btnOk")
    desk.in_front(MAINTENANCE)
    desk.stored((name, PHONE, "100084"), "select A0101,A0128,A0125 from A01 where A00=?", identity)
    desk.press("alt+x")
    desk.close()


story.run(tell)
