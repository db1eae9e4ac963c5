#include "adapters/qt/LabelPeer.h"

#include "adapters/qt/FormPeer.h"
#include "adapters/qt/QtText.h"
#include "adapters/qt/Style.h"

#include "platform/ui/Label.h"

#include <QFontDatabase>
#include <QLabel>
#include <QRegularExpression>

#include <utility>

namespace quillmere::qt {

LabelPeer::LabelPeer(FormPeer& form, ui::Control& control)
    : ControlPeer(form, control, new QLabel(&form.window())) {
    label().setTextFormat(Qt::PlainText);
    mirror(ui::Property::Font);
    mirror(ui::Property::Caption);
}

QLabel& LabelPeer::label() const { return *static_cast<QLabel*>(widget()); }

void LabelPeer::showAsLegend() {
    legend_ = true;
    label().setTextFormat(Qt::RichText);
    showCaption();
}

void LabelPeer::onPicture(std::function<void(const std::string& path)> show) {
    showPicture_ = std::move(show);
    mirror(ui::Property::Picture);
}

void LabelPeer::showCaption() {
    const QString caption = toQt(as<ui::Label>().Caption());
    if (!legend_) {
        label().setText(caption.trimmed());
        setLook(label(), "blank", label().text().isEmpty());
        return;
    }
    const QStringList lines =
        caption.split(QRegularExpression(QStringLiteral("[\\r\\n]+")), Qt::SkipEmptyParts);
    label().setText(style::legendMarkup(lines));
}

void LabelPeer::mirror(ui::Property property) {
    const auto& model = as<ui::Label>();
    if (property == ui::Property::Caption) showCaption();
    if (property == ui::Property::Picture && showPicture_) showPicture_(model.Picture());
    if (property != ui::Property::Font) return;
    QFont font = formPeer().window().font();
    font.setBold(model.FontBold());
    const QString family = toQt(model.FontName());
    // A family that the machine lacks would be replaced by just any other.
    if (!family.isEmpty() && QFontDatabase::families().contains(family)) font.setFamily(family);
    label().setFont(font);
    setLook(label(), "required", model.FontBold());
}

bool LabelPeer::mousePressed(QMouseEvent& event, QWidget& /*target*/) {
    tellClick(event);
    return true;
}

} // namespace quillmere::qt
