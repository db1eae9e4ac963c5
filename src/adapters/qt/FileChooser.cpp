#include "adapters/qt/FileChooser.h"

#include "adapters/qt/Guard.h"
#include "adapters/qt/QtText.h"
#include "adapters/qt/Style.h"

#include "platform/files/Files.h"

#include <QFileDialog>
#include <QFileInfo>

namespace quillmere::qt {

QStringList nameFilters(const QString& filter) {
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString name = parts[i];
        // Qt writes the patterns behind the name itself.
        if (const auto bracket = name.indexOf(QLatin1Char('(')); bracket >= 0) name.truncate(bracket);
        const QStringList patterns = parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts);
        filters << QStringLiteral("%1 (%2)").arg(name.trimmed(), patterns.join(QLatin1Char(' ')));
    }
    return filters;
}

std::string chooseFile(const ui::FileDialog& dialog, QWidget* parent) {
    QFileDialog chooser(parent, QStringLiteral("打开"));
    chooser.setObjectName(QStringLiteral("fileDialog"));
    chooser.setAttribute(Qt::WA_QuitOnClose, false);
    chooser.setFileMode(QFileDialog::ExistingFile);
    chooser.setWindowFlags(chooser.windowFlags() & ~Qt::WindowContextHelpButtonHint);
    style::dress(chooser);
    chooser.setLabelText(QFileDialog::LookIn, QStringLiteral("位置："));
    chooser.setLabelText(QFileDialog::FileName, QStringLiteral("文件名："));
    chooser.setLabelText(QFileDialog::FileType, QStringLiteral("文件类型："));
    chooser.setLabelText(QFileDialog::Accept, QStringLiteral("打开"));
    chooser.setLabelText(QFileDialog::Reject, QStringLiteral("取消"));
    chooser.setNameFilters(nameFilters(toQt(dialog.filter)));
    if (!dialog.directory.empty()) {
        // The directory may be given by a file in it.
        const QFileInfo start(toQt(files::native(dialog.directory)));
        chooser.setDirectory(start.isDir() ? start.absoluteFilePath() : start.absolutePath());
    }
    ModalSession session;
    std::string chosen;
    QObject::connect(&chooser, &QFileDialog::finished, &chooser, [&](int result) {
        guarded([&] {
            const QStringList files = chooser.selectedFiles();
            if (result == QDialog::Accepted && !files.isEmpty()) chosen = fromQt(files.front());
        });
        session.end();
    });
    chooser.setWindowModality(Qt::ApplicationModal);
    chooser.show();
    chooser.activateWindow();
    session.run();
    return chosen;
}

} // namespace quillmere::qt
