#include "adapters/qt/Skin.h"

#include "adapters/qt/QtText.h"
#include "adapters/qt/Resources.h"
#include "adapters/qt/SkinText.h"

#include "platform/files/Files.h"

#include <QDebug>
#include <QFile>
#include <QStringDecoder>

#include <array>
#include <optional>

namespace quillmere::qt {

namespace {

struct NamedColour {
    const char* name;
    QColor Colours::*colour;
};

constexpr std::array paintedColours{
    NamedColour{"accent", &Colours::accent},
    NamedColour{"accentText", &Colours::accentText},
    NamedColour{"focus", &Colours::focus},
    NamedColour{"text", &Colours::text},
    NamedColour{"mutedText", &Colours::mutedText},
    NamedColour{"disabledText", &Colours::disabledText},
    NamedColour{"paleText", &Colours::paleText},
    NamedColour{"ground", &Colours::ground},
    NamedColour{"card", &Colours::card},
    NamedColour{"quiet", &Colours::quiet},
    NamedColour{"cardBorder", &Colours::cardBorder},
    NamedColour{"field", &Colours::field},
    NamedColour{"fieldBorder", &Colours::fieldBorder},
    NamedColour{"disabledField", &Colours::disabledField},
    NamedColour{"coded", &Colours::coded},
    NamedColour{"codedSwatch", &Colours::codedSwatch},
    NamedColour{"selection", &Colours::selection},
    NamedColour{"selectionText", &Colours::selectionText},
    NamedColour{"popup", &Colours::popup},
    NamedColour{"icon", &Colours::icon},
    NamedColour{"disabledIcon", &Colours::disabledIcon},
    NamedColour{"menuIcon", &Colours::menuIcon},
    NamedColour{"emptyPicture", &Colours::emptyPicture},
    NamedColour{"warning", &Colours::warning},
    NamedColour{"error", &Colours::error},
    NamedColour{"signMark", &Colours::signMark},
};

/// The bytes as text; none when they cannot be read or are no UTF-8.
std::optional<QString> textOf(const std::string& path) {
    QFile file(toQt(files::native(path)));
    if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    const QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError) return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder.decode(bytes);
    if (decoder.hasError() || text.contains(QChar::Null)) return std::nullopt;
    return text;
}

const SkinText& lightText() {
    static const SkinText text = readSkin(QString::fromUtf8(resource(QStringLiteral("light.qss"))));
    return text;
}

} // namespace

const Skin& Skin::light() {
    static const Skin skin{QString()};
    return skin;
}

Skin::Skin(const QString& text) {
    const SkinText own = readSkin(text);
    faults_ = own.faults;
    named_ = lightText().colours;
    named_.insert(own.colours);
    for (const auto& [name, colour] : paintedColours)
        colours_.*colour = named_.value(QLatin1String(name));
    sheet_ = withColours(lightText().rules, named_, faults_);
    sheet_ += withColours(own.rules, named_, faults_);
}

Skin Skin::fromFile(const std::string& path) {
    if (path.empty()) return light();
    const std::optional<QString> text = textOf(path);
    if (!text) {
        qWarning("Quillmere: no skin can be read from %s", path.c_str());
        return light();
    }
    Skin skin(*text);
    for (const QString& fault : skin.faults())
        qWarning("Quillmere: skin %s: %s", path.c_str(), qUtf8Printable(fault));
    return skin;
}

} // namespace quillmere::qt
