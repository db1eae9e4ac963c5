#include "quillmere/IUserCtrl.h"

#include "metadata/Globals.h"
#include "platform/Error.h"
#include "platform/data/UnopenedConnection.h"
#include "platform/ui/Desktop.h"
#include "shell/frmPersonWh.h"

#include <utility>

namespace quillmere {

struct IUserCtrl::Properties {
    std::shared_ptr<data::Connection> connection;
    std::int16_t operationType = 0;
    std::int16_t zzType = 0;
    std::int16_t personType = 0;
    std::string photoPath;
    std::string personID;
    std::string unitCode;
    std::string skinPath;
};

IUserCtrl::IUserCtrl() : properties_(std::make_unique<Properties>()) {}
IUserCtrl::~IUserCtrl() = default;

void IUserCtrl::setConnection(std::shared_ptr<data::Connection> connection) {
    properties_->connection = std::move(connection);
}

std::shared_ptr<data::Connection> IUserCtrl::Connection() const {
    if (!properties_->connection) properties_->connection = std::make_shared<data::UnopenedConnection>();
    return properties_->connection;
}

bool IUserCtrl::ShowPersonWh() {
    frmPersonWh& window = frmPersonWh::defaultInstance();
    if (window.isLoaded()) throw Error(Failure::InvalidCall, "维护窗口已经打开，不能再次打开。", "Quillmere");
    publishConnection(Connection());
    const Properties& given = *properties_;
    window.personID = given.personID;
    window.PersonType = given.personType;
    window.OperationType = given.operationType;
    window.PhotoPath = given.photoPath;
    window.ZZtype = given.zzType;
    window.UnitCode = given.unitCode;
    window.IsSaved = false;
    window.SkinPath = given.skinPath;
    ui::desktop().showModal(window);
    return window.IsSaved;
}

void IUserCtrl::setOperationType(std::int16_t value) { properties_->operationType = value; }
std::int16_t IUserCtrl::OperationType() const { return properties_->operationType; }
void IUserCtrl::setZZtype(std::int16_t value) { properties_->zzType = value; }
std::int16_t IUserCtrl::ZZtype() const { return properties_->zzType; }
void IUserCtrl::setPersonType(std::int16_t value) { properties_->personType = value; }
std::int16_t IUserCtrl::PersonType() const { return properties_->personType; }
void IUserCtrl::setPhotoPath(std::string value) { properties_->photoPath = std::move(value); }
const std::string& IUserCtrl::PhotoPath() const { return properties_->photoPath; }
void IUserCtrl::setPersonID(std::string value) { properties_->personID = std::move(value); }
const std::string& IUserCtrl::personID() const { return properties_->personID; }
void IUserCtrl::setUnitCode(std::string value) { properties_->unitCode = std::move(value); }
const std::string& IUserCtrl::UnitCode() const { return properties_->unitCode; }
void IUserCtrl::setSkinPath(std::string value) { properties_->skinPath = std::move(value); }
const std::string& IUserCtrl::SkinPath() const { return properties_->skinPath; }

} // namespace quillmere
