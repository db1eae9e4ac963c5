#pragma once

#include <QColor>
#include <QMap>
#include <QString>
#include <QStringList>

#include <string>

namespace quillmere::qt {

/// The colours of a skin that painting code asks for, under the names that the skin declares them by.
struct Colours {
    QColor accent;
    QColor accentText;
    QColor focus;
    QColor text;
    QColor mutedText;
    QColor disabledText;
    QColor paleText;
    QColor ground;
    QColor card;
    QColor quiet;
    QColor cardBorder;
    QColor field;
    QColor fieldBorder;
    QColor disabledField;
    QColor coded;
    QColor codedSwatch;
    QColor selection;
    QColor selectionText;
    QColor popup;
    QColor icon;
    QColor disabledIcon;
    QColor menuIcon;
    QColor emptyPicture;
    QColor warning;
    QColor error;
    QColor signMark;
};

/// What windows are dressed in: colours, and the style sheet that is made with them.
class Skin {
public:
    /// The toolkit's own, which is the file sample/skins/light.qss.
    [[nodiscard]] static const Skin& light();

    /// The text of a skin file, laid over the light one. What it lacks, or what cannot be understood,
    /// is as in the light one.
    explicit Skin(const QString& text);

    /// The skin in a file. The light one when the path is empty, and when the file is missing or is no
    /// text: that, and what could not be understood, is told on stderr with the file's name.
    [[nodiscard]] static Skin fromFile(const std::string& path);

    [[nodiscard]] const QString& sheet() const { return sheet_; }
    [[nodiscard]] const Colours& colours() const { return colours_; }
    /// An invalid colour for a name that is not declared.
    [[nodiscard]] QColor colour(const QString& name) const { return named_.value(name); }
    [[nodiscard]] const QStringList& faults() const { return faults_; }

private:
    QMap<QString, QColor> named_;
    Colours colours_;
    QString sheet_;
    QStringList faults_;
};

} // namespace quillmere::qt
