#include "adapters/qt/EditMenu.h"

#include "adapters/qt/Guard.h"

#include <QMenu>

namespace quillmere::qt {

namespace {

void addLine(QMenu& menu, const QString& text, const std::function<void()>& command) {
    QAction* line = menu.addAction(text);
    line->setEnabled(static_cast<bool>(command));
    QObject::connect(line, &QAction::triggered, &menu, [command] { guarded(command); });
}

} // namespace

void showEditMenu(QWidget& editor, const QPoint& globalPosition, const EditCommands& commands) {
    auto* menu = new QMenu(&editor);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    addLine(*menu, QStringLiteral("撤销(&U)"), commands.undo);
    addLine(*menu, QStringLiteral("重做(&R)"), commands.redo);
    menu->addSeparator();
    addLine(*menu, QStringLiteral("剪切(&T)"), commands.cut);
    addLine(*menu, QStringLiteral("复制(&C)"), commands.copy);
    addLine(*menu, QStringLiteral("粘贴(&P)"), commands.paste);
    addLine(*menu, QStringLiteral("删除(&D)"), commands.erase);
    menu->addSeparator();
    addLine(*menu, QStringLiteral("全选(&A)"), commands.selectAll);
    menu->popup(globalPosition);
}

} // namespace quillmere::qt
