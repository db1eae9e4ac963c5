"""What a screen reader hears and reads: fields, focus, a refused field, and buttons and menu that it presses."""

import story
from register import MAIN, MAINTENANCE, MESSAGE

FIELDS = 35
CODED = "按 F2 键或双击选择代码"
# Name, description, and the states in which the fields differ.
SAMPLES = (("姓名", "必填", "editable"), ("性别", CODED, "read only"), ("身份证号", "", "editable"),
           ("职务", "", "editable"), ("入选科技新星年份", "", "editable"))

COMPLAINT = "身份证号长度应该为0或15或18位。"
FAULT = "错误信息"
STUDIES = "主要学习（从中专、大专或大学填起，包括国外学历）"
QUESTION = "数据被修改且未保存，是否保存？"


def expect(what, expected, found):
    if expected != found:
        raise AssertionError(f"{what}: expected {expected}, found {found}")


def read_fields(helper):
    fields = {field["name"]: field for field in helper.all("text")}
    expect("the number of fields, each of another name", FIELDS, len(fields))
    for name, field in fields.items():
        expect(name + " labelled", [name], ["".join(label.split()) for label in field["labels"]])
        missing = {"enabled", "focusable", "showing"} - set(field["states"])
        expect("states that " + name + " lacks", set(), missing)
        expect(name + " read only", CODED in field["description"], "read only" in field["states"])
    for name, description, state in SAMPLES:
        expect("the description of " + name, description, fields[name]["description"])
        expect(f"{name} {state}", True, state in fields[name]["states"])
    focused = [name for name, field in fields.items() if "focused" in field["states"]]
    expect("the field with the focus", ["姓名"], focused)


def walk(desk, helper):
    """The focus goes by the names of captions, and the help of a field follows."""
    for name in ("性别", "出生日期", "身份证号"):
        helper.forget()
        desk.press("Tab")
        helper.hears_focus("text", name)
        desk.until("help for " + name, lambda: desk.text("labExplain").strip())
        explained = "；".join(filter(None, [CODED if name == "性别" else "", desk.text("labExplain").strip()]))
        helper.hears("object:property-change:accessible-description", "text", name, description=explained)


def be_refused(desk, helper):
    """The message is told of with the window that shows it, and the focus comes back to the field."""
    desk.type_over("A01_A0103_v", "12")
    helper.forget()
    desk.press("Tab")
    desk.in_front(MESSAGE)
    helper.hears("window:activate", "alert", FAULT, description=COMPLAINT)
    helper.hears_focus("push button", "确定")
    helper.find("label", COMPLAINT)
    helper.forget()
    helper.press("push button", "确定")
    desk.in_front(MAINTENANCE)
    helper.hears_focus("text", "身份证号")
    desk.press("ctrl+a", "Delete")
    desk.shows("A01_A0103_v", "")


def use_menu(desk, helper):
    """A group that is pressed opens, the other closes; an item asks, and changes the panel."""
    helper.press("push button", "基本信息")
    helper.find("menu item", "主要学习经历")
    for group, state in (("基本信息", "expanded"), ("项目信息", "collapsed")):
        expect(f"{group} {state}", True, state in helper.find("push button", group)["states"])
    helper.forget()
    helper.press("menu item", "主要学习经历")
    desk.message(QUESTION)
    helper.hears("window:activate", "alert", "信息维护", description=QUESTION)
    helper.press("push button", "否")
    desk.in_front(MAINTENANCE)
    desk.shows("Title", STUDIES)
    helper.find("table", STUDIES)
    expect("the item chosen", True, "selected" in helper.find("menu item", "主要学习经历")["states"])


def use_toolbar(desk, helper):
    helper.find("tool bar", "工具栏")
    helper.press("push button", "增加")
    desk.shows("labOpt", "当前操作：增加")
    helper.forget()
    helper.press("push button", "退出")
    desk.in_front(MAIN)
    helper.hears_focus("table", "人员名单")


def tell(desk):
    desk.in_front(MAIN)
    name = desk.rows("select A01.A0101 from A01, P01 where P01.A00=A01.A00 and P01.P0123='01' and "
                     "A01.A0136='01'")[0][0]
    desk.click_row("list", name)
    desk.row_selected("list", name)
    desk.helper.press("push button", "维护")
    desk.in_front(MAINTENANCE)
    desk.shows("A01_A0101_v", name)
    read_fields(desk.helper)
    walk(desk, desk.helper)
    be_refused(desk, desk.helper)
    use_menu(desk, desk.helper)
    use_toolbar(desk, desk.helper)
    desk.close()


story.run(tell, assisted=True)
