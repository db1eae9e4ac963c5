"""Work with the mouse: list, menu, grid, toolbar, code selector, and closing by the frame."""

import story
from register import MAIN, MAINTENANCE, SELECTOR

SCHOOL = "测绘学院"


def person_with_studies(desk):
    """Identity, name and sex of a person with two studies whose project is still being applied for."""
    return desk.rows("select A01.A00, A01.A0101, A01.A0104 from A01, P01 where P01.A00=A01.A00 and "
                     "P01.P0123='01' and (select count(*) from A02 where A02.A00=A01.A00)=2")[0]


def schools(desk, identity):
    return [row[0] for row in desk.rows("select A0203 from A02 where A00=? order by A0299", identity)]


def open_studies(desk, name):
    desk.in_front(MAIN)
    desk.click_row("list", name)
    desk.row_selected("list", name)
    desk.click("maintain")
    desk.in_front(MAINTENANCE)
    desk.shows("A01_A0101_v", name)
    desk.click("VMenu1_1")
    desk.click("VMenu1_1_2")
    desk.row("DGItems", "")


def choose(desk, school):
    desk.click_row("DGItems", school)
    desk.row_selected("DGItems", school)
    desk.shows("A02_A0203_v", school)


def add(desk):
    desk.click("TbMain_Add")
    desk.shows("labOpt", "当前操作：增加")
    # The date has the focus already; the click behind what it shows must not lose what is typed.
    desk.focus_on("A02_A0201_v")
    desk.click("A02_A0201_v")
    desk.screen.type("200809")
    desk.shows("A02_A0201_v", "2008年09月")
    desk.click("A02_A0203_v")
    desk.type("A02_A0203_v", SCHOOL)


def delete(desk, school):
    choose(desk, school)
    desk.click("TbMain_Delete")
    desk.message("是否删除此条记录？", picture="3-delete")
    desk.click("btnYes")
    desk.in_front(MAINTENANCE)


def change_sex(desk, sex):
    desk.click("VMenu1_1_1")
    desk.click("A01_A0104_v", times=2)
    desk.in_front(SELECTOR)
    # Closing the selector chooses nothing.
    before = desk.rows("select dmcpt from DM_XB where dmcpt<>? and dmcod in ('1','2')", sex)[0][0]
    desk.close_by_frame()
    desk.in_front(MAINTENANCE)
    desk.shows("A01_A0104_v", before)
    desk.click("A01_A0104_v", times=2)
    desk.in_front(SELECTOR)
    desk.click_row("tvGrpCod", sex, times=2)
    desk.in_front(MAINTENANCE)
    desk.shows("A01_A0104_v", sex)


def save_when_leaving(desk):
    desk.click("TbMain_Exit")
    desk.message("数据被修改但未保存，是否保存？", picture="4-question")
    desk.click("btnYes")
    desk.in_front(MAIN)


def leave_by_frame(desk, name):
    """The frame asks nothing, and what was typed is gone."""
    desk.click_row("list", name, times=2)
    desk.in_front(MAINTENANCE)
    desk.click("A01_A0123_v")
    desk.type_over("A01_A0123_v", "总工程师")
    desk.close_by_frame()
    desk.in_front(MAIN)


def tell(desk):
    identity, name, code = person_with_studies(desk)
    first, second = schools(desk, identity)
    open_studies(desk, name)
    choose(desk, second)
    choose(desk, first)
    desk.picture("1-studies")
    add(desk)
    desk.picture("2-added")
    desk.click("TbMain_Save")
    desk.row("DGItems", SCHOOL)
    desk.stored(("2008-09", 3), "select A0201, A0299 from A02 where A00=? and A0203=?", identity, SCHOOL)
    delete(desk, second)
    desk.until("the study deleted", lambda: schools(desk, identity) == [first, SCHOOL])
    change_sex(desk, "女" if code == "1" else "男")
    save_when_leaving(desk)
    position = desk.rows("select A0123 from A01 where A00=?", identity)[0][0]
    leave_by_frame(desk, name)
    desk.stored(("2" if code == "1" else "1", position), "select A0104, A0123 from A01 where A00=?", identity)
    desk.picture("5-list")
    desk.close()


story.run(tell)
