"""A new person, entered with nothing but the keyboard, from the list to the saved rows."""

import story
from register import MAIN, MAINTENANCE, SELECTOR

NAME = "欧阳望舒"


def open_new_record(desk):
    desk.in_front(MAIN)
    desk.press("ctrl+n")
    desk.in_front(MAINTENANCE)


def pick_sex(desk):
    desk.focus_on("A01_A0104_v")
    desk.press("F2")
    desk.in_front(SELECTOR)
    desk.focus_on("tvGrpCod")
    desk.press("Down", "Down")
    desk.row_selected("tvGrpCod", "女")
    desk.picture("2-codes")
    desk.press("Return")
    desk.in_front(MAINTENANCE)
    desk.shows("A01_A0104_v", "女")


def fill_birthday(desk):
    desk.focus_on("A01_A0106_v")
    desk.screen.type("19880")
    # What is not a digit leaves no trace.
    desk.screen.type("x.")
    desk.screen.type("416")
    desk.shows("A01_A0106_v", "1988年04月16日")


def save(desk):
    desk.press("alt+s")
    desk.message("保存成功!", picture="4-saved")
    desk.press("Return")
    desk.in_front(MAINTENANCE)
    desk.shows("labOpt", "当前操作：修改")


def tell(desk):
    open_new_record(desk)
    desk.type("A01_A0101_v", NAME)
    desk.press("Tab")
    pick_sex(desk)
    desk.press("Tab")
    fill_birthday(desk)
    desk.press("Tab")
    desk.type("A01_A0103_v", "110105198804169969")
    desk.picture("3-filled")
    save(desk)
    desk.press("alt+x")
    desk.in_front(MAIN)
    desk.row_selected("list", NAME)
    desk.picture("5-list")
    desk.stored((NAME, "2", "1988-04-16", "110105198804169969", "01", "2026"),
                "select A0101,A0104,A0106,A0103,A0136,A0137 from A01 where A0101=?", NAME)
    desk.stored(("01", ""), "select P0123,P0120 from P01 where A00=(select A00 from A01 where A0101=?)", NAME)
    desk.close()


story.run(tell)
