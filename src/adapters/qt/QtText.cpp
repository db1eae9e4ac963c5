#include "adapters/qt/QtText.h"

namespace quillmere::qt {

QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string fromQt(const QString& text) { return text.toStdString(); }

std::size_t charactersIn(QStringView text) {
    std::size_t count = 0;
    for (const QChar unit : text) {
        if (!unit.isLowSurrogate()) ++count;
    }
    return count;
}

int unitOf(QStringView text, std::size_t character) {
    qsizetype unit = 0;
    for (; unit < text.size() && character > 0; --character) {
        const bool pair =
            text[unit].isHighSurrogate() && unit + 1 < text.size() && text[unit + 1].isLowSurrogate();
        unit += pair ? 2 : 1;
    }
    return static_cast<int>(unit);
}

} // namespace quillmere::qt
