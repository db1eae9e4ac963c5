#pragma once

#include <QColor>
#include <QMap>
#include <QString>
#include <QStringList>

namespace quillmere::qt {

/// A skin file taken apart: a style sheet in which a line "@name: #RRGGBB;" declares a colour, and
/// "@name" in a rule stands for it.
struct SkinText {
    QMap<QString, QColor> colours;
    /// Everything but declarations and comments.
    QString rules;
    /// What could not be understood, each in words. What it stands in has been left out.
    QStringList faults;
};

[[nodiscard]] SkinText readSkin(QString text);

/// The rules with each "@name" replaced by its colour. None, with the faults told, when a name has no
/// colour or the braces do not match: one such rule would cost the window its whole look.
[[nodiscard]] QString withColours(const QString& rules, const QMap<QString, QColor>& colours,
                                  QStringList& faults);

} // namespace quillmere::qt
