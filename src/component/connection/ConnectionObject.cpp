#include "component/connection/ConnectionObject.h"

#include "component/automation/Conversions.h"
#include "component/connection/Engines.h"
#include "component/connection/ForeignConnection.h"
#include "component/connection/RecordsetObject.h"
#include "component/objects/KnownObjects.h"
#include "platform/Error.h"

namespace quillmere::component {

namespace {

/// The platform's number and words for it.
constexpr int objectOpen = 3705;

using Self = ConnectionObject;

Variant openIt(Self& object, const VARIANT& argument) {
    object.open(toText(argument));
    return {};
}

Variant execute(Self& object, const VARIANT& argument) {
    return Variant::of(makeObject<RecordsetObject>(toText(argument), *object.relay()));
}

constexpr MemberRow<Self> table[] = {
    {operation("Open", 1, Type::Nothing, {"ConnectionString", Type::Text, true}), openIt},
    {operation("Close", 2),
     [](Self& object, const VARIANT& /*argument*/) {
         object.close();
         return Variant();
     }},
    {reader("State", 3, Type::Integer32),
     [](Self& object, const VARIANT& /*argument*/) {
         return Variant::of(std::int32_t{object.relay()->isOpen() ? 1 : 0});
     }},
    {writer("ConnectionString", DISPID_VALUE, Type::Text),
     [](Self& object, const VARIANT& argument) {
         object.setConnectionString(toText(argument));
         return Variant();
     }},
    {reader("ConnectionString", DISPID_VALUE, Type::Text),
     [](Self& object, const VARIANT& /*argument*/) {
         return Variant::of(std::string_view(object.connectionString()));
     }},
    {operation("Execute", 4, Type::Object, {"CommandText", Type::Text}), execute},
};

} // namespace

std::span<const MemberRow<ConnectionObject>> ConnectionObject::rows() { return table; }

ConnectionObject::ConnectionObject() { KnownObjects<ConnectionObject>::add(this); }
ConnectionObject::~ConnectionObject() { KnownObjects<ConnectionObject>::remove(this); }

void ConnectionObject::open(std::string_view connectionString) {
    requireClosed();
    if (!connectionString.empty()) connectionString_ = connectionString;
    relay_->use(openEngine(connectionString_));
}

void ConnectionObject::close() {
    if (!relay_->isOpen()) throw Error(Failure::ObjectClosed);
    relay_->close();
}

void ConnectionObject::setConnectionString(std::string value) {
    requireClosed();
    connectionString_ = std::move(value);
}

void ConnectionObject::requireClosed() const {
    if (relay_->isOpen()) {
        throw Error(static_cast<Failure>(objectOpen), "对象打开时，不允许操作。", "Quillmere");
    }
}

std::shared_ptr<data::Connection> connectionBehind(const ComPtr<IDispatch>& object) {
    if (auto* own = KnownObjects<ConnectionObject>::find(object.get())) return own->relay();
    return std::make_shared<ForeignConnection>(object);
}

} // namespace quillmere::component
