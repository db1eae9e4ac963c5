#include "adapters/qt/SkinText.h"

#include <QRegularExpression>

namespace quillmere::qt {

namespace {

bool bracesMatch(const QString& rules) {
    int depth = 0;
    for (const QChar character : rules) {
        if (character == u'{') ++depth;
        if (character == u'}') --depth;
        if (depth < 0 || depth > 1) return false;
    }
    return depth == 0;
}

} // namespace

SkinText readSkin(QString text) {
    static const QRegularExpression comment(QStringLiteral("/\\*.*?\\*/"),
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression declaration(QStringLiteral("@(\\w+)\\s*:\\s*([^;{}]*);"));
    SkinText skin;
    text.remove(comment);
    qsizetype end = 0;
    for (auto each = declaration.globalMatch(text); each.hasNext();) {
        const QRegularExpressionMatch match = each.next();
        skin.rules += QStringView(text).mid(end, match.capturedStart() - end);
        end = match.capturedEnd();
        const QString value = match.captured(2).trimmed();
        // QColor takes the names of colours as well.
        if (const QColor colour(value); colour.isValid())
            skin.colours[match.captured(1)] = colour;
        else
            skin.faults << QStringLiteral("@%1 is no colour: %2").arg(match.captured(1), value);
    }
    skin.rules += QStringView(text).mid(end);
    return skin;
}

QString withColours(const QString& rules, const QMap<QString, QColor>& colours, QStringList& faults) {
    static const QRegularExpression use(QStringLiteral("@(\\w+)"));
    QString sheet;
    QStringList unknown;
    qsizetype end = 0;
    for (auto each = use.globalMatch(rules); each.hasNext();) {
        const QRegularExpressionMatch match = each.next();
        const QColor colour = colours.value(match.captured(1));
        if (!colour.isValid()) unknown << match.captured();
        sheet += QStringView(rules).mid(end, match.capturedStart() - end);
        sheet += colour.name(colour.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
        end = match.capturedEnd();
    }
    sheet += QStringView(rules).mid(end);
    unknown.removeDuplicates();
    for (const QString& name : unknown)
        faults << QStringLiteral("no colour for %1, rules left out").arg(name);
    if (!bracesMatch(sheet)) {
        faults << QStringLiteral("braces that do not match, rules left out");
        return {};
    }
    return unknown.isEmpty() ? sheet : QString();
}

} // namespace quillmere::qt
