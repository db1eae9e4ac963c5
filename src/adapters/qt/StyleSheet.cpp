#include "adapters/qt/StyleSheet.h"

namespace quillmere::qt::style {

const char* const styleSheet = R"(
* { font-family: "Microsoft YaHei UI", "Noto Sans CJK SC"; font-size: 13px; }
QWidget[role="window"], QWidget[role="ground"] { background: #EEF2F7; }
QWidget[role="dialog"] { background: #FFFFFF; }
QLabel { color: #16243A; background: transparent; }
QToolTip { color: #16243A; background: #FFFFFF; border: 1px solid #BECAD9; padding: 4px 6px; }

QFrame[role="card"] { background: #FFFFFF; border: 1px solid #D9E1EC; border-radius: 6px; }
QFrame[role="rule"] { background: #E6ECF4; border: none; }
QFrame[role="separator"] { background: #D9E1EC; border: none; }

QWidget[role="topBar"] { background: #FFFFFF; border-bottom: 1px solid #D9E1EC; }
QToolButton { color: #16243A; background: transparent; border: none; border-radius: 5px; padding: 5px 10px 5px 8px; }
QToolButton:hover { background: #EDF3FC; }
QToolButton:pressed { background: #DCE8FA; }
QToolButton:disabled { color: #A3AEBD; }
QLabel[role="personName"] { font-size: 16px; font-weight: bold; color: #1F4E9C; padding-right: 6px; }

QScrollArea[role="menu"], QWidget[role="menuContent"] { background: #22385C; border: none; }
QWidget[role="menuItems"] { background: #1A2D4C; }
QPushButton[role="menuGroup"] {
    color: #F2F6FC; background: transparent; font-weight: bold; text-align: left; border: none;
    border-bottom: 1px solid #2D4770; border-radius: 0; padding: 0 12px 0 14px; min-height: 39px; }
QPushButton[role="menuGroup"]:hover { background: #2B4570; }
QPushButton[role="menuGroup"][open="true"] { background: #2F6FD0; border-bottom: 1px solid #2F6FD0; }
QPushButton[role="menuItem"] {
    color: #D3DDEC; background: transparent; text-align: left; border: none; border-left: 3px solid transparent;
    border-radius: 0; padding: 0 10px 0 35px; min-height: 32px; }
QPushButton[role="menuItem"]:hover { background: #243E66; color: #FFFFFF; }
QPushButton[role="menuItem"][current="true"] { background: #2B4A7C; color: #FFFFFF; border-left: 3px solid #5B9BF5; }

QLabel[role="title"] { font-size: 15px; font-weight: bold; }
QLabel[role="title"]:disabled { color: #66758C; }
QLabel[role="pill"] { color: #1F5FBF; background: #E4EEFC; border-radius: 10px; padding: 2px 10px; font-size: 12px; }
QLabel[role="pill"][blank="true"] { background: transparent; }
QLabel[role="pill"]:disabled { color: #7C8899; background: #EEF2F7; }
QLabel[role="legend"] { color: #66758C; font-size: 12px; }
QLabel[role="caption"] { color: #43536B; }
QLabel[role="caption"][required="true"] { color: #16243A; }
QLabel[role="caption"]:disabled { color: #7C8899; }
QLabel[role="unit"] { color: #66758C; }
QLabel[role="help"] { color: #52627A; }
QLabel[role="note"] { color: #52627A; }
QWidget[role="helpBar"] { background: #F6F9FD; border-top: 1px solid #E6ECF4;
    border-bottom-left-radius: 6px; border-bottom-right-radius: 6px; }

QLineEdit, QPlainTextEdit {
    color: #16243A; background: #FFFFFF; border: 1px solid #BECAD9; border-radius: 4px;
    padding: 0 8px; selection-background-color: #2F6FD0; selection-color: #FFFFFF; }
QLineEdit { min-height: 26px; max-height: 26px; }
QPlainTextEdit { padding: 3px 5px; }
QLineEdit:hover, QPlainTextEdit:hover { border-color: #94A8C2; }
QLineEdit:focus { border: 2px solid #2F6FD0; padding: 0 7px; min-height: 24px; max-height: 24px; }
QPlainTextEdit:focus { border: 2px solid #2F6FD0; padding: 2px 4px; }
QLineEdit[coded="true"], QPlainTextEdit[coded="true"] { background: #C9E0FC; border-color: #93BDF0; }
QLineEdit[coded="true"]:focus { border-color: #2F6FD0; }
QLineEdit[locked="true"], QPlainTextEdit[locked="true"] { background: #F1F4F8; color: #52627A; }
QLineEdit:disabled, QPlainTextEdit:disabled { background: #F1F4F8; color: #66758C; border-color: #D9E1EC; }
QLineEdit[coded="true"]:disabled { background: #E4EEFA; border-color: #CBDCF0; }
QLineEdit QToolButton { padding: 0; background: transparent; }

QPushButton {
    color: #16243A; background: #FFFFFF; border: 1px solid #BECAD9; border-radius: 4px;
    padding: 0 14px; min-height: 26px; min-width: 44px; }
QPushButton:hover { background: #F3F7FD; border-color: #94A8C2; }
QPushButton:pressed { background: #E4EEFC; }
QPushButton:focus { border: 2px solid #2F6FD0; padding: 0 13px; min-height: 24px; }
QPushButton:disabled { color: #A3AEBD; background: #F6F8FB; border-color: #DDE4ED; }
QPushButton[primary="true"] { color: #FFFFFF; background: #2F6FD0; border-color: #2F6FD0; }
QPushButton[primary="true"]:hover { background: #3E7DDC; }
QPushButton[primary="true"]:pressed { background: #255BB0; }
QPushButton[primary="true"]:focus { border: 2px solid #1B4A96; }
QPushButton[primary="true"]:disabled { color: #FFFFFF; background: #B5C9E8; border-color: #B5C9E8; }

QAbstractItemView {
    color: #16243A; background: #FFFFFF; border: 1px solid #D9E1EC; border-radius: 4px; outline: none;
    alternate-background-color: #F6F9FD; selection-background-color: #D6E6FB; selection-color: #16243A; }
QAbstractItemView:focus { border: 1px solid #2F6FD0; }
QAbstractItemView:disabled { color: #7C8899; }
QAbstractItemView::item:selected { background: #D6E6FB; color: #16243A; }
QAbstractItemView::item:hover:!selected { background: #EDF3FC; }
QTableView { gridline-color: #E6ECF4; }
QFrame[role="card"] QTableView { border: 1px solid transparent; border-radius: 6px; }
QFrame[role="card"] QTableView:focus { border: 1px solid #2F6FD0; }
QTableView::item { padding: 0 8px; border: none; }
QListView::item { padding: 0 6px; border: none; }
QHeaderView { background: #EEF3F9; border: none; border-top-left-radius: 5px; border-top-right-radius: 5px; }
QHeaderView::section {
    color: #2C3D57; background: transparent; font-weight: bold; border: none;
    border-right: 1px solid #D9E1EC; border-bottom: 1px solid #D9E1EC; padding: 0 11px; }

QTabBar { background: transparent; }
QTabBar::tab { color: #52627A; background: transparent; border: none; border-bottom: 2px solid transparent;
    padding: 8px 14px; margin-right: 6px; }
QTabBar::tab:hover { color: #16243A; }
QTabBar::tab:selected { color: #2F6FD0; font-weight: bold; border-bottom: 2px solid #2F6FD0; }

QScrollArea, QScrollArea > QWidget > QWidget[role="fields"] { background: transparent; border: none; }
QScrollBar:vertical { background: transparent; width: 11px; margin: 1px; }
QScrollBar::handle:vertical { background: #C3CFDE; border-radius: 4px; min-height: 30px; }
QScrollBar::handle:vertical:hover { background: #A5B5C9; }
QScrollBar:horizontal { background: transparent; height: 11px; margin: 1px; }
QScrollBar::handle:horizontal { background: #C3CFDE; border-radius: 4px; min-width: 30px; }
QScrollBar::handle:horizontal:hover { background: #A5B5C9; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }

QMenu { color: #16243A; background: #FFFFFF; border: 1px solid #BECAD9; padding: 4px; }
QMenu::item { padding: 5px 26px 5px 16px; border-radius: 3px; }
QMenu::item:selected { background: #E4EEFC; }
QMenu::item:disabled { color: #A3AEBD; }
QMenu::separator { height: 1px; background: #E6ECF4; margin: 4px 8px; }
)";

} // namespace quillmere::qt::style
