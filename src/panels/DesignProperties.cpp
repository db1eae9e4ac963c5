#include "panels/DesignProperties.h"

namespace quillmere {

namespace {

template <class T, class Convert>
T valueOr(const PropertyBag& bag, std::string_view name, T fallback, Convert convert) {
    const auto found = bag.find(name);
    return found == bag.end() ? fallback : convert(found->second);
}

} // namespace

void DesignProperties::readFrom(const PropertyBag& bag) {
    const auto colour = [](const data::Value& value) { return static_cast<ui::Colour>(value.toLong()); };
    const auto small = [](const data::Value& value) { return value.toInteger16(); };
    backColor_ = valueOr(bag, "BackColor", ui::Colour{0}, colour);
    foreColor_ = valueOr(bag, "ForeColor", ui::Colour{0}, colour);
    enabled_ = valueOr(bag, "Enabled", false, [](const data::Value& value) { return value.toBoolean(); });
    font_ = valueOr(bag, "Font", std::string(), [](const data::Value& value) { return value.toText(); });
    backStyle_ = valueOr(bag, "BackStyle", std::int16_t{0}, small);
    borderStyle_ = valueOr(bag, "BorderStyle", std::int16_t{0}, small);
}

void DesignProperties::writeTo(PropertyBag& bag) const {
    // Colours are signed in the store, as the platform has them.
    bag["BackColor"] = static_cast<std::int32_t>(backColor_);
    bag["ForeColor"] = static_cast<std::int32_t>(foreColor_);
    bag["Enabled"] = enabled_;
    bag["Font"] = font_;
    bag["BackStyle"] = int{backStyle_};
    bag["BorderStyle"] = int{borderStyle_};
}

} // namespace quillmere
