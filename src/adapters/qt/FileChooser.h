#pragma once

#include "platform/ui/Desktop.h"

#include <QStringList>

#include <string>

class QWidget;

namespace quillmere::qt {

/// Shows the dialog ("fileDialog") and returns the chosen path, empty when it was cancelled.
[[nodiscard]] std::string chooseFile(const ui::FileDialog& dialog, QWidget* parent);

/// "text|pattern;pattern|text|pattern" as Qt's name filters.
[[nodiscard]] QStringList nameFilters(const QString& filter);

} // namespace quillmere::qt
