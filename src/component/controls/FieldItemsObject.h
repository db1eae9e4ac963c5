#pragma once

#include "component/automation/Variant.h"
#include "component/objects/DispatchObject.h"
#include "metadata/cFieldItems.h"

#include <memory>

namespace quillmere::component {

/// The field set of a panel, read only: a host hands it on, it does not fill it.
class FieldItemsObject final : public DispatchObject<FieldItemsObject> {
public:
    explicit FieldItemsObject(std::shared_ptr<cFieldItems> items);
    ~FieldItemsObject();

    [[nodiscard]] static std::span<const MemberRow<FieldItemsObject>> rows();

    [[nodiscard]] const std::shared_ptr<cFieldItems>& items() const { return items_; }
    /// By key ("A02_A0201") or by position from 1. Raises what cFieldItems raises.
    [[nodiscard]] ComPtr<IDispatch> item(const VARIANT& index) const;

private:
    std::shared_ptr<cFieldItems> items_;
};

/// One field: what the catalogue says of it, and the current record's value.
class FieldItemObject final : public DispatchObject<FieldItemObject> {
public:
    explicit FieldItemObject(std::shared_ptr<const cFieldItem> item) : item_(std::move(item)) {}

    [[nodiscard]] static std::span<const MemberRow<FieldItemObject>> rows();

    [[nodiscard]] const cFieldItem& item() const { return *item_; }

private:
    std::shared_ptr<const cFieldItem> item_;
};

/// Null for a panel that has none.
[[nodiscard]] ComPtr<IDispatch> fieldItemsObject(const std::shared_ptr<cFieldItems>& items);
/// Raises Error (TypeMismatch) for an object that is no field set of this server.
[[nodiscard]] std::shared_ptr<cFieldItems> fieldItemsBehind(const ComPtr<IDispatch>& object);

} // namespace quillmere::component
